// Animation curves as callers of the API mean them; see support/curveSet.h.
#include "support/curveSet.h"

#include "engine/scene.h"

#include <string_view>

namespace tvxhost::api {

namespace {

using engine::TangentKind;

struct KindRow
{
    MFnAnimCurve::TangentType type;
    TangentKind kind;
};

constexpr KindRow kKinds[] = {
    {MFnAnimCurve::kTangentFixed, TangentKind::fixed},
    {MFnAnimCurve::kTangentLinear, TangentKind::linear},
    {MFnAnimCurve::kTangentFlat, TangentKind::flat},
    {MFnAnimCurve::kTangentSmooth, TangentKind::spline},
    {MFnAnimCurve::kTangentStep, TangentKind::step},
    {MFnAnimCurve::kTangentSlow, TangentKind::slow},
    {MFnAnimCurve::kTangentFast, TangentKind::fast},
    {MFnAnimCurve::kTangentClamped, TangentKind::clamped},
    {MFnAnimCurve::kTangentPlateau, TangentKind::plateau},
    {MFnAnimCurve::kTangentStepNext, TangentKind::stepNext},
    {MFnAnimCurve::kTangentAuto, TangentKind::automatic},
};

/// In the order of AnimCurveType.
constexpr std::string_view kTypes[] = {"animCurveTA", "animCurveTL", "animCurveTT", "animCurveTU",
                                       "animCurveUA", "animCurveUL", "animCurveUT", "animCurveUU"};

engine::UnitKind unitOf(const engine::Node& curve, const char* plug)
{
    return curve.findAttribute(plug)->unit;
}

} // namespace

GlobalTangents& globalTangents()
{
    static GlobalTangents tangents;
    return tangents;
}

std::optional<TangentKind> tangentKind(MFnAnimCurve::TangentType type)
{
    for (const KindRow& row : kKinds)
        if (row.type == type)
            return row.kind;
    return std::nullopt;
}

MFnAnimCurve::TangentType tangentType(TangentKind kind)
{
    for (const KindRow& row : kKinds)
        if (row.kind == kind)
            return row.type;
    return MFnAnimCurve::kTangentAuto;
}

std::string curveTypeName(MFnAnimCurve::AnimCurveType type)
{
    const bool exists = type >= MFnAnimCurve::kAnimCurveTA && type < MFnAnimCurve::kAnimCurveUnknown;
    return exists ? std::string(kTypes[type]) : std::string();
}

MFnAnimCurve::AnimCurveType curveTypeNamed(const std::string& name)
{
    int type = MFnAnimCurve::kAnimCurveTA;
    while (type < MFnAnimCurve::kAnimCurveUnknown && kTypes[type] != name)
        ++type;
    return static_cast<MFnAnimCurve::AnimCurveType>(type);
}

double valuePerCaller(const engine::Node& curve)
{
    return yieldsTime(curve) ? engine::valuePerUi(curve) : 1.0;
}

bool yieldsTime(const engine::Node& curve)
{
    return unitOf(curve, "output") == engine::UnitKind::time;
}

engine::Node* curveOf(const MFnBase& set)
{
    engine::Node* node = nodeOf(set);
    return node && engine::isAnimCurve(*node) ? node : nullptr;
}

} // namespace tvxhost::api
