// MSelectionList: a list of nodes, components and plugs.
#include <maya/MDagPath.h>
#include <maya/MPlug.h>
#include <maya/MSelectionList.h>
#include <maya/MStringArray.h>
#include <maya/MUuid.h>

#include "support/apiCall.h"
#include "support/selectionItems.h"

#include <memory>

using namespace tvxhost;
using api::failure;
using api::itemOf;
using api::StatusText;
using engine::SelectionItem;

namespace {

using Items = std::vector<SelectionItem>;

/// The item at an index; null, and why, beyond the last.
const SelectionItem* itemAt(const engine::SelectionList& list, unsigned int index, MStatus& status)
{
    if (index < list.items().size())
        return &list.items()[index];
    status = failure(StatusText::noElementAtIndex);
    return nullptr;
}

/// Adds a whole object; some components of it that are in the list already give way when they are merged.
void add(engine::SelectionList& list, const SelectionItem& item, bool merge)
{
    if (merge && item.components.empty()) {
        const Items present = list.items();
        for (const SelectionItem& other : present)
            if (!other.components.empty() && api::isSameObject(other, item))
                list.remove(other);
    }
    list.add(item);
}

/// Puts an item in the place of another.
MStatus replaceAt(engine::SelectionList& list, unsigned int index, const SelectionItem& item)
{
    Items items = list.items();
    if (index >= items.size())
        return failure(StatusText::noElementAtIndex);
    items[index] = item;
    list.clear();
    for (const SelectionItem& each : items)
        list.add(each);
    return MS::kSuccess;
}

void combine(engine::SelectionList& list, const SelectionItem& item, MSelectionList::MergeStrategy strategy)
{
    const bool isThere = list.contains(item);
    if (strategy == MSelectionList::kMergeNormal)
        add(list, item, true);
    else if (isThere)
        list.remove(item);
    else if (strategy == MSelectionList::kXORWithList)
        list.add(item);
}

/// The item that a node handle stands for; null, and why, when it is no living node.
std::unique_ptr<SelectionItem> itemFor(const MObject& object, MStatus& status)
{
    if (engine::Node* node = api::nodeOf(object))
        return std::make_unique<SelectionItem>(itemOf(*node));
    status = failure(object.isNull() ? StatusText::nullArgument : StatusText::objectIsIncompatible);
    return nullptr;
}

std::unique_ptr<SelectionItem> itemFor(const MDagPath& path, const MObject& component, MStatus& status)
{
    const engine::DagPath* place = tvxAccess::dagPath(path);
    if (place && place->isValid())
        return std::make_unique<SelectionItem>(itemOf(*place, api::componentsOf(component)));
    status = failure(MS::kInvalidParameter, StatusText::objectDoesNotExist);
    return nullptr;
}

std::unique_ptr<SelectionItem> itemFor(const MPlug& plug, MStatus& status)
{
    const engine::Plug& target = tvxAccess::plug(plug);
    if (target.isValid())
        return std::make_unique<SelectionItem>(itemOf(target));
    status = failure(target.isNull() ? StatusText::nullArgument : StatusText::objectIsInvalid);
    return nullptr;
}

bool containsObject(const engine::SelectionList& list, const SelectionItem& item)
{
    const Items& items = list.items();
    return std::any_of(items.begin(), items.end(),
                       [&item](const SelectionItem& other) { return api::isSameObject(other, item); });
}

} // namespace

MSelectionList::MSelectionList() : list(new engine::SelectionList), reserved(nullptr) {}

MSelectionList::MSelectionList(const MSelectionList& src)
    : list(new engine::SelectionList(*src.list)), reserved(nullptr)
{
}

MSelectionList::~MSelectionList()
{
    delete list;
}

MSelectionList& MSelectionList::operator=(const MSelectionList& other)
{
    *list = *other.list;
    return *this;
}

MStatus MSelectionList::clear()
{
    TVX_API_CALL("MSelectionList::clear");
    list->clear();
    return MS::kSuccess;
}

