// MItSelectionList: goes through a selection list.
#include <maya/MDagPath.h>
#include <maya/MItSelectionList.h>
#include <maya/MPlug.h>
#include <maya/MSelectionList.h>
#include <maya/MStringArray.h>

#include "support/apiCall.h"
#include "support/apiTypes.h"
#include "support/component.h"

using namespace tvxhost;
using api::failure;
using api::StatusText;
using engine::SelectionItem;

/// The items that the list had at the beginning.
struct tvxhost::api::SelectionIteration
{
    std::vector<SelectionItem> items;
    MFn::Type filter = MFn::kInvalid;
    std::size_t place = 0;

    void start()
    {
        place = 0;
        skipUnwanted();
    }

    void skipUnwanted()
    {
        while (place < items.size() && !isWanted(items[place]))
            ++place;
    }

    const SelectionItem* present() const { return place < items.size() ? &items[place] : nullptr; }

private:
    bool isWanted(const SelectionItem& item) const
    {
        if (!item.node->isAlive())
            return false;
        if (filter == MFn::kInvalid)
            return true;
        if (!item.components.empty())
            return componentHandle(item.components).hasFn(filter);
        return item.isDag() ? tvxAccess::dagPath(item.path).hasFn(filter) : hasFn(item.node.get(), filter);
    }
};

namespace {

const SelectionItem* presentOf(const api::SelectionIteration& iteration, MStatus* status)
{
    const SelectionItem* item = iteration.present();
    api::give(status, item ? MStatus() : failure(StatusText::objectDoesNotExist));
    return item;
}

} // namespace

MItSelectionList::MItSelectionList(const MSelectionList& list, MFn::Type filter, MStatus* ReturnStatus)
    : iteration(new api::SelectionIteration), reserved()
{
    TVX_API_CONSTRUCTION("MItSelectionList::MItSelectionList", ReturnStatus);
    iteration->items = tvxAccess::selection(list).items();
    iteration->filter = filter;
    iteration->start();
    api::giveSuccess(ReturnStatus);
}

MItSelectionList::~MItSelectionList()
{
    delete iteration;
}

const char* MItSelectionList::className()
{
    return "MItSelectionList";
}

bool MItSelectionList::isDone(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItSelectionList::isDone", ReturnStatus, true);
    api::giveSuccess(ReturnStatus);
    return !iteration->present();
}

MStatus MItSelectionList::next()
{
    TVX_API_CALL("MItSelectionList::next");
    if (!iteration->present())
        return failure(StatusText::unexpectedFailure);
    ++iteration->place;
    iteration->skipUnwanted();
    return MS::kSuccess;
}

MStatus MItSelectionList::reset()
{
    TVX_API_CALL("MItSelectionList::reset");
    iteration->start();
    return MS::kSuccess;
}

MStatus MItSelectionList::setFilter(MFn::Type filter)
{
    TVX_API_CALL("MItSelectionList::setFilter");
    iteration->filter = filter;
    iteration->start();
    return MS::kSuccess;
}

MStatus MItSelectionList::getDependNode(MObject& depNode)
{
    TVX_API_CALL("MItSelectionList::getDependNode");
    MStatus status;
    if (const SelectionItem* item = presentOf(*iteration, &status))
        tvxAccess::setObject(depNode, item->node.get());
    return status;
}

MStatus MItSelectionList::getDagPath(MDagPath& dagPath, MObject& component)
{
    TVX_API_CALL("MItSelectionList::getDagPath");
    const MStatus status = getDagPath(dagPath);
    if (status)
        component = api::componentHandle(iteration->present()->components);
    return status;
}

MStatus MItSelectionList::getDagPath(MDagPath& dagPath)
{
    TVX_API_CALL("MItSelectionList::getDagPath");
    MStatus status;
    const SelectionItem* item = presentOf(*iteration, &status);
    if (item && item->isDag())
        tvxAccess::setDagPath(dagPath, item->path);
    else if (item)
        status = failure(StatusText::unexpectedFailure);
    return status;
}

MStatus MItSelectionList::getPlug(MPlug& plug)
{
    TVX_API_CALL("MItSelectionList::getPlug");
    MStatus status;
    const SelectionItem* item = presentOf(*iteration, &status);
    if (item && !item->plug.isNull())
        tvxAccess::setPlug(plug, item->plug);
    else if (item)
        status = failure(StatusText::unexpectedFailure);
    return status;
}

MStatus MItSelectionList::getStrings(MStringArray& array)
{
    TVX_API_CALL("MItSelectionList::getStrings");
    MStatus status;
    if (const SelectionItem* item = presentOf(*iteration, &status)) {
        array.clear();
        array.append(tvxAccess::string(item->name()));
    }
    return status;
}

MItSelectionList::selItemType MItSelectionList::itemType(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItSelectionList::itemType", ReturnStatus, kUnknownItem);
    const SelectionItem* item = presentOf(*iteration, ReturnStatus);
    if (!item)
        return kUnknownItem;
    if (!item->plug.isNull())
        return kPlugSelectionItem;
    return item->isDag() ? kDagSelectionItem : kDNselectionItem;
}

bool MItSelectionList::hasComponents(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItSelectionList::hasComponents", ReturnStatus, false);
    const SelectionItem* item = presentOf(*iteration, ReturnStatus);
    return item && !item->components.empty();
}
