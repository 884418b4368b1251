// MFnMesh: what of texture coordinates the host cannot do: kNotImplemented, said once.
#include <maya/MFnMesh.h>

#include "support/apiCall.h"
#include "support/notImplemented.h"

using tvxhost::api::notImplemented;

MStatus MFnMesh::getAssociatedUVSetTextures(const MString, MObjectArray&) const
{
    TVX_API_CALL("MFnMesh::getAssociatedUVSetTextures");
    return notImplemented("MFnMesh::getAssociatedUVSetTextures");
}

MStatus MFnMesh::getAxisAtPoint(MPoint&, MVector&, MVector&, MVector&, MSpace::Space, const MString*, int*)
{
    TVX_API_CALL("MFnMesh::getAxisAtPoint");
    return notImplemented("MFnMesh::getAxisAtPoint");
}

MStatus MFnMesh::getPinUVs(MUintArray&, MDoubleArray&, const MString*) const
{
    TVX_API_CALL("MFnMesh::getPinUVs");
    return notImplemented("MFnMesh::getPinUVs");
}

MStatus MFnMesh::setPinUVs(const MUintArray&, const MDoubleArray&, const MString*)
{
    TVX_API_CALL("MFnMesh::setPinUVs");
    return notImplemented("MFnMesh::setPinUVs");
}
