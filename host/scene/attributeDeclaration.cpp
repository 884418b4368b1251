// Attribute declarations; see attributeDeclaration.h.
#include "attributeDeclaration.h"

#include "attributeTypes.h"
#include "lineBreaker.h"
#include "numberText.h"
#include "uiUnits.h"

#include "engine/data.h"

#include <algorithm>
#include <charconv>

namespace tvxhost::scene {

using engine::Attribute;
using engine::AttributeFlags;
using engine::AttributeKind;
using engine::Expected;
using engine::Outcome;
using engine::Reason;
using engine::Ref;
using mel::ArgumentType;

namespace {

/// A flag of addAttr that sets a flag of the attribute.
struct SwitchRow
{
    const char* shortName;
    const char* longName;
    bool AttributeFlags::*member;
    const char* help;
    bool isBare = false; ///< takes no value: its presence means true
};

constexpr SwitchRow kSwitches[] = {
    {"is", "internalSet", &AttributeFlags::internal, "the node keeps the value itself"},
    {"r", "readable", &AttributeFlags::readable, "can be the source of a connection"},
    {"w", "writable", &AttributeFlags::writable, "can be set and be the destination of a connection"},
    {"s", "storable", &AttributeFlags::storable, "saved in files"},
    {"ci", "cachedInternally", &AttributeFlags::cached, "keeps the value it computed"},
    {"uac", "usedAsColor", &AttributeFlags::usedAsColor, "three floats that are a colour", true},
    {"uaf", "usedAsFilename", &AttributeFlags::usedAsFilename, "a string that names a file", true},
    {"h", "hidden", &AttributeFlags::hidden, "not shown in editors"},
    {"k", "keyable", &AttributeFlags::keyable, "can have keys"},
    {"im", "indexMatters", &AttributeFlags::indexMatters, "each element's index has a meaning"},
};

/// A flag of addAttr that sets a limit of a number.
struct LimitRow
{
    const char* shortName;
    const char* longName;
    std::optional<double> Attribute::*member;
    const char* help;
};

constexpr LimitRow kLimits[] = {
    {"min", "minValue", &Attribute::minimum, "the least value that is taken"},
    {"max", "maxValue", &Attribute::maximum, "the greatest value that is taken"},
    {"smn", "softMinValue", &Attribute::softMinimum, "the least value that sliders show"},
    {"smx", "softMaxValue", &Attribute::softMaximum, "the greatest value that sliders show"},
};

mel::FlagSpec flag(const char* shortName, const char* longName, ArgumentType type, const char* help,
                   unsigned modes = mel::kCreate)
{
    return {shortName, longName, {type}, modes, help};
}

Outcome failed(std::string text)
{
    return {Reason::failed, std::move(text)};
}

// Flags to an attribute

/// "red:green=5:blue": names with or without their value, each one more than the one before.
Expected<std::vector<engine::EnumField>> parseFields(const std::string& text)
{
    std::vector<engine::EnumField> fields;
    short next = 0;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(':', begin), text.size());
        std::string name = text.substr(begin, end - begin);
        begin = end + 1;
        if (name.empty())
            continue;
        if (const std::size_t equals = name.rfind('='); equals != std::string::npos) {
            const char* digits = name.data() + equals + 1;
            const char* nameEnd = name.data() + name.size();
            if (const auto parsed = std::from_chars(digits, nameEnd, next);
                parsed.ec != std::errc() || parsed.ptr != nameEnd)
                return failed("Invalid value of an enum field: " + name);
            name.resize(equals);
        }
        fields.push_back({name, next++});
    }
    return fields;
}

Expected<Ref<Attribute>> makeTyped(const std::string& typeName, const std::string& longName,
                                   const std::string& shortName)
{
    Ref<Attribute> attribute(new Attribute(AttributeKind::typed, longName, shortName));
    attribute->dataType = engine::dataTypeNamed(typeName);
    if (attribute->dataType == engine::DataType::plugin)
        attribute->pluginDataType = typeName;
    return attribute;
}

Expected<Ref<Attribute>> makeOfType(const std::string& typeName, const std::string& longName,
                                    const std::string& shortName, int& childCount)
{
    const AttributeTypeRow* row = attributeTypeNamed(typeName);
    if (!row)
        return failed("Invalid attribute type '" + typeName + "'");
    Ref<Attribute> attribute(new Attribute(row->kind, longName, shortName));
    attribute->number = row->number;
    attribute->unit = row->unit;
    attribute->singleMatrix = row->singleMatrix;
    if (row->children > 0)
        childCount = row->children;
    else if (row->kind != AttributeKind::compound)
        childCount = 0;
    else if (childCount < 1)
        return failed("A compound attribute needs -numberOfChildren");
    return attribute;
}

