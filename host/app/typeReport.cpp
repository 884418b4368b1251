// Report about a node type: a table or JSON; see typeReport.h.
#include "typeReport.h"

#include "mel/arguments.h"
#include "scene/uiUnits.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <vector>

namespace tvxhost::app {

using engine::Attribute;
using engine::AttributeFlags;
using engine::AttributeKind;
using engine::NodeType;
using engine::Ref;
using nlohmann::ordered_json;

namespace {

struct FlagColumn
{
    char letter;
    const char* name;
    bool AttributeFlags::*member;
};

constexpr FlagColumn kFlags[] = {
    {'K', "keyable", &AttributeFlags::keyable},   {'R', "readable", &AttributeFlags::readable},
    {'W', "writable", &AttributeFlags::writable}, {'H', "hidden", &AttributeFlags::hidden},
    {'A', "array", &AttributeFlags::array},       {'I', "indexMatters", &AttributeFlags::indexMatters},
    {'S', "storable", &AttributeFlags::storable}, {'C', "usedAsColor", &AttributeFlags::usedAsColor},
};

struct Limit
{
    const char* name;
    std::optional<double> Attribute::*member;
};

constexpr Limit kLimits[] = {
    {"minimum", &Attribute::minimum},
    {"maximum", &Attribute::maximum},
    {"softMinimum", &Attribute::softMinimum},
    {"softMaximum", &Attribute::softMaximum},
};

// What a type declares

std::vector<std::string> ancestorsOf(const NodeType& type)
{
    std::vector<std::string> names;
    for (const NodeType* ancestor = type.parent; ancestor; ancestor = ancestor->parent)
        names.push_back(ancestor->name);
    return names;
}

std::vector<Attribute*> ownAttributes(const NodeType& type)
{
    std::vector<Attribute*> own;
    for (const Ref<Attribute>& attribute : type.attributes())
        if (attribute->owner == &type)
            own.push_back(attribute.get());
    return own;
}

std::string idText(const NodeType& type)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%08X", type.id);
    return text;
}

std::vector<std::string> affectedNames(const NodeType& type, const Attribute& attribute)
{
    std::vector<std::string> names;
    for (const auto& [input, output] : type.affects())
        if (input == &attribute)
            names.push_back(output->longName);
    return names;
}

// Values

/// A number of an attribute in the user's units, without the noise of its last digits.
std::string numberText(const Attribute& attribute, double internal, const engine::Units& units)
{
    const double number = internal / scene::internalPerUi(attribute, units);
    char text[32];
    if (attribute.number == engine::NumberKind::single) {
        const auto end = std::to_chars(text, text + sizeof text, static_cast<float>(number)).ptr;
        return {text, end};
    }
    std::snprintf(text, sizeof text, "%.15g", number);
    return text;
}

/// The default of a string attribute that has one.
std::optional<std::string> stringDefault(const Attribute& attribute)
{
    const engine::Data* data = attribute.defaultData.get();
    if (!data || data->type() != engine::DataType::string)
        return std::nullopt;
    return static_cast<const engine::StringData*>(data)->value.str();
}

std::vector<std::string> defaultNumbers(Attribute& attribute, const engine::Units& units)
{
    std::vector<std::string> texts;
    for (const Attribute* leaf : scene::numberLeaves(attribute))
        texts.push_back(numberText(*leaf, leaf->defaultNumber, units));
    return texts;
}

std::string joined(const std::vector<std::string>& words, const char* separator)
{
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : separator) + word;
    return text;
}

// Text

using Row = std::array<std::string, 7>;

std::string defaultText(Attribute& attribute, const engine::Units& units)
{
    if (const auto text = stringDefault(attribute))
        return mel::quoted(*text);
    if (attribute.kind == AttributeKind::typed)
        return attribute.defaultData ? "data" : "none";
    return joined(defaultNumbers(attribute, units), " ");
}

std::string rangeText(const std::string& least, const std::string& most)
{
    if (least.empty() && most.empty())
        return {};
    if (least.empty())
        return "<= " + most;
    return most.empty() ? ">= " + least : least + " .. " + most;
}

std::string limitsText(const Attribute& attribute, const engine::Units& units)
{
    const auto text = [&](const std::optional<double>& limit) {
        return limit ? numberText(attribute, *limit, units) : std::string();
    };
    std::vector<std::string> parts;
    for (const engine::EnumField& field : attribute.fields)
        parts.push_back(std::to_string(field.value) + " " + field.name);
    if (const std::string hard = rangeText(text(attribute.minimum), text(attribute.maximum)); !hard.empty())
        parts.push_back(hard);
    if (const std::string soft = rangeText(text(attribute.softMinimum), text(attribute.softMaximum));
        !soft.empty())
        parts.push_back("soft " + soft);
    return joined(parts, ", ");
}

