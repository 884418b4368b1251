// The RenderMan Studio proxy node.
#include "rendering/tvxCrowdProxyRendermanStudio.h"

#include "rendering/tvxDrawing.h"
#include "rendering/tvxGLScopes.h"
#include "rendering/tvxLocatorDrawing.h"
#include "rendering/tvxNodeAttributes.h"
#include "rendering/tvxShapeName.h"

#include <new>

namespace tarvox::crowd {

namespace {

// The emblem's own unit, in scene units.
constexpr float kEmblemUnit = 0.012f;

struct GroundPoint
{
    double x;
    double z;
};

constexpr GroundPoint kOutline[] = {
    {4, 3},    {13, 30}, {20, 66},  {25, 86},  {28, 112}, {31, 147}, {32, 187}, {43, 187}, {44, 147},
    {46, 120}, {50, 86}, {53, 74},  {57, 61},  {62, 51},  {68, 46},  {79, 46},  {84, 47},  {90, 52},
    {95, 56},  {98, 50}, {101, 46}, {107, 41}, {112, 38}, {104, 30}, {95, 24},  {84, 18},  {71, 18},
    {62, 22},  {56, 28}, {52, 34},  {49, 40},  {46, 47},  {41, 59},  {39, 71},  {36, 86},  {33, 72},
    {31, 65},  {28, 57}, {24, 45},  {20, 34},  {15, 24},  {11, 15}};

void drawOutline(M3dView::DisplayStatus status)
{
    const PrimitiveScope outline(GL_LINE_LOOP);
    setProxyColor(status);
    for (const GroundPoint& point : kOutline)
        glVertex3d(point.x, 0, point.z);
}

void drawHead()
{
    glTranslatef(120, 0, 63);
    const MatrixScope head;
    drawCircle(21, 64);
}

} // namespace

const MTypeId CrowdProxyRendermanStudio::id(0x1168E0);

MObject CrowdProxyRendermanStudio::sceneName;
MObject CrowdProxyRendermanStudio::frame;
MObject CrowdProxyRendermanStudio::frameRate;
MObject CrowdProxyRendermanStudio::ribFileDir;

void* CrowdProxyRendermanStudio::creator()
{
    return new (std::nothrow) CrowdProxyRendermanStudio;
}

MStatus CrowdProxyRendermanStudio::initialize()
{
    const NodeAttributes make("tarvox::crowd::CrowdProxyRendermanStudio::initialize");
    TVX_REQUIRE(make.string(sceneName, "sceneName", "scn", kInput));
    TVX_REQUIRE(make.integer(frame, "frame", "cfr", 0, kInput));
    TVX_REQUIRE(make.number(frameRate, "frameRate", "fr", 0.0, kInput));
    TVX_REQUIRE(make.string(ribFileDir, "ribFileDir", "rfd", kInput));
    return MStatus::kSuccess;
}

void CrowdProxyRendermanStudio::postConstructor()
{
    nameShape(thisMObject(), "crowdProxyRMSShape");
}

void CrowdProxyRendermanStudio::draw(M3dView& view, const MDagPath& /*path*/, M3dView::DisplayStyle /*style*/,
                                     M3dView::DisplayStatus status)
{
    const LocatorDrawing drawing(view);
    glScalef(kEmblemUnit, kEmblemUnit, kEmblemUnit);
    glRotatef(180, 0, 1, 0);
    drawOutline(status);
    drawHead();
}

} // namespace tarvox::crowd
