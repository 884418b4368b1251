// One use of each family of MayaUtils.
#include "families.h"

#include "core/utils/tvxMayaUtils.h"

#include <sstream>
#include <vector>

using tarvox::core::Vector2;
using tarvox::crowd::MayaUtils;

namespace crowdUtilities {

namespace {

std::string namesOf(const std::vector<MObject>& nodes)
{
    std::string names;
    for (const MObject& node : nodes)
        names += std::string(" ") + MFnDependencyNode(node, nullptr).name().asChar();
    return names;
}

} // namespace

std::string attributes(const MObject& node)
{
    const double height = MayaUtils::getDoubleAttribute(node, "translateY");
    MayaUtils::setDoubleAttribute(node, "translateY", 2.0 * height);
    MMatrix world;
    MayaUtils::getMatrixAttribute(node, "worldMatrix", world);

    std::ostringstream text;
    text << "from " << height << " to " << world[3][1];
    return text.str();
}

std::string particle(const MObject& shape, unsigned int index)
{
    MStatus status;
    const double mass = MayaUtils::getDoubleAttributePP(shape, "mass", index, &status);
    if (!status)
        return "no such particles";
    const MVector position = MayaUtils::getVectorAttributePP(shape, "position", index, &status);
    if (!status)
        return "no such particle";

    std::ostringstream text;
    text << "mass " << mass << " at " << position.x << " " << position.y << " " << position.z;
    return text.str();
}

std::string placement(const MObject& shape)
{
    MStatus status;
    const MVector position = MayaUtils::getWorldTranslation(shape, &status);
    if (!status || !MayaUtils::setWorldPosition(shape, MVector(0.0, position.y, 0.0)))
        return "not placed"; // the log tells why

    const bool visible = MayaUtils::isVisible(MFnDagNode(shape, nullptr), &status);
    std::ostringstream text;
    text << "at " << MayaUtils::getWorldTranslation(shape, &status).y << (visible ? ", seen" : ", hidden");
    return text.str();
}

std::string connections(const MObject& node)
{
    std::vector<MObject> sources;
    MayaUtils::findConnectedNodesOnPlug(node, "translateX", sources);
    for (const MObject& source : sources)
        MayaUtils::disconnectAll(source);

    std::vector<MObject> left;
    MayaUtils::findConnectedNodesOnPlug(node, "translateX", left);
    return "fed by" + namesOf(sources) + ", then by" + (left.empty() ? " nobody" : namesOf(left));
}

std::string meshes()
{
    std::vector<MObject> selected;
    MayaUtils::getSelectedMeshes(selected, true); // an empty selection is told in the log
    for (const MObject& mesh : selected) {
        const std::string name = MFnDependencyNode(mesh, nullptr).name().asChar();
        MayaUtils::setStringAttributeByCommand(name, "crowdNote", "Crowd note", "renders with the crowd");
    }
    return "meshes:" + namesOf(selected);
}

std::string files()
{
    const std::string folder = MayaUtils::getWorkspacePath() + "/crowd";
    if (!MayaUtils::createDirectory(folder, false))
        return "no folder for the crowd";
    return "a folder for " + MayaUtils::getSceneShortName(true);
}

std::string windows()
{
    int top = 0, left = 0, width = 320, height = 200; // when the window was never open
    MayaUtils::getWindowPreference("crowdWindow", top, left, width, height);
    MayaUtils::restoreWindowPreference("crowdWindow", top + 10, left + 20, width, height);

    std::ostringstream text;
    text << "from " << top << " " << left << ", " << width << " by " << height;
    return text.str();
}

std::string units()
{
    const MVector metre = MayaUtils::internalToUIUnits(MVector(100.0, 0.0, 0.0));
    std::ostringstream text;
    text << "a frame is " << MayaUtils::getFrameDuration() << " s, a metre is " << metre.x;
    return text.str();
}

std::string geometry(const MDagPath& mesh)
{
    std::vector<Vector2<float>> outline;
    const bool open = MayaUtils::getMeshBoundary(mesh, outline) == MStatus::kSuccess;
    std::vector<Vector2<float>> footprint;
    MayaUtils::getMeshConvexHull(mesh, footprint);

    std::ostringstream text;
    text << (open ? "open, " : "closed, ") << outline.size() << " border edges; footprint";
    for (const Vector2<float>& corner : footprint)
        text << " (" << corner.x << ", " << corner.y << ")";
    return text.str();
}

} // namespace crowdUtilities
