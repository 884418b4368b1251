// Drawing: grid, axes, wires and crosses in immediate-mode GL.
#include "drawing.h"

#include <GL/gl.h>

#include <algorithm>

namespace tvxhost::viewport {

using engine::Matrix;
using engine::MeshData;
using engine::Vec3d;

namespace {

constexpr int kGridHalfSize = 12;
constexpr int kAxesPixels = 64;

void line(const Vec3d& from, const Vec3d& to)
{
    glVertex3d(from.x, from.y, from.z);
    glVertex3d(to.x, to.y, to.z);
}

void gridLinePair(double offset)
{
    line({offset, 0, -kGridHalfSize}, {offset, 0, kGridHalfSize});
    line({-kGridHalfSize, 0, offset}, {kGridHalfSize, 0, offset});
}

} // namespace

void setColor(const MColor& color)
{
    glColor4f(color.r, color.g, color.b, 1.0f);
}

void clearPicture()
{
    const MColor background = backgroundColor();
    glClearColor(background.r, background.g, background.b, 1.0f);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

void drawGrid()
{
    glBegin(GL_LINES);
    setColor(gridAxisColor());
    gridLinePair(0);
    setColor(gridColor());
    for (int i = 1; i <= kGridHalfSize; ++i) {
        gridLinePair(i);
        gridLinePair(-i);
    }
    glEnd();
}

void drawViewAxes(const Matrix& view, int width, int height)
{
    const int side = std::min({kAxesPixels, width, height});
    Matrix turn = view;
    for (int axis = 0; axis < 3; ++axis)
        turn[3][axis] = 0;
    glPushAttrib(GL_VIEWPORT_BIT | GL_DEPTH_BUFFER_BIT);
    glViewport(0, 0, side, side);
    glDisable(GL_DEPTH_TEST);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(-1.4, 1.4, -1.4, 1.4, -2, 2);
    glMatrixMode(GL_MODELVIEW);
    glLoadMatrixd(&turn[0][0]);
    glBegin(GL_LINES);
    glColor4f(1, 0, 0, 1);
    line({0, 0, 0}, {1, 0, 0});
    glColor4f(0, 1, 0, 1);
    line({0, 0, 0}, {0, 1, 0});
    glColor4f(0, 0, 1, 1);
    line({0, 0, 0}, {0, 0, 1});
    glEnd();
    glPopAttrib();
}

std::vector<unsigned> wireIndices(const MeshData& mesh)
{
    const auto points = static_cast<std::int64_t>(mesh.points.size());
    const auto exists = [points](std::int32_t i) { return i >= 0 && i < points; };
    std::vector<unsigned> indices;
    indices.reserve(mesh.edges.size() * 2);
    for (const MeshData::Edge& edge : mesh.edges) {
        if (!exists(edge.from) || !exists(edge.to))
            continue;
        indices.push_back(static_cast<unsigned>(edge.from));
        indices.push_back(static_cast<unsigned>(edge.to));
    }
    return indices;
}

void drawWire(const MeshData& mesh, const std::vector<unsigned>& indices)
{
    if (indices.empty())
        return;
    glEnableClientState(GL_VERTEX_ARRAY);
    glVertexPointer(3, GL_FLOAT, sizeof(engine::Vec3f), mesh.points.data());
    glDrawElements(GL_LINES, static_cast<GLsizei>(indices.size()), GL_UNSIGNED_INT, indices.data());
    glDisableClientState(GL_VERTEX_ARRAY);
}

void drawLocatorCross(const Vec3d& position, const Vec3d& scale)
{
    glBegin(GL_LINES);
    for (const Vec3d& half : {Vec3d(scale.x, 0, 0), Vec3d(0, scale.y, 0), Vec3d(0, 0, scale.z)})
        line(position - half, position + half);
    glEnd();
}

} // namespace tvxhost::viewport
