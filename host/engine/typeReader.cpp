// TypeReader: see typeReader.h and types/README.md.
#include "typeReader.h"

#include "data.h"
#include "tableWords.h"
#include "units.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <unordered_map>

namespace tvxhost::engine {

namespace {

using Words = std::vector<std::string>;

const std::unordered_map<std::string, NumberKind> kNumberKinds = {
    {"bool", NumberKind::boolean},       {"byte", NumberKind::byte},    {"char", NumberKind::character},
    {"short", NumberKind::shortInteger}, {"long", NumberKind::integer}, {"int64", NumberKind::int64},
    {"float", NumberKind::single},       {"double", NumberKind::real},
};

const std::unordered_map<std::string, UnitKind> kUnitKinds = {
    {"angle", UnitKind::angle},
    {"distance", UnitKind::distance},
    {"time", UnitKind::time},
};

const std::unordered_map<std::string, AttributeKind> kPlainKinds = {
    {"compound", AttributeKind::compound}, {"message", AttributeKind::message},
    {"matrix", AttributeKind::matrix},     {"fltMatrix", AttributeKind::matrix},
    {"generic", AttributeKind::generic},   {"lightData", AttributeKind::lightData},
};

using FlagSetter = void (*)(Attribute&);
const std::unordered_map<std::string, FlagSetter> kFlags = {
    {"array", [](Attribute& a) { a.flags.array = true; }},
    {"keyable", [](Attribute& a) { a.flags.keyable = true; }},
    {"hidden", [](Attribute& a) { a.flags.hidden = true; }},
    {"channelBox", [](Attribute& a) { a.flags.channelBox = true; }},
    {"output", [](Attribute& a) { a.flags.writable = a.flags.storable = false; }},
    {"unreadable", [](Attribute& a) { a.flags.readable = false; }},
    {"unwritable", [](Attribute& a) { a.flags.writable = false; }},
    {"unstored", [](Attribute& a) { a.flags.storable = false; }},
    {"unconnectable", [](Attribute& a) { a.flags.connectable = false; }},
    {"uncached", [](Attribute& a) { a.flags.cached = false; }},
    {"unordered", [](Attribute& a) { a.flags.indexMatters = false; }},
    {"internal", [](Attribute& a) { a.flags.internal = true; }},
    {"worldSpace", [](Attribute& a) { a.flags.worldSpace = true; }},
    {"filename", [](Attribute& a) { a.flags.usedAsFilename = true; }},
    {"delete", [](Attribute& a) { a.disconnectBehaviour = 0; }},
    {"reset", [](Attribute& a) { a.disconnectBehaviour = 1; }},
};

/// "float3" = ("float", 3); nothing when the word does not end in a digit or its stem is no number or unit.
std::optional<std::pair<std::string, int>> groupKind(const std::string& kind)
{
    const int count = kind.back() - '0';
    const std::string stem = kind.substr(0, kind.size() - 1);
    if (count < 2 || count > 4 || (!kNumberKinds.count(stem) && !kUnitKinds.count(stem)))
        return std::nullopt;
    return std::pair(stem, count);
}

Ref<Attribute> makeOfKind(const std::string& kind, const std::string& longName, const std::string& shortName)
{
    const auto make = [&](AttributeKind attributeKind) {
        return Ref<Attribute>(new Attribute(attributeKind, longName, shortName));
    };
    if (const auto number = kNumberKinds.find(kind); number != kNumberKinds.end())
        return makeNumber(longName, shortName, number->second, 0.0);
    if (const auto unit = kUnitKinds.find(kind); unit != kUnitKinds.end()) {
        Ref<Attribute> attribute = make(AttributeKind::unit);
        attribute->unit = unit->second;
        attribute->number = NumberKind::real;
        return attribute;
    }
    if (kind == "enum") {
        Ref<Attribute> attribute = make(AttributeKind::enumeration);
        attribute->number = NumberKind::shortInteger;
        return attribute;
    }
    if (const auto plain = kPlainKinds.find(kind); plain != kPlainKinds.end()) {
        Ref<Attribute> attribute = make(plain->second);
        attribute->singleMatrix = kind == "fltMatrix";
        return attribute;
    }
    Ref<Attribute> attribute = make(AttributeKind::typed);
    constexpr std::string_view kKept = "data:";
    if (kind.compare(0, kKept.size(), kKept) == 0) {
        attribute->dataType = DataType::plugin;
        attribute->pluginDataType = kind.substr(kKept.size());
        return attribute;
    }
    attribute->dataType = dataTypeNamed(kind);
    return attribute->dataType == DataType::plugin ? Ref<Attribute>() : attribute;
}

/// What the children of a group are called: these letters behind the group's long name, and small behind the
/// stem of the short names.
struct ChildNames
{
    std::string_view capitals;
    std::string_view small;
    std::string shortStem;
};

constexpr std::string_view kAxes = "XYZW", kSmallAxes = "xyzw", kColors = "RGB", kSmallColors = "rgb";

/// A group of numbers, its children made by rule unless they follow in braces (no names).
Ref<Attribute> makeGroup(const std::string& numberKind, int count, const std::string& longName,
                         const std::string& shortName, const std::optional<ChildNames>& names)
{
    Ref<Attribute> group = makeOfKind(numberKind, longName, shortName);
    group->kind = AttributeKind::numeric;
    group->unit = UnitKind::none;
    for (std::size_t i = 0; names && i < static_cast<std::size_t>(count); ++i)
        group->addChild(
            makeOfKind(numberKind, longName + names->capitals[i], names->shortStem + names->small[i]));
    return group;
}

constexpr std::string_view kChildrenOption = "children=";

/// The stem of the children's short names: that of the group unless "children=" says another.
std::string childStem(const Words& words)
{
    for (const std::string& word : words)
        if (word.compare(0, kChildrenOption.size(), kChildrenOption) == 0)
            return word.substr(kChildrenOption.size());
    return words[1];
}

/// Flags that are about the group itself, and those that are about its numbers alone.
bool isOfGroup(const std::string& flag)
{
    return flag == "array" || flag == "unordered" || flag == "delete" || flag == "reset";
}

bool isOfChildren(const std::string& flag)
{
    return flag == "keyable" || flag == "channelBox";
}

double internalValue(const Attribute& attribute, double value)
{
    return attribute.unit == UnitKind::angle ? value * radiansPer(AngularUnit::degrees) : value;
}

class Reader
{
public:
    Reader(TypeTable& types, std::string_view table) : m_types(types), m_table(table) {}

