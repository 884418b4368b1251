// Attributes and plugs: structure, names, values, limits, locks, arrays.
#include "fixtures.h"

#include <gmock/gmock.h>

#include <limits>

namespace tvxhost::engine {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Ref<Attribute> typed(const char* name, DataType type)
{
    Ref<Attribute> attribute(new Attribute(AttributeKind::typed, name, name));
    attribute->dataType = type;
    return attribute;
}

} // namespace

class PlugTest : public SceneTest
{
protected:
    PlugTest() : node(make("transform", "n")) {}

    Plug add(const Ref<Attribute>& attribute)
    {
        const Outcome outcome = node.addDynamicAttribute(attribute);
        EXPECT_TRUE(outcome) << outcome.text;
        return Plug(node, *attribute);
    }
    Plug addArray(const char* name, NumberKind kind = NumberKind::real)
    {
        return addNumber(node, name, kind, [](Attribute& attribute) { attribute.flags.array = true; });
    }

    Node& node;
};

// Attributes
// ---------------------------------------------------------------------------------------------------

TEST_F(PlugTest, TypeNamesAreThoseOfTheLanguage)
{
    const auto nameOf = [&](const char* path) { return node.findPlug(path).value.attribute()->typeName(); };
    EXPECT_EQ(nameOf("t"), "double3");
    EXPECT_EQ(nameOf("tx"), "doubleLinear");
    EXPECT_EQ(nameOf("rx"), "doubleAngle");
    EXPECT_EQ(nameOf("v"), "bool");
    EXPECT_EQ(nameOf("ro"), "enum");
    EXPECT_EQ(nameOf("ihi"), "byte");
    EXPECT_EQ(nameOf("wm"), "matrix");
    EXPECT_EQ(nameOf("do"), "TdataCompound");
    EXPECT_EQ(nameOf("msg"), "message");
    EXPECT_EQ(nameOf("bnm"), "string");
    EXPECT_EQ(makeColor("c", "c")->typeName(), "float3");
    EXPECT_EQ(plug("time1.o").attribute()->typeName(), "time");
}

TEST_F(PlugTest, AColourHasCapitalLongNamesAndIsFoundByBothShortOnes)
{
    add(makeColor("tint", "ti"));
    EXPECT_EQ(node.findAttribute("tiR"), node.findAttribute("tintR"));
    EXPECT_EQ(node.findAttribute("tir"), node.findAttribute("tintR"));
    EXPECT_EQ(node.findAttribute("tintR")->shortName, "tir");
    EXPECT_TRUE(node.findAttribute("tint")->flags.usedAsColor);
}

TEST_F(PlugTest, NamesAreSharedByLongAndShortOnes)
{
    EXPECT_EQ(node.addDynamicAttribute(makeNumber("tx", "foo", NumberKind::real, 0)).reason,
              Reason::nameTaken);
    EXPECT_EQ(node.addDynamicAttribute(makeNumber("foo", "translate", NumberKind::real, 0)).reason,
              Reason::nameTaken);
    NodeType& type = *scene.types().add("ours", 1, *scene.types().find("node")).value;
    EXPECT_TRUE(type.addAttribute(makeNumber("h", "h", NumberKind::real, 0)));
    EXPECT_EQ(type.addAttribute(makeNumber("other", "h", NumberKind::real, 0)).reason, Reason::nameTaken);
    EXPECT_EQ(type.addAttribute(makeNumber("caching", "c", NumberKind::real, 0)).reason, Reason::nameTaken);
}

TEST_F(PlugTest, AChildIsNotAddedByItself)
{
    const Ref<Attribute> color = makeColor("tint", "ti");
    EXPECT_EQ(node.addDynamicAttribute(color->children[0]).reason, Reason::wrongKind);
    NodeType& type = *scene.types().add("ours", 1, *scene.types().find("node")).value;
    EXPECT_EQ(type.addAttribute(color->children[0]).reason, Reason::wrongKind);
}

