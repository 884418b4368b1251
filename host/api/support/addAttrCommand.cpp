// The MEL command that makes an attribute like a given one.
#include "addAttrCommand.h"

#include <algorithm>
#include <sstream>

namespace tvxhost::api {

namespace {

using engine::Attribute;
using engine::AttributeKind;

class Command
{
public:
    explicit Command(bool longFlags) : m_longFlags(longFlags) { m_text << "addAttr"; }

    void flag(const char* shortName, const char* longName)
    {
        m_text << " -" << (m_longFlags ? longName : shortName);
    }
    void flag(const char* shortName, const char* longName, bool value)
    {
        flag(shortName, longName);
        m_text << (value ? " true" : " false");
    }
    void flag(const char* shortName, const char* longName, double value)
    {
        flag(shortName, longName);
        m_text << ' ' << value;
    }
    void flag(const char* shortName, const char* longName, const std::string& value)
    {
        flag(shortName, longName);
        m_text << " \"" << value << '"';
    }
    std::string text() const { return m_text.str() + ";"; }

private:
    std::ostringstream m_text;
    bool m_longFlags;
};

void writeFlags(Command& command, const Attribute& attribute)
{
    const engine::AttributeFlags& flags = attribute.flags;
    if (attribute.disconnectBehaviour != 2)
        command.flag("dcb", "disconnectBehaviour", static_cast<double>(attribute.disconnectBehaviour));
    if (!flags.readable)
        command.flag("r", "readable", false);
    if (!flags.writable)
        command.flag("w", "writable", false);
    if (!flags.storable)
        command.flag("s", "storable", false);
    command.flag("ci", "cachedInternally", flags.cached);
    if (flags.hidden)
        command.flag("h", "hidden", true);
    if (flags.usedAsColor)
        command.flag("uac", "usedAsColor");
    if (flags.usedAsFilename)
        command.flag("uaf", "usedAsFilename");
    if (flags.keyable)
        command.flag("k", "keyable", true);
    if (flags.array)
        command.flag("m", "multi");
    if (!flags.indexMatters)
        command.flag("im", "indexMatters", false);
}

void writeNames(Command& command, const Attribute& attribute)
{
    command.flag("sn", "shortName", attribute.shortName);
    command.flag("ln", "longName", attribute.longName);
    if (!attribute.niceName.empty())
        command.flag("nn", "niceName", attribute.niceName);
}

void writeNumbers(Command& command, const Attribute& attribute)
{
    if (attribute.defaultNumber != 0.0)
        command.flag("dv", "defaultValue", attribute.defaultNumber);
    const struct
    {
        const char* shortName;
        const char* longName;
        const std::optional<double>& value;
    } limits[] = {
        {"min", "minValue", attribute.minimum},
        {"max", "maxValue", attribute.maximum},
        {"smn", "softMinValue", attribute.softMinimum},
        {"smx", "softMaxValue", attribute.softMaximum},
    };
    for (const auto& limit : limits)
        if (limit.value)
            command.flag(limit.shortName, limit.longName, *limit.value);
}

/// "Green=1:Red=5", numbers only where they do not follow on.
std::string fieldList(const Attribute& attribute)
{
    auto fields = attribute.fields;
    std::stable_sort(fields.begin(), fields.end(),
                     [](const auto& a, const auto& b) { return a.value < b.value; });
    std::string list;
    int next = 0;
    for (const engine::EnumField& field : fields) {
        list += (list.empty() ? "" : ":") + field.name;
        if (field.value != next)
            list += "=" + std::to_string(field.value);
        next = field.value + 1;
    }
    return list;
}

void writeType(Command& command, const Attribute& attribute)
{
    switch (attribute.kind) {
    case AttributeKind::typed:
        command.flag("dt", "dataType", std::string(engine::dataTypeName(attribute.dataType)));
        break;
    case AttributeKind::compound:
        command.flag("nc", "numberOfChildren", static_cast<double>(attribute.children.size()));
        command.flag("at", "attributeType", std::string("compound"));
        break;
    case AttributeKind::enumeration:
        command.flag("en", "enumName", fieldList(attribute));
        command.flag("at", "attributeType", std::string("enum"));
        break;
    case AttributeKind::matrix:
        command.flag("at", "attributeType", std::string(attribute.singleMatrix ? "fltMatrix" : "matrix"));
        break;
    default:
        command.flag("at", "attributeType", attribute.typeName());
    }
    if (attribute.parent)
        command.flag("p", "parent", attribute.parent->longName);
}

} // namespace

std::string addAttrCommand(const Attribute& attribute, bool longFlags)
{
    Command command(longFlags);
    writeFlags(command, attribute);
    writeNames(command, attribute);
    if (!attribute.isCompound())
        writeNumbers(command, attribute);
    writeType(command, attribute);
    return command.text();
}

} // namespace tvxhost::api
