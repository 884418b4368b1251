// Units, orientations and footprints for the core library, and questions about nodes.
#include "core/utils/tvxMayaUtils.h"

#include "core/utils/tvxGroundPoint.h"
#include "core/utils/tvxMayaCompat.h"

#include <tvxCore/ConvexPolygon2.h>

#include <maya/MItMeshVertex.h>
#include <maya/MPlug.h>
#include <maya/MSpace.h>

#include <algorithm>

namespace tarvox::crowd {

namespace {

/// How the core library's frame is turned against Maya's.
const CoreQuaternion& coreFrameRotation()
{
    static const CoreQuaternion rotation{0.0f, -0.70710677f, -0.70710677f, 0.0f};
    return rotation;
}

/// The Hamilton product.
CoreQuaternion product(const CoreQuaternion& q, const CoreQuaternion& r)
{
    return {q.w * r.x + q.x * r.w + q.y * r.z - q.z * r.y, //
            q.w * r.y + q.y * r.w + q.z * r.x - q.x * r.z, //
            q.w * r.z + q.z * r.w + q.x * r.y - q.y * r.x, //
            q.w * r.w - q.x * r.x - q.y * r.y - q.z * r.z};
}

} // namespace

float MayaUtils::convertDistance(float value, core::DistanceUnit from, core::DistanceUnit to)
{
    return value * core::getScaleFactor<float>(from) / core::getScaleFactor<float>(to);
}

float MayaUtils::convertDistanceTo(float value, core::DistanceUnit to)
{
    return core::getScaleFactor<float>(core::DistanceUnit{}) * value / core::getScaleFactor<float>(to);
}

float MayaUtils::shiftedRadians(const MAngle& angle)
{
    return static_cast<float>(angle.asRadians()) + 3.1415927f;
}

CoreQuaternion MayaUtils::toCoreOrientation(const MQuaternion& orientation)
{
    const CoreQuaternion narrowed{static_cast<float>(orientation.x), static_cast<float>(orientation.y),
                                  static_cast<float>(orientation.z), static_cast<float>(orientation.w)};
    return product(narrowed, coreFrameRotation());
}

MStatus MayaUtils::getMeshConvexHull(const MDagPath& mesh, std::vector<core::Vector2<float>>& hull)
{
    std::vector<core::Vector2<float>> points;
    MStatus status;
    for (MItMeshVertex vertex(mesh, MObject::kNullObj, &status); status && !vertex.isDone(); vertex.next())
        points.push_back(groundPoint(vertex.position(MSpace::kWorld)));
    core::ConvexPolygon2<float> polygon;
    polygon.computeConvexHull(points);
    hull = polygon.getVertices();
    return MStatus::kSuccess;
}

int MayaUtils::findFreeIndex(const MObject& excludedNode, const MObject& attribute, const MTypeId& typeId)
{
    std::vector<MObject> nodes;
    findNodesByTypeId(nodes, typeId, MFn::kInvalid);
    int smallest = 0;
    int largest = 0;
    int last = 0;
    bool first = true;
    for (const MObject& node : nodes) {
        if (node == excludedNode)
            continue;
        last = getIntAttribute(node, attribute, false);
        smallest = first ? last : std::min(smallest, last);
        largest = first ? last : std::max(largest, last);
        first = false;
    }
    // The last number, not the smallest: it tells whether numbers have been given at all.
    if (last < 1)
        return 1;
    return smallest > 1 ? smallest - 1 : largest + 1;
}

MStatus MayaUtils::getShapeName(const MObject& node, MString& name)
{
    MDagPath path;
    MFnDagNode(node, nullptr).getPath(path);
    path.extendToShape();
    MStatus status;
    const MFnDependencyNode shape(path.node(), &status);
    if (status)
        name = shape.name();
    return status;
}

unsigned int MayaUtils::countConnectedElements(const MObject& node, const MObject& attribute)
{
    MStatus status;
    const MFnDependencyNode function(node, &status);
    if (!status)
        return 0;
    const MPlug plug = compat::findPlug(function, attribute, &status);
    return status ? plug.numConnectedElements() : 0;
}

} // namespace tarvox::crowd
