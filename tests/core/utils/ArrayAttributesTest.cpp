// Accessors of points, objects, matrices and arrays: values moved, and a report of every step that fails.
#include "HolderFixture.h"

#include <maya/MDGContext.h>
#include <maya/MFnDagNode.h>
#include <maya/MFnDoubleArrayData.h>
#include <maya/MFnIntArrayData.h>
#include <maya/MFnMatrixData.h>
#include <maya/MFnStringArrayData.h>
#include <maya/MFnTransform.h>
#include <maya/MFnVectorArrayData.h>
#include <maya/MMatrix.h>
#include <maya/MTime.h>

#include <functional>

namespace tarvox::crowd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What an array getter reports before the error string, step by step.
struct ArrayPrefixes
{
    std::string node, plug, object, data;
};

/// The members of a type of array.
template <class Array, class Function>
struct Members
{
    using Data = Function;
    const char* name; ///< of the holder's attribute
    std::string getter, setter;
    std::string functionSet;
    std::function<void(const MObject&, const MObject&, Array&, bool)> getByObject;
    void (*getByName)(const MObject&, const MString&, Array&);
    void (*setByObject)(const MObject&, const MObject&, const Array&, bool);
    bool hasNetworked; ///< whether the getter by object takes it; else it always looks up
    ArrayPrefixes prefixes;
    Array value;
};

template <class Array, class Element>
Array arrayOf(std::initializer_list<Element> elements)
{
    Array array;
    for (const Element& element : elements)
        array.append(element);
    return array;
}

struct IntArrays : Members<MIntArray, MFnIntArrayData>
{
    IntArrays()
        : Members{"intArray",
                  "getIntArrayAttribute",
                  "setIntArrayAttribute",
                  "MFnIntArrayData",
                  [](const MObject& node, const MObject& object, MIntArray& result, bool) {
                      MayaUtils::getIntArrayAttribute(node, object, result);
                  },
                  &MayaUtils::getIntArrayAttribute,
                  &MayaUtils::setIntArrayAttribute,
                  false,
                  {},
                  arrayOf<MIntArray>({3, -1, 2})}
    {
    }
};

#define TVX_ARRAY_MEMBERS(Name, attribute, prefixes, value)                                                  \
    attribute, "get" #Name "ArrayAttribute", "set" #Name "ArrayAttribute", "MFn" #Name "ArrayData",          \
        [](const MObject& node, const MObject& object, M##Name##Array& result, bool networked) {             \
            MayaUtils::get##Name##ArrayAttribute(node, object, result, networked);                           \
        },                                                                                                   \
        &MayaUtils::get##Name##ArrayAttribute, &MayaUtils::set##Name##ArrayAttribute, true, prefixes, value

struct DoubleArrays : Members<MDoubleArray, MFnDoubleArrayData>
{
    DoubleArrays()
        : Members{TVX_ARRAY_MEMBERS(
              Double, "doubleArray",
              (ArrayPrefixes{
                  "getDoubleArrayAttribute:depFn : ", "getDoubleArrayAttribute:findPlug : ",
                  "getDoubleArrayAttribute:asMObject : ", "getDoubleArrayAttribute:MFnDoubleArrayData : "}),
              arrayOf<MDoubleArray>({0.1, -2.5, 1e300}))}
    {
    }
};
struct StringArrays : Members<MStringArray, MFnStringArrayData>
{
    StringArrays()
        : Members{TVX_ARRAY_MEMBERS(String, "stringArray", ArrayPrefixes{},
                                    arrayOf<MStringArray>({MString("a"), MString(""), MString("c d")}))}
    {
    }
};
struct VectorArrays : Members<MVectorArray, MFnVectorArrayData>
{
    VectorArrays()
        : Members{TVX_ARRAY_MEMBERS(
              Vector, "vectorArray",
              (ArrayPrefixes{
                  "getVectorArrayAttribute:depFn : ", "getVectorArrayAttribute:findPlug : ",
                  "getVectorArrayAttribute:asMObject : ", "getVectorArrayAttribute:MFnVectorArrayData : "}),
              arrayOf<MVectorArray>({MVector(1, 2, 3), MVector(-1, 0, 0.5)}))}
    {
    }
};