bool MSelectionList::isEmpty(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MSelectionList::isEmpty", ReturnStatus, true);
    api::giveSuccess(ReturnStatus);
    return list->empty();
}

unsigned int MSelectionList::length(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MSelectionList::length", ReturnStatus, 0);
    api::giveSuccess(ReturnStatus);
    return static_cast<unsigned int>(list->items().size());
}

MStatus MSelectionList::getDependNode(unsigned int index, MObject& depNode) const
{
    TVX_API_CALL("MSelectionList::getDependNode");
    MStatus status;
    if (const SelectionItem* item = itemAt(*list, index, status))
        tvxAccess::setObject(depNode, item->node.get());
    return status;
}

MStatus MSelectionList::getDagPath(unsigned int index, MDagPath& dagPath, MObject& component) const
{
    TVX_API_CALL("MSelectionList::getDagPath");
    MStatus status;
    const SelectionItem* item = itemAt(*list, index, status);
    if (!item)
        return status;
    if (!item->isDag())
        return failure(StatusText::unexpectedFailure);
    tvxAccess::setDagPath(dagPath, item->path);
    // The shared null object is the default argument: it says that nobody asks.
    if (&component != &MObject::kNullObj)
        component = api::componentHandle(item->components);
    return status;
}

MStatus MSelectionList::getPlug(unsigned int index, MPlug& plug) const
{
    TVX_API_CALL("MSelectionList::getPlug");
    MStatus status;
    const SelectionItem* item = itemAt(*list, index, status);
    if (!item)
        return status;
    if (item->plug.isNull())
        return failure(StatusText::unexpectedFailure);
    tvxAccess::setPlug(plug, item->plug);
    return status;
}

MStatus MSelectionList::add(const MObject& object, const bool mergeWithExisting)
{
    TVX_API_CALL("MSelectionList::add");
    MStatus status;
    if (const auto item = itemFor(object, status))
        ::add(*list, *item, mergeWithExisting);
    return status;
}

MStatus MSelectionList::add(const MDagPath& object, const MObject& component, const bool mergeWithExisting)
{
    TVX_API_CALL("MSelectionList::add");
    MStatus status;
    if (const auto item = itemFor(object, component, status))
        ::add(*list, *item, mergeWithExisting);
    return status;
}

MStatus MSelectionList::add(const MString& matchString, const bool searchChildNamespacesToo)
{
    TVX_API_CALL("MSelectionList::add");
    engine::Scene& scene = engine::Scene::current();
    auto found = api::itemsNamed(scene, tvxAccess::text(matchString));
    if (searchChildNamespacesToo)
        for (const std::string& space : scene.namespaces())
            for (SelectionItem& item : scene.findItems(space + ":" + tvxAccess::text(matchString)))
                found.value.push_back(std::move(item));
    if (found.value.empty())
        return failure(MS::kInvalidParameter, StatusText::objectDoesNotExist);
    for (const SelectionItem& item : found.value)
        list->add(item);
    return MS::kSuccess;
}

MStatus MSelectionList::add(const MPlug& plug, const bool mergeWithExisting)
{
    TVX_API_CALL("MSelectionList::add");
    MStatus status;
    if (const auto item = itemFor(plug, status))
        ::add(*list, *item, mergeWithExisting);
    return status;
}

MStatus MSelectionList::add(const MUuid& uuid, bool mergeWithExisting)
{
    TVX_API_CALL("MSelectionList::add");
    engine::Node* node = api::nodeWithUuid(engine::Scene::current(), uuid.asString().asChar());
    if (!node)
        return failure(MS::kInvalidParameter, StatusText::objectDoesNotExist);
    ::add(*list, itemOf(*node), mergeWithExisting);
    return MS::kSuccess;
}

