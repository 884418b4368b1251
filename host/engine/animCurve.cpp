// Animation curves: see animCurve.h.
#include "animCurve.h"

#include "cell.h"
#include "dirtySpread.h"
#include "scene.h"
#include "values.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

/// The numbers of the enumerations tangentType, keyTanInType and keyTanOutType.
enum Tangent
{
    kGlobal = 0,
    kFixed = 1,
    kLinear = 2,
    kFlat = 3,
    kStep = 5,
    kSpline = 9,
    kStepNext = 17
};

struct Key
{
    int index;
    double at;
    double value;
};

class Curve
{
public:
    explicit Curve(Node& node) : m_node(node)
    {
        const Plug keys = plug("keyTimeValue");
        for (const int i : existingElements(keys)) {
            const Plug key = keys.element(i);
            m_keys.push_back({i, storedNumber(key.child(0)).asReal(), storedNumber(key.child(1)).asReal()});
        }
        std::stable_sort(m_keys.begin(), m_keys.end(),
                         [](const Key& a, const Key& b) { return a.at < b.at; });
    }

    double valueAt(double x) const
    {
        if (m_keys.empty())
            return 0.0;
        if (x <= m_keys.front().at)
            return m_keys.front().value;
        if (x >= m_keys.back().at)
            return m_keys.back().value;
        const auto after = std::upper_bound(m_keys.begin(), m_keys.end(), x,
                                            [](double at, const Key& key) { return at < key.at; });
        return between(static_cast<std::size_t>(after - m_keys.begin()) - 1, x);
    }

private:
    Plug plug(const char* name) const { return Plug(m_node, *m_node.findAttribute(name)); }

    double element(const char* name, int index) const
    {
        return storedNumber(plug(name).element(index)).asReal();
    }

    int tangentOf(const Key& key, bool isOut) const
    {
        const int own = static_cast<int>(element(isOut ? "keyTanOutType" : "keyTanInType", key.index));
        return own != kGlobal ? own : static_cast<int>(storedNumber(plug("tangentType")).asWhole());
    }

    double between(std::size_t i, double x) const
    {
        const Key& from = m_keys[i];
        const Key& to = m_keys[i + 1];
        const int out = tangentOf(from, true);
        if (out == kStep)
            return from.value;
        if (out == kStepNext)
            return to.value;
        // Hermite's form: the slopes times the width of the segment.
        const double width = to.at - from.at;
        const double t = (x - from.at) / width;
        const double leaving = slope(i, true) * width;
        const double arriving = slope(i + 1, false) * width;
        const double t2 = t * t;
        const double t3 = t2 * t;
        return (2 * t3 - 3 * t2 + 1) * from.value + (t3 - 2 * t2 + t) * leaving +
               (3 * t2 - 2 * t3) * to.value + (t3 - t2) * arriving;
    }

    double slopeBetween(std::size_t i, std::size_t j) const
    {
        return (m_keys[j].value - m_keys[i].value) / (m_keys[j].at - m_keys[i].at);
    }

    double slope(std::size_t i, bool isOut) const
    {
        const int tangent = tangentOf(m_keys[i], isOut);
        switch (tangent) {
        case kFlat:
            return 0.0;
        case kLinear:
        case kStep:
        case kStepNext:
            return isOut ? slopeBetween(i, i + 1) : slopeBetween(i - 1, i);
        case kFixed:
            return fixedSlope(m_keys[i], isOut);
        default:
            return smoothSlope(i, tangent == kSpline);
        }
    }

    double fixedSlope(const Key& key, bool isOut) const
    {
        const double x = element(isOut ? "keyTanOutX" : "keyTanInX", key.index);
        const double y = element(isOut ? "keyTanOutY" : "keyTanInY", key.index);
        return x != 0.0 ? y / x : 0.0;
    }

    double smoothSlope(std::size_t i, bool overshoots) const
    {
        const bool isFirst = i == 0;
        const bool isLast = i + 1 == m_keys.size();
        if (isFirst || isLast)
            return overshoots ? slopeBetween(isFirst ? i : i - 1, isFirst ? i + 1 : i) : 0.0;
        const double before = slopeBetween(i - 1, i);
        const double after = slopeBetween(i, i + 1);
        return !overshoots && before * after <= 0.0 ? 0.0 : slopeBetween(i - 1, i + 1);
    }

    Node& m_node;
    std::vector<Key> m_keys;
};

} // namespace

namespace {

/// A curve over time that stands at the scene's time, since nothing feeds its input.
bool followsTheScene(Node& curve)
{
    const Plug input(curve, *curve.findAttribute("input"));
    return input.attribute()->unit == UnitKind::time && !isFedAnywhere(input);
}

bool hasCurves(Scene& scene, const NodeType& base)
{
    const std::vector<NodeType*> types = scene.types().all();
    return std::any_of(types.begin(), types.end(),
                       [&](const NodeType* type) { return type->liveNodes > 0 && type->isA(base); });
}

} // namespace

double valueOfCurve(Node& curve)
{
    if (followsTheScene(curve))
        return Curve(curve).valueAt(curve.scene().time());
    const Plug input(curve, *curve.findAttribute("input"));
    return Curve(curve).valueAt(readNumber(input).value.asReal());
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
