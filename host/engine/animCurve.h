// Animation curves: the nodes that hold keys, and what they feed.
#pragma once

#include "animCurveKeys.h"
#include "node.h"

#include <string>

namespace tvxhost::engine {

/// A node of one of the eight types animCurveTA … animCurveUU.
bool isAnimCurve(const Node& node);
/// A curve over time, not over a plain number.
bool isTimed(const Node& curve);

/// The value of an animCurve node where its input stands; a curve over time whose input is not connected
/// stands at the scene's time. 0 without keys.
double valueOfCurve(Node& curve);

/// What the plugs of an animCurve node say, in the order of the keys.
AnimCurveKeys readCurve(Node& curve);
/// Makes the plugs say this, changing only those that differ. The node's tangent type becomes the most
/// frequent one, and the elements that a file does not need go. Refused as plugs refuse.
Outcome writeCurve(Node& curve, const AnimCurveKeys& keys);

/// The animCurve node that feeds a plug directly; null when there is none.
Node* curveFeeding(const Plug& plug);
/// The plugs that a curve feeds directly.
std::vector<Plug> fedBy(Node& curve);

/// The type of curve whose output fits an attribute without a conversion; empty for what is no number.
std::string curveTypeFor(const Attribute& attribute, bool timed);
/// Makes a curve without keys that feeds the plug, named as the plug ("pCube1_translateX"). Fails when the
/// plug is no number or refuses the connection.
Expected<Node*> makeCurveFor(const Plug& plug, bool timed = true);
/// The same of a type of the caller's choice.
Expected<Node*> makeCurveFor(const Plug& plug, const std::string& type);

/// The name that a curve for a plug gets, unless it is taken ("pCube1_translateX").
std::string curveNameFor(const Plug& plug);

/// A tangent as people see it: the angle of its handle in UI units, in radians, and the handle's length, 1 on
/// curves without weights.
struct TangentHandle
{
    double angle = 0.0;
    double weight = 1.0;
};
TangentHandle handleOf(const Node& curve, const AnimCurveKeys& keys, std::size_t index, KeySide side);
/// The direction that a handle stands for.
TangentVector directionOf(const Node& curve, const TangentHandle& handle, bool isWeighted);
/// Internal units of one UI unit of a curve's input and value.
double inputPerUi(const Node& curve);
double valuePerUi(const Node& curve);

/// The time has changed: curves that stand at it without a connection are out of date.
void outdateTimedCurves(Scene& scene);

} // namespace tvxhost::engine
