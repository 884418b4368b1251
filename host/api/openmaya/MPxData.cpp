// MPxData: base class of a plug-in's own data, and what the host does not do with it.
#include <maya/MDataHandle.h>
#include <maya/MPlug.h>
#include <maya/MPxData.h>

#include "support/apiCall.h"
#include "support/notImplemented.h"

using tvxhost::api::failure;
using tvxhost::api::notImplemented;
using tvxhost::api::StatusText;

MPxData::MPxData() : instance(nullptr) {}

MPxData::~MPxData() = default;

MStatus MPxData::readASCII(const MArgList&, unsigned int&)
{
    TVX_API_CALL("MPxData::readASCII");
    return failure(StatusText::unexpectedFailure);
}

MStatus MPxData::readBinary(std::istream&, unsigned int)
{
    TVX_API_CALL("MPxData::readBinary");
    return failure(StatusText::unexpectedFailure);
}

MStatus MPxData::writeASCII(std::ostream&)
{
    TVX_API_CALL("MPxData::writeASCII");
    return failure(StatusText::unexpectedFailure);
}

MStatus MPxData::writeBinary(std::ostream&)
{
    TVX_API_CALL("MPxData::writeBinary");
    return failure(StatusText::unexpectedFailure);
}

// What holds such data

MStatus MPlug::setValue(MPxData*)
{
    return notImplemented("MPlug::setValue(MPxData)");
}

MStatus MPlug::setMPxData(MPxData*)
{
    return notImplemented("MPlug::setMPxData");
}

MStatus MDataHandle::set(MPxData*)
{
    return notImplemented("MDataHandle::set(MPxData)");
}

MStatus MDataHandle::setMPxData(MPxData*)
{
    return notImplemented("MDataHandle::setMPxData");
}

MPxData* MDataHandle::asPluginData() const
{
    notImplemented("MDataHandle::asPluginData");
    return nullptr;
}
