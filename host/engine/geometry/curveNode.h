// The curve of a nurbsCurve node: what its history yields, else what the node holds.
#pragma once

#include "../plug.h"
#include "nurbsCurve.h"

#include <optional>

namespace tvxhost::engine {

/// Whether something makes the curve that the node shows.
bool hasCurveHistory(Node& node);
/// None for a node without a curve, or that is no nurbsCurve.
std::optional<NurbsCurve> curveOf(Node& node);
/// Gives the node another curve. notWritable where history makes it, noData for what is no valid curve.
Outcome storeCurve(Node& node, const NurbsCurve& curve);

} // namespace tvxhost::engine
