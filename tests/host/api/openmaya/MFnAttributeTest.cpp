// The function sets of attributes.
#include "../nodeFixture.h"

#include <maya/MAngle.h>
#include <maya/MFnCompoundAttribute.h>
#include <maya/MFnEnumAttribute.h>
#include <maya/MFnGenericAttribute.h>
#include <maya/MFnMatrixAttribute.h>
#include <maya/MFnMessageAttribute.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MFnStringData.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MFnUnitAttribute.h>
#include <maya/MMatrix.h>
#include <maya/MStringArray.h>
#include <maya/MTime.h>

using namespace tvxhost::api::test;

namespace {

class AttributeSets : public NodeFixture
{
};

std::string nameOf(const MObject& attribute)
{
    return text(MFnAttribute(attribute, nullptr).name());
}

std::string shortNameOf(const MObject& attribute)
{
    return text(MFnAttribute(attribute, nullptr).shortName());
}

} // namespace

TEST_F(AttributeSets, ANewAttributeHasMayasDefaults)
{
    MFnNumericAttribute set;
    set.create("speed", "sp", MFnNumericData::kDouble, 2.5);
    EXPECT_TRUE(set.isReadable());
    EXPECT_TRUE(set.isWritable());
    EXPECT_TRUE(set.isConnectable());
    EXPECT_TRUE(set.isStorable());
    EXPECT_TRUE(set.isCached());
    EXPECT_FALSE(set.isArray());
    EXPECT_TRUE(set.indexMatters());
    EXPECT_FALSE(set.usesArrayDataBuilder());
    EXPECT_FALSE(set.isKeyable());
    EXPECT_FALSE(set.isChannelBoxFlagSet());
    EXPECT_FALSE(set.isHidden());
    EXPECT_FALSE(set.isUsedAsColor());
    EXPECT_FALSE(set.internal());
    EXPECT_FALSE(set.isDynamic());
    EXPECT_EQ(MFnAttribute::kNothing, set.disconnectBehavior());
    EXPECT_EQ("speed", text(set.name()));
    EXPECT_EQ("sp", text(set.shortName()));
    EXPECT_EQ(MFnNumericData::kDouble, set.unitType());
    double value = 0;
    EXPECT_TRUE(set.getDefault(value));
    EXPECT_EQ(2.5, value);
}

TEST_F(AttributeSets, FlagsAreIndependent)
{
    MFnNumericAttribute set;
    set.create("n", "n", MFnNumericData::kInt);
    EXPECT_TRUE(set.setHidden(true));
    EXPECT_TRUE(set.setKeyable(true));
    EXPECT_TRUE(set.setStorable(false));
    EXPECT_TRUE(set.isHidden());
    EXPECT_TRUE(set.isKeyable());
    EXPECT_FALSE(set.isStorable());
    EXPECT_TRUE(set.isReadable());
    EXPECT_TRUE(set.setHidden(false));
    EXPECT_FALSE(set.isHidden());
    EXPECT_TRUE(set.isKeyable());
}

TEST_F(AttributeSets, AColorHasCapitalLongAndSmallShortSuffixes)
{
    MFnNumericAttribute set;
    set.createColor("output", "op");
    EXPECT_TRUE(set.isUsedAsColor());
    EXPECT_EQ(MFnNumericData::k3Float, set.unitType());
    EXPECT_FALSE(set.hasMin());
    const std::string names[] = {"outputR", "outputG", "outputB"};
    const std::string shortNames[] = {"opr", "opg", "opb"};
    for (unsigned int i = 0; i < 3; ++i) {
        EXPECT_EQ(names[i], nameOf(set.child(i)));
        EXPECT_EQ(shortNames[i], shortNameOf(set.child(i)));
    }
    MStatus status;
    EXPECT_TRUE(set.child(3, &status).isNull());
    EXPECT_EQ("(kInvalidParameter): No element at given index", text(status));
}

TEST_F(AttributeSets, GroupsMadeByTypeAreNumberedAndPointsAreLettered)
{
    MFnNumericAttribute set;
    set.create("size", "sz", MFnNumericData::k2Double);
    EXPECT_EQ("size1", nameOf(set.child(1)));
    EXPECT_EQ("sz1", shortNameOf(set.child(1)));
    set.createPoint("place", "pl");
    EXPECT_EQ("placeZ", nameOf(set.child(2)));
    EXPECT_EQ("plz", shortNameOf(set.child(2)));
}