    void read(std::string_view text)
    {
        forEachLine(text, [&](int line, const Words& words) {
            m_line = line;
            readLine(words);
        });
        checkClosed();
    }

private:
    [[noreturn]] void fail(const std::string& what) const
    {
        throw std::logic_error(m_table + ":" + std::to_string(m_line) + ": " + what);
    }

    void readLine(const Words& words)
    {
        if (words[0] == "nodeType")
            readType(words);
        else if (words[0] == "affects")
            readAffects(words);
        else if (words[0] == "computed")
            readComputed(words);
        else if (words[0] == "}")
            closeBrace();
        else
            readAttribute(words);
    }

    void readType(const Words& words)
    {
        if (words.size() < 4)
            fail("nodeType NAME ID PARENT");
        checkClosed();
        NodeType* parent = words[3] == "-" ? nullptr : m_types.find(words[3]);
        if (!parent && words[3] != "-")
            fail("no type '" + words[3] + "'");
        Expected<NodeType*> added = parent ? m_types.add(words[1], idOf(words[2]), *parent)
                                           : m_types.addRoot(words[1], idOf(words[2]));
        if (!added)
            fail(added.outcome.text);
        m_type = added.value;
        for (std::size_t i = 4; i < words.size(); ++i)
            readTypeWord(words[i]);
        if (m_type->isShape && !m_type->isAbstract && m_type->baseName.empty())
            m_type->baseName = m_type->name;
    }

    void readTypeWord(const std::string& word)
    {
        if (word == "dag")
            m_type->isDag = true;
        else if (word == "shape")
            m_type->isShape = true;
        else if (word == "abstract")
            m_type->isAbstract = true;
        else if (word.compare(0, 5, "base=") == 0)
            m_type->baseName = word.substr(5);
        else if (word.compare(0, 6, "class=") == 0)
            m_type->classification = word.substr(6);
        else
            fail("unknown word '" + word + "'");
    }

    std::uint32_t idOf(const std::string& code)
    {
        // Types that cannot be created have no code of their own; their numbers only have to differ.
        if (code == "-")
            return m_types.nextNamelessId();
        if (code.size() != 4)
            fail("an id has four letters");
        std::uint32_t id = 0;
        for (const char c : code)
            id = id << 8 | static_cast<std::uint8_t>(c);
        return id;
    }

    void readAttribute(const Words& words)
    {
        if (!m_type || words.size() < 3)
            fail("LONG SHORT KIND");
        const bool opens = words.back() == "{";
        const auto stem = opens ? std::nullopt : std::optional<std::string>(childStem(words));
        Ref<Attribute> attribute = makeAttribute(words[0], words[1], words[2], stem);
        if (!attribute)
            fail("unknown kind '" + words[2] + "'");
        for (std::size_t i = 3; i + (opens ? 1 : 0) < words.size(); ++i)
            readOption(*attribute, words[i]);
        if (opens)
            m_open.push_back(attribute);
        else
            finish(attribute);
    }

    /// Without a stem for their short names, a group's children follow in braces.
    static Ref<Attribute> makeAttribute(const std::string& longName, const std::string& shortName,
                                        const std::string& kind, const std::optional<std::string>& stem)
    {
        const auto names = [&](std::string_view capitals, std::string_view small) {
            return stem ? std::optional(ChildNames{capitals, small, *stem}) : std::nullopt;
        };
        if (kind == "color") {
            Ref<Attribute> color = makeGroup("float", 3, longName, shortName, names(kColors, kSmallColors));
            color->flags.usedAsColor = true;
            return color;
        }
        if (const auto group = groupKind(kind))
            return makeGroup(group->first, group->second, longName, shortName, names(kAxes, kSmallAxes));
        return makeOfKind(kind, longName, shortName);
    }

