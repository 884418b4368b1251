// The marker that shows where something is heading.
#include "rendering/tvxDrawing.h"

#include "rendering/tvxDrawingNumbers.h"
#include "rendering/tvxGLScopes.h"

#include <algorithm>
#include <cmath>

namespace tarvox::crowd {

namespace {

/// A vertex on the -X side of the circle, at an angle from -X towards +Z.
void emitBackVertex(float radius, float angle)
{
    glVertex3d(-radius * std::cos(angle), 0, radius * std::sin(angle));
}

void drawArrowHead(float radius, int backSegments)
{
    static const float eighthTurn = quarterPi();
    static const float quarterTurn = halfPi();
    const PrimitiveScope outline(GL_LINE_LOOP);
    emitBackVertex(radius, eighthTurn - quarterTurn);
    glVertex3d(radius, 0, 0);
    emitBackVertex(radius, eighthTurn);
    for (int i = 0; i < backSegments; ++i)
        emitBackVertex(radius,
                       eighthTurn - static_cast<float>(i) * quarterTurn / static_cast<float>(backSegments));
}

} // namespace

void drawHeadingMarker(float radius, int segments)
{
    drawArrowHead(radius, segments / 4);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glDepthMask(GL_FALSE);
    drawDisc(radius, static_cast<unsigned int>(std::max(segments, 0)));
    glPopMatrix(); // the caller's: see the contract
    glDisable(GL_BLEND);
    glDepthMask(GL_TRUE);
}

} // namespace tarvox::crowd