TEST_F(AttributeSets, FlagsOfANumberGroupAreHandedDown)
{
    MFnNumericAttribute set;
    set.createColor("tint", "ti");
    EXPECT_TRUE(set.setKeyable(true));
    EXPECT_TRUE(set.setWritable(false));
    const MFnAttribute child(set.child(1), nullptr);
    EXPECT_TRUE(child.isKeyable());
    EXPECT_FALSE(child.isWritable());
}

TEST_F(AttributeSets, DefaultsAndLimitsOfAGroupAreThoseOfItsChildren)
{
    MFnNumericAttribute set;
    set.createColor("tint", "ti");
    EXPECT_TRUE(set.setDefault(1.0f, 0.45f, 0.0f));
    EXPECT_TRUE(set.setMin(0.0, 0.0, -1.0));
    MFnNumericAttribute child(set.child(1), nullptr);
    float value = 0;
    EXPECT_TRUE(child.getDefault(value));
    EXPECT_EQ(0.45f, value);
    float r = 0, g = 0, b = 0;
    EXPECT_TRUE(set.getDefault(r, g, b));
    EXPECT_EQ(1.0f, r);
    double minimum = 0;
    EXPECT_TRUE(MFnNumericAttribute(set.child(2), nullptr).getMin(minimum));
    EXPECT_EQ(-1.0, minimum);
    EXPECT_EQ("(kInvalidParameter): Object is incompatible with this method", text(set.setDefault(1.0, 2.0)));
}

TEST_F(AttributeSets, LimitsAreThereOnceSet)
{
    MFnNumericAttribute set;
    set.create("h", "h", MFnNumericData::kFloat);
    double limit = 7;
    EXPECT_FALSE(set.hasMax());
    EXPECT_FALSE(set.getMax(limit));
    EXPECT_EQ(7, limit);
    EXPECT_TRUE(set.setMax(1.0));
    EXPECT_TRUE(set.setSoftMin(-0.5));
    EXPECT_TRUE(set.hasMax());
    EXPECT_TRUE(set.getMax(limit));
    EXPECT_EQ(1.0, limit);
    EXPECT_TRUE(set.hasSoftMin());
    EXPECT_FALSE(set.hasMin());
}

TEST_F(AttributeSets, AGroupCanBeMadeOfItsChildren)
{
    MFnNumericAttribute set;
    const MObject u = set.create("uu", "u", MFnNumericData::kFloat);
    const MObject v = set.create("vv", "v", MFnNumericData::kFloat);
    const MObject whole = set.create("ww", "w", MFnNumericData::kInt);
    const MObject group = set.create("uv", "uvs", u, v);
    EXPECT_EQ(MFn::kAttribute2Float, group.apiType());
    EXPECT_EQ(group, MFnAttribute(u, nullptr).parent());
    MStatus status;
    EXPECT_TRUE(set.create("bad", "bd", u, whole, MObject::kNullObj, &status).isNull());
    EXPECT_FALSE(status);
}

TEST_F(AttributeSets, AnAttributeWithoutParentSaysNotFound)
{
    MFnNumericAttribute set;
    set.create("n", "n", MFnNumericData::kInt);
    MStatus status;
    EXPECT_TRUE(set.parent(&status).isNull());
    EXPECT_EQ(MS::kNotFound, status.statusCode());
}

TEST_F(AttributeSets, IllegalNamesMakeNoAttribute)
{
    MStatus status;
    EXPECT_TRUE(MFnNumericAttribute().create("1st", "f", MFnNumericData::kInt, 0, &status).isNull());
    EXPECT_FALSE(status);
    EXPECT_TRUE(MFnMessageAttribute().create("a b", "ab", &status).isNull());
    EXPECT_FALSE(status);
}

TEST_F(AttributeSets, SetsRefuseWhatIsNullOrOfAnotherKind)
{
    MStatus status;
    const MFnNumericAttribute none(MObject::kNullObj, &status);
    EXPECT_EQ("(kInvalidParameter): Argument is a NULL pointer", text(status));
    MFnTypedAttribute typed;
    const MObject attribute = typed.create("t", "t", MFnData::kString);
    const MFnNumericAttribute wrong(attribute, &status);
    EXPECT_EQ("(kInvalidParameter): Object is incompatible with this method", text(status));
    EXPECT_EQ("", text(wrong.name(&status)));
    EXPECT_EQ("(kFailure): Object does not exist", text(status));
    EXPECT_TRUE(MFnAttribute(attribute, &status).isReadable());
    EXPECT_TRUE(status);
}

