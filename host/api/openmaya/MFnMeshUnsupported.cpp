// MFnMesh: modelling, tangents and the like, which the host cannot do: kNotImplemented, said once.
#include <maya/MFnMesh.h>

#include "support/apiCall.h"
#include "support/notImplemented.h"

using tvxhost::api::notImplemented;

MObject MFnMesh::generateSmoothMesh(MObject, MMeshSmoothOptions*, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::generateSmoothMesh", ReturnStatus, MObject());
    notImplemented("MFnMesh::generateSmoothMesh", ReturnStatus);
    return MObject();
}

MStatus MFnMesh::getSmoothMeshDisplayOptions(MMeshSmoothOptions&) const
{
    TVX_API_CALL("MFnMesh::getSmoothMeshDisplayOptions");
    return notImplemented("MFnMesh::getSmoothMeshDisplayOptions");
}

MStatus MFnMesh::setSmoothMeshDisplayOptions(const MMeshSmoothOptions&)
{
    TVX_API_CALL("MFnMesh::setSmoothMeshDisplayOptions");
    return notImplemented("MFnMesh::setSmoothMeshDisplayOptions");
}

MObject MFnMesh::addPolygon(const MPointArray&, bool, double, MObject, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::addPolygon", ReturnStatus, MObject());
    notImplemented("MFnMesh::addPolygon", ReturnStatus);
    return MObject();
}

MObject MFnMesh::addPolygon(const MPointArray&, int&, bool, double, MObject, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::addPolygon", ReturnStatus, MObject());
    notImplemented("MFnMesh::addPolygon", ReturnStatus);
    return MObject();
}

MObject MFnMesh::addPolygon(const MPointArray&, const MIntArray&, int&, bool, double, MObject,
                            MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::addPolygon", ReturnStatus, MObject());
    notImplemented("MFnMesh::addPolygon", ReturnStatus);
    return MObject();
}

MStatus MFnMesh::addHoles(int, const MPointArray&, const MIntArray&, bool, double)
{
    TVX_API_CALL("MFnMesh::addHoles");
    return notImplemented("MFnMesh::addHoles");
}

MStatus MFnMesh::deleteFace(int, MDGModifier*)
{
    TVX_API_CALL("MFnMesh::deleteFace");
    return notImplemented("MFnMesh::deleteFace");
}

MStatus MFnMesh::deleteEdge(int, MDGModifier*)
{
    TVX_API_CALL("MFnMesh::deleteEdge");
    return notImplemented("MFnMesh::deleteEdge");
}

MStatus MFnMesh::deleteVertex(int, MDGModifier*)
{
    TVX_API_CALL("MFnMesh::deleteVertex");
    return notImplemented("MFnMesh::deleteVertex");
}

MStatus MFnMesh::split(MIntArray&, MIntArray&, MFloatArray&, MFloatPointArray&)
{
    TVX_API_CALL("MFnMesh::split");
    return notImplemented("MFnMesh::split");
}

MStatus MFnMesh::subdivideFaces(MIntArray&, int)
{
    TVX_API_CALL("MFnMesh::subdivideFaces");
    return notImplemented("MFnMesh::subdivideFaces");
}

MStatus MFnMesh::subdivideEdges(MIntArray&, int)
{
    TVX_API_CALL("MFnMesh::subdivideEdges");
    return notImplemented("MFnMesh::subdivideEdges");
}

MStatus MFnMesh::extrudeFaces(MIntArray&, int, MFloatVector*, bool, float, float)
{
    TVX_API_CALL("MFnMesh::extrudeFaces");
    return notImplemented("MFnMesh::extrudeFaces");
}

MStatus MFnMesh::extrudeEdges(MIntArray&, int, MFloatVector*, bool, float, float)
{
    TVX_API_CALL("MFnMesh::extrudeEdges");
    return notImplemented("MFnMesh::extrudeEdges");
}

MStatus MFnMesh::duplicateFaces(MIntArray&, MFloatVector*)
{
    TVX_API_CALL("MFnMesh::duplicateFaces");
    return notImplemented("MFnMesh::duplicateFaces");
}

MStatus MFnMesh::extractFaces(MIntArray&, MFloatVector*)
{
    TVX_API_CALL("MFnMesh::extractFaces");
    return notImplemented("MFnMesh::extractFaces");
}

MStatus MFnMesh::collapseFaces(MIntArray&)
{
    TVX_API_CALL("MFnMesh::collapseFaces");
    return notImplemented("MFnMesh::collapseFaces");
}

