// The keys of animation curves: finding, adding, moving; and the value between and outside them.
#include "animCurveKeys.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tvxhost::engine {

namespace {

struct Point
{
    double x;
    double y;
};

/// A stretch between two keys by its four Bézier points.
using Stretch = std::array<Point, 4>;

Point between(const Point& a, const Point& b, double t)
{
    return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
}

/// A handle with its direction kept and its width changed.
Point withWidth(const Point& handle, double width)
{
    return {width, handle.x == 0.0 ? 0.0 : handle.y / handle.x * width};
}

/// Shortens the handles of a stretch, both given as parts of its width, so that the curve nowhere runs
/// backwards. It does not within the unit square and within the ellipse aa + ab + bb - 2a - 2b + 1 = 0.
void keepMonotonic(double& a, double& b)
{
    const bool isFine = (a <= 1.0 && b <= 1.0) || a * a + a * b + b * b - 2.0 * a - 2.0 * b + 1.0 <= 0.0;
    if (isFine)
        return;
    constexpr double kWidest = 4.0 / 3.0;
    if (a >= kWidest) {
        a = kWidest;
        b = 1.0 / 3.0;
        return;
    }
    const double root = std::sqrt(a * (4.0 - 3.0 * a));
    b = std::clamp(b, a > 1.0 ? (2.0 - a - root) / 2.0 : 0.0, (2.0 - a + root) / 2.0);
}

/// Without weights a handle is a third of the stretch, whatever its length.
void settleHandles(Point& leaving, Point& arriving, double width, bool isWeighted)
{
    if (!isWeighted) {
        leaving = withWidth(leaving, width / 3.0);
        arriving = withWidth(arriving, width / 3.0);
        return;
    }
    double a = leaving.x / width;
    double b = arriving.x / width;
    keepMonotonic(a, b);
    if (a * width != leaving.x)
        leaving = withWidth(leaving, a * width);
    if (b * width != arriving.x)
        arriving = withWidth(arriving, b * width);
}

Point handleOf(const TangentVector& tangent)
{
    return tangent.isStepNext() ? Point{0.0, 0.0} : Point{tangent.x / 3.0, tangent.y / 3.0};
}

/// The stretch that begins at a key.
Stretch stretchFrom(const AnimCurveKeys& curve, std::size_t i)
{
    const Point from{curve.keys[i].at, curve.keys[i].value};
    const Point to{curve.keys[i + 1].at, curve.keys[i + 1].value};
    Point leaving = handleOf(curve.tangent(i, KeySide::out));
    Point arriving = handleOf(curve.tangent(i + 1, KeySide::in));
    settleHandles(leaving, arriving, to.x - from.x, curve.isWeighted);
    return {{from, {from.x + leaving.x, from.y + leaving.y}, {to.x - arriving.x, to.y - arriving.y}, to}};
}

/// De Casteljau's points: a stretch cut in two, which share the fourth point of the one and the first of the
/// other.
std::array<Stretch, 2> cut(const Stretch& whole, double t)
{
    const Point a = between(whole[0], whole[1], t);
    const Point middle = between(whole[1], whole[2], t);
    const Point f = between(whole[2], whole[3], t);
    const Point b = between(a, middle, t);
    const Point e = between(middle, f, t);
    const Point split = between(b, e, t);
    return {{{{whole[0], a, b, split}}, {{split, e, f, whole[3]}}}};
}

/// The parameter at which a stretch reaches an input.
double parameterAt(const Stretch& stretch, double x, bool isWeighted)
{
    if (!isWeighted)
        return (x - stretch[0].x) / (stretch[3].x - stretch[0].x);
    double low = 0.0;
    double high = 1.0;
    constexpr int kHalvings = 60;
    for (int i = 0; i < kHalvings; ++i) {
        const double middle = (low + high) / 2.0;
        (cut(stretch, middle)[0][3].x < x ? low : high) = middle;
    }
    return (low + high) / 2.0;
}

double valueIn(const Stretch& stretch, double x, bool isWeighted)
{
    return cut(stretch, parameterAt(stretch, x, isWeighted))[0][3].y;
}

TangentVector directionOf(const Point& from, const Point& to)
{
    return {3.0 * (to.x - from.x), 3.0 * (to.y - from.y)};
}

double valueWithin(const AnimCurveKeys& curve, double at)
{
    const std::size_t behind = curve.firstBehind(at);
    if (behind == curve.keys.size())
        return curve.keys.back().value;
    if (behind == 0)
        return curve.keys.front().value;
    const AnimKey& from = curve.keys[behind - 1];
    const TangentVector leaving = curve.tangent(behind - 1, KeySide::out);
    if (leaving.isStep() || at == from.at)
        return from.value;
    if (leaving.isStepNext())
        return curve.keys[behind].value;
    return valueIn(stretchFrom(curve, behind - 1), at, curve.isWeighted);
}

/// How often all keys are passed on the way to a place outside them, negative before, and where among them
/// that is: 0 at the first, 1 at the last.
struct Round
{
    double number;
    double part;
};

Round roundOf(double at, double first, double width)
{
    const double rounds = (at - first) / width;
    // A boundary belongs to the round that is nearer to the keys before them, and to the next one behind.
    const double number = rounds < 0.0 ? std::ceil(rounds) - 1.0 : std::floor(rounds);
    return {number, rounds - number};
}

double valueOutside(const AnimCurveKeys& curve, double at, CurveInfinity infinity)
{
    const AnimKey& first = curve.keys.front();
    const AnimKey& last = curve.keys.back();
    const bool isBefore = at < first.at;
    const AnimKey& outer = isBefore ? first : last;
    const double width = last.at - first.at;
    if (infinity == CurveInfinity::constant || width == 0.0)
        return outer.value;
    if (infinity == CurveInfinity::linear) {
        const std::size_t index = isBefore ? 0 : curve.keys.size() - 1;
        const TangentVector tangent = curve.tangent(index, isBefore ? KeySide::in : KeySide::out);
        return outer.value + (at - outer.at) * tangent.slope();
    }
    const Round round = roundOf(at, first.at, width);
    const bool isBackwards = infinity == CurveInfinity::oscillate && std::fmod(round.number, 2.0) != 0.0;
    const double part = isBackwards ? 1.0 - round.part : round.part;
    const double value = valueWithin(curve, first.at + part * width);
    const double rise = infinity == CurveInfinity::cycleRelative ? last.value - first.value : 0.0;
    return value + round.number * rise;
}

} // namespace