TEST_F(AttributeSets, EnumerationsNameTheirNumbers)
{
    MFnEnumAttribute set;
    set.create("mode", "md", 1);
    EXPECT_TRUE(set.addField("Off", 0));
    EXPECT_TRUE(set.addField("Two words", 5));
    EXPECT_TRUE(set.addField("On", 1));
    short value = -1;
    EXPECT_TRUE(set.getMin(value));
    EXPECT_EQ(0, value);
    EXPECT_TRUE(set.getMax(value));
    EXPECT_EQ(5, value);
    EXPECT_EQ("Two words", text(set.fieldName(5)));
    EXPECT_EQ(1, set.fieldIndex("On"));
    EXPECT_EQ("On", text(set.defaultValue()));
    MStatus status;
    EXPECT_EQ("", text(set.fieldName(3, &status)));
    EXPECT_FALSE(status);
    EXPECT_TRUE(set.setDefault("Off"));
    EXPECT_TRUE(set.getDefault(value));
    EXPECT_EQ(0, value);
}

TEST_F(AttributeSets, TypedAttributesTakeDefaultsOfTheirTypeOnly)
{
    MFnTypedAttribute set;
    MStatus status;
    const MObject plain = set.create("file", "f", MFnData::kString, MObject::kNullObj, &status);
    EXPECT_TRUE(status);
    EXPECT_EQ(MFnData::kString, set.attrType());
    MObject value;
    EXPECT_TRUE(set.getDefault(value));
    EXPECT_TRUE(value.isNull());
    MFnStringData data;
    const MObject name = data.create("a.png");
    EXPECT_TRUE(set.setDefault(name));
    EXPECT_TRUE(set.getDefault(value));
    EXPECT_EQ("a.png", text(MFnStringData(value, nullptr).string()));
    EXPECT_TRUE(set.accepts(MFnData::kString));
    EXPECT_FALSE(set.accepts(MFnData::kMesh));
    EXPECT_TRUE(set.create("m", "m", MFnData::kMatrix, name, &status).isNull());
    EXPECT_EQ("(kInvalidParameter): Object is incompatible with this method", text(status));
}

TEST_F(AttributeSets, CompoundsHoldChildrenUntilTheyAreAdded)
{
    MFnNumericAttribute numeric;
    const MObject a = numeric.create("a", "a", MFnNumericData::kInt);
    MFnTypedAttribute typed;
    const MObject b = typed.create("b", "b", MFnData::kString);
    MFnCompoundAttribute set;
    const MObject compound = set.create("both", "bt");
    EXPECT_TRUE(set.addChild(a));
    EXPECT_TRUE(set.addChild(b));
    EXPECT_FALSE(set.addChild(a));
    EXPECT_EQ(2u, set.numChildren());
    EXPECT_EQ(b, set.child(1));
    EXPECT_TRUE(set.removeChild(a));
    EXPECT_EQ(1u, set.numChildren());
    EXPECT_EQ(b, set.child(0));
    EXPECT_EQ("(kInvalidParameter): Cannot find item of required type", text(set.removeChild(a)));
    MFnDependencyNode node(make("transform"), nullptr);
    ASSERT_TRUE(node.addAttribute(compound));
    EXPECT_FALSE(set.addChild(a));
    EXPECT_FALSE(set.setArray(true));
}

TEST_F(AttributeSets, UnitsAreAskedForInTheirOwnClasses)
{
    MFnUnitAttribute set;
    set.create("turn", "tu", MAngle(180.0, MAngle::kDegrees));
    EXPECT_EQ(MFnUnitAttribute::kAngle, set.unitType());
    double radians = 0;
    EXPECT_TRUE(set.getDefault(radians));
    EXPECT_DOUBLE_EQ(3.14159265358979323846, radians);
    MAngle angle;
    EXPECT_TRUE(set.getDefault(angle));
    EXPECT_DOUBLE_EQ(180.0, angle.asDegrees());
    MTime time;
    EXPECT_FALSE(set.getDefault(time));
    set.create("when", "wh", MFnUnitAttribute::kTime, 48.0);
    EXPECT_TRUE(set.getDefault(time));
    EXPECT_DOUBLE_EQ(2.0, time.as(MTime::kSeconds));
    double frames = 0;
    EXPECT_TRUE(set.getDefault(frames));
    EXPECT_DOUBLE_EQ(48.0, frames);
}