MStatus MFnMesh::collapseEdges(MIntArray&)
{
    TVX_API_CALL("MFnMesh::collapseEdges");
    return notImplemented("MFnMesh::collapseEdges");
}

MStatus MFnMesh::booleanOp(BoolOperation, MFnMesh&, MFnMesh&)
{
    TVX_API_CALL("MFnMesh::booleanOp");
    return notImplemented("MFnMesh::booleanOp");
}

MStatus MFnMesh::booleanOps(BoolOperation, const MObjectArray&, bool)
{
    TVX_API_CALL("MFnMesh::booleanOps");
    return notImplemented("MFnMesh::booleanOps");
}

int MFnMesh::getTangentId(int, int, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::getTangentId", ReturnStatus, 0);
    notImplemented("MFnMesh::getTangentId", ReturnStatus);
    return 0;
}

MStatus MFnMesh::getTangents(MFloatVectorArray&, MSpace::Space, const MString*) const
{
    TVX_API_CALL("MFnMesh::getTangents");
    return notImplemented("MFnMesh::getTangents");
}

MStatus MFnMesh::getFaceVertexTangent(int, int, MVector&, MSpace::Space, const MString*) const
{
    TVX_API_CALL("MFnMesh::getFaceVertexTangent");
    return notImplemented("MFnMesh::getFaceVertexTangent");
}

MStatus MFnMesh::getFaceVertexTangents(int, MFloatVectorArray&, MSpace::Space, const MString*) const
{
    TVX_API_CALL("MFnMesh::getFaceVertexTangents");
    return notImplemented("MFnMesh::getFaceVertexTangents");
}

MStatus MFnMesh::getBinormals(MFloatVectorArray&, MSpace::Space, const MString*) const
{
    TVX_API_CALL("MFnMesh::getBinormals");
    return notImplemented("MFnMesh::getBinormals");
}

MStatus MFnMesh::getFaceVertexBinormal(int, int, MVector&, MSpace::Space, const MString*) const
{
    TVX_API_CALL("MFnMesh::getFaceVertexBinormal");
    return notImplemented("MFnMesh::getFaceVertexBinormal");
}

MStatus MFnMesh::getFaceVertexBinormals(int, MFloatVectorArray&, MSpace::Space, const MString*) const
{
    TVX_API_CALL("MFnMesh::getFaceVertexBinormals");
    return notImplemented("MFnMesh::getFaceVertexBinormals");
}

bool MFnMesh::isRightHandedTangent(int, const MString*, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::isRightHandedTangent", ReturnStatus, false);
    notImplemented("MFnMesh::isRightHandedTangent", ReturnStatus);
    return false;
}

MStatus MFnMesh::polyTriangulate(const float*, unsigned int, unsigned int, unsigned int, bool, const float*,
                                 unsigned short*, int&)
{
    TVX_API_CALL("MFnMesh::polyTriangulate");
    return notImplemented("MFnMesh::polyTriangulate");
}

MStatus MFnMesh::polyTriangulate(const MFloatPointArray&, const MIntArray&, unsigned int,
                                 const MFloatVectorArray&, MIntArray&)
{
    TVX_API_CALL("MFnMesh::polyTriangulate");
    return notImplemented("MFnMesh::polyTriangulate");
}

MObject MFnMesh::generateSmoothMesh(MObject, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::generateSmoothMesh", ReturnStatus, MObject());
    notImplemented("MFnMesh::generateSmoothMesh", ReturnStatus);
    return MObject();
}

MObject MFnMesh::addPolygon(MPointArray&, double, bool, double, bool, MObject, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::addPolygon", ReturnStatus, MObject());
    notImplemented("MFnMesh::addPolygon", ReturnStatus);
    return MObject();
}

const adsk::Data::Associations* MFnMesh::metadata(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::metadata", ReturnStatus, nullptr);
    notImplemented("MFnMesh::metadata", ReturnStatus);
    return nullptr;
}

MStatus MFnMesh::setMetadata(const adsk::Data::Associations&)
{
    TVX_API_CALL("MFnMesh::setMetadata");
    return notImplemented("MFnMesh::setMetadata");
}

MStatus MFnMesh::validateMetadata(MString&) const
{
    TVX_API_CALL("MFnMesh::validateMetadata");
    return notImplemented("MFnMesh::validateMetadata");
}

bool MFnMesh::getMeshForIntersection(MSpace::Space, MFloatPoint&, MFloatVector&, void*&,
                                     MStatus* ReturnStatus)
{
    notImplemented("MFnMesh::getMeshForIntersection", ReturnStatus);
    return false;
}
