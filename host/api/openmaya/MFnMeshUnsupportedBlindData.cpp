// MFnMesh: blind data, which the host cannot do: kNotImplemented, said once.
#include <maya/MFnMesh.h>

#include "support/apiCall.h"
#include "support/notImplemented.h"

#include <maya/MStringArray.h>

using tvxhost::api::notImplemented;

bool MFnMesh::isBlindDataTypeUsed(int, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::isBlindDataTypeUsed", ReturnStatus, false);
    notImplemented("MFnMesh::isBlindDataTypeUsed", ReturnStatus);
    return false;
}

MStatus MFnMesh::createBlindDataType(int, MStringArray, MStringArray, MStringArray)
{
    TVX_API_CALL("MFnMesh::createBlindDataType");
    return notImplemented("MFnMesh::createBlindDataType");
}

bool MFnMesh::hasBlindDataComponentId(int, MFn::Type, int, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::hasBlindDataComponentId", ReturnStatus, false);
    notImplemented("MFnMesh::hasBlindDataComponentId", ReturnStatus);
    return false;
}

bool MFnMesh::hasBlindData(MFn::Type, int, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::hasBlindData", ReturnStatus, false);
    notImplemented("MFnMesh::hasBlindData", ReturnStatus);
    return false;
}

bool MFnMesh::hasBlindDataComponentId(int, MFn::Type, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::hasBlindDataComponentId", ReturnStatus, false);
    notImplemented("MFnMesh::hasBlindDataComponentId", ReturnStatus);
    return false;
}

bool MFnMesh::hasBlindData(MFn::Type, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::hasBlindData", ReturnStatus, false);
    notImplemented("MFnMesh::hasBlindData", ReturnStatus);
    return false;
}

MStatus MFnMesh::getBlindDataTypes(MFn::Type, MIntArray&) const
{
    TVX_API_CALL("MFnMesh::getBlindDataTypes");
    return notImplemented("MFnMesh::getBlindDataTypes");
}

MStatus MFnMesh::getBlindDataAttrNames(int, MStringArray&, MStringArray&, MStringArray&) const
{
    TVX_API_CALL("MFnMesh::getBlindDataAttrNames");
    return notImplemented("MFnMesh::getBlindDataAttrNames");
}

MStatus MFnMesh::getFaceVertexBlindDataIndex(int, int, int&) const
{
    TVX_API_CALL("MFnMesh::getFaceVertexBlindDataIndex");
    return notImplemented("MFnMesh::getFaceVertexBlindDataIndex");
}

MStatus MFnMesh::getBlindDataFaceVertexIndices(int, int&, int&) const
{
    TVX_API_CALL("MFnMesh::getBlindDataFaceVertexIndices");
    return notImplemented("MFnMesh::getBlindDataFaceVertexIndices");
}

MStatus MFnMesh::getIntBlindData(int, MFn::Type, int, MString, int&) const
{
    TVX_API_CALL("MFnMesh::getIntBlindData");
    return notImplemented("MFnMesh::getIntBlindData");
}

MStatus MFnMesh::getIntBlindData(MFn::Type, int, MString, MIntArray&, MIntArray&) const
{
    TVX_API_CALL("MFnMesh::getIntBlindData");
    return notImplemented("MFnMesh::getIntBlindData");
}

MStatus MFnMesh::getFloatBlindData(int, MFn::Type, int, MString, float&) const
{
    TVX_API_CALL("MFnMesh::getFloatBlindData");
    return notImplemented("MFnMesh::getFloatBlindData");
}

MStatus MFnMesh::getFloatBlindData(MFn::Type, int, MString, MIntArray&, MFloatArray&) const
{
    TVX_API_CALL("MFnMesh::getFloatBlindData");
    return notImplemented("MFnMesh::getFloatBlindData");
}

MStatus MFnMesh::getDoubleBlindData(int, MFn::Type, int, MString, double&) const
{
    TVX_API_CALL("MFnMesh::getDoubleBlindData");
    return notImplemented("MFnMesh::getDoubleBlindData");
}

MStatus MFnMesh::getDoubleBlindData(MFn::Type, int, MString, MIntArray&, MDoubleArray&) const
{
    TVX_API_CALL("MFnMesh::getDoubleBlindData");
    return notImplemented("MFnMesh::getDoubleBlindData");
}

