// Shells: which items hang together.
#pragma once

#include "mapSets.h"
#include "meshData.h"

namespace tvxhost::engine {

/// Items 0 to n - 1, at first each by itself, joined two by two.
class Shells
{
public:
    explicit Shells(std::size_t items);

    void join(std::int32_t a, std::int32_t b);
    std::size_t count() const { return m_count; }
    /// The number of each item's shell; shells are numbered by their first items.
    std::vector<std::int32_t> numbers();

private:
    std::int32_t rootOf(std::int32_t item);

    std::vector<std::int32_t> m_above; ///< another item of the same shell, the item itself at the top
    std::size_t m_count;
};

/// The vertices of a mesh, joined by its edges.
Shells vertexShells(const MeshData& mesh);
/// The texture coordinates of a set, joined by the faces that use them; one that none uses is by itself.
Shells uvShells(const MeshData& mesh, const UvSet& set);

} // namespace tvxhost::engine
