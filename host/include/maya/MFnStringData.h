// MFnStringData: text as an object.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnData.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>

/// Function set for data objects that hold text.
class OPENMAYA_EXPORT MFnStringData : public MFnData
{
public:
    /// Attached to nothing.
    MFnStringData() {}

    /// Attached to string data.
    MFnStringData(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnStringData(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnStringData() override;

    MFn::Type type() const override;

    /// The text.
    MString string(MStatus* ReturnStatus = nullptr) const;

    /// Replaces the text.
    MStatus set(const MString& newString);

    /// Makes an object, empty or with this text, and attaches to it.
    MObject create(const MString& str, MStatus* ReturnStatus = nullptr);
    MObject create(MStatus* ReturnStatus = nullptr);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
