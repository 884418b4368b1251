// The upright capsule.
#include "rendering/tvxDrawing.h"

#include "rendering/tvxGLScopes.h"

namespace tarvox::crowd {

namespace {

/// The half of a sphere below z = 0, turned about X.
void drawHalfSphere(float radius, unsigned int segments, float degreesAboutX)
{
    const MatrixScope turned;
    glRotatef(degreesAboutX, 1, 0, 0);
    const int signedSegments = static_cast<int>(segments);
    drawSphere(radius, signedSegments, signedSegments, 0.5f);
}

} // namespace

void drawCapsule(float radius, float height, unsigned int segments)
{
    const MatrixScope whole;
    drawHalfSphere(radius, segments, -90);
    drawCylinder(radius, height, segments, false);
    glTranslatef(0, height, 0);
    drawHalfSphere(radius, segments, 90);
}

} // namespace tarvox::crowd
