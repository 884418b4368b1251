// MeshIteration: what the three iterators over meshes share.
#pragma once

#include "access.h"
#include "apiCall.h"
#include "meshTarget.h"

#include <maya/MIntArray.h>

#include <optional>
#include <utility>
#include <vector>

namespace tvxhost::api {

/// What an iterator goes through, and how it is called in components.
struct MeshItems
{
    const char* component; ///< "e", "vtx", "f"
    std::size_t (*count)(const engine::MeshData& mesh);
};
extern const MeshItems kEdgeItems;
extern const MeshItems kVertexItems;
extern const MeshItems kFaceItems;

/// The place of an iterator: a mesh, the items to go through, and the present one.
struct MeshIteration
{
    explicit MeshIteration(const MeshItems& what) : items(what) {}

    /// Begins with all items, or with those of a component (a null object: all). Without a mesh, or with a
    /// component of another kind, there is nothing to go through.
    MStatus start(MeshTarget from, const MObject& component);
    /// Back to the first item, of the mesh as it is now.
    MStatus restart();
    /// After the mesh was changed: the mesh as it is now; at the end when the present item has gone.
    void refresh();

    std::size_t count() const { return isWhole ? size : chosen.size(); }
    bool isDone() const { return current < 0; }
    MStatus next();
    /// To an item by number; out of range nothing happens.
    MStatus jump(int index, int& previous);

    /// The matrix to a space; that to the world is asked for once, and again after a restart.
    MStatus placement(MSpace::Space space, engine::Matrix& matrix) const;

    /// Moves vertices given in a space to where they are wanted.
    MStatus move(const std::vector<std::pair<std::int32_t, MPoint>>& points, MSpace::Space space);

    const MeshItems& items;
    MeshTarget target;
    engine::Ref<engine::MeshData> mesh; ///< null when there is none
    std::size_t size = 0;               ///< items of the mesh
    bool isWhole = true;
    std::vector<std::int32_t> chosen; ///< unless it is the whole mesh
    std::size_t place = 0;            ///< in `chosen`
    std::int32_t current = -1;        ///< number of the present item; -1 at the end

private:
    void goTo(std::size_t newPlace);

    mutable std::optional<engine::Matrix> m_world;
};

/// The present item's number; -1, and why, when there is none.
std::int32_t presentItem(const MeshIteration& iteration, MStatus* status);
/// The present item as a component.
MObject presentComponent(const MeshIteration& iteration, MStatus* status);

/// Runs `use(mesh, item)`, which returns a status, for the present item.
template <class Use>
MStatus withItem(const MeshIteration& iteration, const Use& use)
{
    MStatus status;
    const std::int32_t item = presentItem(iteration, &status);
    return item < 0 ? status : use(*iteration.mesh, item);
}

/// What `read(mesh, item)` gives for the present item; `otherwise`, and why, when there is none.
template <class Value, class Read>
Value readItem(const MeshIteration& iteration, MStatus* status, Value otherwise, const Read& read)
{
    const std::int32_t item = presentItem(iteration, status);
    return item < 0 ? otherwise : read(*iteration.mesh, item);
}

/// The same for `read(mesh, item, matrix)`, which returns a status and needs the matrix to a space.
template <class Use>
MStatus withPlacedItem(const MeshIteration& iteration, MSpace::Space space, const Use& use)
{
    return withItem(iteration, [&](const engine::MeshData& mesh, std::int32_t item) {
        engine::Matrix matrix;
        const MStatus status = iteration.placement(space, matrix);
        return status ? use(mesh, item, matrix) : status;
    });
}

/// A point of a mesh in a space.
inline MPoint placedPoint(const engine::MeshData& mesh, std::int32_t vertex, const engine::Matrix& matrix)
{
    return toPoint(engine::Vec3d(mesh.points[static_cast<std::size_t>(vertex)]) * matrix);
}

/// Replaces the contents of an array.
template <class Range>
void giveAll(MIntArray& array, const Range& range)
{
    auto& elements = tvxAccess::elements(array);
    elements.assign(range.begin(), range.end());
}

/// Whether a row of numbers holds one.
bool holds(engine::IndexSpan span, int number);
/// Whether a mesh has an item of a kind; kInvalidParameter otherwise.
bool requireItem(bool exists, MStatus* status);

} // namespace tvxhost::api
