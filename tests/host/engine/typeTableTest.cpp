// The tables of the built-in node types, and how mistakes in a table are told.
#include "engine/typeReader.h"

#include "fixtures.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace tvxhost::engine {

namespace {

using testing::ElementsAre;

/// What is wrong with a table, as the reader says it.
std::string mistakeIn(const std::string& table)
{
    TypeTable types;
    try {
        readTypes(types, "test.types", table);
    } catch (const std::logic_error& error) {
        return error.what();
    }
    return "nothing";
}

std::vector<std::string> longNames(const std::vector<Ref<Attribute>>& attributes)
{
    std::vector<std::string> names;
    for (const Ref<Attribute>& attribute : attributes)
        names.push_back(attribute->longName);
    return names;
}

} // namespace

TEST_F(SceneTest, EveryTypeThatIsNotAbstractCanBeCreated)
{
    for (NodeType* type : scene.types().all()) {
        if (type->isAbstract)
            continue;
        const Expected<Node*> node = scene.createNode(*type);
        ASSERT_TRUE(node) << type->name << ": " << node.outcome.text;
        for (const Ref<Attribute>& attribute : type->attributes())
            EXPECT_EQ(Plug(*node.value, *attribute).isArray(), attribute->isArray()) << attribute->longName;
    }
}

TEST_F(SceneTest, TheTypesThatScenesAreMadeOfAreKnown)
{
    for (const char* name : {"transform",
                             "camera",
                             "displayLayer",
                             "displayLayerManager",
                             "lightLinker",
                             "renderLayer",
                             "renderLayerManager",
                             "script",
                             "mesh",
                             "poseInterpolatorManager",
                             "shapeEditorManager",
                             "shadingEngine",
                             "materialInfo",
                             "polyPlane",
                             "hyperLayout",
                             "place2dTexture",
                             "file",
                             "nodeGraphEditorInfo",
                             "hyperGraphInfo",
                             "hyperView",
                             "polyCube",
                             "polySphere",
                             "directionalLight",
                             "groupId",
                             "blinn",
                             "animCurveTA",
                             "animCurveTL",
                             "phong",
                             "animCurveTU",
                             "lambert",
                             "joint",
                             "nurbsCurve",
                             "dagPose",
                             "groupParts",
                             "standardSurface",
                             "spotLight",
                             "bump2d",
                             "objectSet",
                             "nParticle",
                             "skinCluster",
                             "tweak",
                             "locator",
                             "ramp",
                             "checker",
                             "polyTorus",
                             "polyCylinder",
                             "transformGeometry",
                             "displacementShader",
                             "parentConstraint",
                             "uvChooser",
                             "blendColors",
                             "pointLight",
                             "partition",
                             "unitConversion",
                             "particle",
                             "unknown",
                             "time",
                             "reference",
                             "expression",
                             "ikHandle"})
        EXPECT_NE(scene.types().find(name), nullptr) << name;
}

TEST_F(SceneTest, InheritedAttributesComeFirst)
{
    const std::vector<std::string> names = longNames(scene.types().find("locator")->attributes());
    EXPECT_EQ(names[0], "message");
    EXPECT_EQ(names[5], "binMembership");
    EXPECT_EQ(names.back(), "localScale");
}

TEST_F(SceneTest, DefaultsAndUnitsOfTheTables)
{
    make("transform", "t");
    make("spotLight", "sShape");
    EXPECT_EQ(number("t.ihi"), 2.0);
    EXPECT_DOUBLE_EQ(number("sShape.ca"), 40.0 * radiansPer(AngularUnit::degrees));
    EXPECT_EQ(number("perspShape.fcp"), 10000.0);
    EXPECT_FLOAT_EQ(static_cast<float>(number("lambert1.cr")), 0.5F);
    EXPECT_THAT(readNumbers(plug("t.s")).value, ElementsAre(1, 1, 1));
    EXPECT_TRUE(plug("t.tx").attribute()->flags.keyable);
    EXPECT_FALSE(plug("t.wm").attribute()->flags.writable);
}

