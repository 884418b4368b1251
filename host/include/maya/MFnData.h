// MFnData: what all data objects have.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnBase.h>
#include <maya/MObject.h>
#include <maya/MTypes.h>

class MStatus;

/// Function set for data objects. An object lives as long as a handle or a plug holds it.
class OPENMAYA_EXPORT MFnData : public MFnBase
{
public:
    /// The types of data that typed attributes can hold.
    enum Type
    {
        kInvalid = 0,
        kNumeric = 1,
        kPlugin = 2,
        kPluginGeometry = 3,
        kString = 4,
        kMatrix = 5,
        kStringArray = 6,
        kDoubleArray = 7,
        kFloatArray = 8,
        kIntArray = 9,
        kPointArray = 10,
        kVectorArray = 11,
        kMatrixArray = 12,
        kComponentList = 13,
        kMesh = 14,
        kLattice = 15,
        kNurbsCurve = 16,
        kNurbsSurface = 17,
        kSphere = 18,
        kDynArrayAttrs = 19,
        kDynSweptGeometry = 20,
        kSubdSurface = 21,
        kNObject = 22,
        kNId = 23,
        kAny = 24,
        kLast = 25,
    };

    /// Attached to a data object.
    MFnData(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    /// Attached to nothing.
    MFnData();

    MFnData(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnData() override;

    MFn::Type type() const override;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