MStatus MSelectionList::remove(unsigned int index)
{
    TVX_API_CALL("MSelectionList::remove");
    MStatus status;
    if (itemAt(*list, index, status))
        list->removeAt(index);
    return status;
}

MStatus MSelectionList::replace(unsigned int index, const MObject& item)
{
    TVX_API_CALL("MSelectionList::replace");
    MStatus status;
    const auto replacement = itemFor(item, status);
    return replacement ? replaceAt(*list, index, *replacement) : status;
}

MStatus MSelectionList::replace(unsigned int index, const MDagPath& item, const MObject& component)
{
    TVX_API_CALL("MSelectionList::replace");
    MStatus status;
    const auto replacement = itemFor(item, component, status);
    return replacement ? replaceAt(*list, index, *replacement) : status;
}

MStatus MSelectionList::replace(unsigned int index, const MPlug& plug)
{
    TVX_API_CALL("MSelectionList::replace");
    MStatus status;
    const auto replacement = itemFor(plug, status);
    return replacement ? replaceAt(*list, index, *replacement) : status;
}

bool MSelectionList::hasItem(const MObject& item, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MSelectionList::hasItem", ReturnStatus, false);
    MStatus status;
    const auto wanted = itemFor(item, status);
    api::give(ReturnStatus, status);
    const Items& items = list->items();
    return wanted && std::any_of(items.begin(), items.end(), [&wanted](const SelectionItem& other) {
               return other.node == wanted->node && other.plug.isNull() && other.components.empty();
           });
}

bool MSelectionList::hasItem(const MDagPath& item, const MObject& component, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MSelectionList::hasItem", ReturnStatus, false);
    MStatus status;
    const auto wanted = itemFor(item, component, status);
    api::give(ReturnStatus, status);
    return wanted && list->contains(*wanted);
}

bool MSelectionList::hasItem(const MPlug& plug, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MSelectionList::hasItem", ReturnStatus, false);
    MStatus status;
    const auto wanted = itemFor(plug, status);
    api::give(ReturnStatus, status);
    return wanted && list->contains(*wanted);
}

bool MSelectionList::hasItemPartly(const MDagPath& item, const MObject& component,
                                   MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MSelectionList::hasItemPartly", ReturnStatus, false);
    MStatus status;
    const auto wanted = itemFor(item, component, status);
    api::give(ReturnStatus, status);
    return wanted && containsObject(*list, *wanted);
}

MStatus MSelectionList::toggle(const MDagPath& item, const MObject& component)
{
    TVX_API_CALL("MSelectionList::toggle");
    MStatus status;
    if (const auto toggled = itemFor(item, component, status))
        combine(*list, *toggled, kXORWithList);
    return status;
}

MStatus MSelectionList::merge(const MSelectionList& other, const MergeStrategy strategy)
{
    TVX_API_CALL("MSelectionList::merge");
    const Items others = other.list->items();
    for (const SelectionItem& item : others)
        combine(*list, item, strategy);
    return MS::kSuccess;
}

MStatus MSelectionList::merge(const MDagPath& object, const MObject& component, const MergeStrategy strategy)
{
    TVX_API_CALL("MSelectionList::merge");
    MStatus status;
    if (const auto item = itemFor(object, component, status))
        combine(*list, *item, strategy);
    return status;
}

MStatus MSelectionList::getSelectionStrings(MStringArray& array) const
{
    TVX_API_CALL("MSelectionList::getSelectionStrings");
    array.clear();
    for (const SelectionItem& item : list->items())
        array.append(tvxAccess::string(item.name()));
    return MS::kSuccess;
}

MStatus MSelectionList::getSelectionStrings(unsigned int index, MStringArray& array) const
{
    TVX_API_CALL("MSelectionList::getSelectionStrings");
    MStatus status;
    if (const SelectionItem* item = itemAt(*list, index, status)) {
        array.clear();
        array.append(tvxAccess::string(item->name()));
    }
    return status;
}

const char* MSelectionList::className()
{
    return "MSelectionList";
}
