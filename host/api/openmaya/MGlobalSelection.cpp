// MGlobal: selection and hiliting.
#include <maya/MGlobal.h>
#include <maya/MSelectionList.h>

#include "support/apiCall.h"
#include "support/notImplemented.h"
#include "support/selectionItems.h"

using namespace tvxhost;
using api::failure;
using api::StatusText;
using engine::Scene;
using engine::SelectionItem;
using engine::SelectionList;

namespace {

using Items = std::vector<SelectionItem>;

void addAll(SelectionList& list, const Items& items)
{
    for (const SelectionItem& item : items)
        list.add(item);
}

void toggleAll(SelectionList& list, const Items& items)
{
    for (const SelectionItem& item : items)
        list.contains(item) ? list.remove(item) : list.add(item);
}

void removeAll(SelectionList& list, const Items& items)
{
    for (const SelectionItem& item : items)
        list.remove(item);
}

/// Combines items with the selection.
MStatus adjust(const Items& items, MGlobal::ListAdjustment how)
{
    SelectionList list = Scene::current().selection();
    switch (how) {
    case MGlobal::kReplaceList:
        list.clear();
        addAll(list, items);
        break;
    case MGlobal::kXORWithList:
        toggleAll(list, items);
        break;
    case MGlobal::kAddToList:
        addAll(list, items);
        break;
    case MGlobal::kRemoveFromList:
        removeAll(list, items);
        break;
    case MGlobal::kAddToHeadOfList: {
        const Items present = list.items();
        list.clear();
        addAll(list, items);
        addAll(list, present);
        break;
    }
    default:
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    }
    Scene::current().setSelection(std::move(list));
    return MS::kSuccess;
}

MStatus adjustByName(const MString& name, MGlobal::ListAdjustment how)
{
    const auto items = api::itemsNamed(Scene::current(), tvxAccess::text(name));
    if (!items)
        return failure(MS::kInvalidParameter, StatusText::objectDoesNotExist);
    return adjust(items.value, how);
}

MStatus adjustByNode(const MObject& object, MGlobal::ListAdjustment how)
{
    engine::Node* node = api::nodeOf(object);
    if (!node)
        return failure(object.isNull() ? StatusText::nullArgument : StatusText::objectIsIncompatible);
    return adjust({api::itemOf(*node)}, how);
}

MStatus adjustByPath(const MDagPath& path, const MObject& component, MGlobal::ListAdjustment how)
{
    const engine::DagPath* place = tvxAccess::dagPath(path);
    if (!place || !place->isValid())
        return failure(MS::kInvalidParameter, StatusText::objectDoesNotExist);
    return adjust({api::itemOf(*place, api::componentsOf(component))}, how);
}

} // namespace

MStatus MGlobal::getSelectionListByName(const MString& name, MSelectionList& list)
{
    TVX_API_CALL("MGlobal::getSelectionListByName");
    const auto items = api::itemsNamed(Scene::current(), tvxAccess::text(name));
    if (!items)
        return failure(MS::kInvalidParameter, StatusText::objectDoesNotExist);
    SelectionList& target = tvxAccess::selection(list);
    target.clear();
    addAll(target, items.value);
    return MS::kSuccess;
}

// The selection is always kept in the order of selecting.
MStatus MGlobal::getActiveSelectionList(MSelectionList& dest, bool)
{
    TVX_API_CALL("MGlobal::getActiveSelectionList");
    tvxAccess::selection(dest) = Scene::current().selection();
    return MS::kSuccess;
}

// Nothing can be made live.
MStatus MGlobal::getLiveList(MSelectionList& dest)
{
    TVX_API_CALL("MGlobal::getLiveList");
    tvxAccess::selection(dest).clear();
    return MS::kSuccess;
}

MStatus MGlobal::getHiliteList(MSelectionList& dest)
{
    TVX_API_CALL("MGlobal::getHiliteList");
    tvxAccess::selection(dest) = Scene::current().hilite();
    return MS::kSuccess;
}

MStatus MGlobal::setHiliteList(MSelectionList& src)
{
    TVX_API_CALL("MGlobal::setHiliteList");
    Scene::current().setHilite(tvxAccess::selection(src));
    return MS::kSuccess;
}