MStatus MFnMesh::getBoolBlindData(int, MFn::Type, int, MString, bool&) const
{
    TVX_API_CALL("MFnMesh::getBoolBlindData");
    return notImplemented("MFnMesh::getBoolBlindData");
}

MStatus MFnMesh::getBoolBlindData(MFn::Type, int, MString, MIntArray&, MIntArray&) const
{
    TVX_API_CALL("MFnMesh::getBoolBlindData");
    return notImplemented("MFnMesh::getBoolBlindData");
}

MString MFnMesh::stringBlindDataComponentId(int, MFn::Type, int, MString, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::stringBlindDataComponentId", ReturnStatus, MString());
    notImplemented("MFnMesh::stringBlindDataComponentId", ReturnStatus);
    return MString();
}

MStatus MFnMesh::getStringBlindData(MFn::Type, int, MString, MIntArray&, MStringArray&) const
{
    TVX_API_CALL("MFnMesh::getStringBlindData");
    return notImplemented("MFnMesh::getStringBlindData");
}

MString MFnMesh::binaryBlindDataComponentId(int, MFn::Type, int, MString, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::binaryBlindDataComponentId", ReturnStatus, MString());
    notImplemented("MFnMesh::binaryBlindDataComponentId", ReturnStatus);
    return MString();
}

MStatus MFnMesh::getBinaryBlindData(MFn::Type, int, MString, MIntArray&, MStringArray&) const
{
    TVX_API_CALL("MFnMesh::getBinaryBlindData");
    return notImplemented("MFnMesh::getBinaryBlindData");
}

MStatus MFnMesh::setIntBlindData(int, MFn::Type, int, MString, int)
{
    TVX_API_CALL("MFnMesh::setIntBlindData");
    return notImplemented("MFnMesh::setIntBlindData");
}

MStatus MFnMesh::setIntBlindData(MIntArray&, MFn::Type, int, MString, int)
{
    TVX_API_CALL("MFnMesh::setIntBlindData");
    return notImplemented("MFnMesh::setIntBlindData");
}

MStatus MFnMesh::setIntBlindData(MIntArray&, MFn::Type, int, MString, MIntArray&)
{
    TVX_API_CALL("MFnMesh::setIntBlindData");
    return notImplemented("MFnMesh::setIntBlindData");
}

MStatus MFnMesh::setFloatBlindData(int, MFn::Type, int, MString, float)
{
    TVX_API_CALL("MFnMesh::setFloatBlindData");
    return notImplemented("MFnMesh::setFloatBlindData");
}

MStatus MFnMesh::setFloatBlindData(MIntArray&, MFn::Type, int, MString, float)
{
    TVX_API_CALL("MFnMesh::setFloatBlindData");
    return notImplemented("MFnMesh::setFloatBlindData");
}

MStatus MFnMesh::setFloatBlindData(MIntArray&, MFn::Type, int, MString, MFloatArray&)
{
    TVX_API_CALL("MFnMesh::setFloatBlindData");
    return notImplemented("MFnMesh::setFloatBlindData");
}

MStatus MFnMesh::setDoubleBlindData(int, MFn::Type, int, MString, double)
{
    TVX_API_CALL("MFnMesh::setDoubleBlindData");
    return notImplemented("MFnMesh::setDoubleBlindData");
}

MStatus MFnMesh::setDoubleBlindData(MIntArray&, MFn::Type, int, MString, double)
{
    TVX_API_CALL("MFnMesh::setDoubleBlindData");
    return notImplemented("MFnMesh::setDoubleBlindData");
}

MStatus MFnMesh::setDoubleBlindData(MIntArray&, MFn::Type, int, MString, MDoubleArray&)
{
    TVX_API_CALL("MFnMesh::setDoubleBlindData");
    return notImplemented("MFnMesh::setDoubleBlindData");
}

MStatus MFnMesh::setBoolBlindData(int, MFn::Type, int, MString, bool)
{
    TVX_API_CALL("MFnMesh::setBoolBlindData");
    return notImplemented("MFnMesh::setBoolBlindData");
}

MStatus MFnMesh::setBoolBlindData(MIntArray&, MFn::Type, int, MString, bool)
{
    TVX_API_CALL("MFnMesh::setBoolBlindData");
    return notImplemented("MFnMesh::setBoolBlindData");
}

