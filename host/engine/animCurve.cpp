// Animation curves: see animCurve.h. Reading and writing their plugs is in animCurveStore.cpp.
#include "animCurve.h"

#include "cell.h"
#include "computeSupport.h"
#include "dirtySpread.h"
#include "number.h"
#include "scene.h"

#include <algorithm>
#include <cctype>
#include <cmath>

namespace tvxhost::engine {

namespace {

/// A curve over time that stands at the scene's time, since nothing feeds its input.
bool followsTheScene(Node& curve)
{
    return isTimed(curve) && !isFedAnywhere(plugOf(curve, "input"));
}

bool hasCurves(Scene& scene, const NodeType& base)
{
    const std::vector<NodeType*> types = scene.types().all();
    return std::any_of(types.begin(), types.end(),
                       [&](const NodeType* type) { return type->liveNodes > 0 && type->isA(base); });
}

double perUi(const Node& curve, const char* plug)
{
    const Units& units = curve.scene().units();
    switch (curve.findAttribute(plug)->unit) {
    case UnitKind::angle:
        return radiansPer(units.angle);
    case UnitKind::distance:
        return centimetresPer(units.linear);
    case UnitKind::time:
        return secondsPer(units.time);
    case UnitKind::none:
        break;
    }
    return 1.0;
}

} // namespace

bool isAnimCurve(const Node& node)
{
    return node.type().isA("animCurve");
}

bool isTimed(const Node& curve)
{
    return curve.findAttribute("input")->unit == UnitKind::time;
}

double valueOfCurve(Node& curve)
{
    const double at = followsTheScene(curve) ? curve.scene().time() : numberOf(curve, "input");
    return readCurve(curve).valueAt(at);
}

Node* curveFeeding(const Plug& plug)
{
    const Plug source = sourceOf(plug);
    return !source.isNull() && isAnimCurve(*source.node()) ? source.node() : nullptr;
}

std::vector<Plug> fedBy(Node& curve)
{
    return destinationsOf(plugOf(curve, "output"));
}

std::string curveTypeFor(const Attribute& attribute, bool timed)
{
    if (!isNumberLeaf(attribute))
        return {};
    constexpr const char* kOutputs[] = {"U", "A", "L", "T"};
    static_assert(static_cast<int>(UnitKind::none) == 0 && static_cast<int>(UnitKind::angle) == 1 &&
                  static_cast<int>(UnitKind::distance) == 2 && static_cast<int>(UnitKind::time) == 3);
    return std::string("animCurve") + (timed ? "T" : "U") + kOutputs[static_cast<int>(attribute.unit)];
}

Expected<Node*> makeCurveFor(const Plug& plug, bool timed)
{
    if (!plug.isValid() || plug.isArray())
        return {Reason::wrongKind, "no curve can feed '" + plug.name() + "'"};
    return makeCurveFor(plug, curveTypeFor(*plug.attribute(), timed));
}

Expected<Node*> makeCurveFor(const Plug& plug, const std::string& type)
{
    if (type.empty() || !isNumberLeaf(*plug.attribute()))
        return {Reason::wrongKind, "no curve can feed '" + plug.name() + "'"};
    Scene& scene = plug.node()->scene();
    if (isLocked(plug) || isFedAnywhere(plug))
        return {Reason::lockedOrConnected,
                "The attribute '" + plug.name() + "' is locked or connected and cannot be modified."};
    const Expected<Node*> made = scene.createNode(type, curveNameFor(plug));
    if (!made)
        return made;
    if (Outcome connected = scene.connect(plugOf(*made.value, "output"), plug); !connected) {
        static_cast<void>(scene.deleteNode(*made.value));
        return connected;
    }
    return made;
}

// The node without its namespace, and the plug with what no name may hold replaced.
std::string curveNameFor(const Plug& plug)
{
    const std::string& node = plug.node()->name();
    PlugNameStyle style;
    style.withNode = false;
    style.useAlias = true;
    std::string name = node.substr(node.rfind(':') + 1) + '_' + plug.name(style);
    for (char& letter : name)
        if (!std::isalnum(static_cast<unsigned char>(letter)))
            letter = '_';
    return name;
}

double inputPerUi(const Node& curve)
{
    return perUi(curve, "input");
}

double valuePerUi(const Node& curve)
{
    return perUi(curve, "output");
}

TangentHandle handleOf(const Node& curve, const AnimCurveKeys& keys, std::size_t index, KeySide side)
{
    const TangentVector tangent = keys.tangent(index, side);
    const double x = tangent.x / inputPerUi(curve);
    const double y = tangent.y / valuePerUi(curve);
    return {std::atan2(y, x), keys.isWeighted ? std::hypot(x, y) / 3.0 : 1.0};
}

TangentVector directionOf(const Node& curve, const TangentHandle& handle, bool isWeighted)
{
    const double length = isWeighted ? 3.0 * handle.weight : 1.0;
    return {length * std::cos(handle.angle) * inputPerUi(curve),
            length * std::sin(handle.angle) * valuePerUi(curve)};
}

void outdateTimedCurves(Scene& scene)
{
    const NodeType& base = *scene.types().find("animCurve");
    if (!hasCurves(scene, base))
        return;
    DirtySpread spread;
    for (Node* node : scene.nodes())
        if (node->type().isA(base) && followsTheScene(*node))
            if (Cell* output = node->cells().find(*node->findAttribute("output")))
                spread.outdated(*output);
    spread.run();
}

} // namespace tvxhost::engine
