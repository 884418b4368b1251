// MItMeshPolygon: goes through the faces of a mesh.
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
class MPointArray;
class MString;
class MStringArray;
class MVector;
class MVectorArray;

/// Goes through the faces of a mesh by ascending number, or through those of a component. What is said of
/// objects, paths and spaces in MItMeshEdge holds here too. The corners of a face are counted from 0: those
/// of its outline, then those of its holes. Texture coordinates, colours and tangents are not done:
/// kNotImplemented.
class OPENMAYA_EXPORT MItMeshPolygon
{
public:
    /// At the first face of a mesh shape or of mesh data.
    MItMeshPolygon(const MObject& polyObject, MStatus* ReturnStatus = nullptr);
    MItMeshPolygon(const MDagPath& polyObject, MObject& component = MObject::kNullObj,
                   MStatus* ReturnStatus = nullptr);

    virtual ~MItMeshPolygon();

    /// Whether there are no more faces.
    bool isDone(MStatus* ReturnStatus = nullptr);

    /// Goes to the next face; kFailure at the end.
    MStatus next();

    /// Back to the first face, or to that of another mesh.
    MStatus reset();
    MStatus reset(const MObject& polyObject);
    MStatus reset(const MDagPath& polyObject, MObject& component = MObject::kNullObj);

    /// Number of faces that the iteration goes through, and number of corners of the present one.
    unsigned int count(MStatus* ReturnStatus = nullptr);
    unsigned int polygonVertexCount(MStatus* ReturnStatus = nullptr);

    /// The mean of the corners.
    MPoint center(MSpace::Space space = MSpace::kObject, MStatus* ReturnStatus = nullptr);

    /// The present face as a component.
    MObject polygon(MStatus* ReturnStatus = nullptr);
    MObject currentItem(MStatus* ReturnStatus = nullptr);

    /// The number of the present face.
    unsigned int index(MStatus* ReturnStatus = nullptr);

    /// Goes to a face by number, in constant time, and gives the number it leaves. Out of range:
    /// kInvalidParameter and the iterator stays.
    MStatus setIndex(int index, int& prevIndex);

    /// The number of the vertex at a corner, or at all of them.
    unsigned int vertexIndex(int index, MStatus* ReturnStatus = nullptr);
    MStatus getVertices(MIntArray& vertices);

    /// Where a corner is, or all of them.
    MPoint point(int index, MSpace::Space space = MSpace::kObject, MStatus* ReturnStatus = nullptr);
    void getPoints(MPointArray& pointArray, MSpace::Space space = MSpace::kObject,
                   MStatus* ReturnStatus = nullptr);

    /// Moves a corner, or all of them: by tweaks where the mesh has history, for good where it has none.
    MStatus setPoint(const MPoint& point, unsigned int index, MSpace::Space space = MSpace::kObject);
    MStatus setPoints(MPointArray& pointArray, MSpace::Space space = MSpace::kObject);

    /// The number of the normal at a corner (see MFnMesh::getNormals).
    unsigned int normalIndex(int vertex, MStatus* ReturnStatus = nullptr) const;

    /// The normal of the face, that at a corner, or those at all corners.
    MStatus getNormal(MVector& normal, MSpace::Space space = MSpace::kObject) const;
    MStatus getNormal(unsigned int Vertexindex, MVector& normal, MSpace::Space space = MSpace::kObject) const;
    MStatus getNormals(MVectorArray& vectorArray, MSpace::Space space = MSpace::kObject) const;

    /// Tangents.
    unsigned int tangentIndex(int vertex, MStatus* ReturnStatus = nullptr) const;

    /// Texture coordinates at the corners, in a set by name (null: the current one; see MFnMesh). A face has
    /// them at all of its corners or counts as not mapped: reading and changing are kFailure then. Setting
    /// one changes it for all corners that share it. Areas are those in the texture, without a sign.
    bool hasUVs(MStatus* ReturnStatus = nullptr) const;
    bool hasUVs(const MString& uvSet, MStatus* ReturnStatus = nullptr) const;
    MStatus setUV(int vertexId, float2& uvPoint, const MString* uvSet = nullptr);
    MStatus getUV(int vertexId, float2& uvPoint, const MString* uvSet = nullptr) const;
    MStatus setUVs(MFloatArray& uArray, MFloatArray& vArray, const MString* uvSet = nullptr);
    MStatus getUVs(MFloatArray& uArray, MFloatArray& vArray, const MString* uvSet = nullptr) const;
    MStatus getPointAtUV(MPoint& pt, float2& uvPoint, MSpace::Space space = MSpace::kObject,
                         const MString* uvSet = nullptr, float tolerance = 0.0);
    MStatus getAxisAtUV(MVector& normal, MVector& uTangent, MVector& vTangent, float2& uvPoint,
                        MSpace::Space space = MSpace::kObject, const MString* uvSet = nullptr,
                        float tolerance = 0.0);
    MStatus getUVAtPoint(MPoint& pt, float2& uvPoint, MSpace::Space space = MSpace::kObject,
                         const MString* uvSet = nullptr);
    MStatus getUVIndex(int vertex, int& index, const MString* uvSet = nullptr);
    MStatus getUVIndex(int vertex, int& index, float& u, float& v, const MString* uvSet = nullptr);
    MStatus getUVSetNames(MStringArray& setNames) const;
    MStatus getUVArea(double& area, const MString* uvSet = nullptr);
    bool zeroUVArea(MStatus* ReturnStatus = nullptr);
    bool zeroUVArea(const MString& uvSet, MStatus* ReturnStatus = nullptr);

