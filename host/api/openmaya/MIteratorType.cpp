// MIteratorType: by what an iterator goes, and what it visits.
#include <maya/MIntArray.h>
#include <maya/MIteratorType.h>

#include "support/access.h"
#include "support/apiCall.h"

using namespace tvxhost::api;

MIteratorType::MIteratorType(MStatus* ReturnStatus)
    : filters(), objectType(kMObject), isList(false), reserved(nullptr)
{
    TVX_API_CONSTRUCTION("MIteratorType::MIteratorType", ReturnStatus);
    giveSuccess(ReturnStatus);
}

MIteratorType::MIteratorType(const MIteratorType& other, MStatus* ReturnStatus) : MIteratorType(ReturnStatus)
{
    filters = other.filters;
    objectType = other.objectType;
    isList = other.isList;
}

MIteratorType::~MIteratorType() = default;

void MIteratorType::setFilterType(MFn::Type type, MStatus* ReturnStatus)
{
    TVX_API_CONSTRUCTION("MIteratorType::setFilterType", ReturnStatus);
    filters.assign(1, type);
    isList = false;
    giveSuccess(ReturnStatus);
}

void MIteratorType::setFilterList(MIntArray& listOfFilters, MStatus* ReturnStatus)
{
    TVX_API_CONSTRUCTION("MIteratorType::setFilterList", ReturnStatus);
    if (listOfFilters.length() == 0)
        return give(ReturnStatus, failure(MS::kInvalidParameter, StatusText::unexpectedFailure));
    filters = tvxAccess::elements(listOfFilters);
    isList = true;
    giveSuccess(ReturnStatus);
}

void MIteratorType::setObjectType(objFilterType objType, MStatus* ReturnStatus)
{
    TVX_API_CONSTRUCTION("MIteratorType::setObjectType", ReturnStatus);
    objectType = objType;
    giveSuccess(ReturnStatus);
}

MFn::Type MIteratorType::getFilterType(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MIteratorType::getFilterType", ReturnStatus, MFn::kInvalid);
    give(ReturnStatus, isList ? failure(StatusText::unexpectedFailure) : MStatus());
    return isList || filters.empty() ? MFn::kInvalid : static_cast<MFn::Type>(filters.front());
}

MStatus MIteratorType::getFilterList(MIntArray& listOfFilters)
{
    TVX_API_CALL("MIteratorType::getFilterList");
    if (!isList)
        return failure(StatusText::unexpectedFailure);
    tvxAccess::elements(listOfFilters) = filters;
    return MS::kSuccess;
}

MIteratorType::objFilterType MIteratorType::getObjectType(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MIteratorType::getObjectType", ReturnStatus, kMObject);
    giveSuccess(ReturnStatus);
    return objectType;
}

bool MIteratorType::filterListEnabled()
{
    return isList;
}