Expected<Ref<Attribute>> makeAttribute(const mel::ParsedCommand& flags, int& childCount)
{
    const std::string shortName = flags.string("shortName");
    const std::string longName = flags.string("longName", shortName);
    if (longName.empty())
        return failed("New attribute needs either a long (-ln) or short (-sn) attribute name.");
    const std::string& shortOrLong = shortName.empty() ? longName : shortName;
    if (flags.has("dataType"))
        return makeTyped(flags.string("dataType"), longName, shortOrLong);
    return makeOfType(flags.string("attributeType", "double"), longName, shortOrLong, childCount);
}

void applyNumbers(const mel::ParsedCommand& flags, const engine::Units& units, Attribute& attribute)
{
    const double factor = internalPerUi(attribute, units);
    for (const LimitRow& limit : kLimits)
        if (flags.has(limit.longName))
            attribute.*limit.member = flags.number(limit.longName) * factor;
    if (flags.has("defaultValue"))
        attribute.defaultNumber = flags.number("defaultValue") * factor;
}

Outcome applyFields(const mel::ParsedCommand& flags, Attribute& attribute)
{
    if (!flags.has("enumName"))
        return {};
    auto fields = parseFields(flags.string("enumName"));
    if (fields)
        attribute.fields = std::move(fields.value);
    return fields.outcome;
}

void applySwitches(const mel::ParsedCommand& flags, Attribute& attribute)
{
    for (const SwitchRow& row : kSwitches)
        if (flags.has(row.longName))
            attribute.flags.*row.member = row.isBare || flags.boolean(row.longName);
    attribute.flags.array = flags.has("multi");
    if (attribute.flags.array && !attribute.flags.indexMatters)
        attribute.flags.readable = false;
}

// An attribute to its line

const char* truth(bool value)
{
    return value ? "true" : "false";
}

/// Writes a switch when it differs from what a new attribute has.
/// A flag and its value, between which a line may end too.
void addFlag(LineBreaker& line, const std::string& flag, const std::string& value)
{
    line.word(flag, LineBreaker::Blank::behind);
    line.word(value, LineBreaker::Blank::behind);
}

void addSwitch(LineBreaker& line, const AttributeFlags& flags, const char* shortName)
{
    const auto* row =
        std::find_if(std::begin(kSwitches), std::end(kSwitches), [&](const SwitchRow& candidate) {
            return std::string_view(candidate.shortName) == shortName;
        });
    const bool value = flags.*row->member;
    if (value == AttributeFlags().*row->member)
        return;
    line.word('-' + std::string(shortName), LineBreaker::Blank::behind);
    if (!row->isBare)
        line.word(truth(value), LineBreaker::Blank::behind);
}

void addNumbers(LineBreaker& line, const Attribute& attribute, const engine::Units& units)
{
    const double factor = internalPerUi(attribute, units);
    if (attribute.defaultNumber != 0.0)
        addFlag(line, "-dv", doubleText(attribute.defaultNumber / factor));
    for (const LimitRow& limit : kLimits)
        if (const std::optional<double>& value = attribute.*limit.member)
            addFlag(line, '-' + std::string(limit.shortName), doubleText(*value / factor));
    if (attribute.kind == AttributeKind::enumeration)
        addFlag(line, "-en", mel::quoted(fieldsText(attribute.fields)));
}

void addNames(LineBreaker& line, const Attribute& attribute)
{
    addFlag(line, "-sn", mel::quoted(attribute.shortName));
    addFlag(line, "-ln", mel::quoted(attribute.longName));
    if (!attribute.niceName.empty())
        addFlag(line, "-nn", mel::quoted(attribute.niceName));
    for (const std::string& category : attribute.categories)
        addFlag(line, "-ct", mel::quoted(category));
}

void addType(LineBreaker& line, const Attribute& attribute)
{
    if (attribute.kind != AttributeKind::typed) {
        line.word("-at " + mel::quoted(attributeTypeName(attribute)), LineBreaker::Blank::behind);
        return;
    }
    const bool isPlugin = attribute.dataType == engine::DataType::plugin;
    line.word("-dt " +
                  mel::quoted(isPlugin ? attribute.pluginDataType : engine::dataTypeName(attribute.dataType)),
              LineBreaker::Blank::behind);
}

} // namespace

std::string fieldsText(const std::vector<engine::EnumField>& fields)
{
    std::string text;
    short expected = 0;
    for (const engine::EnumField& field : fields) {
        if (!text.empty())
            text += ':';
        text += field.name;
        if (field.value != expected)
            text += '=' + std::to_string(field.value);
        expected = static_cast<short>(field.value + 1);
    }
    return text;
}

