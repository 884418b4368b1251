// Animation curves as callers of the API mean them: types, units and recorded changes.
#pragma once

#include "functionSet.h"
#include "unitValues.h"

#include "engine/animCurve.h"

#include <maya/MAnimCurveChange.h>
#include <maya/MFnAnimCurve.h>

#include <optional>
#include <vector>

namespace tvxhost::api {

/// What a MAnimCurveChange recorded, oldest first.
struct CurveChanges
{
    struct Edit
    {
        engine::Ref<engine::Node> curve;
        engine::AnimCurveKeys before;
        engine::AnimCurveKeys after;
    };
    std::vector<Edit> edits;
    bool isInteractive = false;

    static CurveChanges& of(MAnimCurveChange& change) { return *change.changes; }
};

/// The kinds of tangents that kTangentGlobal stands for, in this session.
struct GlobalTangents
{
    MFnAnimCurve::TangentType in = MFnAnimCurve::kTangentAuto;
    MFnAnimCurve::TangentType out = MFnAnimCurve::kTangentAuto;
};
GlobalTangents& globalTangents();

/// The kinds of tangents of the API and of the engine; empty for those that are none of the host's.
/// kTangentGlobal is none by itself.
std::optional<engine::TangentKind> tangentKind(MFnAnimCurve::TangentType type);
MFnAnimCurve::TangentType tangentType(engine::TangentKind kind);

/// "animCurveTA" and so on; empty for kAnimCurveUnknown.
std::string curveTypeName(MFnAnimCurve::AnimCurveType type);
MFnAnimCurve::AnimCurveType curveTypeNamed(const std::string& name);

/// Internal units of one unit in which callers of the API give a value: those of UI for times, else 1.
double valuePerCaller(const engine::Node& curve);

/// Whether the values of a curve are times.
bool yieldsTime(const engine::Node& curve);

/// The living curve that a set is attached to; null when there is none.
engine::Node* curveOf(const MFnBase& set);

/// The status of a member that the type of a curve has no use for.
inline MStatus wrongSort()
{
    return failure(MS::kFailure, StatusText::objectIsIncompatible);
}

} // namespace tvxhost::api
