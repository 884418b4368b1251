// ItemColors: the colours of an iterator's present item, a face or a vertex.
#pragma once

#include "meshIteration.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

class MColor;
class MColorArray;

namespace tvxhost::api {

/// How the corners of an item are found.
struct ItemCorners
{
    std::vector<std::size_t> (*all)(const engine::MeshData& mesh, std::int32_t item);
    /// One of them: of a face by its number there, of a vertex by the face.
    std::optional<std::size_t> (*one)(const engine::MeshData& mesh, std::int32_t item, int key);
};

/// Reads from sets by name, null: the current one, which has no colours where the mesh has no sets.
/// kInvalidParameter for a set or a corner that is not there.
class ItemColors
{
public:
    ItemColors(const MeshIteration& iteration, const ItemCorners& corners)
        : m_iteration(iteration), m_corners(corners)
    {
    }

    /// Whether any corner has a colour, or one of them.
    bool has(MStatus* status) const;
    bool hasOne(int key, MStatus* status) const;

    /// The mean of the colours; kFailure when there is none.
    MStatus mean(const MString* set, MColor& color) const;
    MStatus one(const MString* set, int key, MColor& color) const;
    /// See giveColors.
    MStatus list(const MString* set, MColorArray& colors) const;
    /// How many different values there are.
    MStatus count(const MString* set, int& count) const;
    /// The numbers of the values, -1 for a corner without.
    MStatus numbers(const MString* set, MIntArray& numbers) const;
    MStatus number(const MString* set, int key, int& number) const;

private:
    template <class Use>
    MStatus with(const MString* set, const Use& use) const;
    template <class Use>
    MStatus withOne(const MString* set, int key, const Use& use) const;

    const MeshIteration& m_iteration;
    const ItemCorners& m_corners;
};

} // namespace tvxhost::api
