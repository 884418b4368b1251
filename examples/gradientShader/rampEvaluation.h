// The value of a ramp at a position.
#pragma once

#include <algorithm>
#include <vector>

namespace gradientShader {

/// How a ramp goes on from an entry to the next one.
enum class Interpolation : short
{
    none = 0,
    linear = 1,
    smooth = 2
};

/// One entry of a ramp. `Value` can be added, subtracted and multiplied by a float.
template <class Value>
struct Entry
{
    float position;
    Value value;
    Interpolation interpolation;
};

/// How much of the next entry there is at a fraction of the way to it.
inline float share(Interpolation interpolation, float fraction)
{
    switch (interpolation) {
    case Interpolation::linear:
        return fraction;
    case Interpolation::smooth:
        return fraction * fraction * (3.0f - 2.0f * fraction);
    default:
        return 0.0f;
    }
}

/// The value at a position; before the first entry and behind the last one theirs. Entries may come in any
/// order, and the last of several at one place counts for what follows. `otherwise` without entries.
template <class Value>
Value valueAt(std::vector<Entry<Value>> entries, float position, const Value& otherwise)
{
    if (entries.empty())
        return otherwise;
    std::stable_sort(entries.begin(), entries.end(),
                     [](const auto& a, const auto& b) { return a.position < b.position; });
    const auto next = std::upper_bound(entries.begin(), entries.end(), position,
                                       [](float at, const auto& entry) { return at < entry.position; });
    if (next == entries.begin())
        return next->value;
    const auto last = next - 1;
    if (next == entries.end())
        return last->value;
    const float fraction = (position - last->position) / (next->position - last->position);
    return last->value + (next->value - last->value) * share(last->interpolation, fraction);
}

} // namespace gradientShader
