// MFnPluginData: data of a type that a plug-in registered, as an object.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnData.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypeId.h>
#include <maya/MTypes.h>

class MPxData;

/// Function set for data objects of a plug-in's own type (MFnPlugin::registerData).
class OPENMAYA_EXPORT MFnPluginData : public MFnData
{
public:
    /// Attached to nothing.
    MFnPluginData() {}

    /// Attached to a plug-in's data.
    MFnPluginData(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnPluginData(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnPluginData() override;

    MFn::Type type() const override;

    /// The number of the data's type.
    MTypeId typeId(MStatus* ReturnStatus = nullptr) const;

    /// The plug-in's object, which the data object owns. Null once the plug-in is unloaded.
    MPxData* data(MStatus* ReturnStatus = nullptr);
    const MPxData* constData(MStatus* ReturnStatus = nullptr) const;

    /// Makes an object with new data of a registered type, and attaches to it. kInvalidParameter for an
    /// unknown type, kFailure when its plug-in makes none.
    MObject create(const MTypeId& id, MStatus* ReturnStatus = nullptr);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
