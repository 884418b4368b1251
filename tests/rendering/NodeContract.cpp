// The attributes that a node type declares, as text.
#include "NodeContract.h"

#include <sstream>

namespace tarvox::crowd::test {

namespace {

using tvxhost::engine::Attribute;
using tvxhost::engine::NodeType;

std::string flagsOf(const Attribute& attribute)
{
    const auto letter = [](bool on, char name) { return on ? name : '-'; };
    const auto& flags = attribute.flags;
    return {letter(flags.keyable, 'K'), letter(flags.readable, 'R'), letter(flags.writable, 'W'),
            letter(flags.hidden, 'H'),  letter(flags.array, 'A'),    letter(flags.indexMatters, 'I'),
            letter(flags.storable, 'S')};
}

std::string defaultOf(const Attribute& attribute)
{
    std::ostringstream text;
    if (attribute.children.empty() && attribute.kind != tvxhost::engine::AttributeKind::numeric)
        text << (attribute.defaultData ? "data" : "none");
    else if (attribute.children.empty())
        text << attribute.defaultNumber;
    else
        for (const auto& child : attribute.children)
            text << (child == attribute.children.front() ? "(" : " ") << child->longName << "/"
                 << child->shortName << " " << static_cast<float>(child->defaultNumber);
    if (!attribute.children.empty())
        text << ")";
    return text.str();
}

std::string limitsOf(const Attribute& attribute)
{
    const bool limited =
        attribute.minimum || attribute.maximum || attribute.softMinimum || attribute.softMaximum;
    return limited ? " limited" : "";
}

} // namespace

std::vector<std::string> attributesOf(const NodeType& type)
{
    std::vector<std::string> lines;
    for (const auto& attribute : type.attributes())
        if (attribute->owner == &type)
            lines.push_back(attribute->longName + " " + attribute->shortName + " " + attribute->typeName() +
                            (attribute->flags.usedAsColor ? " colour " : " ") + defaultOf(*attribute) + " " +
                            flagsOf(*attribute) + limitsOf(*attribute));
    return lines;
}

std::vector<std::string> affectsOf(const NodeType& type)
{
    std::vector<std::string> lines;
    for (const auto& [input, output] : type.affects())
        lines.push_back(input->longName + " " + output->longName);
    return lines;
}

} // namespace tarvox::crowd::test
