// Flat faces, filled or as wires: a pyramid without a base, and a rectangle.
#include "rendering/tvxDrawing.h"

#include "rendering/tvxGLScopes.h"

namespace tarvox::crowd {

namespace {

/// Polygons filled or as wires while it lives; then as they were.
class PolygonModeScope
{
public:
    explicit PolygonModeScope(bool filled) : m_callersMode(GL_POLYGON_BIT)
    {
        glPolygonMode(GL_FRONT_AND_BACK, filled ? GL_FILL : GL_LINE);
    }

private:
    AttributeScope m_callersMode;
};

} // namespace

void drawPyramid(float halfBase, float height, bool filled)
{
    const PolygonModeScope mode(filled);
    const PrimitiveScope fan(GL_TRIANGLE_FAN);
    glVertex3f(0, 0, height);
    glVertex3f(halfBase, halfBase, 0);
    glVertex3f(halfBase, -halfBase, 0);
    glVertex3f(-halfBase, -halfBase, 0);
    glVertex3f(-halfBase, halfBase, 0);
    glVertex3f(halfBase, halfBase, 0);
}

void drawRectangle(float halfX, float y, float halfZ, bool filled)
{
    const PolygonModeScope mode(filled);
    const PrimitiveScope quad(GL_QUADS);
    glVertex3f(-halfX, y, -halfZ);
    glVertex3f(-halfX, y, halfZ);
    glVertex3f(halfX, y, halfZ);
    glVertex3f(halfX, y, -halfZ);
}

} // namespace tarvox::crowd
