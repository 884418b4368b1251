// MIteratorType: by what an iterator goes, and what it visits.
#pragma once

#include <maya/MFn.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <vector>

class MIntArray;

/// By what kind of root an iterator goes, and the types of what it visits: one, or any of a list.
class OPENMAYA_EXPORT MIteratorType
{
public:
    /// Of what kind the root is.
    enum objFilterType
    {
        kMObject = 0,
        kMDagPathObject = 1,
        kMPlugObject = 2,
    };

    /// From an object, over everything.
    MIteratorType(MStatus* ReturnStatus = nullptr);
    MIteratorType(const MIteratorType&, MStatus* ReturnStatus = nullptr);
    ~MIteratorType();

    /// Visits one type only; kInvalid is all. Replaces a list.
    void setFilterType(MFn::Type type, MStatus* ReturnStatus = nullptr);

    /// Visits what is of any of these types. kInvalidParameter, and no change, for an empty list.
    void setFilterList(MIntArray& listOfFilters, MStatus* ReturnStatus = nullptr);

    void setObjectType(objFilterType objType, MStatus* ReturnStatus = nullptr);

    /// The one type; kInvalid and kFailure when there is a list.
    MFn::Type getFilterType(MStatus* ReturnStatus = nullptr);

    /// The list; kFailure when there is none.
    MStatus getFilterList(MIntArray& listOfFilters);

    objFilterType getObjectType(MStatus* ReturnStatus = nullptr);

    /// Whether there is a list.
    bool filterListEnabled();

private:
    friend class tvxAccess;

    std::vector<int> filters; ///< MFn::Type
    objFilterType objectType;
    bool isList;
    void* reserved;
};
