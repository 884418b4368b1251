// Spheres: three great circles as wires, and bands of latitude.
#include "rendering/tvxDrawing.h"

#include "rendering/tvxDrawingNumbers.h"
#include "rendering/tvxGLScopes.h"

#include <cmath>
#include <cstdint>

namespace tarvox::crowd {

namespace {

/// A circle of latitude.
struct Ring
{
    float z;
    float radius;
};

Ring latitudeRing(int ring, int stacks, float sphereRadius)
{
    const float latitude = (static_cast<float>(ring) / static_cast<float>(stacks) - 0.5f) * pi();
    return {sphereRadius * std::sin(latitude), sphereRadius * std::cos(latitude)};
}

void emitVertex(const Ring& ring, float x, float y)
{
    glNormal3f(x * ring.radius, y * ring.radius, ring.z);
    glVertex3f(x * ring.radius, y * ring.radius, ring.z);
}

void emitBand(const Ring& lower, const Ring& upper, int slices)
{
    const PrimitiveScope strip(GL_QUAD_STRIP);
    for (std::int64_t j = 0; j <= slices; ++j) {
        const float longitude = static_cast<float>(j - 1) * twoPi() / static_cast<float>(slices);
        const float x = std::cos(longitude);
        const float y = std::sin(longitude);
        emitVertex(lower, x, y);
        emitVertex(upper, x, y);
    }
}

} // namespace

void drawWireSphere(float radius, unsigned int segments)
{
    const MatrixScope turned;
    drawCircle(radius, segments);
    glRotatef(90, 1, 0, 0);
    drawCircle(radius, segments);
    glRotatef(90, 1, 0, 0);
    glRotatef(90, 0, 0, 1);
    drawCircle(radius, segments);
}

void drawSphere(float radius, int stacks, int slices, float fraction)
{
    const int bands = roundHalfDown(static_cast<float>(stacks) * fraction);
    for (int band = 1; band <= bands; ++band)
        emitBand(latitudeRing(band - 1, stacks, radius), latitudeRing(band, stacks, radius), slices);
}

} // namespace tarvox::crowd