TEST_F(PlugTest, AffectsNeedAttributesOfTheTypeAndAnOutputThatIsNotKeyable)
{
    NodeType& type = *scene.types().add("ours", 1, *scene.types().find("node")).value;
    const Ref<Attribute> input = makeNumber("input", "i", NumberKind::real, 0);
    const Ref<Attribute> keyable = makeNumber("key", "k", NumberKind::real, 0);
    keyable->flags.keyable = true;
    const Ref<Attribute> foreign = makeNumber("foreign", "f", NumberKind::real, 0);
    ASSERT_TRUE(type.addAttribute(input));
    ASSERT_TRUE(type.addAttribute(keyable));
    EXPECT_EQ(type.addAffects(*input, *keyable).reason, Reason::wrongKind);
    EXPECT_EQ(type.addAffects(*input, *foreign).reason, Reason::notFound);
}

TEST_F(PlugTest, TypesKnowWhatTheyDeriveFrom)
{
    const NodeType& locator = *scene.types().find("THlocatorShape");
    for (const char* base :
         {"locator", "geometryShape", "shape", "dagNode", "entity", "containerBase", "node"})
        EXPECT_TRUE(locator.isA(base)) << base;
    EXPECT_FALSE(locator.isA("transform"));
    EXPECT_EQ(scene.types().find(0x5846524DU)->name, "transform") << "the letters XFRM as a number";
}

TEST_F(PlugTest, ATypesNameAndIdAreItsOwn)
{
    NodeType& base = *scene.types().find("THdependNode");
    ASSERT_TRUE(scene.types().add("ours", 0x700, base));
    EXPECT_EQ(scene.types().add("ours", 0x701, base).outcome.reason, Reason::nameTaken);
    EXPECT_EQ(scene.types().add("theirs", 0x700, base).outcome.reason, Reason::nameTaken);
}

// Structure and names
// ---------------------------------------------------------------------------------------------

TEST_F(PlugTest, PlugsAreFoundByPaths)
{
    for (const char* path : {"tx", "translateX", "t.tx", "translate.translateX", "iog[0].og[1].gcl", "iog"})
        EXPECT_TRUE(node.findPlug(path)) << path;
    for (const char* path :
         {"", "t.", "t.rx", "tx[0]", "iog[", "iog[a]", "iog[0", "nothing", "t..tx", "t[0]"})
        EXPECT_EQ(node.findPlug(path).outcome.reason, Reason::notFound) << path;
}

TEST_F(PlugTest, NamesShowArraysAboveAndLeaveOtherAncestorsOut)
{
    const Plug id = node.findPlug("iog[3].og[1].gid").value;
    EXPECT_EQ(id.name(), "n.instObjGroups[3].objectGroups[1].objectGroupId");
    PlugNameStyle brief;
    brief.withNode = brief.longNames = false;
    EXPECT_EQ(id.name(brief), "iog[3].og[1].gid");
    const Plug tx = plug("n.tx");
    EXPECT_EQ(tx.name(brief), "tx");
    brief.fullPath = true;
    EXPECT_EQ(tx.name(brief), "t.tx");
    makeTransform("n", &makeTransform("above"));
    EXPECT_EQ(tx.name(), "|n.translateX");
    EXPECT_EQ(Plug().name(), "");
}

TEST_F(PlugTest, ParentsChildrenAndElements)
{
    const Plug t = plug("n.t");
    EXPECT_TRUE(t.isCompound());
    EXPECT_EQ(t.childCount(), 3u);
    EXPECT_EQ(t.child(1), plug("n.ty"));
    EXPECT_TRUE(t.child(3).isNull());
    EXPECT_EQ(plug("n.ty").parent(), t);
    EXPECT_TRUE(t.parent().isNull());

    const Plug iog = plug("n.iog");
    EXPECT_TRUE(iog.isArray());
    const Plug element = iog.element(4);
    EXPECT_TRUE(element.isElement());
    EXPECT_EQ(element.logicalIndex(), 4);
    EXPECT_EQ(element.array(), iog);
    EXPECT_TRUE(iog.element(-2).isNull());
    EXPECT_TRUE(t.element(0).isNull());
    EXPECT_EQ(plug("n.iog[4].og[2].gid").parent(), plug("n.iog[4].og[2]"));
    EXPECT_TRUE(plug("n.iog[4].og[2].gid").isAtOrBelow(element));
    EXPECT_FALSE(plug("n.iog[5].og[2].gid").isAtOrBelow(element));
}

