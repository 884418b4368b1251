// MDagModifier: changes of the hierarchy that can be taken back.
#pragma once

#include <maya/MDGModifier.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

class MString;
class MTypeId;

/// As MDGModifier, for nodes of the DAG too.
class OPENMAYA_EXPORT MDagModifier : public MDGModifier
{
public:
    /// Nothing queued.
    MDagModifier();

    ~MDagModifier() override;

    /// Makes a node below the parent, or the world. A shape without a parent gets a transform, which is
    /// returned.
    MObject createNode(const MTypeId& typeId, const MObject& parent = MObject::kNullObj,
                       MStatus* ReturnStatus = nullptr);
    MObject createNode(const MString& type, const MObject& parent = MObject::kNullObj,
                       MStatus* ReturnStatus = nullptr);

    /// Moves a node below another parent, or to the world. It keeps its own attributes.
    MStatus reparentNode(const MObject& node, const MObject& newParent = MObject::kNullObj);

    /// The name of this class.
    static const char* className();

protected:
    /// For Maya itself.
    MDagModifier(void*);
    MDagModifier(const MDagModifier& other);

    MDagModifier& operator=(const MDagModifier& rhs);

private:
    friend class tvxAccess;
};