#undef TVX_ARRAY_MEMBERS

template <class Array>
bool equal(const Array& a, const Array& b)
{
    if (a.length() != b.length())
        return false;
    for (unsigned int i = 0; i < a.length(); ++i)
        if (!(a[i] == b[i]))
            return false;
    return true;
}

template <class Row>
class ArrayAttributes : public HolderFixture
{
protected:
    using Array = decltype(Row::value);

    MObject attributeOfRow() const { return attribute(row.name); }

    void write(const Array& value)
    {
        typename Row::Data data;
        MObject object = data.create(value);
        EXPECT_TRUE(plug(row.name).setValue(object));
    }
    Array read() const
    {
        Array array;
        typename Row::Data(plug(row.name).asMObject(), nullptr).copyTo(array);
        return array;
    }

    std::vector<Step> lookUp() const
    {
        return {
            {"MFnDependencyNode::MFnDependencyNode", row.prefixes.node},
            {"MFnDependencyNode::findPlug", row.prefixes.plug, row.prefixes.plug + errorOfUnattachedSet()}};
    }
    std::vector<Step> reading() const
    {
        return {{"MPlug::asMObject", row.prefixes.object, row.prefixes.object + errorOfNullPlug()},
                {row.functionSet + "::" + row.functionSet, row.prefixes.data,
                 row.prefixes.data + errorOfNullObject()}};
    }
    static std::vector<Step> together(std::vector<Step> steps, const std::vector<Step>& more)
    {
        steps.insert(steps.end(), more.begin(), more.end());
        return steps;
    }

    const Row row;
};

using Rows = testing::Types<IntArrays, DoubleArrays, StringArrays, VectorArrays>;
TYPED_TEST_SUITE(ArrayAttributes, Rows);

TYPED_TEST(ArrayAttributes, GettersReplaceWhatTheArrayHeld)
{
    this->write(this->row.value);
    auto longer = this->row.value;
    for (unsigned int i = 0; i < this->row.value.length(); ++i)
        longer.append(this->row.value[i]);
    for (const bool networked : {true, false}) {
        auto result = longer;
        this->row.getByObject(this->holder, this->attributeOfRow(), result, networked);
        EXPECT_TRUE(equal(result, this->row.value));
    }
    auto result = longer;
    this->row.getByName(this->holder, this->row.name, result);
    EXPECT_TRUE(equal(result, this->row.value));
    EXPECT_THAT(this->recorder.take(), IsEmpty());
}

TYPED_TEST(ArrayAttributes, SettersWriteTheArray)
{
    for (const bool networked : {true, false}) {
        this->row.setByObject(this->holder, this->attributeOfRow(), this->row.value, networked);
        EXPECT_TRUE(equal(this->read(), this->row.value));
        this->write(typename TestFixture::Array());
    }
    EXPECT_THAT(this->recorder.take(), IsEmpty());
}

TYPED_TEST(ArrayAttributes, TheGetterByNameReportsFourSteps)
{
    this->write(this->row.value);
    auto result = this->row.value;
    this->expectReports(this->row.getter, this->together(this->lookUp(), this->reading()),
                        [&] { this->row.getByName(this->holder, this->row.name, result); });
}

TYPED_TEST(ArrayAttributes, TheGetterByObjectReportsFourStepsWhenItLooksUp)
{
    this->write(this->row.value);
    const MObject attribute = this->attributeOfRow();
    auto result = this->row.value;
    this->expectReports(this->row.getter, this->together(this->lookUp(), this->reading()),
                        [&] { this->row.getByObject(this->holder, attribute, result, true); });
}