TEST_F(PlugTest, AnIndexIsDeterminedLater)
{
    Plug id(node, *node.findAttribute("gid"));
    EXPECT_EQ(id.name(), "n.instObjGroups[-1].objectGroups[-1].objectGroupId");
    EXPECT_EQ(writeNumber(id, Number(1)).reason, Reason::badIndex);
    id.selectIndex(*node.findAttribute("iog"), 2);
    id.selectIndex(*node.findAttribute("og"), 5);
    EXPECT_EQ(id, plug("n.iog[2].og[5].gid"));
}

TEST_F(PlugTest, AliasesFindAndNamePlugs)
{
    addArray("weight");
    const Plug smile = plug("n.weight[0]");
    ASSERT_TRUE(node.setAlias(smile, "smile"));
    EXPECT_EQ(plug("n.smile"), smile);
    PlugNameStyle style;
    style.useAlias = true;
    EXPECT_EQ(smile.name(style), "n.smile");
    EXPECT_EQ(node.setAlias(plug("n.weight[1]"), "smile").reason, Reason::nameTaken);
    EXPECT_EQ(node.setAlias(smile, "tx").reason, Reason::nameTaken);
    EXPECT_EQ(node.setAlias(smile, "a b").reason, Reason::invalidName);
    ASSERT_TRUE(node.setAlias(smile, ""));
    EXPECT_FALSE(node.findPlug("smile"));
}

// Values
// --------------------------------------------------------------------------------------------------------

TEST_F(PlugTest, ValuesBeginAsTheDefaults)
{
    EXPECT_EQ(number("n.sx"), 1.0);
    EXPECT_EQ(number("n.v"), 1.0);
    EXPECT_TRUE(isDefault(plug("n.s")));
    EXPECT_FALSE(hasOwnValue(plug("n.s")));
    set("n.sy", 1.0);
    EXPECT_TRUE(isDefault(plug("n.s")));
    EXPECT_TRUE(hasOwnValue(plug("n.s")));
    set("n.sy", 2.0);
    EXPECT_FALSE(isDefault(plug("n.s")));
}

TEST_F(PlugTest, NumbersConvertAsInC)
{
    const auto stored = [&](const char* name, NumberKind kind, const Number& value) {
        const Plug target = addNumber(node, name, kind);
        EXPECT_TRUE(writeNumber(target, value));
        return readNumber(target).value.asReal();
    };
    EXPECT_EQ(stored("na", NumberKind::boolean, Number(0.25)), 1.0);
    EXPECT_EQ(stored("nb", NumberKind::integer, Number(-2.9)), -2.0);
    EXPECT_EQ(stored("nc", NumberKind::shortInteger, Number(65537)), 1.0);
    EXPECT_EQ(stored("nd", NumberKind::integer, Number(1e20)), 2147483647.0);
    EXPECT_EQ(stored("ne", NumberKind::integer, Number(std::numeric_limits<double>::quiet_NaN())), 0.0);
    EXPECT_EQ(stored("nf", NumberKind::single, Number(0.1)), static_cast<double>(0.1F));
    EXPECT_EQ(stored("ng", NumberKind::byte, Number(200)), 200.0);
    EXPECT_EQ(stored("nh", NumberKind::character, Number(-5)), -5.0);
}

TEST_F(PlugTest, SixtyFourBitsAreKeptWhole)
{
    const Plug big = addNumber(node, "big", NumberKind::int64);
    const std::int64_t value = 9007199254740993; // the first that a double cannot hold
    ASSERT_TRUE(writeNumber(big, Number(value)));
    EXPECT_EQ(readNumber(big).value.asWhole(), value);
}

