// MItMeshVertex: goes through the vertices of a mesh.
#pragma once

#include <maya/MObject.h>
#include <maya/MPoint.h>
#include <maya/MSpace.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MColor;
class MColorArray;
class MDagPath;
class MFloatArray;
class MIntArray;
class MString;
class MVector;
class MVectorArray;

/// Goes through the vertices of a mesh by ascending number, or through those of a component. What is said of
/// objects, paths and spaces in MItMeshEdge holds here too. Texture coordinates and colours are not done:
/// kNotImplemented.
class OPENMAYA_EXPORT MItMeshVertex
{
public:
    /// At the first vertex of a mesh shape or of mesh data.
    MItMeshVertex(MObject& polyObject, MStatus* ReturnStatus = nullptr);
    MItMeshVertex(const MDagPath& polyObject, MObject& component = MObject::kNullObj,
                  MStatus* ReturnStatus = nullptr);

    virtual ~MItMeshVertex();

    /// Whether there are no more vertices.
    bool isDone(MStatus* ReturnStatus = nullptr);

    /// Goes to the next vertex; kFailure at the end.
    MStatus next();

    /// Back to the first vertex, or to that of another mesh.
    MStatus reset();
    MStatus reset(MObject& polyObject);
    MStatus reset(const MDagPath& polyObject, MObject& component = MObject::kNullObj);

    /// Number of vertices that the iteration goes through, and the number of the present one.
    int count(MStatus* ReturnStatus = nullptr);
    int index(MStatus* ReturnStatus = nullptr);

    /// The present vertex as a component.
    MObject vertex(MStatus* ReturnStatus = nullptr);
    MObject currentItem(MStatus* ReturnStatus = nullptr);

    /// Where the vertex is.
    MPoint position(MSpace::Space space = MSpace::kObject, MStatus* ReturnStatus = nullptr);

    /// Moves the vertex: by a tweak where the mesh has history, for good where it has none.
    MStatus setPosition(const MPoint& point, MSpace::Space space = MSpace::kObject);
    MStatus translateBy(const MVector& vector, MSpace::Space space = MSpace::kObject);

    /// The mean of the normals of the faces at the vertex, or the normal that one of them has there, or those
    /// that all of them have there, by ascending face.
    MStatus getNormal(MVector& vector, MSpace::Space space = MSpace::kObject);
    MStatus getNormal(MVector& vector, int faceIndex, MSpace::Space space = MSpace::kObject);
    MStatus getNormals(MVectorArray& vectorArray, MSpace::Space space = MSpace::kObject);

    /// The numbers of these normals (see MFnMesh::getNormals), by ascending face.
    MStatus getNormalIndices(MIntArray& normalIndices) const;

    /// Texture coordinates that faces have at the vertex, by ascending face, in a set by name (null: the
    /// current one; see MFnMesh). Without a face, getUV tells the first one and setUV changes all of them;
    /// kFailure when no face is mapped here. A face that is not at the vertex or not mapped is
    /// kInvalidParameter.
    MStatus numUVs(int& count, const MString* uvSet = nullptr);
    MStatus setUV(float2& uvPoint, const MString* uvSet = nullptr);
    MStatus setUV(int faceId, float2& uvPoint, const MString* uvSet = nullptr);
    MStatus getUV(float2& uvPoint, const MString* uvSet = nullptr);
    MStatus getUV(int faceId, float2& uvPoint, const MString* uvSet = nullptr) const;
    MStatus setUVs(MFloatArray& uArray, MFloatArray& vArray, MIntArray& faceIds,
                   const MString* uvSet = nullptr);
    MStatus getUVs(MFloatArray& uArray, MFloatArray& vArray, MIntArray& faceIds,
                   const MString* uvSet = nullptr) const;
    MStatus getUVIndices(MIntArray& uvIndices, const MString* uvSet = nullptr) const;

    /// Tell that points were changed; changes are seen at once without it.
    MStatus updateSurface();
    MStatus geomChanged();

    /// Goes to a vertex by number, in constant time, and gives the number it leaves. Out of range:
    /// kInvalidParameter and the iterator stays.
    MStatus setIndex(int index, int& prevIndex);

    /// The faces with a corner at the vertex, and the edges that end there, each by ascending number, and the
    /// other ends of these edges in their order.
    MStatus getConnectedFaces(MIntArray& faceList);
    MStatus getConnectedEdges(MIntArray& edgeList);
    MStatus getConnectedVertices(MIntArray& vertexList);

    /// How many these are.
    MStatus numConnectedFaces(int& faceCount) const;
    MStatus numConnectedEdges(int& edgeCount) const;

    /// Whether these hold a face or an edge.
    bool connectedToFace(int faceIndex, MStatus* ReturnStatus = nullptr);
    bool connectedToEdge(int edgeIndex, MStatus* ReturnStatus = nullptr);

    /// The other end of an edge that ends at the vertex; kInvalidParameter for another edge.
    MStatus getOppositeVertex(int& vertexId, int edgeId);

    /// Whether a border edge ends at the vertex.
    bool onBoundary(MStatus* ReturnStatus = nullptr);

    /// Colours that faces have at the vertex, by ascending face; otherwise as those of a face (see
    /// MItMeshPolygon).
    bool hasColor(MStatus* ReturnStatus = nullptr) const;
    bool hasColor(int faceIndex, MStatus* ReturnStatus = nullptr) const;
    MStatus getColor(MColor& color, int faceIndex, const MString* colorSetName = nullptr) const;
    MStatus getColor(MColor& color, const MString* colorSetName = nullptr) const;
    MStatus getColors(MColorArray& colors, const MString* colorSetName = nullptr) const;
    MStatus getColorIndices(MIntArray& colorIndex, const MString* colorSetName = nullptr) const;

    /// The name of this class.
    static const char* className();

protected:
    /// For Maya's own use: kNotImplemented, false.
    bool getUVSetIndex(const MString* uvSetName, int& uvSet) const;
    bool updateColorSet(const MString* colorSetName, int& prevSetId) const;
    void resetColorSetToPrevious(const MString* colorSetName, int prevSetId) const;

private:
    friend class tvxAccess;

    MItMeshVertex(const MItMeshVertex&) = delete;
    MItMeshVertex& operator=(const MItMeshVertex&) = delete;

    tvxhost::api::MeshIteration* iteration; ///< owned
    void* reserved[9];
};
