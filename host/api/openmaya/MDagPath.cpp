// MDagPath: one place of a node in the hierarchy.
#include <maya/MDagPath.h>
#include <maya/MDagPathArray.h>
#include <maya/MMatrix.h>

#include "engine/instancing.h"
#include "engine/scene.h"
#include "support/apiCall.h"
#include "support/apiTypes.h"
#include "support/displayStatus.h"
#include "support/handles.h"
#include "support/matrix4.h"

#include <algorithm>

using namespace tvxhost;
using api::failure;
using api::StatusText;
using engine::DagNode;

namespace {

/// The path, when it leads to a living node; says so to the caller.
const engine::DagPath* valid(const engine::DagPath* path, MStatus* status)
{
    const bool isValid = path && path->isValid();
    api::give(status, isValid ? MStatus() : failure(StatusText::objectDoesNotExist));
    return isValid ? path : nullptr;
}

std::vector<DagNode*> shapesBelow(const engine::DagPath& path)
{
    std::vector<DagNode*> shapes;
    const auto& children = path.node()->children();
    std::copy_if(children.begin(), children.end(), std::back_inserter(shapes),
                 [](const DagNode* child) { return child->isShape(); });
    return shapes;
}

MMatrix toApi(const engine::Matrix& matrix)
{
    return api::fromImath<MMatrix>(matrix);
}

/// Why an object cannot be the end of a path.
MStatus notInDag(const MObject& node)
{
    return failure(node.isNull() ? StatusText::nullArgument : StatusText::objectIsIncompatible);
}

} // namespace

MDagPath::MDagPath() : path(nullptr) {}

MDagPath::MDagPath(const MDagPath& src) : path(src.path ? new engine::DagPath(*src.path) : nullptr) {}

MDagPath::~MDagPath()
{
    delete path;
}

MDagPath& MDagPath::operator=(const MDagPath& src)
{
    if (!src.path)
        delete std::exchange(path, nullptr);
    else if (path)
        *path = *src.path;
    else
        path = new engine::DagPath(*src.path);
    return *this;
}

MStatus MDagPath::getAllPathsTo(const MObject& node, MDagPathArray& pathArray)
{
    TVX_API_CALL("MDagPath::getAllPathsTo");
    DagNode* target = api::dagNodeOf(node);
    if (!target)
        return notInDag(node);
    pathArray.clear();
    for (const engine::DagPath& each : engine::DagPath::allTo(*target))
        pathArray.append(tvxAccess::dagPath(each));
    return MS::kSuccess;
}

MStatus MDagPath::getAPathTo(const MObject& node, MDagPath& path)
{
    TVX_API_CALL("MDagPath::getAPathTo");
    DagNode* target = api::dagNodeOf(node);
    if (!target)
        return notInDag(node);
    tvxAccess::setDagPath(path, engine::DagPath::firstTo(*target));
    return MS::kSuccess;
}

MDagPath MDagPath::getAPathTo(const MObject& node, MStatus* ReturnStatus)
{
    MDagPath path;
    api::give(ReturnStatus, getAPathTo(node, path));
    return path;
}

bool MDagPath::hasFn(MFn::Type type, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::hasFn", ReturnStatus, false);
    const auto* place = valid(path, ReturnStatus);
    if (!place)
        return false;
    if (api::hasFn(place->node(), type))
        return true;
    const DagNode* shape = place->shapeBelow();
    return shape && api::hasFn(shape, type);
}

MFn::Type MDagPath::apiType(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::apiType", ReturnStatus, MFn::kInvalid);
    const auto* place = valid(path, ReturnStatus);
    return place ? api::apiTypeOf(place->node()) : MFn::kInvalid;
}

bool MDagPath::isValid(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::isValid", ReturnStatus, false);
    api::giveSuccess(ReturnStatus);
    return valid(path, nullptr);
}

MObject MDagPath::node(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::node", ReturnStatus, MObject());
    const auto* place = valid(path, ReturnStatus);
    return place ? tvxAccess::handle(place->node()) : MObject();
}

MObject MDagPath::transform(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::transform", ReturnStatus, MObject());
    const auto* place = valid(path, ReturnStatus);
    const DagNode* transform = place ? place->transform() : nullptr;
    if (place && !transform)
        api::give(ReturnStatus, failure(StatusText::objectIsIncompatible));
    return tvxAccess::handle(transform);
}

unsigned int MDagPath::length(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::length", ReturnStatus, 0);
    const auto* place = valid(path, ReturnStatus);
    return place ? static_cast<unsigned int>(place->length()) : 0;
}

MStatus MDagPath::extendToShape()
{
    TVX_API_CALL("MDagPath::extendToShape");
    MStatus status;
    const auto* place = valid(path, &status);
    if (!place || place->node()->isShape())
        return status;
    DagNode* shape = place->shapeBelow();
    return shape ? api::toStatus(path->push(*shape)) : failure(StatusText::unexpectedFailure);
}

MStatus MDagPath::extendToShapeDirectlyBelow(unsigned int i)
{
    TVX_API_CALL("MDagPath::extendToShapeDirectlyBelow");
    MStatus status;
    const auto* place = valid(path, &status);
    if (!place)
        return status;
    const std::vector<DagNode*> shapes = shapesBelow(*place);
    return i < shapes.size() ? api::toStatus(path->push(*shapes[i])) : failure(StatusText::noElementAtIndex);
}

