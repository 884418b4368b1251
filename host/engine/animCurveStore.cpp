// Animation curves: their keys from and to the plugs of a node, as scene files hold them.
#include "animCurve.h"

#include "computeSupport.h"
#include "scene.h"
#include "values.h"

#include <algorithm>
#include <map>

namespace tvxhost::engine {

namespace {

/// What the plug of an array of numbers holds for each key.
class Column
{
public:
    Column(Node& node, const char* name) : m_array(node, *node.findAttribute(name)) {}

    double operator[](int index) const { return storedNumber(m_array.element(index)).asReal(); }

    /// Holds values for the keys from `first` on, and nothing for those before.
    Outcome write(const std::vector<double>& values, std::size_t first) const
    {
        const std::vector<int> existing = existingElements(m_array);
        for (const int index : existing)
            if (static_cast<std::size_t>(index) < first || static_cast<std::size_t>(index) >= values.size())
                if (Outcome removed = removeElement(m_array, index); !removed)
                    return removed;
        for (std::size_t i = first; i < values.size(); ++i) {
            const int index = static_cast<int>(i);
            const bool isThere = std::binary_search(existing.begin(), existing.end(), index);
            if (isThere && (*this)[index] == values[i])
                continue;
            if (Outcome written = writeNumber(m_array.element(index), Number(values[i]), Limits::ignore);
                !written)
                return written;
        }
        return {};
    }

private:
    Plug m_array;
};

int wholeNumber(Node& node, const char* name)
{
    return static_cast<int>(storedNumber(plugOf(node, name)).asWhole());
}

/// The kind that an element says, or else the node.
TangentKind kindFrom(double own, int common)
{
    const int kind = own != 0.0 ? static_cast<int>(own) : common;
    return kind != 0 ? static_cast<TangentKind>(kind) : TangentKind::automatic;
}

/// The plugs of one side of the keys.
struct SidePlugs
{
    KeySide side;
    const char* kind;
    const char* x;
    const char* y;
};

constexpr SidePlugs kSides[] = {{KeySide::in, "keyTanInType", "keyTanInX", "keyTanInY"},
                                {KeySide::out, "keyTanOutType", "keyTanOutX", "keyTanOutY"}};

struct FlagColumn
{
    const char* name;
    bool AnimKey::*flag;
    bool otherwise;
};

constexpr FlagColumn kFlags[] = {{"keyBreakdown", &AnimKey::isBreakdown, false},
                                 {"keyTickDrawSpecial", &AnimKey::hasSpecialTick, false},
                                 {"keyTanLocked", &AnimKey::tangentsLocked, true},
                                 {"keyWeightLocked", &AnimKey::weightsLocked, true}};

/// The kind that most sides have; of several the one that gets there first.
TangentKind mostFrequentKind(const AnimCurveKeys& curve, TangentKind otherwise)
{
    std::map<TangentKind, int> counts;
    int most = 0;
    TangentKind found = otherwise;
    for (const AnimKey& key : curve.keys)
        for (const KeySide side : {KeySide::in, KeySide::out})
            if (const TangentKind kind = key.side(side).kind; ++counts[kind] > most) {
                most = counts[kind];
                found = kind;
            }
    return found;
}

Outcome writeIfOther(const Plug& plug, int value)
{
    if (storedNumber(plug).asWhole() == value)
        return {};
    return writeNumber(plug, Number(value), Limits::ignore);
}

Outcome writePairs(Node& node, const AnimCurveKeys& curve)
{
    const Plug array = plugOf(node, "keyTimeValue");
    const std::vector<int> existing = existingElements(array);
    for (const int index : existing)
        if (static_cast<std::size_t>(index) >= curve.keys.size())
            if (Outcome removed = removeElement(array, index); !removed)
                return removed;
    for (std::size_t i = 0; i < curve.keys.size(); ++i) {
        const Plug pair = array.element(static_cast<int>(i));
        const AnimKey& key = curve.keys[i];
        const bool isSame = std::binary_search(existing.begin(), existing.end(), static_cast<int>(i)) &&
                            storedNumber(pair.child(0)).asReal() == key.at &&
                            storedNumber(pair.child(1)).asReal() == key.value;
        if (isSame)
            continue;
        if (Outcome written = writeNumbers(pair, {key.at, key.value}); !written)
            return written;
    }
    return {};
}

Outcome writeFlags(Node& node, const AnimCurveKeys& curve, const FlagColumn& column)
{
    std::vector<double> values;
    std::size_t first = curve.keys.size();
    for (std::size_t i = 0; i < curve.keys.size(); ++i) {
        const bool flag = curve.keys[i].*column.flag;
        if (flag != column.otherwise)
            first = std::min(first, i);
        values.push_back(flag ? 1.0 : 0.0);
    }
    return Column(node, column.name).write(values, first);
}

/// The kinds from the first that is not the common one, and the directions from the first that is fixed.
Outcome writeSide(Node& node, const AnimCurveKeys& curve, TangentKind common, const SidePlugs& plugs)
{
    std::vector<double> kinds, xs, ys;
    std::size_t firstOther = curve.keys.size();
    std::size_t firstFixed = curve.keys.size();
    for (std::size_t i = 0; i < curve.keys.size(); ++i) {
        const TangentKind kind = curve.keys[i].side(plugs.side).kind;
        if (kind != common)
            firstOther = std::min(firstOther, i);
        if (kind == TangentKind::fixed)
            firstFixed = std::min(firstFixed, i);
        const TangentVector direction = curve.tangent(i, plugs.side);
        kinds.push_back(static_cast<double>(kind));
        xs.push_back(direction.x);
        ys.push_back(direction.y);
    }
    if (Outcome written = Column(node, plugs.kind).write(kinds, firstOther); !written)
        return written;
    if (Outcome written = Column(node, plugs.x).write(xs, firstFixed); !written)
        return written;
    return Column(node, plugs.y).write(ys, firstFixed);
}

void readSide(Node& node, const std::vector<int>& indices, const SidePlugs& plugs, AnimCurveKeys& curve)
{
    const int common = wholeNumber(node, "tangentType");
    const Column kinds(node, plugs.kind);
    const Column xs(node, plugs.x);
    const Column ys(node, plugs.y);
    for (std::size_t i = 0; i < indices.size(); ++i) {
        KeyTangent& tangent = curve.keys[i].side(plugs.side);
        tangent.kind = kindFrom(kinds[indices[i]], common);
        if (tangent.kind == TangentKind::fixed)
            tangent.direction = {xs[indices[i]], ys[indices[i]]};
    }
}

} // namespace

AnimCurveKeys readCurve(Node& node)
{
    AnimCurveKeys curve;
    curve.isWeighted = wholeNumber(node, "weightedTangents") != 0;
    curve.before = static_cast<CurveInfinity>(wholeNumber(node, "preInfinity"));
    curve.after = static_cast<CurveInfinity>(wholeNumber(node, "postInfinity"));
    const Plug pairs = plugOf(node, "keyTimeValue");
    const std::vector<int> indices = existingElements(pairs);
    for (const int index : indices) {
        const Plug pair = pairs.element(index);
        AnimKey key;
        key.at = storedNumber(pair.child(0)).asReal();
        key.value = storedNumber(pair.child(1)).asReal();
        curve.keys.push_back(key);
    }
    for (const SidePlugs& side : kSides)
        readSide(node, indices, side, curve);
    for (const FlagColumn& column : kFlags) {
        const Column flags(node, column.name);
        for (std::size_t i = 0; i < indices.size(); ++i)
            curve.keys[i].*column.flag = flags[indices[i]] != 0.0;
    }
    std::stable_sort(curve.keys.begin(), curve.keys.end(),
                     [](const AnimKey& a, const AnimKey& b) { return a.at < b.at; });
    return curve;
}

Outcome writeCurve(Node& node, const AnimCurveKeys& curve)
{
    const Plug common = plugOf(node, "tangentType");
    const TangentKind kind =
        mostFrequentKind(curve, static_cast<TangentKind>(storedNumber(common).asWhole()));
    // A file says the common kind even when it is the default.
    if (!hasOwnValue(common))
        if (Outcome written = writeNumber(common, Number(static_cast<int>(kind)), Limits::ignore); !written)
            return written;
    const std::pair<const char*, int> settings[] = {{"tangentType", static_cast<int>(kind)},
                                                    {"weightedTangents", curve.isWeighted ? 1 : 0},
                                                    {"preInfinity", static_cast<int>(curve.before)},
                                                    {"postInfinity", static_cast<int>(curve.after)}};
    for (const auto& [name, value] : settings)
        if (Outcome written = writeIfOther(plugOf(node, name), value); !written)
            return written;
    if (Outcome written = writePairs(node, curve); !written)
        return written;
    for (const FlagColumn& column : kFlags)
        if (Outcome written = writeFlags(node, curve, column); !written)
            return written;
    for (const SidePlugs& side : kSides)
        if (Outcome written = writeSide(node, curve, kind, side); !written)
            return written;
    return {};
}

} // namespace tvxhost::engine