    /// Colours of the corners, in a set by name (null: the current one; see MFnMesh). Of a face the mean;
    /// kFailure when no corner has one. In lists corners without are (0, 0, 0, 1), or (-1, -1, -1, 1) when
    /// none has one, and their number is -1.
    bool hasColor(MStatus* ReturnStatus = nullptr) const;
    bool hasColor(int localVertexIndex, MStatus* ReturnStatus = nullptr);
    MStatus getColor(MColor& color, const MString* colorSetName = nullptr);
    MStatus getColor(MColor& color, int vertexIndex);
    MStatus getColors(MColorArray& colors, const MString* colorSetName = nullptr);
    MStatus numColors(int& count, const MString* colorSetName = nullptr);
    MStatus getColorIndex(int vertexIndex, int& colorIndex, const MString* colorSetName = nullptr);
    MStatus getColorIndices(MIntArray& colorIndex, const MString* colorSetName = nullptr);

    /// The triangles of the face (see MFnMesh::getTriangles): whether together they are the face, which they
    /// are not when it has no area in places or crosses itself; how many there are; the vertices of one or of
    /// all, three each, and where these are. kInvalidParameter for a triangle that there is not.
    bool hasValidTriangulation(MStatus* ReturnStatus = nullptr) const;
    MStatus numTriangles(int& count) const;
    MStatus getTriangle(int localTriIndex, MPointArray& points, MIntArray& vertexList,
                        MSpace::Space space = MSpace::kObject) const;
    MStatus getTriangles(MPointArray& points, MIntArray& vertexList,
                         MSpace::Space space = MSpace::kObject) const;

    /// Tell that points were changed; changes are seen at once without it.
    MStatus updateSurface();
    MStatus geomChanged();

    /// The edges of the face, corner by corner.
    MStatus getEdges(MIntArray& edges);

    /// The faces that share an edge with this one; the edges that share a vertex with it and are not its own,
    /// and the vertices at their other ends; each by ascending number.
    MStatus getConnectedFaces(MIntArray& faces);
    MStatus getConnectedEdges(MIntArray& edges);
    MStatus getConnectedVertices(MIntArray& vertices);

    /// Whether these hold a face, an edge or a vertex.
    bool isConnectedToFace(int index, MStatus* ReturnStatus = nullptr);
    bool isConnectedToEdge(int index, MStatus* ReturnStatus = nullptr);
    bool isConnectedToVertex(int index, MStatus* ReturnStatus = nullptr);

    /// How many these are.
    MStatus numConnectedFaces(int& faceCount) const;
    MStatus numConnectedEdges(int& edgeCount) const;

    /// Whether an edge of the face is a border.
    bool onBoundary(MStatus* ReturnStatus = nullptr);

    /// The area, and whether there is none.
    MStatus getArea(double& area, MSpace::Space space = MSpace::kObject);
    bool zeroArea(MStatus* ReturnStatus = nullptr);

    /// What shape the face has: convex, its outline seen from the mean of its corners, with a twin on the
    /// same edges, with holes, flat. One with holes is neither of the first two.
    bool isConvex(MStatus* ReturnStatus = nullptr);
    bool isStarlike(MStatus* ReturnStatus = nullptr);
    bool isLamina(MStatus* ReturnStatus = nullptr);
    bool isHoled(MStatus* ReturnStatus = nullptr);
    bool isPlanar(MStatus* ReturnStatus = nullptr);

    /// The name of this class.
    static const char* className();

protected:
    /// For Maya's own use: kNotImplemented, false.
    bool getUVSetIndex(const MString* uvSetName, int& uvSet) const;
    bool updateColorSet(const MString* colorSetName, int& prevSetId);
    void resetColorSetToPrevious(const MString* colorSetName, int prevSetId);

private:
    friend class tvxAccess;

    MItMeshPolygon(const MItMeshPolygon&) = delete;
    MItMeshPolygon& operator=(const MItMeshPolygon&) = delete;

    tvxhost::api::MeshIteration* iteration; ///< owned
    void* reserved[9];
};
