// Lines along the axes: a cross, and the coloured axes themselves.
#include "rendering/tvxDrawing.h"

#include "rendering/tvxGLScopes.h"

namespace tarvox::crowd {

void drawCross(float sizeX, float sizeZ, float sizeY)
{
    const float halfX = sizeX * 0.5f;
    const float halfY = sizeY * 0.5f;
    const float halfZ = sizeZ * 0.5f;
    const PrimitiveScope lines(GL_LINES);
    glVertex3f(-halfX, 0, 0);
    glVertex3f(halfX, 0, 0);
    glVertex3f(0, 0, halfZ);
    glVertex3f(0, 0, -halfZ);
    glVertex3f(0, halfY, 0);
    glVertex3f(0, -halfY, 0);
}

void drawAxes(float length)
{
    const AttributeScope callersColor(GL_CURRENT_BIT);
    const PrimitiveScope lines(GL_LINES);
    glColor3f(1, 0, 0);
    glVertex3f(0, 0, 0);
    glVertex3f(length, 0, 0);
    glColor3f(0, 1, 0);
    glVertex3f(0, 0, 0);
    glVertex3f(0, length, 0);
    glColor3f(0, 0, 1);
    glVertex3f(0, 0, 0);
    glVertex3f(0, 0, length);
}

} // namespace tarvox::crowd
