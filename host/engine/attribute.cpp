// Attribute: see attribute.h.
#include "attribute.h"

#include <algorithm>
#include <cassert>
#include <tuple>

namespace tvxhost::engine {

namespace {

const char* numberName(NumberKind kind)
{
    switch (kind) {
    case NumberKind::boolean:
        return "bool";
    case NumberKind::byte:
        return "byte";
    case NumberKind::character:
        return "char";
    case NumberKind::shortInteger:
        return "short";
    case NumberKind::integer:
        return "long";
    case NumberKind::int64:
        return "int64";
    case NumberKind::single:
        return "float";
    case NumberKind::real:
    case NumberKind::none:
        break;
    }
    return "double";
}

const char* unitName(UnitKind unit)
{
    switch (unit) {
    case UnitKind::angle:
        return "doubleAngle";
    case UnitKind::time:
        return "time";
    case UnitKind::distance:
    case UnitKind::none:
        break;
    }
    return "doubleLinear";
}

Ref<Attribute> makeFloat3(const std::string& longName, const std::string& shortName,
                          const std::array<const char*, 4>& suffixes,
                          const std::array<const char*, 4>& shortSuffixes)
{
    return makeNumberGroup(longName, shortName, NumberKind::single, 3, suffixes, shortSuffixes);
}

} // namespace

std::size_t sizeOf(NumberKind kind)
{
    switch (kind) {
    case NumberKind::none:
        return 0;
    case NumberKind::boolean:
    case NumberKind::byte:
    case NumberKind::character:
        return 1;
    case NumberKind::shortInteger:
        return sizeof(short);
    case NumberKind::integer:
        return sizeof(int);
    case NumberKind::single:
        return sizeof(float);
    case NumberKind::int64:
    case NumberKind::real:
        break;
    }
    return 8;
}

Attribute::Attribute(AttributeKind attributeKind, std::string attributeLongName,
                     std::string attributeShortName)
    : Object(ObjectClass::attribute), kind(attributeKind), longName(std::move(attributeLongName)),
      shortName(std::move(attributeShortName))
{
}

Attribute::~Attribute()
{
    for (const Ref<Attribute>& child : children)
        child->parent = nullptr;
}

int Attribute::arrayDepth() const
{
    int depth = 0;
    for (const Attribute* attribute = this; attribute; attribute = attribute->parent)
        depth += attribute->flags.array;
    return depth;
}

const Attribute* Attribute::topLevel() const
{
    const Attribute* attribute = this;
    while (attribute->parent)
        attribute = attribute->parent;
    return attribute;
}

int Attribute::childIndex(const Attribute& child) const
{
    return child.parent == this ? child.siblingIndex : -1;
}

bool Attribute::isAtOrBelow(const Attribute& other) const
{
    const Attribute* attribute = this;
    while (attribute && attribute != &other)
        attribute = attribute->parent;
    return attribute != nullptr;
}

bool Attribute::isNestedWithinLimits() const
{
    int levels = 0;
    for (const Attribute* attribute = this; attribute; attribute = attribute->parent)
        ++levels;
    return levels <= kMaxNesting && arrayDepth() <= kMaxArrayDepth &&
           std::all_of(children.begin(), children.end(),
                       [](const Ref<Attribute>& child) { return child->isNestedWithinLimits(); });
}

void Attribute::swapDeclaration(Attribute& other)
{
    const auto all = [](Attribute& a) {
        return std::tie(a.longName, a.shortName, a.otherShortName, a.niceName, a.categories, a.flags,
                        a.acceptedData, a.acceptedPluginData, a.fields, a.defaultNumber, a.defaultData,
                        a.minimum, a.maximum, a.softMinimum, a.softMaximum, a.disconnectBehaviour);
    };
    auto mine = all(*this);
    auto theirs = all(other);
    mine.swap(theirs);
    for (std::size_t i = 0; i < children.size() && i < other.children.size(); ++i)
        children[i]->swapDeclaration(*other.children[i]);
}

void Attribute::addChild(Ref<Attribute> child)
{
    assert(!child->parent);
    child->parent = this;
    child->siblingIndex = static_cast<int>(children.size());
    children.push_back(std::move(child));
}

std::string Attribute::typeName() const
{
    switch (kind) {
    case AttributeKind::numeric:
        return children.empty() ? numberName(number) : numberName(number) + std::to_string(children.size());
    case AttributeKind::unit:
        return unitName(unit);
    case AttributeKind::enumeration:
        return "enum";
    case AttributeKind::typed:
        return dataType == DataType::plugin ? pluginDataType : dataTypeName(dataType);
    case AttributeKind::compound:
        return "TdataCompound";
    case AttributeKind::message:
        return "message";
    case AttributeKind::matrix:
        return singleMatrix ? "fltMatrix" : "matrix";
    case AttributeKind::generic:
        return "generic";
    case AttributeKind::lightData:
        break;
    }
    return "lightData";
}

std::optional<short> Attribute::fieldValue(const std::string& name) const
{
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&](const EnumField& field) { return field.name == name; });
    return found == fields.end() ? std::nullopt : std::optional<short>(found->value);
}

std::optional<std::string> Attribute::fieldName(short value) const
{
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&](const EnumField& field) { return field.value == value; });
    return found == fields.end() ? std::nullopt : std::optional<std::string>(found->name);
}

Ref<Attribute> makeNumber(const std::string& longName, const std::string& shortName, NumberKind kind,
                          double defaultValue)
{
    Ref<Attribute> attribute(new Attribute(AttributeKind::numeric, longName, shortName));
    attribute->number = kind;
    attribute->defaultNumber = defaultValue;
    return attribute;
}

Ref<Attribute> makeNumberGroup(const std::string& longName, const std::string& shortName, NumberKind kind,
                               int count, const std::array<const char*, 4>& suffixes,
                               const std::array<const char*, 4>& shortSuffixes)
{
    Ref<Attribute> group = makeNumber(longName, shortName, kind, 0.0);
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i)
        group->addChild(makeNumber(longName + suffixes[i], shortName + shortSuffixes[i], kind, 0.0));
    return group;
}

Ref<Attribute> makeColor(const std::string& longName, const std::string& shortName)
{
    const std::array<const char*, 4> capitals = {"R", "G", "B", ""};
    Ref<Attribute> color = makeFloat3(longName, shortName, capitals, {"r", "g", "b", ""});
    color->flags.usedAsColor = true;
    for (std::size_t i = 0; i < color->children.size(); ++i)
        color->children[i]->otherShortName = shortName + capitals[i];
    return color;
}

Ref<Attribute> makePoint(const std::string& longName, const std::string& shortName)
{
    return makeFloat3(longName, shortName, {"X", "Y", "Z", ""}, {"x", "y", "z", ""});
}

} // namespace tvxhost::engine
