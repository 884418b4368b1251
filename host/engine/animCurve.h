// Animation curves: the value between their keys.
#pragma once

#include "node.h"

namespace tvxhost::engine {

/// The value of an animCurve node where its input stands; a curve over time whose input is not connected
/// stands at the scene's time. Steps, linear and flat tangents are exact, fixed ones follow their angles; the
/// slopes of the smooth kinds (spline, clamped, plateau, auto) are those of a spline through the neighbours,
/// flat at extremes for all but spline. Outside the keys the first or last value holds. 0 without keys.
double valueOfCurve(Node& curve);

/// The time has changed: curves that stand at it without a connection are out of date.
void outdateTimedCurves(Scene& scene);

} // namespace tvxhost::engine