TEST_F(AttributeSets, MatricesDefaultToTheIdentity)
{
    MFnMatrixAttribute set;
    set.create("m", "m", MFnMatrixAttribute::kDouble);
    MMatrix matrix;
    matrix.matrix[3][0] = 5;
    EXPECT_TRUE(set.getDefault(matrix));
    EXPECT_EQ(MMatrix(), matrix);
    matrix.matrix[3][1] = 2;
    EXPECT_TRUE(set.setDefault(matrix));
    MMatrix read;
    EXPECT_TRUE(set.getDefault(read));
    EXPECT_EQ(2, read.matrix[3][1]);
}

TEST_F(AttributeSets, GenericAttributesListWhatTheyAccept)
{
    MFnGenericAttribute set;
    set.create("any", "an");
    EXPECT_TRUE(set.addDataAccept(MFnData::kString));
    EXPECT_TRUE(set.addNumericDataAccept(MFnNumericData::kDouble));
    EXPECT_TRUE(set.accepts(MFnData::kString));
    EXPECT_TRUE(set.accepts(MFnData::kNumeric));
    EXPECT_FALSE(set.accepts(MFnData::kMesh));
    EXPECT_TRUE(set.removeDataAccept(MFnData::kString));
    EXPECT_FALSE(set.accepts(MFnData::kString));
    EXPECT_FALSE(set.removeDataAccept(MFnData::kString));
}

TEST_F(AttributeSets, TheCommandThatMakesAnAttributeSaysWhatIsNotDefault)
{
    MFnNumericAttribute numeric;
    numeric.create("speed", "sp", MFnNumericData::kDouble, 2.5);
    numeric.setKeyable(true);
    numeric.setMin(0.0);
    EXPECT_EQ("addAttr -ci true -k true -sn \"sp\" -ln \"speed\" -dv 2.5 -min 0 -at \"double\";",
              text(numeric.getAddAttrCmd()));
    EXPECT_EQ("addAttr -cachedInternally true -keyable true -shortName \"sp\" -longName \"speed\" "
              "-defaultValue 2.5 -minValue 0 -attributeType \"double\";",
              text(numeric.getAddAttrCmd(true)));
    MFnEnumAttribute enumeration;
    enumeration.create("mode", "md");
    enumeration.addField("Off", 0);
    enumeration.addField("On", 5);
    EXPECT_EQ("addAttr -ci true -sn \"md\" -ln \"mode\" -en \"Off:On=5\" -at \"enum\";",
              text(enumeration.getAddAttrCmd()));
    MFnTypedAttribute typed;
    typed.create("file", "f", MFnData::kString);
    EXPECT_EQ("addAttr -ci true -sn \"f\" -ln \"file\" -dt \"string\";", text(typed.getAddAttrCmd()));
}

TEST_F(AttributeSets, CategoriesAreASet)
{
    MFnNumericAttribute set;
    set.create("n", "n", MFnNumericData::kInt);
    EXPECT_TRUE(set.addToCategory("rigging"));
    EXPECT_TRUE(set.addToCategory("rigging"));
    MStringArray categories;
    EXPECT_TRUE(set.getCategories(categories));
    EXPECT_EQ(1u, categories.length());
    EXPECT_TRUE(set.hasCategory("rigging"));
    EXPECT_TRUE(set.removeFromCategory("rigging"));
    EXPECT_FALSE(set.hasCategory("rigging"));
}

TEST_F(AttributeSets, WhatTheHostDoesNotDoIsSaidOnce)
{
    MFnNumericAttribute set;
    set.create("n", "n", MFnNumericData::kInt);
    EXPECT_EQ(MS::kNotImplemented, set.setIndeterminant(true).statusCode());
    EXPECT_EQ(MS::kNotImplemented, set.setIndeterminant(true).statusCode());
    const std::vector<std::string> expected = {"Not implemented: MFnAttribute::setIndeterminant"};
    EXPECT_EQ(expected, shown(scene, tvxhost::engine::MessageKind::error));
}