TEST_F(PlugTest, WrongKindsAreRefused)
{
    const Plug text = add(typed("text", DataType::string));
    EXPECT_EQ(readNumber(text).outcome.reason, Reason::wrongKind);
    EXPECT_EQ(readNumber(plug("n.t")).outcome.reason, Reason::wrongKind);
    EXPECT_EQ(readNumber(Plug()).outcome.reason, Reason::nullArgument);
    EXPECT_EQ(readString(plug("n.tx")).outcome.reason, Reason::wrongKind);
    EXPECT_EQ(readData(plug("n.tx")).outcome.reason, Reason::wrongKind);
    EXPECT_EQ(writeNumber(text, Number(1)).reason, Reason::typeMismatch);
    EXPECT_EQ(writeString(plug("n.tx"), "x").reason, Reason::typeMismatch);
    EXPECT_EQ(writeData(text, IntArrayData({1})).reason, Reason::typeMismatch);
    EXPECT_EQ(writeNumbers(plug("n.t"), {1, 2}).reason, Reason::typeMismatch);
    NodeType& type = *scene.types().find("lambert");
    EXPECT_EQ(readNumber(Plug(node, *type.find("dc"))).outcome.reason, Reason::doesNotExist);
}

TEST_F(PlugTest, AStringIsEmptyUntilItIsSet)
{
    const Plug text = add(typed("text", DataType::string));
    EXPECT_TRUE(readString(text));
    EXPECT_EQ(readString(text).value, "");
    EXPECT_EQ(readData(text).outcome.reason, Reason::noData);
    EXPECT_FALSE(hasOwnValue(text));
    ASSERT_TRUE(writeString(text, "crowd"));
    EXPECT_EQ(readString(text).value, "crowd");
    EXPECT_TRUE(hasOwnValue(text));
}

TEST_F(PlugTest, DataIsStoredAsACopyAndReadAsThePlugsOwn)
{
    const Plug list = add(typed("list", DataType::intArray));
    IntArrayData mine({1, 2});
    ASSERT_TRUE(writeData(list, mine));
    mine.values.push_back(3);
    const Ref<Data> first = readData(list).value;
    EXPECT_THAT(static_cast<const IntArrayData&>(*first).values, ElementsAre(1, 2));
    EXPECT_EQ(first, readData(list).value);
}

TEST_F(PlugTest, AGroupReadAsDataIsNumeric)
{
    ASSERT_TRUE(writeNumbers(plug("n.s"), {1, 2, 3}));
    const Ref<Data> data = readData(plug("n.s")).value;
    ASSERT_EQ(data->type(), DataType::numeric);
    const auto& numeric = static_cast<const NumericData&>(*data);
    EXPECT_EQ(numeric.size, 3);
    EXPECT_EQ(reinterpret_cast<const double*>(numeric.bytes)[2], 3.0);
    ASSERT_TRUE(writeData(plug("n.t"), numeric));
    EXPECT_THAT(readNumbers(plug("n.t")).value, ElementsAre(1, 2, 3));
}

TEST_F(PlugTest, AMatrixTakesSixteenNumbers)
{
    const std::vector<double> numbers = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 5, 6, 7, 1};
    ASSERT_TRUE(writeNumbers(plug("n.xm"), numbers));
    EXPECT_EQ(readNumbers(plug("n.xm")).value, numbers);
    EXPECT_EQ(writeNumbers(plug("n.xm"), {1, 2, 3}).reason, Reason::typeMismatch);
}

// Limits
// --------------------------------------------------------------------------------------------------------

TEST_F(PlugTest, ValuesPastALimitAreRefused)
{
    const Plug a = addNumber(node, "a", NumberKind::real, [](Attribute& attribute) {
        attribute.minimum = -1.0;
        attribute.maximum = 1.0;
    });
    set("n.a", 0.5);
    const Outcome above = writeNumber(a, Number(2.0));
    EXPECT_EQ(above.reason, Reason::pastMaximum);
    EXPECT_EQ(above.text, "Cannot set the attribute 'n.a' past its maximum value of 1.");
    EXPECT_EQ(writeNumber(a, Number(-1.5)).text,
              "Cannot set the attribute 'n.a' past its minimum value of -1.");
    EXPECT_EQ(number("n.a"), 0.5);
    EXPECT_TRUE(writeNumber(a, Number(2.0), Limits::clamp));
    EXPECT_EQ(number("n.a"), 1.0);
    EXPECT_TRUE(writeNumber(a, Number(2.0), Limits::ignore));
    EXPECT_EQ(number("n.a"), 2.0);
}