TYPED_TEST(ArrayAttributes, TheGetterByObjectWithoutALookUpReportsTheStepsThatAreLeft)
{
    this->write(this->row.value);
    const MObject attribute = this->attributeOfRow();
    auto result = this->row.value;
    this->expectReports(this->row.getter,
                        this->row.hasNetworked ? this->reading()
                                               : this->together(this->lookUp(), this->reading()),
                        [&] { this->row.getByObject(this->holder, attribute, result, false); });
}

TYPED_TEST(ArrayAttributes, SettersReportFourSteps)
{
    const MObject attribute = this->attributeOfRow();
    // Setters have no texts of their own.
    MPlug plug = this->plug(this->row.name);
    MObject none;
    const std::string errorOfNoData = plug.setValue(none).errorString().asChar();
    const std::vector<Step> writing = {{this->row.functionSet + "::create", ""},
                                       {"MPlug::setValue", "", this->errorOfNullPlug(), errorOfNoData}};
    const std::vector<Step> lookUp = {{"MFnDependencyNode::MFnDependencyNode", ""},
                                      {"MFnDependencyNode::findPlug", "", this->errorOfUnattachedSet()}};
    this->expectReports(this->row.setter, this->together(lookUp, writing),
                        [&] { this->row.setByObject(this->holder, attribute, this->row.value, true); });
    this->expectReports(this->row.setter, writing,
                        [&] { this->row.setByObject(this->holder, attribute, this->row.value, false); });
}

TYPED_TEST(ArrayAttributes, GettersCopyWhateverFailedBefore)
{
    this->write(this->row.value);
    for (const Step& step : this->together(this->lookUp(), this->reading())) {
        auto result = this->row.value;
        faults::record(true);
        faults::failCall(step.call, 1, MStatus(MStatus::kFailure));
        this->row.getByName(this->holder, this->row.name, result);
        EXPECT_EQ(faults::countOf(this->row.functionSet + "::copyTo"), 1u) << step.call;
        faults::clear();
    }
}

TYPED_TEST(ArrayAttributes, AnArrayThatCannotBeReadStaysAsItWas)
{
    auto result = this->row.value;
    coreLog().setSeverityFilter(core::kCritical);
    this->row.getByName(this->holder, "missing", result);
    EXPECT_TRUE(equal(result, this->row.value));
}

class OtherAttributes : public HolderFixture
{
protected:
    void setDoubles(std::initializer_list<double> values)
    {
        MFnDoubleArrayData data;
        MObject object = data.create(arrayOf<MDoubleArray>(values));
        EXPECT_TRUE(plug("doubleArray").setValue(object));
    }
    /// Of an element of the array of matrices: what it moves by along x.
    void setMatrix(unsigned int element, double x)
    {
        MMatrix value;
        value[3][0] = x;
        MFnMatrixData data;
        MObject object = data.create(value);
        EXPECT_TRUE(plug("matrices").elementByLogicalIndex(element).setValue(object));
    }

    std::vector<Step> lookUp(const std::string& node, const std::string& plug,
                             const std::string& plugWithoutNode) const
    {
        return {{"MFnDependencyNode::MFnDependencyNode", node},
                {"MFnDependencyNode::findPlug", plug, plugWithoutNode + errorOfUnattachedSet()}};
    }
};

