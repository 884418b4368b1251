// MFnGeometryData: geometry as an object.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnData.h>
#include <maya/MObject.h>
#include <maya/MTypes.h>

class MMatrix;
class MStatus;

/// Function set for data objects that hold geometry. Groups of components inside the data and matrices of its
/// own are not done: kNotImplemented.
class OPENMAYA_EXPORT MFnGeometryData : public MFnData
{
public:
    /// Attached to nothing.
    MFnGeometryData() {}

    /// Attached to such data.
    MFnGeometryData(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    MFnGeometryData(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    ~MFnGeometryData() override;

    MFn::Type type() const override;

    /// The matrix that the geometry was brought to another space with.
    MStatus setMatrix(const MMatrix&);
    MStatus getMatrix(MMatrix&) const;
    bool matrixIsIdentity(MStatus* ReturnStatus = nullptr) const;
    bool matrixIsNotIdentity(MStatus* ReturnStatus = nullptr) const;

    /// Groups of components.
    bool hasObjectGroup(unsigned int id, MStatus* ReturnStatus = nullptr) const;
    MStatus addObjectGroup(unsigned int);
    MStatus removeObjectGroup(unsigned int);
    MStatus changeObjectGroupId(unsigned int, unsigned int);
    unsigned int objectGroupCount(MStatus* ReturnStatus = nullptr) const;
    unsigned int objectGroup(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    MFn::Type objectGroupType(unsigned int, MStatus* ReturnStatus = nullptr) const;
    MObject objectGroupComponent(unsigned int, MStatus* ReturnStatus = nullptr) const;
    MStatus setObjectGroupComponent(unsigned int, MObject&);
    MStatus addObjectGroupComponent(unsigned int, MObject&);
    MStatus removeObjectGroupComponent(unsigned int, MObject&);
    MStatus copyObjectGroups(MObject& inGeom);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
