// TriangleTree: see triangleTree.h.
#include "triangleTree.h"

#include "meshTriangles.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>
#include <mutex>
#include <tuple>

namespace tvxhost::engine {

namespace {

/// So many triangles are looked at one by one.
constexpr std::uint32_t kLeafSize = 4;
/// What rounding may do to a place, as a part of its distance from the origin.
constexpr double kRounding = 1e-12;
/// Hits of one face are the same when they are nearer than this part of the mesh's size.
constexpr double kSamePlace = 1e-9;

std::mutex totalsMutex;
TriangleTree::Totals allTrees;

/// Whether a ray is in a box for some `t` between two.
bool isMet(const Imath::Box3d& box, const Ray& ray, double pad, double from, double to)
{
    for (int axis = 0; axis < 3; ++axis) {
        const double low = box.min[axis] - pad - ray.from[axis], high = box.max[axis] + pad - ray.from[axis];
        const double step = ray.direction[axis];
        if (step == 0) {
            if (low > 0 || high < 0)
                return false;
            continue;
        }
        from = std::max(from, std::min(low / step, high / step));
        to = std::min(to, std::max(low / step, high / step));
    }
    return from <= to;
}

double distance2(const Imath::Box3d& box, const Vec3d& point)
{
    double sum = 0;
    for (int axis = 0; axis < 3; ++axis) {
        const double outside = std::max({box.min[axis] - point[axis], point[axis] - box.max[axis], 0.0});
        sum += outside * outside;
    }
    return sum;
}

double magnitude(const Imath::Box3d& box)
{
    return std::max(box.min.length(), box.max.length());
}

std::tuple<std::int32_t, std::int32_t> number(const SurfacePoint& place)
{
    return {place.face, place.triangle};
}

} // namespace

TriangleTree::TriangleTree(const MeshData& mesh, const Matrix& matrix) : m_matrix(matrix)
{
    const auto start = std::chrono::steady_clock::now();
    m_points.reserve(mesh.points.size());
    for (const Vec3f& point : mesh.points)
        m_points.push_back(Vec3d(point) * matrix);
    addItems(mesh);
    if (!m_triangles.empty())
        split(0, static_cast<std::uint32_t>(m_triangles.size()));
    m_buildSeconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    const std::lock_guard<std::mutex> lock(totalsMutex);
    ++allTrees.made;
    ++allTrees.present;
    allTrees.bytes += bytes();
    allTrees.mostBytes = std::max(allTrees.mostBytes, allTrees.bytes);
    allTrees.buildSeconds += m_buildSeconds;
}

TriangleTree::~TriangleTree()
{
    const std::lock_guard<std::mutex> lock(totalsMutex);
    --allTrees.present;
    allTrees.bytes -= bytes();
}

void TriangleTree::addItems(const MeshData& mesh)
{
    const MeshTriangles& triangles = mesh.triangles();
    m_triangles.reserve(triangles.size());
    for (std::size_t face = 0; face < mesh.faces.size(); ++face)
        for (std::size_t i = 0; i < triangles.count(face); ++i)
            m_triangles.push_back({triangleVertices(mesh, face, triangles[triangles.first(face) + i]),
                                   static_cast<std::int32_t>(face), static_cast<std::int32_t>(i)});
}

std::uint32_t TriangleTree::split(std::uint32_t begin, std::uint32_t end)
{
    const auto here = static_cast<std::uint32_t>(m_boxes.size());
    m_boxes.push_back({boundsOf(begin, end), begin, end, 0});
    if (end - begin <= kLeafSize)
        return here;
    const auto axis = static_cast<int>(m_boxes[here].bounds.majorAxis());
    const auto middleOf = [&](const Item& item) {
        const TrianglePoints points = pointsOf(item);
        const double middle = points[0][axis] + points[1][axis] + points[2][axis];
        return std::isnan(middle) ? std::numeric_limits<double>::infinity()
                                  : middle; // sorting needs an order
    };
    const std::uint32_t middle = begin + (end - begin) / 2;
    std::nth_element(m_triangles.begin() + begin, m_triangles.begin() + middle, m_triangles.begin() + end,
                     [&](const Item& a, const Item& b) { return middleOf(a) < middleOf(b); });
    split(begin, middle);
    const std::uint32_t second = split(middle, end);
    m_boxes[here].second = second;
    return here;
}

Imath::Box3d TriangleTree::boundsOf(std::uint32_t begin, std::uint32_t end) const
{
    Imath::Box3d bounds;
    for (std::uint32_t i = begin; i < end; ++i)
        for (const Vec3d& point : pointsOf(m_triangles[i]))
            bounds.extendBy(point);
    return bounds;
}

TrianglePoints TriangleTree::pointsOf(const Item& item) const
{
    TrianglePoints points;
    for (std::size_t i = 0; i < 3; ++i)
        points[i] = m_points[static_cast<std::size_t>(item.vertices[i])];
    return points;
}

SurfacePoint TriangleTree::place(const Item& item, const Vec3d& weights) const
{
    return {item.face, item.triangle, weights, weighed(pointsOf(item), weights)};
}

/// `use` returns how near to 0 `t` still has to be.
template <class Use>
void TriangleTree::forEachHit(const RayQuery& query, const Use& use) const
{
    double reach = std::numeric_limits<double>::infinity();
    std::vector<std::uint32_t> waiting;
    if (!m_boxes.empty())
        waiting.push_back(0);
    while (!waiting.empty()) {
        const std::uint32_t here = waiting.back();
        waiting.pop_back();
        const Box& box = m_boxes[here];
        const double pad = 2 * query.tolerance * box.bounds.size().length() +
                           kRounding * (magnitude(box.bounds) + query.ray.from.length());
        if (!isMet(box.bounds, query.ray, pad, std::max(query.from, -reach), std::min(query.to, reach)))
            continue;
        if (box.second != 0) {
            waiting.insert(waiting.end(), {box.second, here + 1});
            continue;
        }
        for (std::uint32_t i = box.begin; i < box.end; ++i) {
            const Item& item = m_triangles[i];
            if (query.accepts && !query.accepts(item.face, item.triangle))
                continue;
            const auto hit = meet(query.ray, pointsOf(item), query.tolerance);
            if (hit && hit->t >= query.from && hit->t <= query.to)
                reach = use(RayHit{place(item, hit->weights), hit->t});
        }
    }
}

bool TriangleTree::isSamePlace(const RayHit& a, const RayHit& b, const Ray& ray) const
{
    return std::fabs(a.t - b.t) * ray.direction.length() <=
           kSamePlace * m_boxes.front().bounds.size().length();
}

std::vector<RayHit> TriangleTree::hits(const RayQuery& query) const
{
    std::vector<RayHit> all;
    forEachHit(query, [&](const RayHit& hit) {
        all.push_back(hit);
        return std::numeric_limits<double>::infinity();
    });
    std::sort(all.begin(), all.end(), [](const RayHit& a, const RayHit& b) { return number(a) < number(b); });
    std::vector<RayHit> distinct;
    std::size_t firstOfFace = 0;
    for (const RayHit& hit : all) {
        if (distinct.empty() || distinct.back().face != hit.face)
            firstOfFace = distinct.size();
        if (std::none_of(distinct.begin() + static_cast<std::ptrdiff_t>(firstOfFace), distinct.end(),
                         [&](const RayHit& earlier) { return isSamePlace(earlier, hit, query.ray); }))
            distinct.push_back(hit);
    }
    return distinct;
}

std::optional<RayHit> TriangleTree::nearestHit(const RayQuery& query) const
{
    std::optional<RayHit> nearest;
    const auto isBefore = [](const RayHit& a, const RayHit& b) {
        const double one = std::fabs(a.t), other = std::fabs(b.t);
        return one != other ? one < other : number(a) < number(b);
    };
    forEachHit(query, [&](const RayHit& hit) {
        if (!nearest || isBefore(hit, *nearest))
            nearest = hit;
        return std::fabs(nearest->t);
    });
    return nearest;
}

std::optional<SurfacePoint> TriangleTree::nearestTo(const Vec3d& point) const
{
    std::optional<SurfacePoint> nearest;
    double nearest2 = std::numeric_limits<double>::infinity();
    std::vector<std::uint32_t> waiting;
    if (!m_boxes.empty())
        waiting.push_back(0);
    while (!waiting.empty()) {
        const std::uint32_t here = waiting.back();
        waiting.pop_back();
        const Box& box = m_boxes[here];
        if (distance2(box.bounds, point) > nearest2)
            continue;
        if (box.second != 0) {
            std::array<std::uint32_t, 2> halves{here + 1, box.second};
            if (distance2(m_boxes[halves[1]].bounds, point) < distance2(m_boxes[halves[0]].bounds, point))
                std::swap(halves[0], halves[1]);
            waiting.insert(waiting.end(), {halves[1], halves[0]});
            continue;
        }
        for (std::uint32_t i = box.begin; i < box.end; ++i) {
            const Item& item = m_triangles[i];
            const SurfacePoint found = place(item, nearestWeights(pointsOf(item), point));
            const double found2 = (found.point - point).length2();
            if (!nearest || found2 < nearest2 || (found2 == nearest2 && number(found) < number(*nearest))) {
                nearest = found;
                nearest2 = found2;
            }
        }
    }
    return nearest;
}

std::size_t TriangleTree::bytes() const
{
    return sizeof(*this) + m_points.capacity() * sizeof(Vec3d) + m_triangles.capacity() * sizeof(Item) +
           m_boxes.capacity() * sizeof(Box);
}

TriangleTree::Totals TriangleTree::totals()
{
    const std::lock_guard<std::mutex> lock(totalsMutex);
    return allTrees;
}

void TriangleTree::forgetTotals()
{
    const std::lock_guard<std::mutex> lock(totalsMutex);
    allTrees.made = 0;
    allTrees.mostBytes = allTrees.bytes;
    allTrees.buildSeconds = 0;
}

} // namespace tvxhost::engine