std::string flagsText(const AttributeFlags& flags)
{
    std::string text;
    for (const FlagColumn& flag : kFlags)
        text += flags.*flag.member ? flag.letter : '-';
    return text;
}

void addRows(const NodeType& type, Attribute& attribute, const engine::Units& units,
             const std::string& indent, std::vector<Row>& rows)
{
    rows.push_back({indent + attribute.longName, indent + attribute.shortName, attribute.typeName(),
                    defaultText(attribute, units), limitsText(attribute, units), flagsText(attribute.flags),
                    joined(affectedNames(type, attribute), " ")});
    for (const Ref<Attribute>& child : attribute.children)
        addRows(type, *child, units, indent + "  ", rows);
}

/// Columns as wide as their widest cell; a column without any content is left out.
std::string table(const std::vector<Row>& rows)
{
    std::array<std::size_t, std::tuple_size_v<Row>> widths{};
    std::array<bool, std::tuple_size_v<Row>> isUsed{};
    for (const Row& row : rows)
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], row[i].size());
            isUsed[i] = isUsed[i] || (&row != &rows.front() && !row[i].empty());
        }
    std::string text;
    for (const Row& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i)
            if (isUsed[i])
                line += row[i] + std::string(widths[i] - row[i].size() + 2, ' ');
        text += line.substr(0, line.find_last_not_of(' ') + 1) + "\n";
    }
    return text;
}

std::string legend()
{
    std::string text;
    for (const FlagColumn& flag : kFlags)
        text += (text.empty() ? "flags: " : ", ") + std::string(1, flag.letter) + " " + flag.name;
    return text + "\n";
}

// JSON

ordered_json numberJson(const std::string& text)
{
    return std::strtod(text.c_str(), nullptr);
}

ordered_json defaultJson(Attribute& attribute, const engine::Units& units)
{
    if (const auto text = stringDefault(attribute))
        return *text;
    const std::vector<std::string> numbers = defaultNumbers(attribute, units);
    if (numbers.size() == 1 && attribute.children.empty())
        return numberJson(numbers.front());
    if (numbers.empty())
        return nullptr;
    ordered_json list = ordered_json::array();
    for (const std::string& number : numbers)
        list.push_back(numberJson(number));
    return list;
}

ordered_json attributeJson(const NodeType& type, Attribute& attribute, const engine::Units& units)
{
    ordered_json json;
    json["longName"] = attribute.longName;
    json["shortName"] = attribute.shortName;
    json["type"] = attribute.typeName();
    json["default"] = defaultJson(attribute, units);
    for (const Limit& limit : kLimits) {
        const std::optional<double>& value = attribute.*limit.member;
        json[limit.name] = value ? numberJson(numberText(attribute, *value, units)) : ordered_json(nullptr);
    }
    for (const FlagColumn& flag : kFlags)
        json["flags"][flag.name] = attribute.flags.*flag.member;
    json["fields"] = ordered_json::array();
    for (const engine::EnumField& field : attribute.fields)
        json["fields"].push_back({{"name", field.name}, {"value", field.value}});
    json["affects"] = affectedNames(type, attribute);
    json["children"] = ordered_json::array();
    for (const Ref<Attribute>& child : attribute.children)
        json["children"].push_back(attributeJson(type, *child, units));
    return json;
}

} // namespace

std::string describeAsText(const NodeType& type, const engine::Units& units)
{
    const std::vector<Attribute*> own = ownAttributes(type);
    std::string text = type.name + "\n";
    const auto line = [&](const char* label, const std::string& value) {
        if (!value.empty())
            text += std::string("  ") + label + ": " + value + "\n";
    };
    line("plug-in", type.plugin);
    line("id", idText(type));
    line("inherits", joined(ancestorsOf(type), " "));
    line("classification", type.classification);
    line("inherited attributes", std::to_string(type.attributes().size() - own.size()));
    line("own attributes", std::to_string(own.size()));
    if (own.empty())
        return text;

    std::vector<Row> rows = {{"long name", "short name", "type", "default", "limits", "flags", "affects"}};
    for (Attribute* attribute : own)
        addRows(type, *attribute, units, {}, rows);
    return text + "\n" + table(rows) + "\n" + legend();
}

std::string describeAsJson(const NodeType& type, const engine::Units& units)
{
    const std::vector<Attribute*> own = ownAttributes(type);
    ordered_json json;
    json["name"] = type.name;
    json["id"] = type.id;
    json["plugin"] = type.plugin;
    json["inherits"] = ancestorsOf(type);
    json["classification"] = type.classification;
    json["inheritedAttributes"] = type.attributes().size() - own.size();
    json["attributes"] = ordered_json::array();
    for (Attribute* attribute : own)
        json["attributes"].push_back(attributeJson(type, *attribute, units));
    return json.dump(-1, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}

} // namespace tvxhost::app
