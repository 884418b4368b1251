// TriangleTree: finds the triangles of a mesh that a ray meets, and the one nearest to a point.
#pragma once

#include "meshData.h"
#include "triangleQueries.h"

#include <Imath/ImathBox.h>

#include <functional>
#include <optional>
#include <vector>

namespace tvxhost::engine {

/// A place on the surface of a mesh.
struct SurfacePoint
{
    std::int32_t face = -1;
    std::int32_t triangle = -1; ///< among those of the face
    Vec3d weights;              ///< of the triangle's corners; their sum is 1
    Vec3d point;
};

/// A place where a ray meets the surface: `point` is at this `t` of the ray.
struct RayHit : SurfacePoint
{
    double t = 0;
};

/// What of a ray counts, and which triangles.
struct RayQuery
{
    Ray ray;
    double from = 0; ///< least and greatest `t`
    double to = 0;
    double tolerance = 0; ///< how far a weight may be below 0, so that rays do not slip through edges
    /// Whether a triangle (a face, and a number among those of the face) is looked at; empty: all are.
    std::function<bool(std::int32_t face, std::int32_t triangle)> accepts;
};

/// Boxes around the triangles of a mesh, halved again and again: each box holds those of two halves. Keeps
/// copies of the points and is good after the mesh has gone; 70 to 100 bytes for each triangle.
class TriangleTree
{
public:
    /// Of the points as a matrix moves them.
    explicit TriangleTree(const MeshData& mesh, const Matrix& matrix = Matrix());
    ~TriangleTree();
    TriangleTree(const TriangleTree&) = delete;
    TriangleTree& operator=(const TriangleTree&) = delete;

    /// All hits in the order of their faces and triangles. A ray through an edge meets the triangles on both
    /// sides; where these are of one face, it counts once, as the first of them.
    std::vector<RayHit> hits(const RayQuery& query) const;
    /// The hit with `t` nearest to 0; of several the one that `hits` has first.
    std::optional<RayHit> nearestHit(const RayQuery& query) const;
    /// Empty for a mesh without triangles. Of several triangles that are as near the first one counts.
    std::optional<SurfacePoint> nearestTo(const Vec3d& point) const;

    const Matrix& matrix() const { return m_matrix; }
    /// Number of triangles.
    std::size_t size() const { return m_triangles.size(); }
    /// How much memory it takes.
    std::size_t bytes() const;
    /// How long it took to make, in seconds.
    double buildSeconds() const { return m_buildSeconds; }

    /// All trees of this process since the beginning, or since they were forgotten.
    struct Totals
    {
        std::size_t made = 0;
        std::size_t present = 0; ///< those that are there, whenever they were made
        std::size_t bytes = 0;   ///< of those
        std::size_t mostBytes = 0;
        double buildSeconds = 0;
    };
    static Totals totals();
    static void forgetTotals();

private:
    struct Item
    {
        std::array<std::int32_t, 3> vertices;
        std::int32_t face;
        std::int32_t triangle;
    };
    struct Box
    {
        Imath::Box3d bounds;
        std::uint32_t begin = 0, end = 0; ///< of the triangles in it
        std::uint32_t second = 0;         ///< the other half; the one stands right behind; 0 for a leaf
    };

    void addItems(const MeshData& mesh);
    std::uint32_t split(std::uint32_t begin, std::uint32_t end);
    Imath::Box3d boundsOf(std::uint32_t begin, std::uint32_t end) const;
    TrianglePoints pointsOf(const Item& item) const;
    SurfacePoint place(const Item& item, const Vec3d& weights) const;
    template <class Use>
    void forEachHit(const RayQuery& query, const Use& use) const;
    bool isSamePlace(const RayHit& a, const RayHit& b, const Ray& ray) const;

    Matrix m_matrix;
    std::vector<Vec3d> m_points;
    std::vector<Item> m_triangles;
    std::vector<Box> m_boxes; ///< the first one holds all
    double m_buildSeconds = 0;
};

} // namespace tvxhost::engine
