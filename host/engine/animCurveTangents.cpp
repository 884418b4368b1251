// The tangents of animation curves: what each kind makes of the keys around it.
#include "animCurveKeys.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tvxhost::engine {

namespace {

/// Values nearer than this make a clamped tangent flat.
constexpr double kClampedReach = 0.05;
/// The steepest slope of a curve without weights: that of an angle just below 90 degrees.
constexpr double kSteepest = 5729577.9485111479;
constexpr double kLeastX = 0.0001;

/// One side of a key, seen from the key: the step to the neighbour there and to the one opposite. Steps go
/// away from the key, so one of the two runs backwards.
class Surroundings
{
public:
    Surroundings(const std::vector<AnimKey>& keys, std::size_t index, KeySide side)
        : m_key(keys[index]), m_sign(side == KeySide::out ? 1.0 : -1.0)
    {
        const AnimKey* previous = index > 0 ? &keys[index - 1] : nullptr;
        const AnimKey* next = index + 1 < keys.size() ? &keys[index + 1] : nullptr;
        m_near = side == KeySide::out ? next : previous;
        m_far = side == KeySide::out ? previous : next;
    }

    bool hasNear() const { return m_near != nullptr; }
    bool isBetween() const { return m_near && m_far; }

    /// Widths are never negative; values go from the key to the neighbour.
    double nearWidth() const { return std::abs(m_near->at - m_key.at); }
    double farWidth() const { return std::abs(m_far->at - m_key.at); }
    double nearRise() const { return m_near->value - m_key.value; }
    double farRise() const { return m_far->value - m_key.value; }

    /// A direction given as a step towards the neighbour, in the curve's direction.
    TangentVector towards(double width, double rise) const { return {width, m_sign * rise}; }

    TangentVector linear() const { return m_near ? towards(nearWidth(), nearRise()) : TangentVector{1, 0}; }

    TangentVector flat() const
    {
        if (m_near)
            return {nearWidth(), 0.0};
        return {m_far ? farWidth() : 1.0, 0.0};
    }

    TangentVector spline() const
    {
        if (isBetween())
            return towards(nearWidth(), splineRise());
        if (m_near)
            return linear();
        return m_far ? TangentVector{farWidth(), -m_sign * farRise()} : TangentVector{1, 0};
    }

    TangentVector clamped() const
    {
        if (!m_near)
            return spline();
        const double near = std::abs(nearRise());
        const double far = m_far ? std::abs(farRise()) : near;
        return near <= kClampedReach || far <= kClampedReach ? flat() : spline();
    }

    /// Flat at the ends and at extremes; else the spline as long as its Bézier point lies between the key and
    /// what the neighbours allow.
    TangentVector withinNeighbours(bool isPlateau) const
    {
        if (!isBetween() || nearRise() * farRise() >= 0.0)
            return flat();
        const double bound = allowedRise();
        const double bezier = splineRise() / 3.0;
        const bool passes = bound >= 0.0 ? bezier > bound : bezier < bound;
        if (!passes)
            return spline();
        return isPlateau ? flat() : towards(nearWidth(), 3.0 * bound);
    }

private:
    /// What a line between both neighbours would rise on this side.
    double splineRise() const { return (nearRise() - farRise()) * nearWidth() / (nearWidth() + farWidth()); }

    /// The rise to the neighbour, or less when the other side is gentler.
    double allowedRise() const
    {
        const bool isFarGentler = -farRise() / nearRise() < farWidth() / nearWidth();
        return isFarGentler ? -farRise() * nearWidth() / farWidth() : nearRise();
    }

    const AnimKey& m_key;
    double m_sign;
    const AnimKey* m_near = nullptr;
    const AnimKey* m_far = nullptr;
};

TangentVector ofKind(const Surroundings& around, const KeyTangent& tangent)
{
    switch (tangent.kind) {
    case TangentKind::fixed:
        return tangent.direction;
    case TangentKind::linear:
    case TangentKind::slow:
    case TangentKind::fast:
        return around.linear();
    case TangentKind::flat:
        return around.flat();
    case TangentKind::step:
        return {0.0, 0.0};
    case TangentKind::stepNext:
        return TangentVector::stepNext();
    case TangentKind::spline:
        return around.spline();
    case TangentKind::clamped:
        return around.clamped();
    case TangentKind::plateau:
        return around.withinNeighbours(true);
    case TangentKind::automatic:
        break;
    }
    return around.withinNeighbours(false);
}

TangentVector withoutWeight(const TangentVector& tangent)
{
    const double length = std::hypot(tangent.x, tangent.y);
    if (length == 0.0)
        return tangent;
    const TangentVector unit{std::max(0.0, tangent.x) / length, tangent.y / length};
    if (unit.x == 0.0)
        return {kLeastX, std::copysign(kLeastX * kSteepest, unit.y)};
    return unit;
}

/// A direction as long as the segment beside it asks for: what a tangent without a weight has.
TangentVector weighted(const TangentVector& tangent, double width)
{
    return tangent.isStep() || tangent.isStepNext() ? tangent : TangentVector{width, tangent.slope() * width};
}

} // namespace

double TangentVector::slope() const
{
    return x == 0.0 || isStepNext() ? 0.0 : y / x;
}

bool TangentVector::isStepNext() const
{
    return x == stepNext().x && y == stepNext().y;
}

TangentVector TangentVector::stepNext()
{
    constexpr double kLargest = static_cast<double>(std::numeric_limits<float>::max());
    return {kLargest, kLargest};
}

TangentVector AnimCurveKeys::tangent(std::size_t index, KeySide side) const
{
    const TangentVector tangent = ofKind(Surroundings(keys, index, side), keys[index].side(side));
    if (tangent.isStepNext())
        return tangent;
    return isWeighted ? TangentVector{std::max(0.0, tangent.x), tangent.y} : withoutWeight(tangent);
}

void AnimCurveKeys::setWeighted(bool weights)
{
    if (weights == isWeighted)
        return;
    for (std::size_t i = 0; i < keys.size(); ++i)
        for (const KeySide side : {KeySide::in, KeySide::out}) {
            TangentVector& direction = keys[i].side(side).direction;
            direction = weights ? weighted(direction, Surroundings(keys, i, side).flat().x)
                                : withoutWeight(direction);
        }
    isWeighted = weights;
}

void AnimCurveKeys::setTangent(std::size_t index, KeySide side, const TangentVector& direction)
{
    AnimKey& key = keys[index];
    const KeySide other = side == KeySide::in ? KeySide::out : KeySide::in;
    const TangentVector opposite = tangent(index, other);
    key.side(side) = {TangentKind::fixed, isWeighted ? direction : withoutWeight(direction)};
    const TangentKind otherKind = key.side(other).kind;
    if (!key.tangentsLocked || otherKind == TangentKind::step || otherKind == TangentKind::stepNext)
        return;
    key.side(other) = {TangentKind::fixed,
                       isWeighted ? weighted(direction, opposite.x) : withoutWeight(direction)};
}

void AnimCurveKeys::setKind(std::size_t index, KeySide side, TangentKind kind)
{
    const TangentVector direction = tangent(index, side);
    keys[index].side(side) = {kind, direction};
}

} // namespace tvxhost::engine