    void readOption(Attribute& attribute, const std::string& word)
    {
        if (const auto flag = kFlags.find(word); flag != kFlags.end()) {
            if (attribute.children.empty() || !isOfChildren(word))
                flag->second(attribute);
            if (!isOfGroup(word))
                for (const Ref<Attribute>& child : attribute.children)
                    flag->second(*child);
            return;
        }
        if (word.compare(0, kChildrenOption.size(), kChildrenOption) == 0)
            return;
        const std::size_t equals = word.find('=');
        if (equals == std::string::npos)
            fail("unknown word '" + word + "'");
        const std::string key = word.substr(0, equals);
        const std::string value = word.substr(equals + 1);
        if (key.empty())
            readDefault(attribute, value);
        else if (key == "fields")
            readFields(attribute, value);
        else
            readLimit(attribute, key, value);
    }

    double number(const std::string& text) const
    {
        std::size_t end = 0;
        double value = 0.0;
        try {
            value = std::stod(text, &end);
        } catch (const std::exception&) {
            end = std::string::npos;
        }
        if (end != text.size())
            fail("'" + text + "' is not a number");
        return value;
    }

    void readDefault(Attribute& attribute, const std::string& value)
    {
        if (attribute.kind == AttributeKind::typed && attribute.dataType == DataType::string) {
            attribute.defaultData = Ref<Data>(new StringData(value));
            return;
        }
        if (attribute.children.empty()) {
            attribute.defaultNumber = internalValue(attribute, number(value));
            return;
        }
        const std::vector<std::string> values = splitAt(value, ',');
        if (values.size() != 1 && values.size() != attribute.children.size())
            fail("one default, or one for each child");
        for (std::size_t i = 0; i < attribute.children.size(); ++i) {
            Attribute& child = *attribute.children[i];
            child.defaultNumber = internalValue(child, number(values[values.size() == 1 ? 0 : i]));
        }
    }

    void readFields(Attribute& attribute, const std::string& value)
    {
        short next = 0;
        for (const std::string& field : splitAt(value, ':')) {
            const std::size_t equals = field.find('=');
            if (equals != std::string::npos)
                next = static_cast<short>(number(field.substr(equals + 1)));
            attribute.fields.push_back({field.substr(0, equals), next++});
        }
    }

    void readLimit(Attribute& attribute, const std::string& key, const std::string& value)
    {
        const double limit = internalValue(attribute, number(value));
        const auto set = [&](std::optional<double> Attribute::*member) {
            attribute.*member = limit;
            for (const Ref<Attribute>& child : attribute.children)
                (*child).*member = limit;
        };
        if (key == "min")
            set(&Attribute::minimum);
        else if (key == "max")
            set(&Attribute::maximum);
        else if (key == "smin")
            set(&Attribute::softMinimum);
        else if (key == "smax")
            set(&Attribute::softMaximum);
        else
            fail("unknown word '" + key + "'");
    }

    void closeBrace()
    {
        if (m_open.empty())
            fail("a brace too many");
        const Ref<Attribute> attribute = m_open.back();
        m_open.pop_back();
        finish(attribute);
    }

    /// A whole attribute, with its children: goes into the brace around it or to the type.
    void finish(const Ref<Attribute>& attribute)
    {
        if (!m_open.empty())
            m_open.back()->addChild(attribute);
        else if (Outcome outcome = m_type->addAttribute(attribute); !outcome)
            fail(outcome.text);
    }

    const Attribute& attributeNamed(const std::string& name) const
    {
        const Attribute* attribute = m_type->find(name);
        if (!attribute)
            fail("no attribute '" + name + "'");
        return *attribute;
    }

    void readComputed(const Words& words)
    {
        for (std::size_t i = 1; i < words.size(); ++i)
            m_type->addComputed(attributeNamed(words[i]));
    }

    void readAffects(const Words& words)
    {
        std::vector<const Attribute*> inputs, outputs;
        bool isOutput = false;
        for (std::size_t i = 1; i < words.size(); ++i)
            if (words[i] == "->")
                isOutput = true;
            else
                (isOutput ? outputs : inputs).push_back(&attributeNamed(words[i]));
        for (const Attribute* input : inputs)
            for (const Attribute* output : outputs)
                if (Outcome outcome = m_type->addAffects(*input, *output); !outcome)
                    fail(outcome.text);
    }

    void checkClosed() const
    {
        if (!m_open.empty())
            fail("a brace is not closed");
    }

    TypeTable& m_types;
    std::string m_table;
    int m_line = 0;
    NodeType* m_type = nullptr;
    std::vector<Ref<Attribute>> m_open;
};

} // namespace

void readTypes(TypeTable& types, std::string_view tableName, std::string_view text)
{
    Reader(types, tableName).read(text);
}

} // namespace tvxhost::engine
