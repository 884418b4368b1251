// Boxes: as wires and solid, and the cross of their axes.
#include "rendering/tvxDrawing.h"

#include "rendering/tvxGL.h"

namespace tarvox::crowd {

namespace {

// The corners of a rectangle about the origin, counter-clockwise from the one where both are positive.
constexpr float kCornerSigns[4][2] = {{1, 1}, {-1, 1}, {-1, -1}, {1, -1}};

void emitRectangleEdges(float halfX, float halfY, float z)
{
    for (int edge = 0; edge < 4; ++edge)
        for (int end = 0; end < 2; ++end) {
            const float* signs = kCornerSigns[(edge + end) % 4];
            glVertex3f(signs[0] * halfX, signs[1] * halfY, z);
        }
}

} // namespace

void drawWireBox(float sizeX, float sizeZ, float sizeY)
{
    const float halfX = sizeX * 0.5f;
    const float halfY = sizeY * 0.5f;
    const float halfZ = sizeZ * 0.5f;
    glBegin(GL_LINES);
    emitRectangleEdges(halfX, halfY, halfZ);
    emitRectangleEdges(halfX, halfY, -halfZ);
    for (const float* signs : kCornerSigns) {
        glVertex3f(signs[0] * halfX, signs[1] * halfY, halfZ);
        glVertex3f(signs[0] * halfX, signs[1] * halfY, -halfZ);
    }
    glEnd();
}

} // namespace tarvox::crowd
