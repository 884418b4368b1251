// MSelectionList: a list of nodes, components and plugs.
#pragma once

#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MDagPath;
class MPlug;
class MString;
class MStringArray;
class MUuid;

/// A list of nodes, instances, components and plugs, in the order of adding. Components of one object are
/// kept together.
class OPENMAYA_EXPORT MSelectionList
{
public:
    enum MergeStrategy
    {
        kMergeNormal = 0,
        kXORWithList = 1,
        kRemoveFromList = 2,
    };

    /// An empty list.
    MSelectionList();
    MSelectionList(const MSelectionList& src);

    virtual ~MSelectionList();

    MSelectionList& operator=(const MSelectionList& other);

    /// Removes all items.
    MStatus clear();

    /// Whether there are no items, and how many there are.
    bool isEmpty(MStatus* ReturnStatus = nullptr) const;
    unsigned int length(MStatus* ReturnStatus = nullptr) const;

    /// The node of an item; kInvalidParameter beyond the last.
    MStatus getDependNode(unsigned int index, MObject& depNode) const;

    /// The path of an item, with its components if it has any. kInvalidParameter beyond the last item,
    /// kFailure when the item is not in the DAG; the path is not changed then.
    MStatus getDagPath(unsigned int index, MDagPath& dagPath, MObject& component = MObject::kNullObj) const;

    /// The plug of an item; kFailure when the item is none.
    MStatus getPlug(unsigned int index, MPlug& plug) const;

    /// Adds an item, or all items that have a name, in which wildcards are allowed. kInvalidParameter for a
    /// name that the scene does not have.
    MStatus add(const MObject& object, const bool mergeWithExisting = false);
    MStatus add(const MDagPath& object, const MObject& component = MObject::kNullObj,
                const bool mergeWithExisting = false);
    MStatus add(const MString& matchString, const bool searchChildNamespacesToo = false);
    MStatus add(const MPlug& plug, const bool mergeWithExisting = false);
    MStatus add(const MUuid& uuid, bool mergeWithExisting = false);

    /// Removes, or replaces, the item at an index.
    MStatus remove(unsigned int index);
    MStatus replace(unsigned int index, const MObject& item);
    MStatus replace(unsigned int index, const MDagPath& item, const MObject& component = MObject::kNullObj);
    MStatus replace(unsigned int index, const MPlug& plug);

    /// Whether the item is in the list, whole or in part.
    bool hasItem(const MObject& item, MStatus* ReturnStatus = nullptr) const;
    bool hasItem(const MDagPath& item, const MObject& component = MObject::kNullObj,
                 MStatus* ReturnStatus = nullptr) const;
    bool hasItem(const MPlug& plug, MStatus* ReturnStatus = nullptr) const;
    bool hasItemPartly(const MDagPath& item, const MObject& component, MStatus* ReturnStatus = nullptr) const;

    /// Adds what is not in the list, and removes what is.
    MStatus toggle(const MDagPath& item, const MObject& component = MObject::kNullObj);

    /// Combines with another list.
    MStatus merge(const MSelectionList& other, const MergeStrategy strategy = kMergeNormal);
    MStatus merge(const MDagPath& object, const MObject& component = MObject::kNullObj,
                  const MergeStrategy strategy = kMergeNormal);

    /// The names of the items, or of one of them.
    MStatus getSelectionStrings(MStringArray& array) const;
    MStatus getSelectionStrings(unsigned int index, MStringArray& array) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    tvxhost::engine::SelectionList* list; ///< owned
    void* reserved;
};
