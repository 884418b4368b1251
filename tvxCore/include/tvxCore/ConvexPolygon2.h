// The convex polygon.
#pragma once

#include <tvxCore/ConvexHull.h>
#include <tvxCore/Vector2.h>

#include <vector>

namespace tarvox::core {

/// A convex polygon of the plane; empty until a hull is computed. `T` is float, the component type that
/// convexHull() takes.
template <class T>
class ConvexPolygon2
{
public:
    /// Becomes the convex hull of `points`, as convexHull() describes it: exact, without duplicate or
    /// collinear vertices, with fewer than three when the points span no area. What the polygon was before
    /// is gone; when std::bad_alloc is thrown it is kept.
    void computeConvexHull(const std::vector<Vector2<T>>& points) { m_vertices = convexHull(points); }

    /// The vertices, counter-clockwise, from the leftmost (of two leftmost ones the lower). The reference
    /// lives as long as the polygon; its content until the next hull is computed.
    const std::vector<Vector2<T>>& getVertices() const { return m_vertices; }

private:
    std::vector<Vector2<T>> m_vertices;
};

} // namespace tarvox::core
