// The names that `addAttr -attributeType` knows; see attributeTypes.h.
#include "attributeTypes.h"

#include <algorithm>
#include <array>

namespace tvxhost::scene {

using engine::AttributeKind;
using engine::NumberKind;
using engine::UnitKind;

namespace {

constexpr AttributeTypeRow number(std::string_view name, NumberKind kind, int children = 0)
{
    return {name, AttributeKind::numeric, kind, UnitKind::none, children, false};
}

constexpr AttributeTypeRow unit(std::string_view name, UnitKind kind)
{
    return {name, AttributeKind::unit, NumberKind::real, kind, 0, false};
}

constexpr AttributeTypeRow other(std::string_view name, AttributeKind kind)
{
    return {name, kind, NumberKind::none, UnitKind::none, 0, false};
}

/// The first row of a kind is the one whose name is written.
constexpr std::array kRows = {
    number("bool", NumberKind::boolean),
    number("byte", NumberKind::byte),
    number("char", NumberKind::character),
    number("short", NumberKind::shortInteger),
    number("long", NumberKind::integer),
    number("int64", NumberKind::int64),
    number("float", NumberKind::single),
    number("double", NumberKind::real),
    number("short2", NumberKind::shortInteger, 2),
    number("short3", NumberKind::shortInteger, 3),
    number("long2", NumberKind::integer, 2),
    number("long3", NumberKind::integer, 3),
    number("float2", NumberKind::single, 2),
    number("float3", NumberKind::single, 3),
    number("double2", NumberKind::real, 2),
    number("double3", NumberKind::real, 3),
    number("double4", NumberKind::real, 4),
    number("spectrum", NumberKind::single, 3),
    number("spectrumRGB", NumberKind::single, 3),
    number("reflectance", NumberKind::single, 3),
    number("reflectanceRGB", NumberKind::single, 3),
    unit("doubleAngle", UnitKind::angle),
    unit("doubleLinear", UnitKind::distance),
    unit("floatAngle", UnitKind::angle),
    unit("floatLinear", UnitKind::distance),
    unit("time", UnitKind::time),
    AttributeTypeRow{"enum", AttributeKind::enumeration, NumberKind::shortInteger},
    other("compound", AttributeKind::compound),
    other("message", AttributeKind::message),
    other("matrix", AttributeKind::matrix),
    AttributeTypeRow{"fltMatrix", AttributeKind::matrix, NumberKind::none, UnitKind::none, 0, true},
    other("lightData", AttributeKind::lightData),
    other("generic", AttributeKind::generic),
};

} // namespace

const AttributeTypeRow* attributeTypeNamed(std::string_view name)
{
    const auto* row = std::find_if(kRows.begin(), kRows.end(),
                                   [&](const AttributeTypeRow& candidate) { return candidate.name == name; });
    return row == kRows.end() ? nullptr : row;
}

std::string attributeTypeName(const engine::Attribute& attribute)
{
    const bool isNumber = attribute.kind == AttributeKind::numeric;
    const auto* row = std::find_if(kRows.begin(), kRows.end(), [&](const AttributeTypeRow& candidate) {
        return candidate.kind == attribute.kind &&
               (!isNumber || (candidate.number == attribute.number &&
                              candidate.children == static_cast<int>(attribute.children.size()))) &&
               (attribute.kind != AttributeKind::unit || candidate.unit == attribute.unit) &&
               (attribute.kind != AttributeKind::matrix || candidate.singleMatrix == attribute.singleMatrix);
    });
    return row == kRows.end() ? std::string() : std::string(row->name);
}

} // namespace tvxhost::scene