MStatus MFnMesh::setBoolBlindData(MIntArray&, MFn::Type, int, MString, MIntArray&)
{
    TVX_API_CALL("MFnMesh::setBoolBlindData");
    return notImplemented("MFnMesh::setBoolBlindData");
}

MStatus MFnMesh::setStringBlindData(int, MFn::Type, int, MString, MString)
{
    TVX_API_CALL("MFnMesh::setStringBlindData");
    return notImplemented("MFnMesh::setStringBlindData");
}

MStatus MFnMesh::setStringBlindData(MIntArray&, MFn::Type, int, MString, MString)
{
    TVX_API_CALL("MFnMesh::setStringBlindData");
    return notImplemented("MFnMesh::setStringBlindData");
}

MStatus MFnMesh::setStringBlindData(MIntArray&, MFn::Type, int, MString, MStringArray&)
{
    TVX_API_CALL("MFnMesh::setStringBlindData");
    return notImplemented("MFnMesh::setStringBlindData");
}

MStatus MFnMesh::setBinaryBlindData(int, MFn::Type, int, MString, MString)
{
    TVX_API_CALL("MFnMesh::setBinaryBlindData");
    return notImplemented("MFnMesh::setBinaryBlindData");
}

MStatus MFnMesh::setBinaryBlindData(MIntArray&, MFn::Type, int, MString, MString)
{
    TVX_API_CALL("MFnMesh::setBinaryBlindData");
    return notImplemented("MFnMesh::setBinaryBlindData");
}

MStatus MFnMesh::setBinaryBlindData(MIntArray&, MFn::Type, int, MString, MStringArray&)
{
    TVX_API_CALL("MFnMesh::setBinaryBlindData");
    return notImplemented("MFnMesh::setBinaryBlindData");
}

MStatus MFnMesh::setBinaryBlindData(int, MFn::Type, int, MString, char*, int)
{
    TVX_API_CALL("MFnMesh::setBinaryBlindData");
    return notImplemented("MFnMesh::setBinaryBlindData");
}

MStatus MFnMesh::clearBlindData(int, MFn::Type, int, MString)
{
    TVX_API_CALL("MFnMesh::clearBlindData");
    return notImplemented("MFnMesh::clearBlindData");
}

MStatus MFnMesh::clearBlindData(MFn::Type, int, MString)
{
    TVX_API_CALL("MFnMesh::clearBlindData");
    return notImplemented("MFnMesh::clearBlindData");
}

MStatus MFnMesh::clearBlindData(MFn::Type)
{
    TVX_API_CALL("MFnMesh::clearBlindData");
    return notImplemented("MFnMesh::clearBlindData");
}

MStatus MFnMesh::clearBlindData(int, MFn::Type, int)
{
    TVX_API_CALL("MFnMesh::clearBlindData");
    return notImplemented("MFnMesh::clearBlindData");
}

MStatus MFnMesh::clearBlindData(MFn::Type, int)
{
    TVX_API_CALL("MFnMesh::clearBlindData");
    return notImplemented("MFnMesh::clearBlindData");
}

MStatus MFnMesh::getBlindDataAttrNames(int, MStringArray&, MStringArray&) const
{
    TVX_API_CALL("MFnMesh::getBlindDataAttrNames");
    return notImplemented("MFnMesh::getBlindDataAttrNames");
}

bool MFnMesh::hasBlindData(int, MFn::Type, int, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::hasBlindData", ReturnStatus, false);
    notImplemented("MFnMesh::hasBlindData", ReturnStatus);
    return false;
}

bool MFnMesh::hasBlindData(int, MFn::Type, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::hasBlindData", ReturnStatus, false);
    notImplemented("MFnMesh::hasBlindData", ReturnStatus);
    return false;
}

MStatus MFnMesh::getStringBlindData(int, MFn::Type, int, MString, MString&) const
{
    TVX_API_CALL("MFnMesh::getStringBlindData");
    return notImplemented("MFnMesh::getStringBlindData");
}

MStatus MFnMesh::getBinaryBlindData(int, MFn::Type, int, MString, MString&) const
{
    TVX_API_CALL("MFnMesh::getBinaryBlindData");
    return notImplemented("MFnMesh::getBinaryBlindData");
}