double AnimCurveKeys::valueAt(double at) const
{
    if (keys.empty())
        return 0.0;
    if (at < keys.front().at)
        return valueOutside(*this, at, before);
    if (at > keys.back().at)
        return valueOutside(*this, at, after);
    return valueWithin(*this, at);
}

bool AnimCurveKeys::isStatic() const
{
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (keys[i].value != keys.front().value)
            return false;
        for (const KeySide side : {KeySide::in, KeySide::out})
            if (tangent(i, side).slope() != 0.0)
                return false;
    }
    return true;
}

std::size_t AnimCurveKeys::firstBehind(double at) const
{
    const auto behind = std::upper_bound(keys.begin(), keys.end(), at,
                                         [](double place, const AnimKey& key) { return place < key.at; });
    return static_cast<std::size_t>(behind - keys.begin());
}

std::optional<std::size_t> AnimCurveKeys::find(double at) const
{
    if (keys.empty())
        return std::nullopt;
    const std::size_t index = closest(at);
    if (std::abs(keys[index].at - at) <= kSameInput)
        return index;
    return std::nullopt;
}

std::size_t AnimCurveKeys::closest(double at) const
{
    const std::size_t behind = firstBehind(at);
    if (behind == 0)
        return 0;
    if (behind == keys.size())
        return behind - 1;
    return keys[behind].at - at < at - keys[behind - 1].at ? behind : behind - 1;
}

std::size_t AnimCurveKeys::put(const AnimKey& key)
{
    if (const auto there = find(key.at)) {
        keys[*there] = key;
        return *there;
    }
    const std::size_t index = firstBehind(key.at);
    keys.insert(keys.begin() + static_cast<std::ptrdiff_t>(index), key);
    return index;
}

std::size_t AnimCurveKeys::insertOnCurve(double at)
{
    if (const auto there = find(at))
        return *there;
    AnimKey key;
    key.at = at;
    key.value = valueAt(at);
    const std::size_t behind = firstBehind(at);
    if (behind == 0 || behind == keys.size())
        return put(key);
    AnimKey& from = keys[behind - 1];
    AnimKey& to = keys[behind];
    const Stretch stretch = stretchFrom(*this, behind - 1);
    // The tangents must not follow the keys, which are others now.
    for (const std::size_t neighbour : {behind - 1, behind})
        for (const KeySide side : {KeySide::in, KeySide::out})
            if (!tangent(neighbour, side).isStep() && !tangent(neighbour, side).isStepNext())
                setKind(neighbour, side, TangentKind::fixed);
    if (from.out.kind != TangentKind::fixed) {
        key.out.kind = from.out.kind;
        return put(key);
    }
    const auto [first, second] = cut(stretch, parameterAt(stretch, at, isWeighted));
    from.out = {TangentKind::fixed, directionOf(first[0], first[1])};
    key.in = {TangentKind::fixed, directionOf(first[2], first[3])};
    key.out = {TangentKind::fixed, directionOf(second[0], second[1])};
    to.in = {TangentKind::fixed, directionOf(second[2], second[3])};
    return put(key);
}

std::optional<std::size_t> AnimCurveKeys::move(std::size_t index, double at)
{
    const auto there = find(at);
    if (there && *there != index)
        return std::nullopt;
    AnimKey key = keys[index];
    key.at = at;
    keys.erase(keys.begin() + static_cast<std::ptrdiff_t>(index));
    return put(key);
}

} // namespace tvxhost::engine
