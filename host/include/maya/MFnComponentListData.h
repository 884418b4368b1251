// MFnComponentListData: a list of components as an object.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnData.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

/// Function set for data objects that hold a list of components, as sets do.
class OPENMAYA_EXPORT MFnComponentListData : public MFnData
{
public:
    /// Attached to nothing.
    MFnComponentListData() {}

    /// Attached to a component list.
    MFnComponentListData(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnComponentListData(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnComponentListData() override;

    MFn::Type type() const override;

    /// Number of components.
    unsigned int length(MStatus* ReturnStatus = nullptr) const;

    /// Whether the component is in the list.
    bool has(const MObject& obj, MStatus* ReturnStatus = nullptr) const;

    /// The component at an index, not checked.
    MObject operator[](unsigned int index) const;

    /// Adds a component; one that is there already is not added again.
    MStatus add(MObject&);

    /// Removes a component, by itself or by its index; kInvalidParameter when it is not there.
    MStatus remove(const MObject&);
    MStatus remove(unsigned int index);

    /// Removes all components.
    MStatus clear();

    /// Makes an empty object and attaches to it.
    MObject create(MStatus* ReturnStatus = nullptr);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
