// The built-in node types are as Maya's node reference says; nodeReference.txt holds what it says of a sample
// of their attributes.
#include "engine/tableWords.h"
#include "engine/units.h"

#include "fixtures.h"

#include <fstream>
#include <iterator>
#include <sstream>

namespace tvxhost::engine {
namespace {

using Words = std::vector<std::string>;

std::string joined(const Words& words)
{
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : ",") + word;
    return text.empty() ? "-" : text;
}

/// A number in the units of the reference, as short as it can be told from others.
std::string number(const Attribute& attribute, double value)
{
    std::ostringstream text;
    text.precision(attribute.number == NumberKind::single ? 6 : 16);
    text << (attribute.unit == UnitKind::angle ? value / radiansPer(AngularUnit::degrees) : value);
    return text.str();
}

bool hasNumber(const Attribute& attribute)
{
    return attribute.kind == AttributeKind::numeric || attribute.kind == AttributeKind::unit ||
           attribute.kind == AttributeKind::enumeration;
}

std::string defaultsOf(const Attribute& attribute)
{
    Words numbers;
    for (const Ref<Attribute>& child : attribute.children)
        if (hasNumber(*child) && hasNumber(attribute))
            numbers.push_back(number(*child, child->defaultNumber));
    if (attribute.children.empty() && hasNumber(attribute))
        numbers.push_back(number(attribute, attribute.defaultNumber));
    return joined(numbers);
}

std::string rangeOf(const Attribute& attribute)
{
    Words limits;
    const auto add = [&](const char* name, const std::optional<double>& limit) {
        if (limit)
            limits.push_back(name + number(attribute, *limit));
    };
    add("min=", attribute.minimum);
    add("max=", attribute.maximum);
    add("smin=", attribute.softMinimum);
    add("smax=", attribute.softMaximum);
    return joined(limits);
}

std::string flagsOf(const Attribute& attribute)
{
    const AttributeFlags& flags = attribute.flags;
    Words names;
    const auto add = [&](bool isSet, const char* name) {
        if (isSet)
            names.emplace_back(name);
    };
    add(flags.array, "array");
    add(flags.keyable, "keyable");
    add(!flags.writable, "output");
    add(flags.hidden, "hidden");
    add(!flags.readable, "unreadable");
    add(!flags.storable, "unstored");
    return joined(names);
}

/// A line of the reference, made of what the engine has.
std::string lineOf(const NodeType& type, const std::string& name)
{
    const Attribute* attribute = type.find(name);
    if (!attribute)
        return type.name + " has no " + name;
    return type.name + ' ' + attribute->longName + ' ' + attribute->shortName + ' ' + attribute->typeName() +
           ' ' + defaultsOf(*attribute) + ' ' + rangeOf(*attribute) + ' ' + flagsOf(*attribute);
}

TEST_F(SceneTest, AttributesAreAsTheNodeReferenceSays)
{
    std::ifstream file(TVX_NODE_REFERENCE);
    const std::string reference{std::istreambuf_iterator<char>(file), {}};
    std::size_t compared = 0;
    forEachLine(reference, [&](int, const Words& words) {
        const NodeType* type = scene.types().find(words[0]);
        ASSERT_NE(type, nullptr) << words[0];
        std::string expected = words[0];
        for (std::size_t i = 1; i < words.size(); ++i)
            expected += ' ' + words[i];
        EXPECT_EQ(lineOf(*type, words[1]), expected);
        EXPECT_EQ(type->find(words[2]), type->find(words[1])) << "by its short name";
        ++compared;
    });
    EXPECT_GT(compared, 200u);
}

} // namespace
} // namespace tvxhost::engine
