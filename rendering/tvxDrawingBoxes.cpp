// Boxes: as wires about the origin, and solid on the ground.
#include "rendering/tvxDrawing.h"

#include "rendering/tvxGLScopes.h"

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

enum class Level
{
    kGround,
    kTop
};

struct Corner
{
    float signX;
    Level level;
    float signZ;
};

constexpr Corner kSolidBoxFaces[6][4] = {
    {{1, Level::kTop, -1}, {-1, Level::kTop, -1}, {-1, Level::kTop, 1}, {1, Level::kTop, 1}},
    {{1, Level::kGround, 1}, {-1, Level::kGround, 1}, {-1, Level::kGround, -1}, {1, Level::kGround, -1}},
    {{1, Level::kTop, 1}, {-1, Level::kTop, 1}, {-1, Level::kGround, 1}, {1, Level::kGround, 1}},
    {{1, Level::kGround, -1}, {-1, Level::kGround, -1}, {-1, Level::kTop, -1}, {1, Level::kTop, -1}},
    {{-1, Level::kTop, 1}, {-1, Level::kTop, -1}, {-1, Level::kGround, -1}, {-1, Level::kGround, 1}},
    {{1, Level::kTop, -1}, {1, Level::kTop, 1}, {1, Level::kGround, 1}, {1, Level::kGround, -1}},
};

} // namespace

void drawWireBox(float sizeX, float sizeZ, float sizeY)
{
    const float halfX = sizeX * 0.5f;
    const float halfY = sizeY * 0.5f;
    const float halfZ = sizeZ * 0.5f;
    const PrimitiveScope lines(GL_LINES);
    emitRectangleEdges(halfX, halfY, halfZ);
    emitRectangleEdges(halfX, halfY, -halfZ);
    for (const float* signs : kCornerSigns) {
        glVertex3f(signs[0] * halfX, signs[1] * halfY, halfZ);
        glVertex3f(signs[0] * halfX, signs[1] * halfY, -halfZ);
    }
}

void drawSolidBox(float sizeX, float height, float sizeZ)
{
    const float halfX = sizeX * 0.5f;
    const float halfZ = sizeZ * 0.5f;
    const PrimitiveScope quads(GL_QUADS);
    for (const auto& face : kSolidBoxFaces)
        for (const Corner& corner : face)
            glVertex3f(corner.signX * halfX, corner.level == Level::kTop ? height : 0, corner.signZ * halfZ);
}

} // namespace tarvox::crowd
