// MFnMesh: polygon meshes.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnDagNode.h>
#include <maya/MObject.h>
#include <maya/MSpace.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>

/// How near two points have to be to count as one.
#define kMFnMeshPointTolerance 1.0e-10
/// No instance in particular.
#define kMFnMeshInstanceUnspecified -1

class MColor;
class MColorArray;
class MDGModifier;
class MDagPath;
class MDoubleArray;
class MFloatArray;
class MFloatPoint;
class MFloatPointArray;
class MFloatVector;
class MFloatVectorArray;
class MIntArray;
class MMeshIsectAccelParams;
class MMeshSmoothOptions;
class MObjectArray;
class MPoint;
class MPointArray;
class MSelectionList;
class MStringArray;
class MUintArray;
class MVector;
class MVectorArray;

/// Function set for mesh shapes and for mesh data. Vertices, edges and faces have the numbers of the scene
/// file; the corners of a face are counted from 0, those of its outline first. Spaces: kWorld, for which the
/// set has to be built on a path, and object space for all others; positions are in centimetres. Points can
/// be moved on any mesh: by tweaks where it has history, for good where it has none; everything else that
/// changes a mesh needs one without history.
///
/// Texture coordinates, colours, tangents, blind data and the operations of modelling are not done:
/// kNotImplemented, said once.
class OPENMAYA_EXPORT MFnMesh : public MFnDagNode
{
public:
    /// What a colour set holds.
    enum MColorRepresentation
    {
        kAlpha = 1,
        kRGB = 3,
        kRGBA = 4,
    };

    /// Where a split goes through.
    enum SplitPlacement
    {
        kOnEdge = 0,
        kInternalPoint = 1,
        kInvalid = 2,
    };

    enum BoolOperation
    {
        kUnion = 1,
        kDifference = 2,
        kIntersection = 3,
    };

