// MItSelectionList: goes through a selection list.
#pragma once

#include <maya/MFn.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MDagPath;
class MObject;
class MPlug;
class MSelectionList;
class MStringArray;

/// Goes through the items that a selection list had when the iteration began, or through those of one type:
/// nodes to which a function set of the type can be attached, components of the type.
class OPENMAYA_EXPORT MItSelectionList
{
public:
    /// What an item is. The host has no items of animation.
    enum selItemType
    {
        kUnknownItem = -1,
        kDagSelectionItem = 0,
        kAnimSelectionItem = 1,
        kDNselectionItem = 2,
        kPlugSelectionItem = 3,
    };

    /// Whether there are no more items.
    bool isDone(MStatus* ReturnStatus = nullptr);

    /// Goes to the next item; kFailure at the end.
    MStatus next();

    /// Back to the first item.
    MStatus reset();

    /// The node, path, components, plug or names of the present item. kFailure at the end, and for an item
    /// that has no such thing.
    MStatus getDependNode(MObject& depNode);
    MStatus getDagPath(MDagPath& dagPath, MObject& component);
    MStatus getDagPath(MDagPath& dagPath);
    MStatus getPlug(MPlug& plug);
    MStatus getStrings(MStringArray& array);

    /// What the present item is; kUnknownItem and kFailure at the end.
    selItemType itemType(MStatus* ReturnStatus = nullptr);

    /// Another type; starts anew. kInvalid asks for all items.
    MStatus setFilter(MFn::Type filter);

    /// Whether the present item is some components of a shape.
    bool hasComponents(MStatus* ReturnStatus = nullptr) const;

    /// At the first item.
    MItSelectionList(const MSelectionList& list, MFn::Type = MFn::kInvalid, MStatus* ReturnStatus = nullptr);

    virtual ~MItSelectionList();

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    MItSelectionList(const MItSelectionList&) = delete;
    MItSelectionList& operator=(const MItSelectionList&) = delete;

    tvxhost::api::SelectionIteration* iteration; ///< owned
    void* reserved[3];
};
