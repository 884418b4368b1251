// Ear clipping: see earClipping.h.
#include "earClipping.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace tvxhost::engine {

namespace {

using Loop = std::vector<std::int32_t>;

/// Whether a point is in a counterclockwise triangle or on its border.
bool isInTriangle(Vec2 a, Vec2 b, Vec2 c, Vec2 point)
{
    return turn(a, b, point) >= 0 && turn(b, c, point) >= 0 && turn(c, a, point) >= 0;
}

/// A loop of corners that holes are led into and corners are cut off.
class Ring
{
public:
    explicit Ring(const FlatPolygon& polygon) : m_polygon(polygon), m_corners(polygon.loops.front())
    {
        std::vector<Loop> holes(polygon.loops.begin() + 1, polygon.loops.end());
        for (Loop& hole : holes)
            std::rotate(hole.begin(), rightmost(hole), hole.end());
        // Those further right hide the ones behind them from the outline.
        std::stable_sort(holes.begin(), holes.end(),
                         [this](const Loop& a, const Loop& b) { return at(a[0]).x > at(b[0]).x; });
        for (const Loop& hole : holes)
            bridge(hole);
    }

    const Loop& corners() const { return m_corners; }

private:
    Vec2 at(std::int32_t corner) const { return m_polygon.at(corner); }
    Vec2 place(std::size_t i) const { return at(m_corners[i % m_corners.size()]); }

    Loop::iterator rightmost(Loop& hole) const
    {
        return std::max_element(hole.begin(), hole.end(),
                                [this](std::int32_t a, std::int32_t b) { return at(a).x < at(b).x; });
    }

    /// Leads the ring around a hole, from the corner that sees the hole's first one.
    void bridge(const Loop& hole)
    {
        const std::size_t from = seenFrom(at(hole[0]));
        Loop detour(hole);
        detour.push_back(hole[0]);
        detour.push_back(m_corners[from]);
        m_corners.insert(m_corners.begin() + static_cast<std::ptrdiff_t>(from) + 1, detour.begin(),
                         detour.end());
    }

    /// The place of a corner that nothing hides from a point within the ring.
    std::size_t seenFrom(Vec2 point) const
    {
        const std::optional<std::size_t> side = sideRightOf(point);
        if (!side)
            return nearest(point);
        const Vec2 from = place(*side), to = place(*side + 1);
        const Vec2 hit{xAt(from, to, point.y), point.y};
        const std::size_t end = (from.x > to.x ? *side : *side + 1) % m_corners.size();
        return hit == place(end) ? facing(end, point) : firstBefore(point, hit, end);
    }

    static double xAt(Vec2 from, Vec2 to, double y)
    {
        return from.y == to.y ? std::min(from.x, to.x)
                              : from.x + (y - from.y) / (to.y - from.y) * (to.x - from.x);
    }

    /// The side that a ray to the right meets first, running up as all do that have the inside to their left.
    std::optional<std::size_t> sideRightOf(Vec2 point) const
    {
        std::optional<std::size_t> nearestSide;
        double nearestX = std::numeric_limits<double>::infinity();
        for (std::size_t i = 0; i < m_corners.size(); ++i) {
            const Vec2 from = place(i), to = place(i + 1);
            if (from.y > point.y || to.y < point.y || from.y == to.y || turn(from, to, point) < 0)
                continue;
            const double x = xAt(from, to, point.y);
            if (x < nearestX) {
                nearestX = x;
                nearestSide = i;
            }
        }
        return nearestSide;
    }

    /// The end of the side that was hit, unless corners lie in the triangle between: then the one of these
    /// that is seen under the smallest angle to the ray, of several the nearest.
    std::size_t firstBefore(Vec2 point, Vec2 hit, std::size_t end) const
    {
        const Vec2 tip = place(end);
        const bool isAbove = tip.y > point.y;
        std::size_t best = end;
        double bestSlope = slope(point, tip);
        for (std::size_t i = 0; i < m_corners.size(); ++i) {
            const Vec2 corner = place(i);
            const bool isInside =
                isAbove ? isInTriangle(point, hit, tip, corner) : isInTriangle(point, tip, hit, corner);
            if (!isInside || corner == tip || corner == point)
                continue;
            const double cornerSlope = slope(point, corner);
            if (cornerSlope < bestSlope || (cornerSlope == bestSlope && corner.x < place(best).x)) {
                best = i;
                bestSlope = cornerSlope;
            }
        }
        return facing(best, point);
    }

    static double slope(Vec2 point, Vec2 corner)
    {
        return std::fabs(corner.y - point.y) / (corner.x - point.x);
    }

