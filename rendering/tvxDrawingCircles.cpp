// Circles: an outline and a filled disc, from points of the unit circle that are computed once.
#include "rendering/tvxDrawing.h"

#include "rendering/tvxDrawingNumbers.h"
#include "rendering/tvxGLScopes.h"

#include <array>
#include <cmath>
#include <memory>
#include <new>

namespace tarvox::crowd {

namespace {

/// A point of the unit circle.
struct Direction
{
    float x = 0;
    float z = 0;
};

/// Circles of more segments than this are computed anew each time: the tables of all others together take
/// 1 MiB when every one of them has been drawn.
constexpr unsigned int kMostSegmentsKept = 512;

Direction directionOf(unsigned int k, unsigned int segments)
{
    // The order of these operations decides the last bit of the angle.
    const float angle = static_cast<float>(k) * 360.0f / static_cast<float>(segments) * pi() / 180.0f;
    return {std::cos(angle), std::sin(angle)};
}

std::unique_ptr<Direction[]> makeTable(unsigned int segments)
{
    std::unique_ptr<Direction[]> table(new (std::nothrow) Direction[segments]);
    for (unsigned int k = 0; table && k < segments; ++k)
        table[k] = directionOf(k, segments);
    return table;
}

/// The directions of a circle's vertices; null where none are kept. Only the drawing thread comes here.
const Direction* keptDirections(unsigned int segments)
{
    static std::array<std::unique_ptr<Direction[]>, kMostSegmentsKept + 1> tables;
    if (segments > kMostSegmentsKept)
        return nullptr;
    std::unique_ptr<Direction[]>& table = tables[segments];
    if (!table)
        table = makeTable(segments);
    return table.get();
}

void emitVertex(float radius, const Direction& direction)
{
    glVertex3f(radius * direction.x, 0, radius * direction.z);
}

void emitCircle(GLenum mode, float radius, unsigned int segments)
{
    const Direction* kept = keptDirections(segments);
    const PrimitiveScope primitive(mode);
    for (unsigned int k = 0; k < segments; ++k)
        emitVertex(radius, kept ? kept[k] : directionOf(k, segments));
}

} // namespace

void drawCircle(float radius, unsigned int segments)
{
    emitCircle(GL_LINE_LOOP, radius, segments);
}

void drawDisc(float radius, unsigned int segments)
{
    emitCircle(GL_POLYGON, radius, segments);
}

} // namespace tarvox::crowd