MStatus MGlobal::setActiveSelectionList(const MSelectionList& src, ListAdjustment adjustment)
{
    TVX_API_CALL("MGlobal::setActiveSelectionList");
    return adjust(tvxAccess::selection(src).items(), adjustment);
}

MStatus MGlobal::selectCommand(const MSelectionList& src, ListAdjustment adjustment)
{
    TVX_API_CALL("MGlobal::selectCommand");
    return adjust(tvxAccess::selection(src).items(), adjustment);
}

MStatus MGlobal::selectByName(const MString& name, ListAdjustment adjustment)
{
    TVX_API_CALL("MGlobal::selectByName");
    return adjustByName(name, adjustment);
}

MStatus MGlobal::unselectByName(const MString& name)
{
    TVX_API_CALL("MGlobal::unselectByName");
    return adjustByName(name, kRemoveFromList);
}

MStatus MGlobal::select(MObject& object, ListAdjustment adjustment)
{
    TVX_API_CALL("MGlobal::select");
    return adjustByNode(object, adjustment);
}

MStatus MGlobal::select(const MDagPath& object, const MObject& component, ListAdjustment adjustment)
{
    TVX_API_CALL("MGlobal::select");
    return adjustByPath(object, component, adjustment);
}

MStatus MGlobal::select(MDagPath& object, const MObject& component, ListAdjustment adjustment)
{
    TVX_API_CALL("MGlobal::select");
    return adjustByPath(object, component, adjustment);
}

MStatus MGlobal::unselect(MObject& object)
{
    TVX_API_CALL("MGlobal::unselect");
    return adjustByNode(object, kRemoveFromList);
}

MStatus MGlobal::unselect(const MDagPath& object, const MObject& component)
{
    TVX_API_CALL("MGlobal::unselect");
    return adjustByPath(object, component, kRemoveFromList);
}

MStatus MGlobal::unselect(MDagPath& object, const MObject& component)
{
    TVX_API_CALL("MGlobal::unselect");
    return adjustByPath(object, component, kRemoveFromList);
}

MGlobal::SelectionMethod MGlobal::selectionMethod(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MGlobal::selectionMethod", ReturnStatus, kWireframeSelectMethod);
    api::giveSuccess(ReturnStatus);
    return kWireframeSelectMethod;
}

MGlobal::MSelectionMode MGlobal::selectionMode(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MGlobal::selectionMode", ReturnStatus, kSelectObjectMode);
    api::giveSuccess(ReturnStatus);
    return kSelectObjectMode;
}

MStatus MGlobal::setSelectionMode(MSelectionMode mode)
{
    TVX_API_CALL("MGlobal::setSelectionMode");
    return mode == kSelectObjectMode ? MStatus() : api::notImplemented("MGlobal::setSelectionMode");
}

MStatus MGlobal::clearSelectionList()
{
    TVX_API_CALL("MGlobal::clearSelectionList");
    return adjust({}, kReplaceList);
}

bool MGlobal::isSelected(MObject& object, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MGlobal::isSelected", ReturnStatus, false);
    const engine::Node* node = api::nodeOf(object);
    api::give(ReturnStatus, node ? MStatus() : failure(StatusText::nullArgument));
    const Items& items = Scene::current().selection().items();
    return node && std::any_of(items.begin(), items.end(), [node](const SelectionItem& item) {
               return item.node.get() == node && item.plug.isNull();
           });
}

bool MGlobal::trackSelectionOrderEnabled(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MGlobal::trackSelectionOrderEnabled", ReturnStatus, false);
    api::giveSuccess(ReturnStatus);
    return true;
}

MStatus MGlobal::setTrackSelectionOrderEnabled(bool enable)
{
    TVX_API_CALL("MGlobal::setTrackSelectionOrderEnabled");
    return enable ? MStatus() : api::notImplemented("MGlobal::setTrackSelectionOrderEnabled");
}

// Nothing is hilited under a cursor: there is none.
MStatus MGlobal::getPreselectionHiliteList(MSelectionList& list)
{
    TVX_API_CALL("MGlobal::getPreselectionHiliteList");
    tvxAccess::selection(list).clear();
    return MS::kSuccess;
}
