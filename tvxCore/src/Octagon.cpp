// Finds the farthest points of a sample, and makes the edges between them.
#include "Octagon.h"

#include "PointCollector.h"

#include <algorithm>

namespace tarvox::core {
namespace {

using Corners = std::array<Point, 8>;

/// More would make the octagon hardly larger.
constexpr std::size_t kLargestSample = 2048;

/// Points for each one in the sample of a small set, where looking at many costs more than they are worth.
constexpr std::size_t kPointsPerSample = 4;

/// The fraction of a set to step on by: multiples of the golden ratio come near no period that points may
/// have.
constexpr double kSampleStep = 0.6180339887498949;

Points sampleOf(const Points& points)
{
    const std::size_t wanted = std::min(points.size() / kPointsPerSample, kLargestSample);
    const auto step = static_cast<std::size_t>(static_cast<double>(points.size()) * kSampleStep);
    PointCollector sample(wanted);
    std::size_t at = 0;
    for (std::size_t i = 0; i < wanted; ++i) {
        sample.add(points[at], isFinite(points[at]));
        at += step;
        at -= at < points.size() ? 0 : points.size();
    }
    return sample.take();
}

/// How far a point lies in the four directions of which the other four are the opposites.
std::array<double, 4> heights(Point p)
{
    const double x = p.x, y = p.y;
    return {x, x + y, y, y - x};
}

/// The points that lie farthest in eight directions, counter-clockwise: left, left and down, down and so on.
Corners farthestOf(const Points& points)
{
    Corners corners;
    corners.fill(points.front());
    std::array<double, 4> low = heights(points.front());
    std::array<double, 4> high = low;
    for (const Point p : points) {
        const std::array<double, 4> height = heights(p);
        for (std::size_t i = 0; i < height.size(); ++i) {
            if (height[i] < low[i]) {
                low[i] = height[i];
                corners[i] = p;
            } else if (height[i] > high[i]) {
                high[i] = height[i];
                corners[i + 4] = p;
            }
        }
    }
    return corners;
}

} // namespace

Octagon::Octagon(const Points& points)
{
    const Points sample = sampleOf(points);
    if (sample.empty())
        return;
    const Corners corners = farthestOf(sample);
    for (const Point corner : corners)
        m_largest = std::max(m_largest, largestCoordinate(corner));
    // What lies left of every edge of a closed polygon is wound around by it, and so inside the hull of its
    // corners: neither their order nor convexity has to be exact.
    std::size_t count = 0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Point from = corners[i];
        const Point to = corners[(i + 1) % corners.size()];
        if (from != to)
            m_edges[count++] = HalfPlane(from, to, m_largest);
    }
    std::fill(m_edges.begin() + static_cast<std::ptrdiff_t>(count), m_edges.end(), m_edges.front());
}

} // namespace tarvox::core
