// MFnUnitAttribute: angles, lengths and times.
#pragma once

#include <maya/MAngle.h>
#include <maya/MDistance.h>
#include <maya/MFn.h>
#include <maya/MFnAttribute.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTime.h>
#include <maya/MTypes.h>

/// Function set for attributes of one number with a unit. Plain numbers are in internal units: radians,
/// centimetres, and for times the unit of the user interface.
class OPENMAYA_EXPORT MFnUnitAttribute : public MFnAttribute
{
public:
    enum Type
    {
        kInvalid = 0,
        kAngle = 1,
        kDistance = 2,
        kTime = 3,
        kLast = 4,
    };

    /// Attached to nothing.
    MFnUnitAttribute() {}

    /// Attached to a unit attribute.
    MFnUnitAttribute(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnUnitAttribute(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnUnitAttribute() override;

    MFn::Type type() const override;

    /// Makes an attribute and attaches to it.
    MObject create(const MString& fullName, const MString& briefName, Type unitType,
                   double defaultValue = 0.0, MStatus* ReturnStatus = nullptr);
    MObject create(const MString& fullName, const MString& briefName, const MTime& defaultValue,
                   MStatus* ReturnStatus = nullptr);
    MObject create(const MString& fullName, const MString& briefName, const MAngle& defaultValue,
                   MStatus* ReturnStatus = nullptr);
    MObject create(const MString& fullName, const MString& briefName, const MDistance& defaultValue,
                   MStatus* ReturnStatus = nullptr);

    /// What kind of quantity it is.
    Type unitType(MStatus* ReturnStatus = nullptr) const;

    /// Whether there is a limit. Hard limits refuse values, soft ones end the sliders of the user interface.
    bool hasMin(MStatus* ReturnStatus = nullptr) const;
    bool hasMax(MStatus* ReturnStatus = nullptr) const;
    bool hasSoftMin(MStatus* ReturnStatus = nullptr) const;
    bool hasSoftMax(MStatus* ReturnStatus = nullptr) const;

    /// The limits; kFailure when there is none or it is of another quantity.
    MStatus getMin(double& minValue) const;
    MStatus getMin(MTime& minValue) const;
    MStatus getMin(MAngle& minValue) const;
    MStatus getMin(MDistance& minValue) const;
    MStatus getMax(double& maxValue) const;
    MStatus getMax(MTime& maxValue) const;
    MStatus getMax(MAngle& maxValue) const;
    MStatus getMax(MDistance& maxValue) const;
    MStatus getSoftMin(double& minValue) const;
    MStatus getSoftMin(MTime& minValue) const;
    MStatus getSoftMin(MAngle& minValue) const;
    MStatus getSoftMin(MDistance& minValue) const;
    MStatus getSoftMax(double& maxValue) const;
    MStatus getSoftMax(MTime& maxValue) const;
    MStatus getSoftMax(MAngle& maxValue) const;
    MStatus getSoftMax(MDistance& maxValue) const;

    /// Sets limits; kFailure for another quantity.
    MStatus setMin(double minValue);
    MStatus setMin(const MTime& minValue);
    MStatus setMin(const MAngle& minValue);
    MStatus setMin(const MDistance& minValue);
    MStatus setMax(double maxValue);
    MStatus setMax(const MTime& maxValue);
    MStatus setMax(const MAngle& maxValue);
    MStatus setMax(const MDistance& maxValue);
    MStatus setSoftMin(double minValue);
    MStatus setSoftMin(const MTime& minValue);
    MStatus setSoftMin(const MAngle& minValue);
    MStatus setSoftMin(const MDistance& minValue);
    MStatus setSoftMax(double maxValue);
    MStatus setSoftMax(const MTime& maxValue);
    MStatus setSoftMax(const MAngle& maxValue);
    MStatus setSoftMax(const MDistance& maxValue);

    /// The default value.
    MStatus getDefault(double& defaultValue);
    MStatus getDefault(MTime& defaultValue);
    MStatus getDefault(MAngle& defaultValue);
    MStatus getDefault(MDistance& defaultValue);

    MStatus setDefault(double defaultValue);
    MStatus setDefault(const MTime& defaultValue);
    MStatus setDefault(const MAngle& defaultValue);
    MStatus setDefault(const MDistance& defaultValue);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
