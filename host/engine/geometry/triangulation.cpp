// Triangulation: see triangulation.h.
#include "triangulation.h"

#include "earClipping.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

using Loop = std::vector<std::int32_t>;

/// The polygon without the holes that are none.
FlatPolygon flatten(const PolygonLoops& polygon)
{
    FlatPolygon flat(polygon);
    flat.loops.erase(std::remove_if(flat.loops.begin() + 1, flat.loops.end(),
                                    [](const Loop& hole) { return hole.size() < 3; }),
                     flat.loops.end());
    return flat;
}

/// Whether it is convex, without holes, and each triangle of the fan around its first corner has an area.
bool isFan(const FlatPolygon& flat)
{
    const Loop& loop = flat.loops.front();
    const std::size_t count = loop.size();
    const auto at = [&](std::size_t i) { return flat.at(loop[i % count]); };
    for (std::size_t i = 0; i < count; ++i)
        if (turn(at(i), at(i + 1), at(i + 2)) < 0 || turn(at(0), at(1), at(i)) < 0)
            return false;
    for (std::size_t i = 1; i + 1 < count; ++i)
        if (!(turn(at(0), at(i), at(i + 1)) > 0))
            return false;
    return flat.loops.size() == 1;
}

std::vector<Triangle> fan(const Loop& loop)
{
    std::vector<Triangle> triangles;
    for (std::size_t i = 1; i + 1 < loop.size(); ++i)
        triangles.push_back({loop[0], loop[i], loop[i + 1]});
    return triangles;
}

struct Side
{
    Vec2 from;
    Vec2 to;
};

/// Whether a point other than its ends is on a side.
bool isOn(const Side& side, Vec2 point)
{
    return turn(side.from, side.to, point) == 0 && !(point == side.from) && !(point == side.to) &&
           std::min(side.from.x, side.to.x) <= point.x && point.x <= std::max(side.from.x, side.to.x) &&
           std::min(side.from.y, side.to.y) <= point.y && point.y <= std::max(side.from.y, side.to.y);
}

/// Whether the ends of one side lie on different sides of the other.
bool isSplit(const Side& side, const Side& by)
{
    const double one = turn(by.from, by.to, side.from), other = turn(by.from, by.to, side.to);
    return (one > 0 && other < 0) || (one < 0 && other > 0);
}

/// Whether they have a point in common other than an end of both.
bool cross(const Side& a, const Side& b)
{
    return (isSplit(a, b) && isSplit(b, a)) || isOn(a, b.from) || isOn(a, b.to) || isOn(b, a.from) ||
           isOn(b, a.to);
}

bool crossesItself(const FlatPolygon& flat)
{
    std::vector<Side> sides;
    for (const Loop& loop : flat.loops)
        for (std::size_t i = 0; i < loop.size(); ++i)
            sides.push_back({flat.at(loop[i]), flat.at(loop[(i + 1) % loop.size()])});
    for (std::size_t i = 0; i < sides.size(); ++i)
        for (std::size_t j = i + 1; j < sides.size(); ++j)
            if (cross(sides[i], sides[j]))
                return true;
    return false;
}

bool isPolygon(const PolygonLoops& loops)
{
    return !loops.empty() && loops.front().size() >= 3;
}

} // namespace

std::vector<Triangle> triangulate(const PolygonLoops& loops)
{
    if (!isPolygon(loops))
        return {};
    const FlatPolygon flat = flatten(loops);
    return isFan(flat) ? fan(flat.loops.front()) : clipEars(flat).triangles;
}

bool hasValidTriangles(const PolygonLoops& loops)
{
    if (!isPolygon(loops))
        return false;
    const FlatPolygon flat = flatten(loops);
    return isFan(flat) || (clipEars(flat).isValid && !crossesItself(flat));
}

} // namespace tvxhost::engine
