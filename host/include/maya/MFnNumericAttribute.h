// MFnNumericAttribute: numbers, alone or in small groups.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnAttribute.h>
#include <maya/MFnNumericData.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>

/// Function set for attributes of numbers: one number, groups of two to four, points and colours.
class OPENMAYA_EXPORT MFnNumericAttribute : public MFnAttribute
{
public:
    /// Attached to nothing.
    MFnNumericAttribute() {}

    /// Attached to a numeric attribute.
    MFnNumericAttribute(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnNumericAttribute(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnNumericAttribute() override;

    MFn::Type type() const override;

    /// Makes an attribute and attaches to it. A group gets children with 0, 1, 2 appended to both names, or
    /// takes the given children. A null object and a failure when the names or the type are no good.
    MObject create(const MString& fullName, const MString& briefName, MFnNumericData::Type unitType,
                   double defaultValue = 0, MStatus* ReturnStatus = nullptr);
    MObject create(const MString& fullName, const MString& briefName, const MObject& child1,
                   const MObject& child2, const MObject& child3 = MObject::kNullObj,
                   MStatus* ReturnStatus = nullptr);

    /// Makes three floats shown as a colour; the children have R, G, B appended to the long name and r, g, b
    /// to the short one.
    MObject createColor(const MString& fullName, const MString& briefName, MStatus* ReturnStatus = nullptr);

    /// Makes three floats; the children have X, Y, Z appended to the long name and x, y, z to the short one.
    MObject createPoint(const MString& fullName, const MString& briefName, MStatus* ReturnStatus = nullptr);

    /// Makes an attribute that holds an address; it cannot be saved or connected by users.
    MObject createAddr(const MString& fullName, const MString& briefName, void* defaultValue = nullptr,
                       MStatus* ReturnStatus = nullptr);

    /// The type of the number or group.
    MFnNumericData::Type unitType(MStatus* ReturnStatus = nullptr) const;

    /// The child at an index of a group; kInvalidParameter beyond the last.
    MObject child(unsigned int index, MStatus* ReturnStatus = nullptr) const;

    /// Whether there is a limit. Hard limits refuse values, soft ones end the sliders of the user interface.
    bool hasMin(MStatus* ReturnStatus = nullptr) const;
    bool hasMax(MStatus* ReturnStatus = nullptr) const;
    bool hasSoftMin(MStatus* ReturnStatus = nullptr) const;
    bool hasSoftMax(MStatus* ReturnStatus = nullptr) const;

    /// The limits, one for each number of a group; kFailure when there are none.
    MStatus getMin(double& min1) const;
    MStatus getMin(double& min1, double& min2) const;
    MStatus getMin(double& min1, double& min2, double& min3) const;
    MStatus getMax(double& max1) const;
    MStatus getMax(double& max1, double& max2) const;
    MStatus getMax(double& max1, double& max2, double& max3) const;
    MStatus getSoftMin(double& min1) const;
    MStatus getSoftMax(double& max1) const;

    /// Sets limits, one for each number of a group.
    MStatus setMin(double min1);
    MStatus setMin(double min1, double min2);
    MStatus setMin(double min1, double min2, double min3);
    MStatus setMax(double max1);
    MStatus setMax(double max1, double max2);
    MStatus setMax(double max1, double max2, double max3);
    MStatus setSoftMin(double min1);
    MStatus setSoftMax(double max1);

    /// The default value, one for each number of a group.
    MStatus getDefault(bool& def1);
    MStatus getDefault(char& def1);
    MStatus getDefault(int& def1);
    MStatus getDefault(int& def1, int& def2);
    MStatus getDefault(int& def1, int& def2, int& def3);
    MStatus getDefault(MInt64& def1);
    MStatus getDefault(float& def1);
    MStatus getDefault(float& def1, float& def2);
    MStatus getDefault(float& def1, float& def2, float& def3);
    MStatus getDefault(double& def1);
    MStatus getDefault(double& def1, double& def2);
    MStatus getDefault(double& def1, double& def2, double& def3);
    MStatus getDefault(double& def1, double& def2, double& def3, double& def4);
    MStatus getDefault(void*& def1);

    /// Sets the default value, one for each number of a group.
    MStatus setDefault(bool def1);
    MStatus setDefault(char def1);
    MStatus setDefault(int def1);
    MStatus setDefault(int def1, int def2);
    MStatus setDefault(int def1, int def2, int def3);
    MStatus setDefault(MInt64 def1);
    MStatus setDefault(float def1);
    MStatus setDefault(float def1, float def2);
    MStatus setDefault(float def1, float def2, float def3);
    MStatus setDefault(double def1);
    MStatus setDefault(double def1, double def2);
    MStatus setDefault(double def1, double def2, double def3);
    MStatus setDefault(double def1, double def2, double def3, double def4);
    MStatus setDefault(void* def1);

    /// The name of this class.
    static const char* className();

private:
    bool objectChanged(MFn::Type type, MStatus* ReturnStatus) override;

    friend class tvxAccess;
};
