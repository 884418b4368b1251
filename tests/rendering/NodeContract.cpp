// What a node type declares, as text.
#include "NodeContract.h"

#include <iomanip>
#include <optional>
#include <sstream>
#include <utility>

namespace tarvox::crowd::test {

namespace {

using tvxhost::engine::Attribute;
using tvxhost::engine::AttributeFlags;
using tvxhost::engine::AttributeKind;
using tvxhost::engine::NodeType;

std::string headOf(const NodeType& type)
{
    std::ostringstream text;
    text << "0x" << std::hex << std::uppercase << type.id << (type.isShape ? " locator" : " node") << " '"
         << type.classification << "'";
    return text.str();
}

std::string number(double value)
{
    std::ostringstream text;
    text << value;
    return text.str();
}

std::string defaultOf(const Attribute& attribute)
{
    if (attribute.kind == AttributeKind::typed)
        return attribute.defaultData ? "data" : "none";
    if (attribute.children.empty())
        return number(attribute.defaultNumber);
    std::string text;
    for (const auto& child : attribute.children)
        text += (text.empty() ? "(" : " ") + child->longName + "/" + child->shortName + " " +
                number(child->defaultNumber);
    return text + ")";
}

std::string fieldsOf(const Attribute& attribute)
{
    std::string text;
    for (const auto& field : attribute.fields)
        text += (text.empty() ? " {" : ", ") + field.name + "=" + std::to_string(field.value);
    return text.empty() ? "" : text + "}";
}

std::string limitsOf(const Attribute& attribute)
{
    std::string text;
    for (const auto& [name, limit] :
         {std::pair{"min", attribute.minimum}, std::pair{"max", attribute.maximum},
          std::pair{"softMin", attribute.softMinimum}, std::pair{"softMax", attribute.softMaximum}})
        if (limit)
            text += std::string(" ") + name + "=" + number(*limit);
    return text;
}

std::string flagsOf(const Attribute& attribute)
{
    const auto letter = [](bool on, char name) { return on ? name : '-'; };
    const AttributeFlags& flags = attribute.flags;
    return {letter(flags.keyable, 'K'), letter(flags.readable, 'R'), letter(flags.writable, 'W'),
            letter(flags.hidden, 'H'),  letter(flags.array, 'A'),    letter(flags.indexMatters, 'I'),
            letter(flags.storable, 'S')};
}

std::string otherFlagsOf(const Attribute& attribute)
{
    const AttributeFlags& flags = attribute.flags;
    const std::pair<bool, const char*> others[] = {{!flags.connectable, "not connectable"},
                                                   {!flags.cached, "not cached"},
                                                   {flags.arrayBuilder, "array builder"},
                                                   {flags.channelBox, "channel box"},
                                                   {flags.usedAsColor, "colour"},
                                                   {flags.usedAsFilename, "file name"},
                                                   {flags.internal, "internal"},
                                                   {flags.worldSpace, "world space"},
                                                   {flags.affectsAppearance, "affects appearance"},
                                                   {flags.affectsWorldSpace, "affects world space"},
                                                   {flags.renderSource, "render source"},
                                                   {flags.dynamic, "dynamic"}};
    std::string text;
    for (const auto& [differs, name] : others)
        if (differs)
            text += std::string(" ") + name;
    return text;
}

} // namespace

std::vector<std::string> contractOf(const NodeType& type)
{
    std::vector<std::string> lines{headOf(type)};
    for (const auto& attribute : type.attributes())
        if (attribute->owner == &type)
            lines.push_back(attribute->longName + " " + attribute->shortName + " " + attribute->typeName() +
                            " " + defaultOf(*attribute) + fieldsOf(*attribute) + limitsOf(*attribute) + " " +
                            flagsOf(*attribute) + otherFlagsOf(*attribute));
    for (const auto& [input, output] : type.affects())
        lines.push_back(input->longName + " -> " + output->longName);
    return lines;
}

} // namespace tarvox::crowd::test
