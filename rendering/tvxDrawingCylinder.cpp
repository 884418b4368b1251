// The upright cylinder.
#include "rendering/tvxDrawing.h"

#include "rendering/tvxDrawingNumbers.h"
#include "rendering/tvxGLScopes.h"

#include <cmath>
#include <cstdint>

namespace tarvox::crowd {

namespace {

void emitSide(float radius, float height, unsigned int segments)
{
    const float step = twoPi() / static_cast<float>(segments);
    float angle = 0;
    const PrimitiveScope strip(GL_QUAD_STRIP);
    // Read as signed: counts that large would otherwise keep the drawing thread for minutes.
    const std::int64_t last = static_cast<int>(segments);
    for (std::int64_t pair = 0; pair <= last; ++pair) {
        const float x = radius * std::cos(angle);
        const float z = radius * std::sin(angle);
        glVertex3f(x, 0, z);
        glVertex3f(x, height, z);
        angle += step;
    }
}

void drawCaps(float radius, float height, unsigned int segments)
{
    const MatrixScope both;
    {
        const MatrixScope bottom;
        drawDisc(radius, segments);
    }
    const MatrixScope top;
    glTranslatef(0, height, 0);
    drawDisc(radius, segments);
}

} // namespace

void drawCylinder(float radius, float height, unsigned int segments, bool capped)
{
    emitSide(radius, height, segments);
    if (capped)
        drawCaps(radius, height, segments);
}

} // namespace tarvox::crowd
