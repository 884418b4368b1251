// The function sets of data objects.
#include "../sceneFixture.h"

#include "api/support/component.h"

#include <maya/MDoubleArray.h>
#include <maya/MFnComponentListData.h>
#include <maya/MFnDoubleArrayData.h>
#include <maya/MFnIntArrayData.h>
#include <maya/MFnMatrixData.h>
#include <maya/MFnNumericData.h>
#include <maya/MFnPointArrayData.h>
#include <maya/MFnStringArrayData.h>
#include <maya/MFnStringData.h>
#include <maya/MFnVectorArrayData.h>
#include <maya/MIntArray.h>
#include <maya/MMatrix.h>
#include <maya/MPointArray.h>
#include <maya/MTransformationMatrix.h>
#include <maya/MVectorArray.h>

namespace tvxhost::api::test {
namespace {

class DataSetsTest : public SceneFixture
{
};

TEST_F(DataSetsTest, AStringIsMadeReadAndReplaced)
{
    MFnStringData set;
    MStatus status = MS::kFailure;
    const MObject data = set.create("crowd", &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(data.apiType(), MFn::kStringData);
    MFnStringData again(data, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(text(again.string()), "crowd");
    EXPECT_EQ(again.set("figures"), MS::kSuccess);
    EXPECT_EQ(text(set.string()), "figures") << "both sets edit the one object";
    EXPECT_EQ(text(MFnStringData(set.create(), nullptr).string()), "");
}

TEST_F(DataSetsTest, ASetIsMadeOnAnObjectWithoutAskingForTheStatus)
{
    MFnStringData made;
    MObject data = made.create("crowd");
    const MObject same = data;
    EXPECT_EQ(text(MFnStringData(data).string()), "crowd");
    EXPECT_EQ(text(MFnStringData(same).string()), "crowd");
    EXPECT_FALSE(MFnData(data).object().isNull());
}

TEST_F(DataSetsTest, ASetForAnotherKindDoesNotAttach)
{
    MFnStringData strings;
    const MObject data = strings.create("x");
    MStatus status;
    MFnIntArrayData numbers(data, &status);
    EXPECT_EQ(text(status), "(kInvalidParameter): Object is incompatible with this method");
    EXPECT_EQ(numbers.length(&status), 0u);
    EXPECT_EQ(text(status), "(kFailure): Object does not exist");
    EXPECT_EQ(numbers.set(1, 0), MS::kFailure);
    EXPECT_EQ(static_cast<const MFnIntArrayData&>(numbers)[5], 0);
    MFnData any(data, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(any.type(), MFn::kData);
    MFnIntArrayData null(MObject(), &status);
    EXPECT_EQ(text(status), "(kInvalidParameter): Argument is a NULL pointer");
}

TEST_F(DataSetsTest, AnArrayIsMadeReadAndReplaced)
{
    const int numbers[] = {3, 1, 4};
    MFnIntArrayData set;
    MStatus status = MS::kFailure;
    const MObject data = set.create(MIntArray(numbers, 3), &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(data.apiType(), MFn::kIntArrayData);
    EXPECT_EQ(set.length(), 3u);
    EXPECT_EQ(set[2], 4);
    EXPECT_EQ(set.set(9, 1), MS::kSuccess);
    EXPECT_EQ(text(set.set(9, 3)), "(kInvalidParameter): No element at given index");
    MIntArray copy(7, 7);
    EXPECT_EQ(set.copyTo(copy), MS::kSuccess);
    ASSERT_EQ(copy.length(), 3u);
    EXPECT_EQ(copy[1], 9);
    EXPECT_EQ(set.set(MIntArray(1, 5)), MS::kSuccess);
    EXPECT_EQ(set.length(), 1u);
}

TEST_F(DataSetsTest, AnArrayThatIsLentEditsTheObject)
{
    MFnDoubleArrayData set;
    MObject data = set.create(MDoubleArray(2, 1.5));
    MDoubleArray lent = set.array();
    lent[0] = 7.0;
    lent.append(8.0);
    EXPECT_EQ(set[0], 7.0);
    EXPECT_EQ(set.length(), 3u);
    MDoubleArray copy(lent);
    copy[0] = 9.0;
    EXPECT_EQ(set[0], 7.0) << "a copy is independent";
    lent = MDoubleArray(1, 2.0);
    EXPECT_EQ(set.length(), 1u) << "what is assigned goes into the object";
}

TEST_F(DataSetsTest, AnArrayThatIsLentOutlivesItsHandles)
{
    MIntArray* lent = nullptr;
    {
        MFnIntArrayData set;
        const MObject data = set.create(MIntArray(2, 3));
        lent = new MIntArray(set.array());
        MIntArray borrowed = set.array();
        set.setObject(MFnIntArrayData().create());
        EXPECT_EQ(borrowed[1], 3);
    }
    EXPECT_EQ((*lent)[1], 3);
    delete lent;
}

TEST_F(DataSetsTest, VectorsPointsAndTextsAreHeldLikewise)
{
    MFnVectorArrayData vectors;
    vectors.create(MVectorArray(2, MVector(1, 2, 3)));
    vectors[1] = MVector(4, 5, 6);
    EXPECT_EQ(static_cast<const MFnVectorArrayData&>(vectors)[1], MVector(4, 5, 6));
    MVector nine(9, 9, 9);
    EXPECT_EQ(vectors.set(nine, 0), MS::kSuccess);
    EXPECT_EQ(vectors.array()[0], MVector(9, 9, 9));

    MFnPointArrayData points;
    points.create(MPointArray(1, MPoint(1, 2, 3, 0.5)));
    MPointArray copied;
    EXPECT_EQ(points.copyTo(copied), MS::kSuccess);
    EXPECT_EQ(copied[0], MPoint(1, 2, 3, 0.5));

    MFnStringArrayData names;
    names.create(MStringArray(2, "a"));
    names[0] = "changed";
    EXPECT_EQ(names.set("b", 1), MS::kSuccess);
    MStringArray lent = names.array();
    lent.append("c");
    MStringArray all;
    names.copyTo(all);
    EXPECT_EQ(texts(all), (Texts{"changed", "b", "c"}));
}

TEST_F(DataSetsTest, AMatrixIsMadeReadAndReplaced)
{
    MMatrix moved;
    moved[3][0] = 5.0;
    MFnMatrixData set;
    const MObject data = set.create(moved);
    EXPECT_EQ(data.apiType(), MFn::kMatrixData);
    MStatus status = MS::kFailure;
    const MMatrix& inside = set.matrix(&status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(inside, moved);
    EXPECT_EQ(set.set(moved * moved), MS::kSuccess);
    EXPECT_EQ(inside(3, 0), 10.0) << "the reference is into the object";
    EXPECT_EQ(set.transformation().getTranslation(MSpace::kTransform), MVector(10, 0, 0));
    EXPECT_FALSE(set.isTransformation());
    EXPECT_EQ(MFnMatrixData().matrix(&status), MMatrix::identity);
    EXPECT_EQ(status, MS::kFailure);
}

TEST_F(DataSetsTest, AGroupOfNumbersKnowsItsType)
{
    MFnNumericData set;
    MStatus status = MS::kFailure;
    const MObject data = set.create(MFnNumericData::k3Float, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(set.numericType(), MFnNumericData::k3Float);
    EXPECT_EQ(set.setData3Float(0.25f, 0.5f, 1.0f), MS::kSuccess);
    float r = 0, g = 0, b = 0;
    EXPECT_EQ(set.getData(r, g, b), MS::kSuccess);
    EXPECT_EQ(r, 0.25f);
    EXPECT_EQ(b, 1.0f);
    double x = 7, y = 7, z = 7;
    EXPECT_EQ(set.getData3Double(x, y, z), MS::kFailure);
    EXPECT_EQ(x, 7.0) << "untouched";
    EXPECT_EQ(set.setData2Float(1, 2), MS::kFailure);
    EXPECT_TRUE(set.create(MFnNumericData::kInt, &status).isNull());
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(DataSetsTest, GroupsOfEveryKindHoldTheirNumbers)
{
    MFnNumericData set;
    short s1 = 0, s2 = 0, s3 = 0;
    int i1 = 0, i2 = 0, i3 = 0;
    double d1 = 0, d2 = 0, d3 = 0, d4 = 0;
    set.create(MFnNumericData::k2Short);
    EXPECT_EQ(set.setData(short(1), short(-2)), MS::kSuccess);
    EXPECT_EQ(set.getData2Short(s1, s2), MS::kSuccess);
    EXPECT_EQ(s2, -2);
    set.create(MFnNumericData::k3Short);
    set.setData3Short(1, 2, 3);
    set.getData(s1, s2, s3);
    EXPECT_EQ(s3, 3);
    set.create(MFnNumericData::k3Int);
    set.setData3Int(1, 2, -3000000);
    set.getData3Int(i1, i2, i3);
    EXPECT_EQ(i3, -3000000);
    set.create(MFnNumericData::k4Double);
    set.setData4Double(1, 2, 3, 4.5);
    set.getData4Double(d1, d2, d3, d4);
    EXPECT_EQ(d4, 4.5);
    EXPECT_EQ(d1, 1.0);
}

TEST_F(DataSetsTest, AComponentListHoldsEachOnce)
{
    MFnComponentListData set;
    const MObject data = set.create();
    MObject faces = componentHandle("f[0:5]"), corners = componentHandle("vtx[2]"), nothing;
    EXPECT_EQ(set.add(faces), MS::kSuccess);
    EXPECT_EQ(set.add(corners), MS::kSuccess);
    EXPECT_EQ(set.add(faces), MS::kSuccess);
    EXPECT_EQ(set.length(), 2u);
    EXPECT_EQ(set.add(nothing), MS::kInvalidParameter);
    EXPECT_EQ(componentsOf(set[1]), "vtx[2]");
    EXPECT_TRUE(set.has(componentHandle("f[0:5]")));
    EXPECT_EQ(set.remove(componentHandle("e[1]")), MS::kInvalidParameter);
    EXPECT_EQ(set.remove(faces), MS::kSuccess);
    EXPECT_EQ(set.remove(1u), MS::kInvalidParameter);
    EXPECT_EQ(set.remove(0u), MS::kSuccess);
    EXPECT_EQ(set.length(), 0u);
    set.add(corners);
    EXPECT_EQ(set.clear(), MS::kSuccess);
    EXPECT_EQ(set.length(), 0u);
}

} // namespace
} // namespace tvxhost::api::test
