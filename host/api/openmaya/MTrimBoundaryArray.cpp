// MTrimBoundaryArray: the boundaries by which a surface is trimmed.
#include <maya/MObjectArray.h>
#include <maya/MTrimBoundaryArray.h>

#include "support/apiCall.h"
#include "support/notImplemented.h"

using namespace tvxhost::api;

MTrimBoundaryArray::MTrimBoundaryArray() : boundaries(new std::vector<MObjectArray>), reserved(nullptr) {}

MTrimBoundaryArray::MTrimBoundaryArray(const MTrimBoundaryArray& other)
    : boundaries(new std::vector<MObjectArray>(*other.boundaries)), reserved(nullptr)
{
}

MTrimBoundaryArray::~MTrimBoundaryArray()
{
    delete boundaries;
}

MStatus MTrimBoundaryArray::reserve(unsigned int length)
{
    TVX_API_CALL("MTrimBoundaryArray::reserve");
    boundaries->reserve(length);
    return MS::kSuccess;
}

unsigned int MTrimBoundaryArray::length() const
{
    return static_cast<unsigned int>(boundaries->size());
}

unsigned int MTrimBoundaryArray::size() const
{
    return length();
}

const MObjectArray& MTrimBoundaryArray::operator[](unsigned int index) const
{
    return (*boundaries)[index];
}

const MObjectArray& MTrimBoundaryArray::get(unsigned int index) const
{
    return (*boundaries)[index];
}

MStatus MTrimBoundaryArray::set(const MObjectArray& boundary, unsigned int index)
{
    TVX_API_CALL("MTrimBoundaryArray::set");
    if (index >= boundaries->size())
        return failure(StatusText::noElementAtIndex);
    (*boundaries)[index] = boundary;
    return MS::kSuccess;
}

MStatus MTrimBoundaryArray::insert(const MObjectArray& boundary, unsigned int index)
{
    TVX_API_CALL("MTrimBoundaryArray::insert");
    if (index > boundaries->size())
        return failure(StatusText::noElementAtIndex);
    boundaries->insert(boundaries->begin() + index, boundary);
    return MS::kSuccess;
}

MStatus MTrimBoundaryArray::append(const MObjectArray& boundary)
{
    TVX_API_CALL("MTrimBoundaryArray::append");
    boundaries->push_back(boundary);
    return MS::kSuccess;
}

MStatus MTrimBoundaryArray::remove(unsigned int index)
{
    TVX_API_CALL("MTrimBoundaryArray::remove");
    if (index >= boundaries->size())
        return failure(StatusText::noElementAtIndex);
    boundaries->erase(boundaries->begin() + index);
    return MS::kSuccess;
}

MStatus MTrimBoundaryArray::clear()
{
    TVX_API_CALL("MTrimBoundaryArray::clear");
    boundaries->clear();
    return MS::kSuccess;
}

MObject MTrimBoundaryArray::getMergedBoundary(unsigned int, MStatus* status) const
{
    notImplemented("MTrimBoundaryArray::getMergedBoundary", status);
    return MObject();
}

const char* MTrimBoundaryArray::className()
{
    return "MTrimBoundaryArray";
}