MStatus MDagPath::numberOfShapesDirectlyBelow(unsigned int& count) const
{
    TVX_API_CALL("MDagPath::numberOfShapesDirectlyBelow");
    MStatus status;
    if (const auto* place = valid(path, &status))
        count = static_cast<unsigned int>(shapesBelow(*place).size());
    return status;
}

MStatus MDagPath::push(const MObject& child)
{
    TVX_API_CALL("MDagPath::push");
    MStatus status;
    if (!valid(path, &status))
        return status;
    DagNode* node = api::dagNodeOf(child);
    if (!node)
        return notInDag(child);
    return path->push(*node) ? MStatus() : failure(StatusText::objectIsIncompatible);
}

MStatus MDagPath::pop(unsigned int num)
{
    TVX_API_CALL("MDagPath::pop");
    MStatus status;
    if (!valid(path, &status))
        return status;
    return path->pop(num) ? MStatus() : failure(StatusText::unexpectedFailure);
}

unsigned int MDagPath::childCount(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::childCount", ReturnStatus, 0);
    const auto* place = valid(path, ReturnStatus);
    return place ? static_cast<unsigned int>(place->node()->children().size()) : 0;
}

MObject MDagPath::child(unsigned int i, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::child", ReturnStatus, MObject());
    const auto* place = valid(path, ReturnStatus);
    if (place && i < place->node()->children().size())
        return tvxAccess::handle(place->node()->childAt(i));
    if (place)
        api::give(ReturnStatus, failure(StatusText::noElementAtIndex));
    return MObject();
}

MMatrix MDagPath::inclusiveMatrix(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::inclusiveMatrix", ReturnStatus, MMatrix());
    const auto* place = valid(path, ReturnStatus);
    return place ? toApi(place->inclusiveMatrix()) : MMatrix();
}

MMatrix MDagPath::exclusiveMatrix(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::exclusiveMatrix", ReturnStatus, MMatrix());
    const auto* place = valid(path, ReturnStatus);
    return place ? toApi(place->exclusiveMatrix()) : MMatrix();
}

MMatrix MDagPath::inclusiveMatrixInverse(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::inclusiveMatrixInverse", ReturnStatus, MMatrix());
    const auto* place = valid(path, ReturnStatus);
    return place ? toApi(place->inclusiveMatrix().inverse()) : MMatrix();
}

MMatrix MDagPath::exclusiveMatrixInverse(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::exclusiveMatrixInverse", ReturnStatus, MMatrix());
    const auto* place = valid(path, ReturnStatus);
    return place ? toApi(place->exclusiveMatrix().inverse()) : MMatrix();
}

bool MDagPath::operator==(const MDagPath& src) const
{
    return path && src.path ? *path == *src.path : path == src.path;
}

MStatus MDagPath::set(const MDagPath& src)
{
    TVX_API_CALL("MDagPath::set");
    *this = src;
    return MS::kSuccess;
}

// No shape of the host has a space of its own for other nodes, so a path is always one piece.
unsigned int MDagPath::pathCount(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::pathCount", ReturnStatus, 0);
    return valid(path, ReturnStatus) ? 1 : 0;
}

MStatus MDagPath::getPath(MDagPath& target, unsigned int i) const
{
    TVX_API_CALL("MDagPath::getPath");
    MStatus status;
    if (!valid(path, &status))
        return status;
    if (i > 0)
        return failure(StatusText::noElementAtIndex);
    target = *this;
    return MS::kSuccess;
}

MString MDagPath::fullPathName(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::fullPathName", ReturnStatus, MString());
    const auto* place = valid(path, ReturnStatus);
    return place ? tvxAccess::string(place->fullName()) : MString();
}

MString MDagPath::partialPathName(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::partialPathName", ReturnStatus, MString());
    const auto* place = valid(path, ReturnStatus);
    return place ? tvxAccess::string(place->partialName()) : MString();
}

bool MDagPath::isInstanced(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::isInstanced", ReturnStatus, false);
    const auto* place = valid(path, ReturnStatus);
    return place && engine::hasSeveralPaths(*place->node());
}

unsigned int MDagPath::instanceNumber(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::instanceNumber", ReturnStatus, 0);
    const auto* place = valid(path, ReturnStatus);
    return place ? static_cast<unsigned int>(std::max(place->instanceNumber(), 0)) : 0;
}

bool MDagPath::isVisible(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::isVisible", ReturnStatus, false);
    const auto* place = valid(path, ReturnStatus);
    return place && place->isVisible();
}

bool MDagPath::isTemplated(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDagPath::isTemplated", ReturnStatus, false);
    const auto* place = valid(path, ReturnStatus);
    return place && place->isTemplated();
}

unsigned int MDagPath::getDisplayStatus() const
{
    const auto* place = valid(path, nullptr);
    return place ? api::displayStatusOf(*place) : M3dView::kNoStatus;
}

const char* MDagPath::className()
{
    return "MDagPath";
}