std::vector<mel::FlagSpec> addAttrFlags()
{
    std::vector<mel::FlagSpec> flags = {
        flag("ln", "longName", ArgumentType::string, "the attribute's name"),
        flag("sn", "shortName", ArgumentType::string, "its short name; the long one when not given"),
        flag("nn", "niceName", ArgumentType::string, "its name in editors"),
        flag("at", "attributeType", ArgumentType::string,
             "its type: double, float3, enum, compound, message …"),
        flag("dt", "dataType", ArgumentType::string, "its type of data: string, doubleArray, matrix …",
             mel::kCreate | mel::kMultiUse),
        flag("dv", "defaultValue", ArgumentType::number, "the value of a new node"),
        flag("en", "enumName", ArgumentType::string, "the fields of an enum: \"red:green=5:blue\""),
        {"m", "multi", {}, mel::kCreate, "an array"},
        flag("p", "parent", ArgumentType::string, "the compound that it is a child of"),
        flag("nc", "numberOfChildren", ArgumentType::integer, "children of a compound that follow"),
        flag("ct", "category", ArgumentType::string, "a word to find it by", mel::kCreate | mel::kMultiUse),
        flag("dcb", "disconnectBehaviour", ArgumentType::integer,
             "what a broken connection does: 0 deletes the element, 1 resets the value, 2 nothing"),
        flag("bt", "binaryTag", ArgumentType::string, "a tag of binary files; has no effect"),
        flag("ex", "exists", ArgumentType::boolean, "whether the attribute is there", mel::kQuery),
    };
    for (const SwitchRow& row : kSwitches)
        flags.push_back(
            {row.shortName, row.longName,
             row.isBare ? std::vector<ArgumentType>() : std::vector<ArgumentType>{ArgumentType::boolean},
             mel::kCreate, row.help});
    for (const LimitRow& row : kLimits)
        flags.push_back(flag(row.shortName, row.longName, ArgumentType::number, row.help));
    return flags;
}

mel::CommandSpec addAttrSpec()
{
    mel::CommandSpec spec;
    spec.name = "addAttr";
    spec.summary = "Adds an attribute to nodes";
    spec.flags = addAttrFlags();
    spec.positional = {ArgumentType::name, 0, mel::PositionalRule::kAny};
    return spec;
}

Expected<AttributeDeclaration> declarationFrom(const mel::ParsedCommand& flags, const engine::Units& units)
{
    AttributeDeclaration declaration;
    declaration.childCount = flags.integer("numberOfChildren");
    const Expected<Ref<Attribute>> made = makeAttribute(flags, declaration.childCount);
    if (!made)
        return made.outcome;
    Attribute& attribute = *made.value;
    attribute.flags.dynamic = true;
    attribute.niceName = flags.string("niceName");
    attribute.disconnectBehaviour = flags.integer("disconnectBehaviour", attribute.disconnectBehaviour);
    for (const mel::FlagUse* use : flags.uses("category"))
        attribute.categories.push_back(use->arguments.front().toString());
    if (const Outcome applied = applyFields(flags, attribute); !applied)
        return applied;
    applySwitches(flags, attribute);
    applyNumbers(flags, units, attribute);
    declaration.attribute = made.value;
    declaration.parent = flags.string("parent");
    return declaration;
}

Outcome editDeclaration(const mel::ParsedCommand& flags, const engine::Units& units, Attribute& attribute)
{
    if (!attribute.flags.dynamic)
        return {Reason::readOnly, "Static attributes cannot be edited: " + attribute.longName};
    if (const Outcome applied = applyFields(flags, attribute); !applied)
        return applied;
    applyNumbers(flags, units, attribute);
    attribute.niceName = flags.string("niceName", attribute.niceName);
    return {};
}

std::string addAttrLine(const Attribute& attribute, const engine::Units& units)
{
    constexpr std::size_t kIndent = 1; // it stands behind a tab
    std::string text = "addAttr";
    LineBreaker line(text, kIndent);
    if (attribute.disconnectBehaviour != 2)
        addFlag(line, "-dcb", std::to_string(attribute.disconnectBehaviour));
    // A new attribute keeps its value, and Maya says so on every line.
    for (const char* name : {"is", "r", "w", "s"})
        addSwitch(line, attribute.flags, name);
    addFlag(line, "-ci", truth(attribute.flags.cached));
    for (const char* name : {"uac", "uaf", "h", "k"})
        addSwitch(line, attribute.flags, name);
    if (attribute.flags.array)
        line.word("-m", LineBreaker::Blank::behind);
    addSwitch(line, attribute.flags, "im");
    addNames(line, attribute);
    addNumbers(line, attribute, units);
    addType(line, attribute);
    if (attribute.parent)
        addFlag(line, "-p", mel::quoted(attribute.parent->longName));
    if (!attribute.children.empty())
        addFlag(line, "-nc", std::to_string(attribute.children.size()));
    text += ';';
    return text;
}

} // namespace tvxhost::scene
