// MGlobal: the application as a whole: version, messages, time, axes, nodes.
#include <maya/MGlobal.h>
#include <maya/MObjectArray.h>
#include <maya/MSelectionList.h>
#include <maya/MStringArray.h>
#include <maya/MTime.h>

#include "engine/scene.h"
#include "support/apiCall.h"
#include "support/apiTypeNames.h"
#include "support/apiTypes.h"
#include "support/handles.h"
#include "support/notImplemented.h"
#include "support/selectionItems.h"

#include <set>

using namespace tvxhost;
using api::failure;
using api::StatusText;
using engine::Scene;

namespace {

/// The sets that a node is a member of: it feeds one of their plugs.
void addSetsOf(const engine::Node& node, std::set<const engine::Node*>& known, MObjectArray& sets)
{
    for (const engine::Plug& plug : engine::connectedPlugs(node))
        for (const engine::Plug& destination : engine::destinationsOf(plug)) {
            const engine::Node* member = destination.node();
            if (member->type().isA("objectSet") && known.insert(member).second)
                sets.append(tvxAccess::handle(member));
        }
}

MStatus nodeMissing(const MObject& object)
{
    return failure(object.isNull() ? StatusText::nullArgument : StatusText::objectIsIncompatible);
}

MStatus setTime(const MTime& time)
{
    Scene::current().setTime(time.as(MTime::kSeconds));
    return MS::kSuccess;
}

} // namespace

MString MGlobal::mayaVersion()
{
    return MString("2016");
}

int MGlobal::apiVersion()
{
    return MAYA_API_VERSION;
}

MGlobal::MMayaState MGlobal::mayaState(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MGlobal::mayaState", ReturnStatus, kInteractive);
    api::giveSuccess(ReturnStatus);
    return Scene::current().isBatch() ? kBatch : kInteractive;
}

MStatus MGlobal::getFunctionSetList(MObject forObject, MStringArray& array)
{
    TVX_API_CALL("MGlobal::getFunctionSetList");
    if (forObject.isNull())
        return failure(StatusText::nullArgument);
    array.clear();
    for (int i = MFn::kInvalid + 1; i < MFn::kLast; ++i)
        if (const auto type = static_cast<MFn::Type>(i); forObject.hasFn(type))
            array.append(MString(api::apiTypeName(type)));
    return MS::kSuccess;
}

MStatus MGlobal::getAssociatedSets(const MSelectionList& list, MObjectArray& setArray)
{
    TVX_API_CALL("MGlobal::getAssociatedSets");
    setArray.clear();
    std::set<const engine::Node*> known;
    for (const engine::SelectionItem& item : tvxAccess::selection(list).items())
        addSetsOf(*item.node, known, setArray);
    return MS::kSuccess;
}

MObject MGlobal::currentToolContext()
{
    return MObject();
}

MStatus MGlobal::viewFrame(const MTime& time)
{
    TVX_API_CALL("MGlobal::viewFrame");
    return setTime(time);
}

MStatus MGlobal::viewFrame(double time)
{
    TVX_API_CALL("MGlobal::viewFrame");
    return setTime(MTime(time, MTime::uiUnit()));
}

// Every node of the DAG has a parent already: this adds one more.
MStatus MGlobal::addToModel(MObject& object, MObject& parent)
{
    TVX_API_CALL("MGlobal::addToModel");
    engine::DagNode* child = api::dagNodeOf(object);
    if (!child)
        return nodeMissing(object);
    Scene& scene = Scene::current();
    engine::DagNode* above = parent.isNull() ? &scene.world() : api::dagNodeOf(parent);
    return above ? api::toStatus(scene.addParent(*child, *above)) : nodeMissing(parent);
}

MStatus MGlobal::deleteNode(MObject& object)
{
    TVX_API_CALL("MGlobal::deleteNode");
    engine::Node* node = api::nodeOf(object);
    return node ? api::toStatus(node->scene().deleteNode(*node)) : nodeMissing(object);
}

MStatus MGlobal::setYAxisUp(bool)
{
    TVX_API_CALL("MGlobal::setYAxisUp");
    return MS::kSuccess;
}

MStatus MGlobal::setZAxisUp(bool)
{
    TVX_API_CALL("MGlobal::setZAxisUp");
    return api::notImplemented("MGlobal::setZAxisUp");
}

bool MGlobal::isYAxisUp(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MGlobal::isYAxisUp", ReturnStatus, false);
    api::giveSuccess(ReturnStatus);
    return true;
}

bool MGlobal::isZAxisUp(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MGlobal::isZAxisUp", ReturnStatus, false);
    api::giveSuccess(ReturnStatus);
    return false;
}

MVector MGlobal::upAxis(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MGlobal::upAxis", ReturnStatus, MVector());
    api::giveSuccess(ReturnStatus);
    return MVector::yAxis;
}

void MGlobal::displayInfo(const MString& theMessage)
{
    Scene::current().scriptEditor().info(tvxAccess::text(theMessage));
}

void MGlobal::displayWarning(const MString& theWarning)
{
    Scene::current().scriptEditor().warning(tvxAccess::text(theWarning));
}

void MGlobal::displayError(const MString& theError)
{
    Scene::current().scriptEditor().error(tvxAccess::text(theError));
}

// Undo does not go through the API.
bool MGlobal::isUndoing()
{
    return false;
}

bool MGlobal::isRedoing()
{
    return false;
}

const char* MGlobal::className()
{
    return "MGlobal";
}