TEST(TypeReaderTest, ATableMakesTypes)
{
    TypeTable types;
    readTypes(types, "test.types",
              "# a comment\n"
              "nodeType ours OURS node class=utility/general\n"
              "    size sz double =2 min=0 smax=10 keyable\n"
              "    mode m enum \"fields=Off:On=5:Very On\" =5\n"
              "    place p distance3 =1,2,3 hidden\n"
              "    label lb string \"=two words\"\n"
              "    list l compound array unordered delete {\n"
              "        item it string\n"
              "        turn tu angle =90\n"
              "    }\n"
              "    result r double output\n"
              "    affects size place -> result\n");
    const NodeType& type = *types.find("ours");
    EXPECT_EQ(type.classification, "utility/general");
    EXPECT_EQ(type.id, 0x4F555253U);
    const Attribute& size = *type.find("sz");
    EXPECT_EQ(size.defaultNumber, 2.0);
    EXPECT_EQ(size.minimum, 0.0);
    EXPECT_FALSE(size.maximum);
    EXPECT_EQ(size.softMaximum, 10.0);
    EXPECT_TRUE(size.flags.keyable);
    EXPECT_EQ(type.find("mode")->fieldName(6), "Very On");
    EXPECT_EQ(type.find("placeY")->defaultNumber, 2.0);
    EXPECT_EQ(type.find("pz")->unit, UnitKind::distance);
    EXPECT_TRUE(type.find("pz")->flags.hidden);
    EXPECT_FALSE(type.find("list")->flags.indexMatters);
    EXPECT_EQ(type.find("list")->disconnectBehaviour, 0);
    EXPECT_EQ(type.find("it")->parent, type.find("l"));
    EXPECT_EQ(static_cast<const StringData&>(*type.find("label")->defaultData).value.str(), "two words");
    EXPECT_DOUBLE_EQ(type.find("turn")->defaultNumber, 3.14159265358979323846 / 2);
    EXPECT_FALSE(type.find("r")->flags.writable);
    EXPECT_TRUE(type.isOutput(*type.find("result")));
    EXPECT_THAT(type.affectedBy(*type.find("placeX")), ElementsAre(type.find("result")));
}

TEST(TypeReaderTest, MistakesAreToldWithTableAndLine)
{
    EXPECT_EQ(mistakeIn("nodeType a AAAA none\n"), "test.types:1: no type 'none'");
    EXPECT_EQ(mistakeIn("nodeType a AAA node\n"), "test.types:1: an id has four letters");
    EXPECT_EQ(mistakeIn("nodeType transform AAAA node\n"),
              "test.types:1: there is a node type 'transform' already");
    const std::string type = "nodeType a AAAA node\n";
    EXPECT_EQ(mistakeIn(type + "\nx y nothing\n"), "test.types:3: unknown kind 'nothing'");
    EXPECT_EQ(mistakeIn(type + "x y double shiny\n"), "test.types:2: unknown word 'shiny'");
    EXPECT_EQ(mistakeIn(type + "x y double =one\n"), "test.types:2: 'one' is not a number");
    EXPECT_EQ(mistakeIn(type + "x y double3 =1,2\n"), "test.types:2: one default, or one for each child");
    EXPECT_EQ(mistakeIn(type + "x y compound {\n"), "test.types:2: a brace is not closed");
    EXPECT_EQ(mistakeIn(type + "}\n"), "test.types:2: a brace too many");
    EXPECT_EQ(mistakeIn(type + "affects x -> y\n"), "test.types:2: no attribute 'x'");
    EXPECT_EQ(mistakeIn(type + "caching z double\n"), "test.types:2: 'a' has an attribute named 'caching'");
    EXPECT_EQ(mistakeIn("x y double\n"), "test.types:1: LONG SHORT KIND");
    EXPECT_EQ(mistakeIn(type), "nothing");
}

} // namespace tvxhost::engine