TEST_F(PlugTest, AnEnumerationTakesWhatItsFieldsSpan)
{
    EXPECT_EQ(writeNumber(plug("n.ro"), Number(6)).reason, Reason::pastMaximum);
    EXPECT_EQ(writeNumber(plug("n.ro"), Number(-1)).reason, Reason::pastMinimum);
    EXPECT_TRUE(writeNumber(plug("n.ro"), Number(5)));
    const Attribute& order = *plug("n.ro").attribute();
    EXPECT_EQ(order.fieldName(5).value(), "zyx");
    EXPECT_EQ(order.fieldValue("yzx").value(), 1);
    EXPECT_FALSE(order.fieldValue("none"));
}

TEST_F(PlugTest, SeveralNumbersAreSetAllOrNone)
{
    add([] {
        Ref<Attribute> group = makePoint("p", "p");
        group->children[2]->maximum = 1.0;
        return group;
    }());
    EXPECT_EQ(writeNumbers(plug("n.p"), {5, 6, 7}).reason, Reason::pastMaximum);
    EXPECT_THAT(readNumbers(plug("n.p")).value, ElementsAre(0, 0, 0));
}

// Locks and writability
// -------------------------------------------------------------------------------------------

TEST_F(PlugTest, ALockHoldsForEverythingBelow)
{
    PlugState locked;
    locked.locked = true;
    setState(plug("n.t"), locked);
    EXPECT_TRUE(isLocked(plug("n.tx")));
    EXPECT_FALSE(isLocked(plug("n.rx")));
    const Outcome outcome = writeNumber(plug("n.tx"), Number(1));
    EXPECT_EQ(outcome.reason, Reason::lockedOrConnected);
    EXPECT_EQ(outcome.text, "The attribute 'n.translateX' is locked or connected and cannot be modified.");
    EXPECT_EQ(number("n.tx"), 0.0);
}

TEST_F(PlugTest, ALockedChildStopsTheWholeGroup)
{
    PlugState locked;
    locked.locked = true;
    setState(plug("n.ty"), locked);
    EXPECT_EQ(writeNumbers(plug("n.t"), {1, 2, 3}).reason, Reason::lockedOrConnected);
    EXPECT_EQ(number("n.tx"), 0.0);
}

TEST_F(PlugTest, FedPlugsAreNotSet)
{
    makeTransform("driver");
    ASSERT_TRUE(connect("driver.t", "n.t"));
    EXPECT_EQ(writeNumber(plug("n.tx"), Number(1)).reason, Reason::lockedOrConnected);
    EXPECT_EQ(writeNumbers(plug("n.t"), {1, 2, 3}).reason, Reason::lockedOrConnected);
}

TEST_F(PlugTest, WhatIsNotWritableIsNotSet)
{
    const Plug output = addNumber(node, "o", NumberKind::real,
                                  [](Attribute& attribute) { attribute.flags.writable = false; });
    EXPECT_EQ(writeNumber(output, Number(1)).reason, Reason::notWritable);
    EXPECT_EQ(readNumber(output).value.asReal(), 0.0);
}

TEST_F(PlugTest, StatesOfAPlugAreItsOwn)
{
    PlugState state;
    state.keyable = false;
    setState(plug("n.v"), state);
    EXPECT_EQ(stateOf(plug("n.v")).keyable, false);
    EXPECT_FALSE(stateOf(plug("n.tx")).keyable.has_value());
}

// Arrays
// --------------------------------------------------------------------------------------------------------

TEST_F(PlugTest, ElementsComeIntoBeingWhenSetAndKeepTheirGaps)
{
    const Plug array = addArray("a");
    EXPECT_THAT(existingElements(array), IsEmpty());
    set("n.a[7]", 1.0);
    set("n.a[2]", 2.0);
    set("n.a[0]", 3.0);
    EXPECT_THAT(existingElements(array), ElementsAre(0, 2, 7));
    EXPECT_EQ(number("n.a[2]"), 2.0);
    EXPECT_EQ(number("n.a[5]"), 0.0);
    EXPECT_THAT(existingElements(array), ElementsAre(0, 2, 7)) << "reading makes no element";
}

TEST_F(PlugTest, AConnectedElementExists)
{
    const Plug array = addArray("a");
    makeTransform("driver");
    set("n.a[1]", 5.0);
    ASSERT_TRUE(connect("driver.tx", "n.a[3]"));
    EXPECT_THAT(existingElements(array), ElementsAre(1, 3));
    EXPECT_EQ(number("n.a[1]"), 5.0);
}

