// Sets of texture coordinates and of colours: values, and which of them the corners of a mesh have.
#pragma once

#include <Imath/ImathColor.h>
#include <Imath/ImathVec.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace tvxhost::engine {

using Vec2f = Imath::V2f;
using Color4f = Imath::Color4f;

/// The number of a value that a corner has which has none.
inline constexpr std::int32_t kUnmapped = -1;

/// Values by number, and for each corner of a mesh the number of the value that it has.
template <class Value>
struct MapSet
{
    std::string name;
    std::int32_t slot = 0; ///< the element of the shape's array of sets that holds it
    std::vector<Value> values;
    /// By corner (see FaceTable::firstCorner); corners behind its end have none. Each is kUnmapped or the
    /// number of a value.
    std::vector<std::int32_t> used;

    bool hasValue(std::int64_t i) const { return i >= 0 && i < static_cast<std::int64_t>(values.size()); }
    /// The number of the value that a corner has.
    std::int32_t at(std::size_t corner) const { return corner < used.size() ? used[corner] : kUnmapped; }
    void assign(std::size_t corner, std::int32_t number)
    {
        if (corner >= used.size())
            used.resize(corner + 1, kUnmapped);
        used[corner] = number;
    }
    /// Whether one of `count` corners from `first` on has a value.
    bool isUsed(std::size_t first, std::size_t count) const
    {
        for (std::size_t corner = first; corner < first + count; ++corner)
            if (at(corner) != kUnmapped)
                return true;
        return false;
    }
};

/// Texture coordinates. Every mesh has at least one such set, the first one being that of its shape for good.
struct UvSet : MapSet<Vec2f>
{
};

/// What of its colours a set is about.
enum class ColorParts : std::uint8_t
{
    alpha = 1,
    rgb = 3,
    rgba = 4
};

struct ColorSet : MapSet<Color4f>
{
    ColorParts parts = ColorParts::rgba;
    bool isClamped = false; ///< to 0 to 1
};

/// The name of the set of texture coordinates that a mesh has from the beginning.
inline constexpr const char* kFirstUvSetName = "map1";

/// Null when there is no set of that name.
template <class Set>
const Set* findSet(const std::vector<Set>& sets, const std::string& name)
{
    const auto found =
        std::find_if(sets.begin(), sets.end(), [&name](const Set& set) { return set.name == name; });
    return found == sets.end() ? nullptr : &*found;
}

/// A slot for a new set: behind all others, so that it stays the last one; where there is none left, the
/// first one that no set has.
template <class Set>
std::int32_t freeSlot(const std::vector<Set>& sets)
{
    constexpr std::int32_t kLast = std::numeric_limits<std::int32_t>::max();
    std::int32_t last = -1;
    for (const Set& set : sets)
        last = std::max(last, set.slot);
    if (last < kLast)
        return last + 1;
    const auto isTaken = [&sets](std::int32_t slot) {
        return std::any_of(sets.begin(), sets.end(), [slot](const Set& set) { return set.slot == slot; });
    };
    std::int32_t slot = 0;
    while (isTaken(slot))
        ++slot;
    return slot;
}

} // namespace tvxhost::engine
