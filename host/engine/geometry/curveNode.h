// The curve of a nurbsCurve node: what its history yields, else what the node holds; and the nodes that
// measure curves.
#pragma once

#include "../nodeType.h"
#include "../plug.h"
#include "nurbsCurve.h"

#include <optional>

namespace tvxhost::engine {

/// The curve that a plug holds or is given; none when that is no curve, or no valid one.
std::optional<NurbsCurve> curveIn(const Plug& plug);
/// Whether something makes the curve that the node shows.
bool hasCurveHistory(Node& node);
/// None for a node without a curve, or that is no nurbsCurve.
std::optional<NurbsCurve> curveOf(Node& node);
/// Gives the node another curve. notWritable where history makes it, noData for what is no valid curve.
Outcome storeCurve(Node& node, const NurbsCurve& curve);

/// Gives nurbsCurve, curveInfo and pointOnCurveInfo their outputs.
void addCurveComputes(TypeTable& types);

} // namespace tvxhost::engine
