// Where nodes are, and whether they are seen.
#include "core/utils/tvxMayaUtils.h"

#include "core/utils/tvxMayaCompat.h"
#include "core/utils/tvxTrace.h"

#include <maya/MFnTransform.h>
#include <maya/MGlobal.h>
#include <maya/MPlug.h>
#include <maya/MSpace.h>

#include <locale>
#include <optional>
#include <ostream>
#include <sstream>

namespace tarvox::crowd {

namespace {

/// A node and its first parent.
struct NodeAndParent
{
    std::optional<MFnDagNode> node;
    MObject parentObject;
    std::optional<MFnDagNode> parent;
};

/// Attaches to a node and to its first parent; the first step that fails is reported.
MStatus attach(const char* member, const MObject& node, NodeAndParent& both)
{
    MStatus status;
    both.node.emplace(node, &status);
    if (!status)
        TVX_FAIL(member, status.errorString());
    both.parentObject = both.node->parent(0, &status);
    if (!status)
        TVX_FAIL(member, status.errorString());
    both.parent.emplace(both.parentObject, &status);
    if (!status)
        TVX_FAIL(member, status.errorString());
    return MStatus::kSuccess;
}

/// Runs a command, shown in the script editor and not to be undone.
MStatus run(const std::string& command)
{
    return MGlobal::executeCommand(command.c_str(), true, false);
}

/// Selects what was selected before; `message` is then that of the failure.
MStatus restoreSelection(const MStringArray& names, const char*& message)
{
    if (names.length() == 0) {
        message = "ERROR in utils::moveNodeByCommand, execute select -clean.";
        return run("select -clear");
    }
    std::string command = "select -r ";
    for (unsigned int i = 0; i < names.length(); ++i)
        command += std::string("\"") + names[i].asChar() + "\" ";
    message = "ERROR in utils::moveNodeByCommand, execute select -r previousSelection.";
    return run(command);
}

/// Reads something of the transform of a node, with the status that the public members give.
template <class Read>
MVector readTransform(const MObject& node, MStatus* status, Read read)
{
    MDagPath path;
    MVector value;
    MStatus result = MayaUtils::getTransform(node, path);
    if (result) {
        const MFnTransform transform(path, &result);
        if (result)
            value = read(transform, result);
    }
    if (status)
        *status = result;
    return result ? value : MVector();
}

bool reportIfPlainFailure(const MStatus& status)
{
    if (status != MStatus::kFailure)
        return false;
    TVX_REPORT(core::kError, TVX_UTILS_MEMBER("isVisible"), "MayaUtils::isVisible:" << status.errorString());
    return true;
}

} // namespace

MStatus MayaUtils::getTransform(const MObject& node, MDagPath& path)
{
    constexpr char member[] = TVX_UTILS_MEMBER("getTransform");
    NodeAndParent both;
    MStatus status = attach(member, node, both);
    if (!status)
        return status;
    if (node.hasFn(MFn::kTransform))
        status = both.node->getPath(path);
    else if (both.parentObject.hasFn(MFn::kTransform))
        status = both.parent->getPath(path);
    else
        TVX_FAIL(member, "ERROR in utils::getTransform, object does not have a transform attached.");
    if (!status)
        TVX_FAIL(member, "ERROR in utils::getTransform, dagNode.getPath().");
    return status;
}

// The texts carry the name that the member had once.
MStatus MayaUtils::setWorldPosition(const MObject& node, const MVector& offset)
{
    constexpr char member[] = TVX_UTILS_MEMBER("setWorldPosition");
    NodeAndParent both;
    MStatus status = attach(member, node, both);
    if (!status)
        return status;
    if (!both.parentObject.hasFn(MFn::kTransform))
        TVX_FAIL(member, "ERROR in utils::moveNodeByTransform, object does not have a transform attached.");
    MDagPath path;
    status = both.parent->getPath(path);
    if (!status)
        TVX_FAIL(member, "ERROR in utils::moveNodeByTransform, dagNode.getPath().");
    MFnTransform transform(path, &status);
    if (!status)
        TVX_FAIL(member, "ERROR in utils::moveNodeByTransform, getting transform node.");
    status = transform.translateBy(offset, MSpace::kWorld);
    if (!status)
        TVX_FAIL(member, "ERROR in utils::moveNodeByTransform, translateBy.");
    return status;
}

MStatus MayaUtils::moveNodeByCommand(const MFnDependencyNode& node, double x, double y, double z)
{
    constexpr char member[] = TVX_UTILS_MEMBER("moveNodeByCommand");
    MStringArray selected;
    MStatus status = MGlobal::executeCommand("ls -sl", selected, true, false);
    if (!status)
        TVX_FAIL(member, "ERROR in utils::moveNodeByCommand, execute ls -sl.");
    status = run(std::string("select -r ") + node.name().asChar());
    if (!status)
        TVX_FAIL(member, "ERROR in utils::moveNodeByCommand, execute select -r nodeToMove.");
    std::ostringstream move;
    move.imbue(std::locale::classic());
    move << "move -r " << x << " " << y << " " << z;
    status = run(move.str());
    if (!status)
        TVX_FAIL(member, "ERROR in utils::moveNodeByCommand, execute move -r ...");
    const char* message = nullptr;
    status = restoreSelection(selected, message);
    if (!status)
        TVX_FAIL(member, message);
    return status;
}

MStatus MayaUtils::forceLocalAxisDisplay(const MObject& node)
{
    constexpr char member[] = TVX_UTILS_MEMBER("forceLocalAxisDisplay");
    MStatus status;
    const MFnDagNode dagNode(node, &status);
    if (!status)
        TVX_FAIL(member, status.errorString());
    if (dagNode.parentCount() == 0)
        TVX_FAIL(member, "ERROR in forceLocalAxisDisplay(), no parent transform");
    const MObject parentObject = dagNode.parent(0, &status);
    if (!status)
        TVX_FAIL(member, status.errorString());
    const MFnDagNode parent(parentObject, &status);
    if (!status)
        TVX_FAIL(member, status.errorString());
    MPlug plug = compat::findPlug(parent, MString("displayLocalAxis"), &status);
    if (!status)
        TVX_FAIL(member, status.errorString());
    status = plug.setValue(1);
    if (!status)
        TVX_FAIL(member, status.errorString());
    return MStatus::kSuccess;
}

bool MayaUtils::isVisible(const MFnDagNode& node, MStatus* status)
{
    MStatus unasked;
    MStatus& result = status ? *status : unasked;
    if (node.isIntermediateObject())
        return false;
    const MPlug plug = compat::findPlug(node, MString("visibility"), &result);
    if (reportIfPlainFailure(result))
        return false;
    bool visible = false;
    result = plug.getValue(visible);
    reportIfPlainFailure(result);
    for (unsigned int i = 0; visible && i < node.parentCount(); ++i) {
        const MFnDagNode parent(node.parent(i), &result);
        visible = result && isVisible(parent, &result);
    }
    return visible;
}

MObject MayaUtils::findParentOfType(const MFnDagNode& node, MFn::Type type)
{
    MObject found;
    for (unsigned int i = 0; found.isNull() && i < node.parentCount(); ++i) {
        const MObject parent = node.parent(i);
        found = parent.apiType() == type ? parent : findParentOfType(MFnDagNode(parent, nullptr), type);
    }
    return found;
}

MVector MayaUtils::getWorldTranslation(const MObject& node, MStatus* status)
{
    return readTransform(node, status, [](const MFnTransform& transform, MStatus& result) {
        return transform.getTranslation(MSpace::kWorld, &result);
    });
}

MVector MayaUtils::getWorldRotatePivot(const MObject& node, MStatus* status)
{
    return readTransform(node, status, [](const MFnTransform& transform, MStatus& result) {
        const MPoint pivot = transform.rotatePivot(MSpace::kWorld, &result);
        return MVector(pivot.x, pivot.y, pivot.z);
    });
}

MVector MayaUtils::getTransformScale(const MObject& node, MStatus* status)
{
    return readTransform(node, status, [](const MFnTransform& transform, MStatus& result) {
        double scale[3] = {0.0, 0.0, 0.0};
        result = transform.getScale(scale);
        return MVector(scale[0], scale[1], scale[2]);
    });
}

} // namespace tarvox::crowd