TEST_F(OtherAttributes, DoublesAreAppendedAsFloats)
{
    setDoubles({0.1, 2.0, -3.5});
    std::vector<float> result;
    MayaUtils::getDoubleArrayAttributeAsFloats(holder, attribute("doubleArray"), result, true);
    EXPECT_THAT(result, ElementsAre(0.1f, 2.0f, -3.5f));
    MayaUtils::getDoubleArrayAttributeAsFloats(holder, "doubleArray", result);
    EXPECT_THAT(result, ElementsAre(0.1f, 2.0f, -3.5f, 0.1f, 2.0f, -3.5f));
    MayaUtils::getDoubleArrayAttributeAsFloats(holder, attribute("doubleArray"), result, false);
    EXPECT_EQ(result.size(), 9u);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(OtherAttributes, DoublesAsFloatsReportAsTheDoublesDo)
{
    const std::string member = "getDoubleArrayAttribute";
    const std::vector<Step> reading = {
        {"MPlug::asMObject", member + ":asMObject : ", member + ":asMObject : " + errorOfNullPlug()},
        {"MFnDoubleArrayData::MFnDoubleArrayData",
         member + ":MFnDoubleArrayData : ", member + ":MFnDoubleArrayData : " + errorOfNullObject()}};
    std::vector<Step> steps = lookUp(member + ":depFn : ", member + ":findPlug : ", member + ":findPlug : ");
    steps.insert(steps.end(), reading.begin(), reading.end());
    setDoubles({0.5});
    const MObject doubles = attribute("doubleArray");
    std::vector<float> result;
    expectReports(member, steps,
                  [&] { MayaUtils::getDoubleArrayAttributeAsFloats(holder, "doubleArray", result); });
    expectReports(member, steps,
                  [&] { MayaUtils::getDoubleArrayAttributeAsFloats(holder, doubles, result, true); });
    expectReports(member, reading,
                  [&] { MayaUtils::getDoubleArrayAttributeAsFloats(holder, doubles, result, false); });
    EXPECT_THAT(result, ElementsAre(0.5f, 0.5f, 0.5f)); // what went well only
}

TEST_F(OtherAttributes, APointIsTheThreeChildren)
{
    const MPlug point = plug("point");
    point.child(0).setDouble(1.5);
    point.child(1).setDouble(-2);
    point.child(2).setDouble(0.25);
    const MPoint expected(1.5, -2, 0.25, 1);
    EXPECT_EQ(MayaUtils::getPointAttribute(holder, attribute("point"), true), expected);
    EXPECT_EQ(MayaUtils::getPointAttribute(holder, attribute("point"), false), expected);
    EXPECT_EQ(MayaUtils::getPointAttribute(holder, "point"), expected);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(OtherAttributes, APointsLastCoordinateIsOneAlways)
{
    EXPECT_EQ(MayaUtils::getPointAttribute(holder, attribute("intValue"), false), MPoint(0, 0, 0, 1));
    EXPECT_EQ(MayaUtils::getPointAttribute(holder, strangeAttribute(), false), MPoint(0, 0, 0, 1));
    EXPECT_EQ(MayaUtils::getPointAttribute(MObject::kNullObj, MObject::kNullObj, false), MPoint(0, 0, 0, 1));
}

TEST_F(OtherAttributes, PointsReportTheirLookUp)
{
    const MObject point = attribute("point");
    expectReports("getPointAttribute", lookUp("", "", ""),
                  [&] { MayaUtils::getPointAttribute(holder, point, true); });
    expectReports("getPointAttribute",
                  lookUp("getPointAttribute:depFn : ", "getPointAttribute:findPlug(holder,point)",
                         "getPointAttribute:findPlug(,point)"),
                  [&] { MayaUtils::getPointAttribute(holder, "point"); });
}

TEST_F(OtherAttributes, AnObjectIsThePlugsData)
{
    MFnDoubleArrayData data;
    MObject object = data.create(MDoubleArray(4, 0.5));
    plug("doubleArray").setValue(object);
    for (const MObject& read : {MayaUtils::getObjectAttribute(holder, attribute("doubleArray"), true),
                                MayaUtils::getObjectAttribute(holder, attribute("doubleArray"), false),
                                MayaUtils::getObjectAttribute(holder, "doubleArray")})
        EXPECT_EQ(MFnDoubleArrayData(read, nullptr).length(), 4u);
    EXPECT_TRUE(MayaUtils::getObjectAttribute(holder, strangeAttribute(), false).isNull());
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(OtherAttributes, ObjectsReportTheirLookUp)
{
    const MObject object = attribute("doubleArray");
    expectReports("getObjectAttribute", lookUp("", "", ""),
                  [&] { MayaUtils::getObjectAttribute(holder, object, true); });
    expectReports("getObjectAttribute", lookUp("", "", ""),
                  [&] { MayaUtils::getObjectAttribute(holder, "doubleArray"); });
}

TEST_F(OtherAttributes, AMatrixIsTheFirstElementOfTheArray)
{
    setMatrix(0, 7);
    setMatrix(1, 8);
    MMatrix result;
    MayaUtils::getMatrixAttribute(holder, "matrices", result);
    EXPECT_EQ(result[3][0], 7);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(OtherAttributes, AWorldMatrixIsThatOfTheFirstInstance)
{
    const MObject first = make("transform", "first");
    const MObject second = make("transform", "second");
    MFnTransform(first, nullptr).setTranslation(MVector(1, 2, 3), MSpace::kTransform);
    MFnTransform(second, nullptr).setTranslation(MVector(4, 5, 6), MSpace::kTransform);
    const MObject child = make("transform", "child");
    MFnDagNode(first, nullptr).addChild(*const_cast<MObject*>(&child));
    MFnDagNode(second, nullptr).addChild(*const_cast<MObject*>(&child), MFnDagNode::kNextPos, true);
    MMatrix result;
    MayaUtils::getMatrixAttribute(child, "worldMatrix", result);
    EXPECT_EQ(result[3][0], 1);
    EXPECT_EQ(result[3][1], 2);
    EXPECT_EQ(result[3][2], 3);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(OtherAttributes, AMatrixIsReadInTheContextThatIsGiven)
{
    setMatrix(0, 7);
    MDGContext now(MTime(scene.time(), MTime::kSeconds));
    MMatrix result;
    MayaUtils::getMatrixAttribute(holder, "matrices", result, now);
    EXPECT_EQ(result[3][0], 7);
    EXPECT_THAT(recorder.take(), IsEmpty());

    // The host keeps values for the current time only, and says so of any other.
    MDGContext later(MTime(scene.time() + 1.0, MTime::kSeconds));
    MObject none;
    const MStatus refused = plug("matrices").elementByLogicalIndex(0).getValue(none, later);
    ASSERT_FALSE(refused);
    MayaUtils::getMatrixAttribute(holder, "matrices", result, later);
    const std::vector<std::string> reports = recorder.take();
    ASSERT_FALSE(reports.empty());
    EXPECT_EQ(reports[0], report("getMatrixAttribute", refused.errorString().asChar()));
}

TEST_F(OtherAttributes, MatricesReportFourSteps)
{
    setMatrix(0, 7);
    MStatus unattached;
    MFnMatrixData().matrix(&unattached);
    const std::vector<Step> steps = {
        {"MFnDependencyNode::attribute", ""},
        {"MPlug::getValue", "", errorOfNullPlug()},
        {"MFnMatrixData::MFnMatrixData", "", errorOfNullObject()},
        {"MFnMatrixData::matrix", "", unattached.errorString().asChar()},
    };
    MMatrix result;
    expectReports("getMatrixAttribute", steps,
                  [&] { MayaUtils::getMatrixAttribute(holder, "matrices", result); });
    expectReports("getMatrixAttribute", steps,
                  [&] { MayaUtils::getMatrixAttribute(holder, "matrices", result, MDGContext::fsNormal); });
}

TEST_F(OtherAttributes, AMatrixThatIsNoArrayCannotBeRead)
{
    MMatrix result;
    MayaUtils::getMatrixAttribute(make("transform"), "matrix", result);
    EXPECT_EQ(recorder.take().size(), 3u);
}

TEST_F(OtherAttributes, TheFunctionSetOfAMatrixsNodeIsNotReported)
{
    MMatrix result;
    MStatus status;
    MFnDependencyNode().attribute("matrices", &status);
    MayaUtils::getMatrixAttribute(MObject::kNullObj, "matrices", result);
    const auto reports = recorder.take();
    ASSERT_EQ(reports.size(), 4u);
    EXPECT_EQ(reports[0], report("getMatrixAttribute", status.errorString().asChar()));
}

} // namespace
} // namespace tarvox::crowd::test
