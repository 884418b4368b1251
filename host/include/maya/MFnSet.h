// MFnSet: sets of objects.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>

class MDagPath;
class MObjectArray;
class MPlug;
class MSelectionList;
class TsetCmd;
class Tstring;

/// Function set for sets, shading groups among them. Members are nodes and instances of DAG nodes; components
/// and plugs as members are refused with kNotImplemented.
class OPENMAYA_EXPORT MFnSet : public MFnDependencyNode
{
public:
    /// What the members of a set may be; kept, not enforced.
    enum Restriction
    {
        kNone = 0,
        kVerticesOnly = 1,
        kEdgesOnly = 2,
        kFacetsOnly = 3,
        kEditPointsOnly = 4,
        kRenderableOnly = 5,
    };

    MFn::Type type() const override;
    ~MFnSet() override;

    /// Attached to nothing, or to a set.
    MFnSet() {}
    MFnSet(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    MFnSet(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    /// Makes a set of these members and attaches to it.
    MObject create(const MSelectionList& members, Restriction restriction = kNone,
                   MStatus* ReturnStatus = nullptr);
    MObject create(const MSelectionList& members, Restriction restriction = kNone, bool isLayer = false,
                   MStatus* ReturnStatus = nullptr);

    /// The members of this set or others, or those that all have. kInvalidParameter for what is no set.
    MStatus getUnion(const MObject& withSet, MSelectionList& result);
    MStatus getUnion(const MObjectArray& setList, MSelectionList& result);
    MStatus getIntersection(const MObject& withSet, MSelectionList& result);
    MStatus getIntersection(const MObjectArray& setList, MSelectionList& result);

    /// Takes all members out.
    MStatus clear();

    /// The members; with `flatten` those of sets among them instead of these sets.
    MStatus getMembers(MSelectionList& members, bool flatten) const;

    /// Adds members; what is one already stays one.
    MStatus addMember(const MObject& obj);
    MStatus addMember(const MDagPath& obj, const MObject& component = MObject::kNullObj);
    MStatus addMember(const MPlug& plug);
    MStatus addMembers(const MSelectionList& list);

    /// Takes members out; kInvalidParameter for what is none.
    MStatus removeMember(const MObject& obj);
    MStatus removeMember(const MDagPath& obj, const MObject& component);
    MStatus removeMember(const MPlug& plug);
    MStatus removeMembers(const MSelectionList& list);

    /// Whether this is a member.
    bool isMember(const MObject& object, MStatus* ReturnStatus = nullptr) const;
    bool isMember(const MDagPath& object, const MObject& component = MObject::kNullObj,
                  MStatus* ReturnStatus = nullptr) const;
    bool isMember(const MPlug& plug, MStatus* ReturnStatus = nullptr) const;

    /// Whether both sets have a member in common.
    bool intersectsWith(const MObject& otherSet, MStatus* ReturnStatus = nullptr) const;

    /// What the members may be.
    bool hasRestrictions(MStatus* ReturnStatus = nullptr) const;
    Restriction restriction(MStatus* ReturnStatus = nullptr) const;

    /// A text that people see.
    MString annotation(MStatus* ReturnStatus = nullptr) const;
    MStatus setAnnotation(const MString& annotation);

    /// The name of this class.
    static const char* className();

protected:
    /// For Maya itself.
    virtual Tstring setCommandString();
    virtual TsetCmd* setCommand();

private:
    friend class tvxAccess;
};
