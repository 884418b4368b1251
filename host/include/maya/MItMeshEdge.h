// MItMeshEdge: goes through the edges of a mesh.
#pragma once

#include <maya/MObject.h>
#include <maya/MPoint.h>
#include <maya/MSpace.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MDagPath;
class MIntArray;

/// Goes through the edges of a mesh by ascending number, or through those of a component. Built on an object
/// it cannot say where the mesh is: world space needs an iterator that was built on a path. A path that ends
/// at a transform stands for the mesh shape below it; without one (or with one that has no geometry) the
/// status is kInvalidParameter and there is nothing to go through.
///
/// Spaces: kWorld, and object space for all others. Positions are in centimetres.
class OPENMAYA_EXPORT MItMeshEdge
{
public:
    /// At the first edge of a mesh shape or of mesh data.
    MItMeshEdge(MObject& polyObject, MStatus* ReturnStatus = nullptr);
    MItMeshEdge(MObject& polyObject, MObject& component, MStatus* ReturnStatus = nullptr);
    MItMeshEdge(const MDagPath& polyObject, MObject& component = MObject::kNullObj,
                MStatus* ReturnStatus = nullptr);

    virtual ~MItMeshEdge();

    /// Whether there are no more edges.
    bool isDone(MStatus* ReturnStatus = nullptr);

    /// Goes to the next edge; kFailure at the end.
    MStatus next();

    /// Back to the first edge, or to that of another mesh.
    MStatus reset();
    MStatus reset(MObject& polyObject, MObject& component = MObject::kNullObj);
    MStatus reset(const MDagPath& polyObject, MObject& component = MObject::kNullObj);

    /// Number of edges that the iteration goes through.
    int count(MStatus* ReturnStatus = nullptr);

    /// The middle between the two ends.
    MPoint center(MSpace::Space space = MSpace::kObject, MStatus* ReturnStatus = nullptr);

    /// One of the two ends, 0 or 1; kInvalidParameter for another.
    MPoint point(int index, MSpace::Space space = MSpace::kObject, MStatus* ReturnStatus = nullptr);

    /// Moves one of the two ends: by a tweak where the mesh has history, for good where it has none.
    MStatus setPoint(const MPoint& point, unsigned int index, MSpace::Space space = MSpace::kObject);

    /// Whether the edge is smooth. Edges that history makes cannot be changed: kFailure.
    bool isSmooth(MStatus* ReturnStatus = nullptr) const;
    MStatus setSmoothing(bool smooth = true);

    /// Brings the display up to date with the smoothing; nothing is left to do.
    MStatus cleanupSmoothing();

    /// The number of one of the two vertices (0 or 1), or that of the edge itself.
    int index(int index, MStatus* ReturnStatus = nullptr);
    int index(MStatus* ReturnStatus = nullptr) const;

    /// The present edge as a component.
    MObject edge(MStatus* ReturnStatus = nullptr);
    MObject currentItem(MStatus* ReturnStatus = nullptr);

    /// Tell that points were changed; changes are seen at once without it.
    MStatus updateSurface();
    MStatus geomChanged();

    /// Goes to an edge by number, in constant time, and gives the number it leaves. Out of range:
    /// kInvalidParameter and the iterator stays. next() goes on from there; with a component, from where the
    /// iteration was.
    MStatus setIndex(int index, int& prevIndex);

    /// The faces that use the edge, ascending. Returns how many.
    int getConnectedFaces(MIntArray& faceList, MStatus* ReturnStatus = nullptr) const;

    /// The edges that share a vertex with the present one, without itself: first those at its vertex 0, then
    /// those at its vertex 1, each by ascending number. Returns how many.
    int getConnectedEdges(MIntArray& edgeList, MStatus* ReturnStatus = nullptr) const;

    /// How many these are.
    MStatus numConnectedFaces(int& faceCount) const;
    MStatus numConnectedEdges(int& edgeCount) const;

    /// Whether these hold a face or an edge.
    bool connectedToFace(int index, MStatus* ReturnStatus = nullptr);
    bool connectedToEdge(int index, MStatus* ReturnStatus = nullptr);

    /// Whether exactly one face uses the edge. False for a wire, which none uses.
    bool onBoundary(MStatus* ReturnStatus = nullptr);

    /// The distance between the two ends.
    MStatus getLength(double& length, MSpace::Space space = MSpace::kObject);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    MItMeshEdge(const MItMeshEdge&) = delete;
    MItMeshEdge& operator=(const MItMeshEdge&) = delete;

    tvxhost::api::MeshIteration* iteration; ///< owned
    void* reserved[9];
};
