// MFnMeshData: mesh data as an object.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnGeometryData.h>
#include <maya/MObject.h>
#include <maya/MTypes.h>

class MStatus;

/// Function set for data objects that hold a mesh. MFnMesh attaches to them as well, and fills them.
class OPENMAYA_EXPORT MFnMeshData : public MFnGeometryData
{
public:
    /// Attached to nothing.
    MFnMeshData() {}

    /// Attached to such data.
    MFnMeshData(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    MFnMeshData(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    ~MFnMeshData() override;

    MFn::Type type() const override;

    /// Makes an empty mesh and attaches to it.
    MObject create(MStatus* ReturnStatus = nullptr);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
