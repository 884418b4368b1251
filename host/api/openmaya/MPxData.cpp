// MPxData: base class of a plug-in's own data.
#include <maya/MPxData.h>

#include "support/apiCall.h"

using tvxhost::api::failure;
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