    /// Attached to nothing, to a mesh shape or mesh data, or to the mesh at or below the end of a path.
    MFnMesh();
    MFnMesh(MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnMesh(const MDagPath& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnMesh(const MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);

    ~MFnMesh() override;

    MFn::Type type() const override;

    /// Makes a mesh and attaches to it. The parent is a transform, or null for one of its own, or mesh data
    /// that is filled. Returns the transform that was made, or else the shape or the data. `polygonCounts`
    /// holds the number of corners of each face, `polygonConnects` the vertices of all corners one after the
    /// other; edges are numbered as faces first use them, and smooth. kInvalidParameter for numbers that do
    /// not fit each other. Those with texture coordinates: kNotImplemented unless there are none.
    MObject create(int numVertices, int numPolygons, const MFloatPointArray& vertexArray,
                   const MIntArray& polygonCounts, const MIntArray& polygonConnects,
                   MObject parentOrOwner = MObject::kNullObj, MStatus* ReturnStatus = nullptr);
    MObject create(int numVertices, int numPolygons, const MPointArray& vertexArray,
                   const MIntArray& polygonCounts, const MIntArray& polygonConnects,
                   MObject parentOrOwner = MObject::kNullObj, MStatus* ReturnStatus = nullptr);
    MObject create(int numVertices, int numPolygons, const MFloatPointArray& vertexArray,
                   const MIntArray& polygonCounts, const MIntArray& polygonConnects,
                   const MFloatArray& uArray, const MFloatArray& vArray,
                   MObject parentOrOwner = MObject::kNullObj, MStatus* ReturnStatus = nullptr);
    MObject create(int numVertices, int numPolygons, const MPointArray& vertexArray,
                   const MIntArray& polygonCounts, const MIntArray& polygonConnects,
                   const MFloatArray& uArray, const MFloatArray& vArray,
                   MObject parentOrOwner = MObject::kNullObj, MStatus* ReturnStatus = nullptr);

    /// Becomes such a mesh, or one like another.
    MStatus createInPlace(int numVertices, int numPolygons, const MFloatPointArray& vertexArray,
                          const MIntArray& polygonCounts, const MIntArray& polygonConnects);
    MStatus copyInPlace(const MObject& source);

    /// Makes a copy of a mesh, as create does.
    MObject copy(const MObject& source, MObject parentOrOwner = MObject::kNullObj,
                 MStatus* ReturnStatus = nullptr);

    /// Numbers of vertices, edges, faces, corners of all faces, corners of one face, and normals.
    int numVertices(MStatus* ReturnStatus = nullptr) const;
    int numEdges(MStatus* ReturnStatus = nullptr) const;
    int numPolygons(MStatus* ReturnStatus = nullptr) const;
    int numFaceVertices(MStatus* ReturnStatus = nullptr) const;
    int polygonVertexCount(int polygonId, MStatus* ReturnStatus = nullptr) const;
    int numNormals(MStatus* ReturnStatus = nullptr) const;

    /// Tell that the mesh was changed; changes are seen at once without it.
    MStatus updateSurface();
    MStatus syncObject();

    /// The coordinates of all points as they lie in memory, three each, in object space. Valid until the mesh
    /// changes. The numbers of the normals of getNormals in the same way.
    const float* getRawPoints(MStatus*) const;
    const float* getRawNormals(MStatus*) const;

    /// All points. To set them there have to be as many as vertices.
    MStatus getPoints(MFloatPointArray& vertexArray, MSpace::Space space = MSpace::kObject) const;
    MStatus getPoints(MPointArray& vertexArray, MSpace::Space space = MSpace::kObject) const;
    MStatus setPoints(MFloatPointArray& vertexArray, MSpace::Space space = MSpace::kObject);
    MStatus setPoints(MPointArray& vertexArray, MSpace::Space space = MSpace::kObject);

    /// One point.
    MStatus setPoint(int vertexId, const MPoint& pos, MSpace::Space space = MSpace::kObject);
    MStatus getPoint(int vertexId, MPoint& pos, MSpace::Space space = MSpace::kObject) const;

    /// The vertices of all faces: how many each has, and their numbers; or those of one face.
    MStatus getVertices(MIntArray& vertexCount, MIntArray& vertexList) const;
    MStatus getPolygonVertices(int polygonId, MIntArray& vertexList) const;

    /// One normal for each group of faces that smooth edges join at a vertex, the mean of theirs, and one for
    /// each different one that was set there.
    MStatus getNormals(MFloatVectorArray& normals, MSpace::Space space = MSpace::kObject) const;

    /// The normal that a face has at one of its vertices, or at all corners.
    MStatus getFaceVertexNormal(int faceIndex, int vertexIndex, MVector& normal,
                                MSpace::Space space = MSpace::kObject) const;
    MStatus getFaceVertexNormals(int faceIndex, MFloatVectorArray& normals,
                                 MSpace::Space space = MSpace::kObject) const;

    /// Which of the normals of getNormals the corners have: of all faces with their numbers of corners, or of
    /// one.
    MStatus getNormalIds(MIntArray& normalIdCounts, MIntArray& normalIds) const;
    MStatus getFaceNormalIds(int faceIndex, MIntArray& normals) const;

    /// The mean of the normals of the faces at a vertex, or at all vertices, by their angles there or all
    /// alike (without the argument: all alike).
    MStatus getVertexNormal(int vertexId, MVector& normal, MSpace::Space space = MSpace::kObject) const;
    MStatus getVertexNormal(int vertexId, bool angleWeighted, MVector& normal,
                            MSpace::Space space = MSpace::kObject) const;
    MStatus getVertexNormals(bool angleWeighted, MFloatVectorArray& normals,
                             MSpace::Space space = MSpace::kObject) const;

    /// The normal of a face.
    MStatus getPolygonNormal(int polygonId, MVector& normal, MSpace::Space space = MSpace::kObject) const;

    /// Normals that are set, of any length but 0, are locked: they stay when points move, and are saved. Set
    /// are all that getNormals gives, in its order; those that all faces have at vertices; or those that
    /// faces have at one of their vertices. To lock some sets them to what they are, to unlock them has them
    /// computed again. kInvalidParameter, and nothing changed, for vertices or faces that there are not and
    /// for lists of different lengths; kFailure where history makes the mesh. What a modifier is given is
    /// done at once and is the modifier's to take back.
    bool isNormalLocked(int normalId, MStatus* ReturnStatus = nullptr) const;
    MStatus unlockVertexNormals(MIntArray& vertexList);
    MStatus unlockFaceVertexNormals(MIntArray& faceList, MIntArray& vertexList);
    MStatus setNormals(MFloatVectorArray& normals, MSpace::Space space = MSpace::kObject);
    MStatus setFaceVertexNormal(MVector& normal, int faceIndex, int vertexIndex,
                                MSpace::Space space = MSpace::kObject, MDGModifier* modifier = nullptr);
    MStatus setVertexNormal(MVector& normal, int vertexIndex, MSpace::Space space = MSpace::kObject,
                            MDGModifier* modifier = nullptr);
    MStatus setFaceVertexNormals(MVectorArray& normalArray, MIntArray& faceList, MIntArray& vertexList,
                                 MSpace::Space space = MSpace::kObject);
    MStatus setVertexNormals(MVectorArray& normalArray, MIntArray& vertexList,
                             MSpace::Space space = MSpace::kObject);
    MStatus lockVertexNormals(MIntArray& vertexList);
    MStatus lockFaceVertexNormals(MIntArray& faceList, MIntArray& vertexList);

    /// Whether a face is convex.
    bool isPolygonConvex(int faceIndex, MStatus* ReturnStatus = nullptr) const;

    /// The two vertices of an edge.
    MStatus getEdgeVertices(int edgeId, int2& vertexList) const;

    /// Whether an edge is smooth. Edges that history makes cannot be changed: kFailure.
    bool isEdgeSmooth(int edgeId, MStatus* ReturnStatus = nullptr) const;
    MStatus setEdgeSmoothing(int edgeId, bool smooth = true);
    MStatus cleanupEdgeSmoothing();

    /// Three numbers for each hole: its face, how many vertices it has, and where these begin in the second
    /// array. Returns how many holes there are.
    int getHoles(MIntArray& holeInfoArray, MIntArray& holeVertexArray, MStatus* ReturnStatus = nullptr);

    /// Whether an edge of the face is a border.
    bool onBoundary(int polygonId, MStatus* ReturnStatus = nullptr) const;

    /// Whether making a mesh refuses faces that use a vertex twice in a row.
    void setCheckSamePointTwice(bool check = true);
    bool getCheckSamePointTwice();

    /// The names of the kinds of component, as they are used for data beside the mesh.
    static MString componentTypeName(MFn::Type compType, MStatus& status);
    static MFn::Type componentTypeFromName(const MString& assocName);

    /// Modelling.
    MObject addPolygon(const MPointArray& vertexArray, bool mergeVertices = true,
                       double pointTolerance = kMFnMeshPointTolerance,
                       MObject parentOrOwner = MObject::kNullObj, MStatus* ReturnStatus = nullptr);
    MObject addPolygon(const MPointArray& vertexArray, int& faceIndex, bool mergeVertices = true,
                       double pointTolerance = kMFnMeshPointTolerance,
                       MObject parentOrOwner = MObject::kNullObj, MStatus* ReturnStatus = nullptr);
    MObject addPolygon(const MPointArray& vertexArray, const MIntArray& loopCounts, int& faceIndex,
                       bool mergeVertices = true, double pointTolerance = kMFnMeshPointTolerance,
                       MObject parentOrOwner = MObject::kNullObj, MStatus* ReturnStatus = nullptr);
    MObject addPolygon(MPointArray& vertexArray, double polyTolerance, bool mergeVertices = true,
                       double pointTolerance = kMFnMeshPointTolerance, bool forceGeometry = true,
                       MObject parentOrOwner = MObject::kNullObj, MStatus* ReturnStatus = nullptr);
    MStatus addHoles(int faceIndex, const MPointArray& vertexArray, const MIntArray& loopCounts,
                     bool mergeVertices = true, double pointTolerance = kMFnMeshPointTolerance);
    MStatus deleteFace(int index, MDGModifier* modifier = nullptr);
    MStatus deleteEdge(int index, MDGModifier* modifier = nullptr);
    MStatus deleteVertex(int index, MDGModifier* modifier = nullptr);
    MStatus split(MIntArray& placements, MIntArray& edgeList, MFloatArray& edgeFactors,
                  MFloatPointArray& internalPoints);
    MStatus subdivideFaces(MIntArray& faceList, int divisionCount);
    MStatus subdivideEdges(MIntArray& edgeList, int divisionCount);
    MStatus extrudeFaces(MIntArray& faceList, int extrusionCount, MFloatVector* translation,
                         bool extrudeTogether, float thickness = 0.0F, float offset = 0.0F);
    MStatus extrudeEdges(MIntArray& edgeList, int extrusionCount, MFloatVector* translation,
                         bool extrudeTogether, float thickness = 0.0F, float offset = 0.0F);
    MStatus duplicateFaces(MIntArray& faceList, MFloatVector* translation);
    MStatus extractFaces(MIntArray& faceList, MFloatVector* translation);
    MStatus collapseFaces(MIntArray& faceList);
    MStatus collapseEdges(MIntArray& edgeList);
    MStatus booleanOp(BoolOperation op, MFnMesh& mesh1, MFnMesh& mesh2);
    MStatus booleanOps(BoolOperation op, const MObjectArray& meshes, bool useLegacy = false);

    /// Smooth preview. The smoothed mesh and how it is shown are not done: kNotImplemented.
    MObject generateSmoothMesh(MObject parentOrOwner = MObject::kNullObj,
                               MMeshSmoothOptions* options = nullptr, MStatus* ReturnStatus = nullptr);
    MObject generateSmoothMesh(MObject parentOrOwner, MStatus* ReturnStatus);
    MStatus getSmoothMeshDisplayOptions(MMeshSmoothOptions& options) const;
    MStatus setSmoothMeshDisplayOptions(const MMeshSmoothOptions& options);
    /// How sharp edges and vertices are for it, by ascending number, and the faces that are not seen in it.
    /// They are kept in attributes of the shape, and what is set is said of these components only; a mesh
    /// that is data has none: kInvalidParameter, as for components that there are not.
    MStatus getCreaseEdges(MUintArray& edgeIds, MDoubleArray& creaseData) const;
    MStatus setCreaseEdges(const MUintArray& edgeIds, const MDoubleArray& creaseData);
    MStatus getCreaseVertices(MUintArray& vertexIds, MDoubleArray& creaseData) const;
    MStatus setCreaseVertices(const MUintArray& vertexIds, const MDoubleArray& creaseData);
    MUintArray getInvisibleFaces(MStatus* ReturnStatus = nullptr) const;
    MStatus setInvisibleFaces(const MUintArray& faceIds, bool makeVisible = false);

    /// Triangles: a face is split into as many as it has corners, and two more for each hole, less two, and
    /// they run as the face does; that is so in Maya. Convex faces, quads among them, are fans around their
    /// first corner (0 1 2, 0 2 3, …); ears are cut off others. Maya may choose other diagonals. How many
    /// triangles each face has and, three for each triangle, the vertices; or the places of the corners in
    /// the list of getVertices. kInvalidParameter for a triangle that there is not.
    MStatus getTriangles(MIntArray& triangleCounts, MIntArray& triangleVertices) const;
    MStatus getTriangleOffsets(MIntArray& triangleCounts, MIntArray& triangleIndices) const;
    MStatus getPolygonTriangleVertices(int polygonId, int triangleId, int triangleVertices[3]) const;
    /// Not done: kNotImplemented.
    static MStatus polyTriangulate(const float* pointsAndHoles, unsigned int pointsCount,
                                   unsigned int outerPointsCount, unsigned int holesCount,
                                   bool considerNormal, const float* normals, unsigned short* triangles,
                                   int& trianglesCount);
    static MStatus polyTriangulate(const MFloatPointArray& points, const MIntArray& holes,
                                   unsigned int outerPointsCount, const MFloatVectorArray& normals,
                                   MIntArray& triangles);

    /// Where a ray, the points raySource + t * rayDirection in a space, meets the triangles of the mesh, from
    /// either side. Hits with t from 0 to maxParam count, from -maxParam with testBothDirections. Only the
    /// faces of `faceIds` are looked at, if there is such an array, and with `triIds`, which then is as long,
    /// only these triangles of them (numbers among those of the face); they need not be sorted. `tolerance`
    /// is how far beyond its edges a triangle is met, as a part of its size. The closest hit has t nearest to
    /// 0, and any hit is that one, too. Told are, unless null: t, the face, the triangle among those of the
    /// face, and the weights of the triangle's first two corners (that of the third is what lacks to 1). All
    /// hits come by ascending t, or unsorted by ascending face; one through an edge is a hit of the faces on
    /// both sides. Returns whether there is a hit; without one nothing is told, and arrays are empty.
    /// Accelerators make no difference: a mesh always keeps a tree of its triangles. kInvalidParameter for a
    /// direction of length 0 and for triangles without faces.
    bool closestIntersection(const MFloatPoint& raySource, const MFloatVector& rayDirection,
                             const MIntArray* faceIds, const MIntArray* triIds, bool idsSorted,
                             MSpace::Space space, float maxParam, bool testBothDirections,
                             MMeshIsectAccelParams* accelerator, MFloatPoint& hitPoint, float* hitRayParam,
                             int* hitFace, int* hitTriangle, float* hitBary1, float* hitBary2,
                             float tolerance = 1e-6F, MStatus* ReturnStatus = nullptr);
    bool anyIntersection(const MFloatPoint& raySource, const MFloatVector& rayDirection,
                         const MIntArray* faceIds, const MIntArray* triIds, bool idsSorted,
                         MSpace::Space space, float maxParam, bool testBothDirections,
                         MMeshIsectAccelParams* accelerator, MFloatPoint& hitPoint, float* hitRayParam,
                         int* hitFace, int* hitTriangle, float* hitBary1, float* hitBary2,
                         float tolerance = 1e-6F, MStatus* ReturnStatus = nullptr);
    bool allIntersections(const MFloatPoint& raySource, const MFloatVector& rayDirection,
                          const MIntArray* faceIds, const MIntArray* triIds, bool idsSorted,
                          MSpace::Space space, float maxParam, bool testBothDirections,
                          MMeshIsectAccelParams* accelerator, bool sortHits, MFloatPointArray& hitPoints,
                          MFloatArray* hitRayParams, MIntArray* hitFaces, MIntArray* hitTriangles,
                          MFloatArray* hitBary1, MFloatArray* hitBary2, float tolerance = 1e-6F,
                          MStatus* ReturnStatus = nullptr);
    /// Sorts faces, and with them triangles, by ascending number; the triangles may be null.
    MStatus sortIntersectionFaceTriIds(MIntArray* faceIds, MIntArray* triIds);
    /// What is kept to find hits and nearest points faster: frees it, or describes it ("tree of 12 triangles,
    /// (build time 0.000s), (memory footprint 1.9KB)"; empty when there is nothing), of this mesh or of all.
    /// The last one begins to count anew.
    MStatus freeCachedIntersectionAccelerator();
    MString cachedIntersectionAcceleratorInfo(MStatus* ReturnStatus = nullptr);
    static MString globalIntersectionAcceleratorsInfo();
    static void clearGlobalIntersectionAcceleratorInfo();
    /// All hits of a ray in one direction, from near to far, with their faces; those without a space in
    /// object space.
    bool intersect(const MPoint& raySource, const MVector& rayDirection, MPointArray& points,
                   double tolerance = kMFnMeshPointTolerance, MSpace::Space space = MSpace::kObject,
                   MIntArray* polygonIds = nullptr, MStatus* ReturnStatus = nullptr) const;
    bool intersect(MPoint& raySource, MVector& rayDirection, MPointArray& points,
                   MStatus* ReturnStatus = nullptr) const;
    bool intersect(const MPoint& raySource, const MVector& rayDirection, MPointArray& points,
                   MStatus* ReturnStatus = nullptr) const;
    /// The point of the mesh that is nearest to a point in a space, the normal there, and the face, unless it
    /// is null. The normal is the mean of those at the corners of the triangle, by how near they are.
    /// kFailure for a mesh without faces.
    MStatus getClosestPointAndNormal(const MPoint& toThisPoint, MPoint& theClosestPoint, MVector& theNormal,
                                     MSpace::Space space = MSpace::kObject, int* closestPolygon = nullptr,
                                     MMeshIsectAccelParams* accelParams = nullptr) const;
    MStatus getClosestPoint(const MPoint& toThisPoint, MPoint& theClosestPoint,
                            MSpace::Space space = MSpace::kObject, int* closestPolygon = nullptr,
                            MMeshIsectAccelParams* accelerator = nullptr) const;
    MStatus getClosestNormal(const MPoint& toThisPoint, MVector& theNormal,
                             MSpace::Space space = MSpace::kObject, int* closestPolygon = nullptr,
                             MMeshIsectAccelParams* accelerator = nullptr) const;

    /// The shading groups of an instance, and for each face which of them it is in; -1 for none. A mesh that
    /// is data has none: kInvalidParameter.
    MStatus getConnectedShaders(unsigned int instanceNumber, MObjectArray& shaders, MIntArray& indices) const;

    /// Tangents.
    int getTangentId(int faceIndex, int vertexIndex, MStatus* ReturnStatus = nullptr) const;
    MStatus getTangents(MFloatVectorArray& normals, MSpace::Space space = MSpace::kObject,
                        const MString* uvSet = nullptr) const;
    MStatus getFaceVertexTangent(int faceIndex, int vertexIndex, MVector& tangent,
                                 MSpace::Space space = MSpace::kObject, const MString* uvSet = nullptr) const;
    MStatus getFaceVertexTangents(int faceIndex, MFloatVectorArray& tangents,
                                  MSpace::Space space = MSpace::kObject,
                                  const MString* uvSet = nullptr) const;
    MStatus getBinormals(MFloatVectorArray& normals, MSpace::Space space = MSpace::kObject,
                         const MString* uvSet = nullptr) const;
    MStatus getFaceVertexBinormal(int faceIndex, int vertexIndex, MVector& normal,
                                  MSpace::Space space = MSpace::kObject,
                                  const MString* uvSet = nullptr) const;
    MStatus getFaceVertexBinormals(int faceIndex, MFloatVectorArray& normals,
                                   MSpace::Space space = MSpace::kObject,
                                   const MString* uvSet = nullptr) const;
    bool isRightHandedTangent(int tangentId, const MString* uvSetName = nullptr,
                              MStatus* ReturnStatus = nullptr) const;

    /// Texture coordinates: lists of (u, v) by number in sets by name, and for each corner of a face the
    /// number that it has, or none. Every mesh has a set "map1", the first one, which cannot be deleted.
    /// Without a name the current set is meant; a name that no set has, or a number that is not there, is
    /// kInvalidParameter. A corner without a coordinate is kFailure. What history makes cannot be changed
    /// (kFailure), but for which set is current. New sets are empty; a name that is taken gets another number
    /// behind it, and is returned or written to the argument. With a modifier a change is made at once, and
    /// the modifier's to take back. There are no sets of single instances: asking for one is kNotImplemented.
    ///
    /// setUVs takes at least as many as there are; setUV and setSomeUVs make the list longer where a number
    /// is behind its end. assignUVs gives the numbers of all faces, for each as many as it has corners or
    /// none. getUvShellsIds numbers what hangs together by faces, by the first coordinate of each.
    /// getPointAtUV finds the point of a face, up to `tolerance` away in the texture; getUVAtPoint takes the
    /// nearest point.
    int numUVs(MStatus* ReturnStatus = nullptr) const;
    int numUVs(const MString& uvSet, MStatus* ReturnStatus = nullptr) const;
    int numUVSets(MStatus* ReturnStatus = nullptr) const;
    MString createUVSetWithName(const MString& uvSetName, MDGModifier* modifier = nullptr,
                                MStatus* ReturnStatus = nullptr, const MUintArray* instances = nullptr);
    MString createUVSetDataMeshWithName(const MString& uvSetName, MStatus* ReturnStatus = nullptr);
    MString copyUVSetWithName(const MString& fromName, const MString& toName, MDGModifier* modifier = nullptr,
                              MStatus* ReturnStatus = nullptr);
    MStatus renameUVSet(const MString& origName, const MString& newName, MDGModifier* modifier = nullptr);
    MStatus deleteUVSet(const MString& setName, MDGModifier* modifier = nullptr,
                        MSelectionList* currentSelection = nullptr);
    MStatus setCurrentUVSetName(const MString& setName, MDGModifier* modifier = nullptr,
                                MSelectionList* currentSelection = nullptr);
    MString currentUVSetName(MStatus* ReturnStatus = nullptr,
                             int instance = kMFnMeshInstanceUnspecified) const;
    MStatus getUVSetNames(MStringArray& setNames) const;
    MStatus getUVSetFamilyNames(MStringArray& familyNames) const;
    MStatus getUVSetsInFamily(const MString& familyName, MStringArray& setNames) const;
    bool isUVSetPerInstance(const MString& name, MStatus* ReturnStatus = nullptr) const;
    MStatus getFaceUVSetNames(int polygonId, MStringArray& setNames) const;
    MStatus getAssociatedUVSetTextures(const MString uvSetName, MObjectArray& textures) const;
    MStatus getAssociatedUVSetInstances(const MString& uvSetName, MIntArray& instances) const;
    MStatus setUVs(const MFloatArray& uArray, const MFloatArray& vArray, const MString* uvSet = nullptr);
    MStatus setSomeUVs(const MIntArray& uvIds, const MFloatArray& uArray, const MFloatArray& vArray,
                       const MString* uvSet = nullptr);
    MStatus getUVs(MFloatArray& uArray, MFloatArray& vArray, const MString* uvSet = nullptr) const;
    MStatus setUV(int uvId, float u, float v, const MString* uvSet = nullptr);
    MStatus getUV(int uvId, float& u, float& v, const MString* uvSet = nullptr) const;
    MStatus getPointAtUV(int polygonId, MPoint& theClosestPoint, float2& uvPoint,
                         MSpace::Space space = MSpace::kObject, const MString* uvSet = nullptr,
                         float tolerance = 0.0);
    MStatus getUVAtPoint(MPoint& pt, float2& uvPoint, MSpace::Space space = MSpace::kObject,
                         const MString* uvSet = nullptr, int* closestPolygon = nullptr);
    MStatus getAxisAtPoint(MPoint& pt, MVector& normal, MVector& uTangent, MVector& vTangent,
                           MSpace::Space space = MSpace::kObject, const MString* uvSet = nullptr,
                           int* closestPolygon = nullptr);
    MStatus getPolygonUV(int polygonId, int vertexIndex, float& u, float& v,
                         const MString* uvSet = nullptr) const;
    MStatus getPolygonUVid(int polygonId, int vertexIndex, int& uvId, const MString* uvSet = nullptr) const;
    MStatus assignUV(int polygonId, int vertexIndex, int uvId, const MString* uvSet = nullptr);
    MStatus assignUVs(const MIntArray& uvCounts, const MIntArray& uvIds, const MString* uvSet = nullptr);
    MStatus clearUVs(const MString* uvSet = nullptr);
    MStatus getAssignedUVs(MIntArray& uvCounts, MIntArray& uvIds, const MString* uvSet = nullptr) const;
    MStatus getUvShellsIds(MIntArray& uvShellIds, unsigned int& nbUvShells,
                           const MString* uvSet = nullptr) const;
    MStatus getPinUVs(MUintArray& pinIds, MDoubleArray& pinData, const MString* uvSet = nullptr) const;
    MStatus setPinUVs(const MUintArray& pinIds, const MDoubleArray& pinData, const MString* uvSet = nullptr);
    MStatus createUVSet(MString& uvSetName, MDGModifier* modifier = nullptr,
                        const MUintArray* instances = nullptr);
    MStatus createUVSetDataMesh(MString& uvSetName);
    MStatus copyUVSet(const MString& fromName, MString& toName, MDGModifier* modifier = nullptr);
    MStatus getCurrentUVSetName(MString& setName, int instance = kMFnMeshInstanceUnspecified) const;

    /// Colours: the same, without a set from the beginning; reading from a mesh without sets finds no
    /// colours. Painting faces, vertices and corners goes to the current set; "colorSet1" is made where there
    /// is none. With a representation only that part is painted. Sets that are clamped keep 0 to 1 of what is
    /// written. Without a colour a vertex or corner is (-1, -1, -1, -1), or what the caller gives for it; a
    /// vertex has the mean of its corners. getColorIndex tells -1 for a corner without;
    /// getFaceVertexColorIndex is the place in getFaceVertexColors.
    int numColors(MStatus* ReturnStatus = nullptr) const;
    int numColors(const MString& colorSet, MStatus* ReturnStatus = nullptr) const;
    bool hasColorChannels(const MString& colorSet, MStatus* ReturnStatus = nullptr) const;
    bool hasAlphaChannels(const MString& colorSet, MStatus* ReturnStatus = nullptr) const;
    MColorRepresentation getColorRepresentation(const MString& colorSet,
                                                MStatus* ReturnStatus = nullptr) const;
    bool isColorClamped(const MString& colorSet, MStatus* ReturnStatus = nullptr) const;
    MStatus setIsColorClamped(const MString& colorSet, bool clamped);
    int numColorSets(MStatus* ReturnStatus = nullptr) const;
    MString createColorSetWithName(const MString& colorSetName, MDGModifier* modifier = nullptr,
                                   const MUintArray* instances = nullptr, MStatus* ReturnStatus = nullptr);
    MString createColorSetWithName(const MString& colorSetName, MDGModifier* modifier, MStatus* ReturnStatus);
    MStatus deleteColorSet(const MString& colorSetName, MDGModifier* modifier = nullptr,
                           MSelectionList* currentSelection = nullptr);
    MStatus setCurrentColorSetName(const MString& setName, MDGModifier* modifier = nullptr,
                                   MSelectionList* currentSelection = nullptr);
    MString currentColorSetName(int instance = kMFnMeshInstanceUnspecified,
                                MStatus* ReturnStatus = nullptr) const;
    MString currentColorSetName(MStatus* ReturnStatus) const;
    MStatus getColorSetNames(MStringArray& setNames) const;
    MStatus getColorSetFamilyNames(MStringArray& familyNames) const;
    MStatus getColorSetsInFamily(const MString& familyName, MStringArray& setNames) const;
    bool isColorSetPerInstance(const MString& name, MStatus* ReturnStatus = nullptr) const;
    MStatus getAssociatedColorSetInstances(const MString& setName, MIntArray& instances) const;
    MStatus setFaceColor(MColor& color, int index);
    MStatus setFaceColor(MColor& color, int index, MColorRepresentation rep);
    MStatus setVertexColor(MColor& color, int index, MDGModifier* modifier = nullptr);
    MStatus setVertexColor(MColor& color, int index, MDGModifier* modifier, MColorRepresentation rep);
    MStatus setFaceVertexColor(MColor& color, int faceIndex, int vertexIndex,
                               MDGModifier* modifier = nullptr);
    MStatus setFaceVertexColor(MColor& color, int faceIndex, int vertexIndex, MDGModifier* modifier,
                               MColorRepresentation rep);
    MStatus setFaceVertexColor(int faceIndex, int localVertexIndex, MColor& color,
                               MDGModifier* modifier = nullptr);
    MStatus setFaceVertexColor(int faceIndex, int localVertexIndex, MColor& color, MDGModifier* modifier,
                               MColorRepresentation rep);
    MStatus setFaceColors(MColorArray& colors, MIntArray& faceList);
    MStatus setFaceColors(MColorArray& colors, MIntArray& faceList, MColorRepresentation rep);
    MStatus setVertexColors(MColorArray& colors, MIntArray& vertexList, MDGModifier* modifier = nullptr);
    MStatus setVertexColors(MColorArray& colors, MIntArray& vertexList, MDGModifier* modifier,
                            MColorRepresentation rep);
    MStatus setFaceVertexColors(MColorArray& colors, MIntArray& faceList, MIntArray& vertexList,
                                MDGModifier* modifier = nullptr);
    MStatus setFaceVertexColors(MColorArray& colors, MIntArray& faceList, MIntArray& vertexList,
                                MDGModifier* modifier, MColorRepresentation rep);
    MStatus removeFaceColors(MIntArray& faceList);
    MStatus removeVertexColors(MIntArray& vertexList);
    MStatus removeFaceVertexColors(MIntArray& faceList, MIntArray& vertexList);
    MStatus getVertexColors(MColorArray& colors, const MString* colorSet = nullptr,
                            const MColor* defaultUnsetColor = nullptr);
    MStatus getFaceVertexColors(MColorArray& colors, const MString* colorSet = nullptr,
                                const MColor* defaultUnsetColor = nullptr);
    MStatus getFaceVertexColorIndex(int faceIndex, int localVertexIndex, int& colorIndex,
                                    const MString* colorSet = nullptr);
    MStatus setColors(const MColorArray& colors, const MString* colorSet = nullptr);
    MStatus setColors(const MColorArray& colors, const MString* colorSet, MColorRepresentation rep);
    MStatus setSomeColors(const MIntArray& colorIds, const MColorArray& colors,
                          const MString* colorSet = nullptr);
    MStatus setSomeColors(const MIntArray& colorIds, const MColorArray& colors, const MString* colorSet,
                          MColorRepresentation rep);
    MStatus getColors(MColorArray& colors, const MString* colorSet = nullptr,
                      const MColor* defaultUnsetColor = nullptr) const;
    MStatus getColorIndex(int faceIndex, int localVertexIndex, int& colorIndex,
                          const MString* colorSet = nullptr);
    MStatus setColor(int colorId, const MColor& color, const MString* colorSet = nullptr);
    MStatus setColor(int colorId, const MColor& color, const MString* colorSet, MColorRepresentation rep);
    MStatus getColor(int colorId, MColor& color, const MString* colorSet = nullptr,
                     const MColor* defaultUnsetColor = nullptr) const;
    MStatus assignColor(int polygonId, int vertexIndex, int colorId, const MString* colorSet = nullptr);
    MStatus assignColors(const MIntArray& colorIds, const MString* colorSet = nullptr);
    MStatus clearColors(const MString* colorSet = nullptr);
    bool displayColors(MStatus* ReturnStatus = nullptr) const;
    MStatus setDisplayColors(bool enable);
    MStatus createColorSet(MString& colorSetName, MDGModifier* modifier = nullptr,
                           const MUintArray* instances = nullptr);
    MStatus createColorSet(MString& colorSetName, MDGModifier* modifier, bool clamped,
                           MColorRepresentation rep, const MUintArray* instances = nullptr);
    MStatus getCurrentColorSetName(MString& setName, int instance = kMFnMeshInstanceUnspecified) const;
    MStatus createColorSetDataMesh(MString& colorSetName, bool clamped = false,
                                   MColorRepresentation rep = kRGBA);
    MString createColorSetWithNameDataMesh(const MString& colorSetName, bool clamped,
                                           MColorRepresentation rep, MStatus* ReturnStatus = nullptr);

    /// Blind data.
    bool isBlindDataTypeUsed(int blindDataId, MStatus* ReturnStatus = nullptr) const;
    MStatus createBlindDataType(int blindDataId, MStringArray longNames, MStringArray shortNames,
                                MStringArray formatNames);
    bool hasBlindDataComponentId(int compID, MFn::Type compType, int blindDataId,
                                 MStatus* ReturnStatus = nullptr) const;
    bool hasBlindDataComponentId(int compID, MFn::Type compType, MStatus* ReturnStatus = nullptr) const;
    bool hasBlindData(MFn::Type compType, int blindDataId, MStatus* ReturnStatus = nullptr) const;
    bool hasBlindData(MFn::Type compType, MStatus* ReturnStatus = nullptr) const;
    bool hasBlindData(int compID, MFn::Type compType, int blindDataId, MStatus* ReturnStatus = nullptr) const;
    bool hasBlindData(int compID, MFn::Type compType, MStatus* ReturnStatus = nullptr) const;
    MStatus getBlindDataTypes(MFn::Type compType, MIntArray& blindDataIds) const;
    MStatus getBlindDataAttrNames(int blindDataId, MStringArray& longNames, MStringArray& shortNames,
                                  MStringArray& formatNames) const;
    MStatus getBlindDataAttrNames(int blindDataId, MStringArray& longNames, MStringArray& shortNames) const;
    MStatus getFaceVertexBlindDataIndex(int faceIndex, int vertexIndex, int& blindDataIndex) const;
    MStatus getBlindDataFaceVertexIndices(int blindDataIndex, int& faceIndex, int& vertexIndex) const;
    MStatus getIntBlindData(int compID, MFn::Type compType, int blindDataId, MString attrName,
                            int& data) const;
    MStatus getIntBlindData(MFn::Type compType, int blindDataId, MString attrName, MIntArray& compIDs,
                            MIntArray& data) const;
    MStatus getFloatBlindData(int compID, MFn::Type compType, int blindDataId, MString attrName,
                              float& data) const;
    MStatus getFloatBlindData(MFn::Type compType, int blindDataId, MString attrName, MIntArray& compIDs,
                              MFloatArray& data) const;
    MStatus getDoubleBlindData(int compID, MFn::Type compType, int blindDataId, MString attrName,
                               double& data) const;
    MStatus getDoubleBlindData(MFn::Type compType, int blindDataId, MString attrName, MIntArray& compIDs,
                               MDoubleArray& data) const;
    MStatus getBoolBlindData(int compID, MFn::Type compType, int blindDataId, MString attrName,
                             bool& data) const;
    MStatus getBoolBlindData(MFn::Type compType, int blindDataId, MString attrName, MIntArray& compIDs,
                             MIntArray& data) const;
    MString stringBlindDataComponentId(int compID, MFn::Type compType, int blindDataId, MString attrName,
                                       MStatus* ReturnStatus = nullptr) const;
    MStatus getStringBlindData(MFn::Type compType, int blindDataId, MString attrName, MIntArray& compIDs,
                               MStringArray& data) const;
    MStatus getStringBlindData(int compID, MFn::Type compType, int blindDataId, MString attrName,
                               MString& data) const;
    MString binaryBlindDataComponentId(int compID, MFn::Type compType, int blindDataId, MString attrName,
                                       MStatus* ReturnStatus = nullptr) const;
    MStatus getBinaryBlindData(MFn::Type compType, int blindDataId, MString attrName, MIntArray& compIDs,
                               MStringArray& data) const;
    MStatus getBinaryBlindData(int compID, MFn::Type compType, int blindDataId, MString attrName,
                               MString& data) const;
    MStatus setIntBlindData(int compID, MFn::Type compType, int blindDataId, MString attrName, int data);
    MStatus setIntBlindData(MIntArray& compIDs, MFn::Type compType, int blindDataId, MString attrName,
                            int data);
    MStatus setIntBlindData(MIntArray& compIDs, MFn::Type compType, int blindDataId, MString attrName,
                            MIntArray& data);
    MStatus setFloatBlindData(int compID, MFn::Type compType, int blindDataId, MString attrName, float data);
    MStatus setFloatBlindData(MIntArray& compIDs, MFn::Type compType, int blindDataId, MString attrName,
                              float data);
    MStatus setFloatBlindData(MIntArray& compIDs, MFn::Type compType, int blindDataId, MString attrName,
                              MFloatArray& data);
    MStatus setDoubleBlindData(int compID, MFn::Type compType, int blindDataId, MString attrName,
                               double data);
    MStatus setDoubleBlindData(MIntArray& compIDs, MFn::Type compType, int blindDataId, MString attrName,
                               double data);
    MStatus setDoubleBlindData(MIntArray& compIDs, MFn::Type compType, int blindDataId, MString attrName,
                               MDoubleArray& data);
    MStatus setBoolBlindData(int compID, MFn::Type compType, int blindDataId, MString attrName, bool data);
    MStatus setBoolBlindData(MIntArray& compIDs, MFn::Type compType, int blindDataId, MString attrName,
                             bool data);
    MStatus setBoolBlindData(MIntArray& compIDs, MFn::Type compType, int blindDataId, MString attrName,
                             MIntArray& data);
    MStatus setStringBlindData(int compID, MFn::Type compType, int blindDataId, MString attrName,
                               MString data);
    MStatus setStringBlindData(MIntArray& compIDs, MFn::Type compType, int blindDataId, MString attrName,
                               MString data);
    MStatus setStringBlindData(MIntArray& compIDs, MFn::Type compType, int blindDataId, MString attrName,
                               MStringArray& data);
    MStatus setBinaryBlindData(int compID, MFn::Type compType, int blindDataId, MString attrName,
                               MString data);
    MStatus setBinaryBlindData(MIntArray& compIDs, MFn::Type compType, int blindDataId, MString attrName,
                               MString data);
    MStatus setBinaryBlindData(MIntArray& compIDs, MFn::Type compType, int blindDataId, MString attrName,
                               MStringArray& data);
    MStatus setBinaryBlindData(int compID, MFn::Type compType, int blindDataId, MString attrName, char* data,
                               int length);
    MStatus clearBlindData(int compID, MFn::Type compType, int blindDataId, MString attrName);
    MStatus clearBlindData(MFn::Type compType, int blindDataId, MString attrName);
    MStatus clearBlindData(MFn::Type compType);
    MStatus clearBlindData(int compID, MFn::Type compType, int blindDataId);
    MStatus clearBlindData(MFn::Type compType, int blindDataId);

    /// Metadata.
    const adsk::Data::Associations* metadata(MStatus* ReturnStatus = nullptr) const override;
    MStatus setMetadata(const adsk::Data::Associations&) override;
    MStatus validateMetadata(MString& errors) const override;

    /// The name of this class.
    static const char* className();

protected:
    bool objectChanged(MFn::Type tp, MStatus* ReturnStatus) override;

    /// For Maya's own use: kNotImplemented, false.
    bool getUVSetIndex(const MString* uvSetName, int& uvSet) const;
    bool getColorSetIndex(const MString* colorSetName, int& colorSet) const;
    bool getMeshForIntersection(MSpace::Space, MFloatPoint&, MFloatVector&, void*&, MStatus*);

private:
    friend class tvxAccess;

    void* reservedWords[2];
};
