// AnimCurveKeys: the keys of an animation curve with their tangents, and the value of the curve anywhere.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace tvxhost::engine {

/// How a curve enters or leaves a key. The numbers are those of scene files (tangentType, keyTanInType …).
enum class TangentKind
{
    fixed = 1, ///< a direction of its own; all others follow from the keys around
    linear = 2,
    flat = 3,
    step = 5, ///< the key's value holds up to the next key
    slow = 6,
    fast = 7,
    spline = 9,
    clamped = 10,  ///< spline, but flat beside a key of nearly the same value
    plateau = 16,  ///< spline, but flat where the curve would pass the neighbours' values
    stepNext = 17, ///< the next key's value holds from here
    automatic = 18 ///< spline, but no steeper than the neighbours' values allow
};

/// What a curve does outside its keys. The numbers are those of scene files and of the API.
enum class CurveInfinity
{
    constant = 0,
    linear = 1,        ///< goes straight on along the outer tangent
    cycle = 3,         ///< repeats the keys
    cycleRelative = 4, ///< repeats them, each time from where the last one ended
    oscillate = 5      ///< repeats them, every other time backwards
};

/// The two sides of a key.
enum class KeySide
{
    in,
    out
};

/// The direction of a tangent, input (seconds, or plain) against value (radians, centimetres, seconds,
/// plain). On a weighted curve three times the way to the Bézier point, on others of length 1. (0, 0) is a
/// step, the largest floats are a step to the next key.
struct TangentVector
{
    double x = 1.0;
    double y = 0.0;

    /// 0 for a step.
    double slope() const;
    bool isStep() const { return x == 0.0 && y == 0.0; }
    bool isStepNext() const;
    static TangentVector stepNext();
};

struct KeyTangent
{
    TangentKind kind = TangentKind::automatic;
    TangentVector direction; ///< of a fixed one
};

struct AnimKey
{
    double at = 0.0;
    double value = 0.0;
    KeyTangent in;
    KeyTangent out;
    bool tangentsLocked = true; ///< both sides turn together
    bool weightsLocked = true;
    bool isBreakdown = false;
    bool hasSpecialTick = false; ///< drawn in another colour in the time slider

    KeyTangent& side(KeySide which) { return which == KeySide::in ? in : out; }
    const KeyTangent& side(KeySide which) const { return which == KeySide::in ? in : out; }
};

/// The keys of one curve in internal units, ascending and no two at the same place.
class AnimCurveKeys
{
public:
    /// Inputs nearer than this are the same.
    static constexpr double kSameInput = 1e-7;

    std::vector<AnimKey> keys;
    bool isWeighted = false;
    CurveInfinity before = CurveInfinity::constant;
    CurveInfinity after = CurveInfinity::constant;

    /// 0 without keys.
    double valueAt(double at) const;
    /// All keys have one value and no tangent leaves it.
    bool isStatic() const;

    /// The direction in which the curve enters or leaves a key, whatever its kind.
    TangentVector tangent(std::size_t index, KeySide side) const;

    /// The key at a place.
    std::optional<std::size_t> find(double at) const;
    /// The key nearest to a place; there must be one.
    std::size_t closest(double at) const;
    /// The first key behind a place; the number of keys when there is none.
    std::size_t firstBehind(double at) const;

    /// Adds a key, in place of one that is there already. Returns its index.
    std::size_t put(const AnimKey& key);
    /// Adds a key on the curve that leaves the shape as it is, unless there is one. Returns its index.
    /// Outside the keys it is as an ordinary key with the curve's value.
    std::size_t insertOnCurve(double at);
    /// Moves a key to another place; false when another key is there already. Returns the new index too.
    std::optional<std::size_t> move(std::size_t index, double at);

    /// Changes the sort of the tangents; fixed ones keep their slopes.
    void setWeighted(bool weighted);
    /// Makes a side fixed with a direction. With locked tangents the other side turns along, and becomes
    /// fixed as well.
    void setTangent(std::size_t index, KeySide side, const TangentVector& direction);
    /// Gives a side a kind; becoming fixed keeps the direction it has.
    void setKind(std::size_t index, KeySide side, TangentKind kind);
};

} // namespace tvxhost::engine
