// The convex hull: what is surely inside is dropped, the rest sorted and walked along from end to end, the
// lower side and the upper side each for itself.
#include "HalfPlane.h"
#include "Octagon.h"
#include "Orientation.h"
#include "PointCollector.h"
#include "Points.h"
#include "SortByX.h"

#include <tvxCore/ConvexHull.h>

#include <algorithm>
#include <array>

namespace tarvox::core {
namespace {

/// The same point with every -0 made +0, so that points that compare equal are the same.
Point withPlainZeros(Point p)
{
    return {p.x + 0.0f, p.y + 0.0f};
}

/// The point after half a turn around the origin, its zeros +0.
Point turned(Point p)
{
    return {0.0f - p.x, 0.0f - p.y};
}

/// The finite points that may be corners.
Points candidatesOf(const Points& points)
{
    constexpr std::size_t kBlock = 256;
    const Octagon octagon(points);
    PointCollector candidates(points.size());
    std::array<unsigned char, kBlock> wanted{};
    for (std::size_t begin = 0; begin < points.size(); begin += kBlock) {
        const Point* const block = points.data() + begin;
        const std::size_t count = std::min(kBlock, points.size() - begin);
        // A loop of its own, so that a compiler tests several points at once.
        for (std::size_t i = 0; i < count; ++i)
            wanted[i] =
                static_cast<unsigned char>(int{isFinite(block[i])} & int{!octagon.surelyHolds(block[i])});
        for (std::size_t i = 0; i < count; ++i)
            candidates.add(withPlainZeros(block[i]), wanted[i]);
    }
    return candidates.take();
}

/// The two ends of a set, and how far from the origin it reaches.
struct Extent
{
    explicit Extent(const Points& points) : left(points.front()), right(left)
    {
        for (const Point p : points) {
            left = isLeftOf(p, left) ? p : left;
            right = isLeftOf(right, p) ? p : right;
            largest = std::max(largest, largestCoordinate(p));
        }
    }

    Point left;
    Point right;
    float largest = 0;
};

/// Leaves in `points` those below the line between the left end and the right end, and returns those above
/// it; the ones near the line go to both sides. The upper side is turned by half a turn, so that one walk
/// serves both and the two walks make one round.
Points splitOffUpperSide(Points& points)
{
    const Extent extent(points);
    const HalfPlane above(extent.left, extent.right, extent.largest);
    const HalfPlane below(extent.right, extent.left, extent.largest);
    PointCollector upperTurned(points.size());
    std::size_t lower = 0;
    for (const Point p : points) {
        upperTurned.add(turned(p), !below.holds(p));
        points[lower] = p;
        lower += !above.holds(p);
    }
    points.resize(lower);
    return upperTurned.take();
}

/// Puts `p` behind those of the first `length` points that stay corners with it; it lies to the right of all
/// of them, or straight above or below the last.
void extendLowerChain(Points& chain, std::size_t& length, Point p)
{
    if (length > 0 && chain[length - 1].x == p.x) {
        if (chain[length - 1].y <= p.y)
            return;
        --length;
    }
    while (length > 1 && !turnsLeft(chain[length - 2], chain[length - 1], p))
        --length;
    chain[length++] = p;
}

/// Leaves of `points` the corners of the lower side of their hull, from left to right.
void keepLowerChain(Points& points, Points& spare)
{
    sortByX(points, spare);
    // The chain overwrites points that the walk is past.
    std::size_t length = 0;
    for (const Point p : points)
        extendLowerChain(points, length, p);
    points.resize(length);
}

/// The lower corners, then the upper ones turned back; the ends, which are in both, only once.
Points joined(const Points& lower, const Points& upperTurned)
{
    Points hull;
    hull.reserve(lower.size() + upperTurned.size());
    hull = lower;
    for (const Point p : upperTurned)
        if (const Point corner = turned(p); corner != lower.front() && corner != lower.back())
            hull.push_back(corner);
    return hull;
}

} // namespace

std::vector<Vector2<float>> convexHull(const std::vector<Vector2<float>>& points)
{
    Points lower = candidatesOf(points);
    if (lower.empty())
        return {};
    Points upperTurned = splitOffUpperSide(lower);
    Points spare;
    keepLowerChain(lower, spare);
    keepLowerChain(upperTurned, spare);
    return joined(lower, upperTurned);
}

} // namespace tarvox::core
