// Painter: grid, shapes and axes, one after the other.
#include "painter.h"

#include "api/support/access.h"
#include "drawing.h"
#include "engine/mesh.h"
#include "glBalance.h"

#include <maya/M3dView.h>
#include <maya/MDagPath.h>
#include <maya/MPxLocatorNode.h>

#include <GL/gl.h>

namespace tvxhost::viewport {

using engine::Matrix;
using engine::MeshData;
using engine::Vec3d;

namespace {

/// Three numbers of a node; `otherwise` when it has no such attribute.
Vec3d tripleOf(engine::DagNode& node, const char* attribute, const Vec3d& otherwise)
{
    const auto plug = node.findPlug(attribute);
    if (!plug)
        return otherwise;
    const auto numbers = engine::readNumbers(plug.value);
    if (!numbers || numbers.value.size() != 3)
        return otherwise;
    return {numbers.value[0], numbers.value[1], numbers.value[2]};
}

/// The drawing code of a plug-in's locator; null when the plug-in gave none.
MPxLocatorNode* locatorOf(const engine::DagNode& shape)
{
    auto* node = static_cast<MPxNode*>(shape.behaviour()->apiObject());
    return dynamic_cast<MPxLocatorNode*>(node);
}

} // namespace

Painter::Painter(engine::Scene& scene, const Matrix& view, const Matrix& projection, int width, int height)
    : m_scene(scene), m_view(view), m_projection(projection), m_width(width), m_height(height)
{
}

void Painter::paint()
{
    prepare();
    drawGrid();
    for (const DrawItem& item : drawList(m_scene))
        paint(item);
    drawViewAxes(m_view, m_width, m_height);
    glFinish();
}

void Painter::prepare()
{
    glViewport(0, 0, m_width, m_height);
    glEnable(GL_DEPTH_TEST);
    // What lies exactly on the grid is drawn over it.
    glDepthFunc(GL_LEQUAL);
    glDisable(GL_LIGHTING);
    glDisable(GL_DITHER);
    clearPicture();
    glMatrixMode(GL_PROJECTION);
    glLoadMatrixd(&m_projection[0][0]);
    place(Matrix());
}

void Painter::place(const Matrix& world)
{
    const Matrix modelView = world * m_view;
    glMatrixMode(GL_MODELVIEW);
    glLoadMatrixd(&modelView[0][0]);
}

void Painter::paint(const DrawItem& item)
{
    place(item.matrix);
    setColor(wireColor(item.status));
    switch (item.kind) {
    case DrawKind::wire:
        return paintWire(item);
    case DrawKind::cross:
        return paintCross(item);
    case DrawKind::plugin:
        return paintPlugin(item);
    }
}

void Painter::paintWire(const DrawItem& item)
{
    // A mesh may be without geometry.
    if (const MeshData* mesh = engine::meshOf(*item.path.node()))
        drawWire(*mesh, wireOf(*mesh));
}

void Painter::paintCross(const DrawItem& item)
{
    engine::DagNode& locator = *item.path.node();
    drawLocatorCross(tripleOf(locator, "localPosition", Vec3d(0, 0, 0)),
                     tripleOf(locator, "localScale", Vec3d(1, 1, 1)));
}

void Painter::paintPlugin(const DrawItem& item)
{
    MPxLocatorNode* locator = locatorOf(*item.path.node());
    if (!locator)
        return;
    glPushAttrib(GL_ALL_ATTRIB_BITS);
    glPushClientAttrib(GL_CLIENT_ALL_ATTRIB_BITS);
    const GlBalance balance;
    M3dView view = M3dView::active3dView();
    locator->draw(view, tvxAccess::dagPath(item.path), M3dView::kWireFrame, item.status);
    const std::string complaints = balance.checkAndRepair();
    glPopClientAttrib();
    glPopAttrib();
    if (!complaints.empty())
        blame(*item.path.node(), complaints);
}

void Painter::blame(const engine::Node& node, const std::string& complaints)
{
    if (m_blamed.insert(node.type().name).second)
        m_scene.scriptEditor().warning("The draw function of " + node.type().name + " (\"" + node.name() +
                                       "\") left OpenGL in disorder: " + complaints);
}

const std::vector<unsigned>& Painter::wireOf(const MeshData& mesh)
{
    const auto [found, isNew] = m_wires.try_emplace(&mesh);
    if (isNew)
        found->second = wireIndices(mesh);
    return found->second;
}

} // namespace tvxhost::viewport