TEST_F(PlugTest, ASetElementKeepsItsValueWhenItGetsAStateOrAConnection)
{
    addArray("a");
    set("n.a[4]", 2.5);
    set("n.a[5]", 3.5);
    PlugState locked;
    locked.locked = true;
    setState(plug("n.a[4]"), locked);
    EXPECT_EQ(number("n.a[4]"), 2.5);
    EXPECT_EQ(number("n.a[5]"), 3.5);
    makeTransform("user");
    ASSERT_TRUE(connect("n.a[5]", "user.tx"));
    EXPECT_EQ(number("user.tx"), 3.5);
    set("n.a[5]", 4.5);
    EXPECT_EQ(number("user.tx"), 4.5);
}

TEST_F(PlugTest, RemovingAnElementTakesItsValueAndConnections)
{
    const Plug array = addArray("a");
    makeTransform("user");
    set("n.a[1]", 1.0);
    set("n.a[2]", 2.0);
    ASSERT_TRUE(connect("n.a[2]", "user.tx"));
    ASSERT_TRUE(removeElement(array, 2));
    ASSERT_TRUE(removeElement(array, 1));
    EXPECT_THAT(existingElements(array), IsEmpty());
    EXPECT_EQ(number("n.a[2]"), 0.0);
    EXPECT_FALSE(isConnected(plug("user.tx")));
    EXPECT_EQ(removeElement(array, 2).reason, Reason::badIndex);
}

TEST_F(PlugTest, ArraysOfCompoundsNest)
{
    set("n.iog[1].og[4].gid", 12);
    EXPECT_EQ(number("n.iog[1].og[4].gid"), 12);
    EXPECT_THAT(existingElements(plug("n.iog")), ElementsAre(1));
    EXPECT_THAT(existingElements(plug("n.iog[1].og")), ElementsAre(4));
    EXPECT_THAT(existingElements(plug("n.iog[0].og")), IsEmpty());
}

TEST_F(PlugTest, ManyElementsAreSetAtOnce)
{
    Ref<Attribute> points = makePoint("pts", "pts");
    points->flags.array = true;
    const Plug array = add(points);
    const double values[] = {1, 2, 3, 4, 5, 6};
    ASSERT_TRUE(writeElements(array, 10, values, 6));
    EXPECT_THAT(existingElements(array), ElementsAre(10, 11));
    EXPECT_THAT(readNumbers(plug("n.pts[11]")).value, ElementsAre(4, 5, 6));
    set("n.pts[11].ptsy", 9);
    EXPECT_THAT(readNumbers(plug("n.pts[11]")).value, ElementsAre(4, 9, 6));
    EXPECT_EQ(writeElements(array, 0, values, 4).reason, Reason::typeMismatch);
    EXPECT_EQ(writeElements(array, -1, values, 3).reason, Reason::badIndex);
    EXPECT_EQ(writeElements(plug("n.t"), 0, values, 3).reason, Reason::typeMismatch);
}

// Dynamic attributes
// -------------------------------------------------------------------------------------------

TEST_F(PlugTest, ADynamicAttributeGoesWithItsConnections)
{
    const Plug extra = addNumber(node, "extra");
    makeTransform("user");
    ASSERT_TRUE(connect("n.extra", "user.tx"));
    ASSERT_TRUE(node.removeDynamicAttribute(*extra.attribute()));
    EXPECT_EQ(node.findAttribute("extra"), nullptr);
    EXPECT_FALSE(extra.isValid());
    EXPECT_FALSE(isConnected(plug("user.tx")));
    EXPECT_EQ(node.removeDynamicAttribute(*node.findAttribute("tx")).reason, Reason::notFound);
}

TEST_F(PlugTest, DynamicAttributesFollowTheStaticOnes)
{
    addNumber(node, "extra");
    const std::vector<Attribute*> all = node.attributes();
    EXPECT_EQ(all.front()->longName, "message");
    EXPECT_EQ(all.back()->longName, "extra");
    EXPECT_TRUE(Plug(node, *all.back()).isDynamic());
}

} // namespace tvxhost::engine
