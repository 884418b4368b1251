// Duplicates of DAG nodes.
#include "engine/duplicate.h"

#include "engine/mesh.h"
#include "fixtures.h"

namespace tvxhost::engine {

class DuplicateTest : public SceneTest
{
protected:
    DuplicateTest() : group(makeTransform("group")), shape(*make("mesh", "quad", &group).asDag())
    {
        const double points[] = {-1, 0, 1, 1, 0, 1, -1, 0, -1, 1, 0, -1};
        EXPECT_TRUE(writeElements(plug("quad.vt"), 0, points, 12));
    }

    DagNode& copyGroup(const DuplicateOptions& options = {})
    {
        const Expected<DagNode*> copy = duplicate(group, scene.world(), options);
        EXPECT_TRUE(copy) << copy.outcome.text;
        return *copy.value;
    }

    DagNode& group;
    DagNode& shape;
};

TEST_F(DuplicateTest, HaveTheGeometryOfTheOriginal)
{
    DagNode& copy = copyGroup();
    EXPECT_EQ(copy.name(), "group1");
    ASSERT_EQ(copy.children().size(), 1u);
    DagNode& twin = *copy.children().front();
    EXPECT_EQ(twin.name(), "quad1");
    EXPECT_NE(&twin, &shape);
    EXPECT_EQ(existingElements(plug("quad1.vt")).size(), 4u);
    set("quad1.vt[0].vx", 9);
    EXPECT_EQ(number("quad.vt[0].vx"), -1);
}

TEST_F(DuplicateTest, HaveDataOfTheirOwn)
{
    Ref<Attribute> attribute(new Attribute(AttributeKind::typed, "values", "vls"));
    attribute->dataType = DataType::doubleArray;
    EXPECT_TRUE(group.addDynamicAttribute(attribute));
    EXPECT_TRUE(writeData(plug("group.values"), DoubleArrayData({1, 2})));
    copyGroup();
    const Ref<Data> copied = readData(plug("group1.values")).value;
    static_cast<DoubleArrayData&>(*copied).values[0] = 5;
    EXPECT_EQ(static_cast<DoubleArrayData&>(*readData(plug("group.values")).value).values[0], 1);
}

TEST_F(DuplicateTest, KeepWhatConnectionsBroughtWithoutTheConnection)
{
    makeTransform("driver");
    set("driver.tx", 4);
    EXPECT_TRUE(connect("driver.tx", "group.ty"));
    copyGroup();
    EXPECT_EQ(number("group1.ty"), 4);
    EXPECT_TRUE(sourceOf(plug("group1.ty")).isNull());
    set("driver.tx", 5);
    EXPECT_EQ(number("group1.ty"), 4);
}

TEST_F(DuplicateTest, LeaveIntermediateShapesOut)
{
    make("mesh", "before", &group);
    set("before.io", 1);
    EXPECT_EQ(copyGroup().children().size(), 1u);
}

TEST_F(DuplicateTest, ShareShapesWhenToldTo)
{
    DuplicateOptions options;
    options.sharesLeaves = true;
    EXPECT_EQ(copyGroup(options).children().front(), &shape);
    options.onlyParent = true;
    EXPECT_TRUE(copyGroup(options).children().empty());
}

TEST_F(DuplicateTest, TheWorldHasNone)
{
    EXPECT_EQ(duplicate(scene.world(), scene.world()).outcome.text, "the world cannot be duplicated");
}

TEST_F(DuplicateTest, ANodeOutsideTheDagIsCopiedAlone)
{
    Node& paint = *scene.createNode("lambert", "paint").value;
    ASSERT_TRUE(writeNumber(paint.findPlug("diffuse").value, 0.25));
    ASSERT_TRUE(paint.addDynamicAttribute(makeNumber("layers", "ly", NumberKind::integer, 1)));
    ASSERT_TRUE(writeNumber(paint.findPlug("layers").value, 3));
    std::vector<const Node*> told;
    DuplicateOptions options;
    options.onCopy = [&](Node& original, Node& copy) { told = {&original, &copy}; };
    const auto copy = duplicateNode(paint, options);
    ASSERT_TRUE(copy) << copy.outcome.text;
    EXPECT_EQ(copy.value->name(), "paint1");
    EXPECT_EQ(readNumber(copy.value->findPlug("diffuse").value).value.asReal(), 0.25);
    EXPECT_EQ(readNumber(copy.value->findPlug("layers").value).value.whole, 3);
    EXPECT_EQ(told, (std::vector<const Node*>{&paint, copy.value}));
    EXPECT_EQ(duplicateNode(scene.world()).outcome.reason, Reason::wrongKind);
}

TEST_F(DuplicateTest, AttributesAreCopiedWithTheirStructure)
{
    const Ref<Attribute> color = makeColor("tint", "tnt");
    color->children[1]->minimum = 0.0;
    color->children[1]->defaultNumber = 0.5;
    color->flags.keyable = true;
    const Ref<Attribute> copy = copyOf(*color);
    ASSERT_EQ(copy->children.size(), 3u);
    EXPECT_EQ(copy->longName, "tint");
    EXPECT_EQ(copy->typeName(), color->typeName());
    EXPECT_TRUE(copy->flags.keyable);
    EXPECT_EQ(copy->children[1]->longName, "tintG");
    EXPECT_EQ(copy->children[1]->defaultNumber, 0.5);
    EXPECT_EQ(copy->children[1]->minimum, 0.0);
    EXPECT_EQ(copy->children[1]->parent, copy.get());
}

} // namespace tvxhost::engine