    /// Of the corners at one place, the one with the point between its sides.
    std::size_t facing(std::size_t corner, Vec2 point) const
    {
        for (std::size_t i = 0; i < m_corners.size(); ++i)
            if (place(i) == place(corner) && isWithin(i, point))
                return i;
        return corner;
    }

    bool isWithin(std::size_t corner, Vec2 point) const
    {
        const Vec2 before = place(corner + m_corners.size() - 1), here = place(corner),
                   after = place(corner + 1);
        const bool isLeftOfOne = turn(before, here, point) >= 0,
                   isLeftOfOther = turn(here, after, point) >= 0;
        return turn(before, here, after) >= 0 ? isLeftOfOne && isLeftOfOther : isLeftOfOne || isLeftOfOther;
    }

    std::size_t nearest(Vec2 point) const
    {
        const auto distance = [&](std::size_t i) {
            return std::hypot(place(i).x - point.x, place(i).y - point.y);
        };
        std::size_t best = 0;
        for (std::size_t i = 1; i < m_corners.size(); ++i)
            if (distance(i) < distance(best))
                best = i;
        return best;
    }

    const FlatPolygon& m_polygon;
    Loop m_corners;
};

/// Cuts the corners off a ring.
class Clipper
{
public:
    Clipper(const FlatPolygon& polygon, const Loop& ring) : m_polygon(polygon), m_ring(ring)
    {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            m_next.push_back(i + 1 == ring.size() ? 0 : i + 1);
            m_previous.push_back(i == 0 ? ring.size() - 1 : i - 1);
        }
        for (std::size_t i = 0; i < ring.size(); ++i)
            if (turnAt(i) <= 0)
                m_blocking.push_back(i);
    }

    ClippedEars clip()
    {
        std::size_t left = m_ring.size();
        std::size_t here = 0;
        for (std::size_t tried = 0; left > 3;) {
            if (isEar(here)) {
                here = cut(here);
                --left;
                tried = 0;
            } else if (++tried > left) {
                here = cut(giveUpAt(here));
                --left;
                tried = 0;
            } else {
                here = m_next[here];
            }
        }
        m_result.isValid = m_result.isValid && turnAt(here) > 0;
        add(m_previous[here], here, m_next[here]);
        return std::move(m_result);
    }

private:
    Vec2 place(std::size_t i) const { return m_polygon.at(m_ring[i]); }
    double turnAt(std::size_t i) const { return turn(place(m_previous[i]), place(i), place(m_next[i])); }

    /// Only corners that do not bend outwards can lie in the way.
    bool isEar(std::size_t i)
    {
        if (!(turnAt(i) > 0))
            return false;
        const Vec2 a = place(m_previous[i]), b = place(i), c = place(m_next[i]);
        for (const std::size_t other : m_blocking) {
            const Vec2 point = place(other);
            if (isInTriangle(a, b, c, point) && !(point == a) && !(point == b) && !(point == c))
                return false;
        }
        return true;
    }

    /// A corner whose triangle has no area, or else this one; nothing is valid any more.
    std::size_t giveUpAt(std::size_t here)
    {
        m_result.isValid = false;
        for (std::size_t i = m_next[here]; i != here; i = m_next[i])
            if (turnAt(i) == 0)
                return i;
        return here;
    }

    /// Cuts a corner off; gives the one behind its neighbour, so that not all triangles meet in one corner.
    std::size_t cut(std::size_t i)
    {
        const std::size_t before = m_previous[i], after = m_next[i];
        add(before, i, after);
        m_next[before] = after;
        m_previous[after] = before;
        m_blocking.erase(std::remove_if(m_blocking.begin(), m_blocking.end(),
                                        [&](std::size_t other) {
                                            return other == i ||
                                                   ((other == before || other == after) && turnAt(other) > 0);
                                        }),
                         m_blocking.end());
        return m_next[after];
    }

    /// Begins with the corner that comes first in the polygon.
    void add(std::size_t a, std::size_t b, std::size_t c)
    {
        Triangle triangle{m_ring[a], m_ring[b], m_ring[c]};
        std::rotate(triangle.begin(), std::min_element(triangle.begin(), triangle.end()), triangle.end());
        m_result.triangles.push_back(triangle);
    }

    const FlatPolygon& m_polygon;
    const Loop& m_ring;
    std::vector<std::size_t> m_next;
    std::vector<std::size_t> m_previous;
    std::vector<std::size_t> m_blocking; ///< corners that do not bend outwards
    ClippedEars m_result;
};

} // namespace

ClippedEars clipEars(const FlatPolygon& polygon)
{
    const Ring ring(polygon);
    return Clipper(polygon, ring.corners()).clip();
}

} // namespace tvxhost::engine
