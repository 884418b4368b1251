// MItMeshVertex: the colours that faces have at a vertex.
#include <maya/MItMeshVertex.h>

#include "support/itemColors.h"
#include "support/meshCorners.h"

using tvxhost::api::ItemColors;

namespace {

constexpr tvxhost::api::ItemCorners kCorners{
    tvxhost::api::placesAtVertex, [](const tvxhost::engine::MeshData& mesh, std::int32_t vertex, int face) {
        return tvxhost::api::cornerAtVertex(mesh, face, vertex);
    }};

} // namespace

bool MItMeshVertex::hasColor(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItMeshVertex::hasColor", ReturnStatus, false);
    return ItemColors(*iteration, kCorners).has(ReturnStatus);
}

bool MItMeshVertex::hasColor(int faceIndex, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItMeshVertex::hasColor", ReturnStatus, false);
    return ItemColors(*iteration, kCorners).hasOne(faceIndex, ReturnStatus);
}

MStatus MItMeshVertex::getColor(MColor& color, int faceIndex, const MString* colorSetName) const
{
    TVX_API_CALL("MItMeshVertex::getColor");
    return ItemColors(*iteration, kCorners).one(colorSetName, faceIndex, color);
}

MStatus MItMeshVertex::getColor(MColor& color, const MString* colorSetName) const
{
    TVX_API_CALL("MItMeshVertex::getColor");
    return ItemColors(*iteration, kCorners).mean(colorSetName, color);
}

MStatus MItMeshVertex::getColors(MColorArray& colors, const MString* colorSetName) const
{
    TVX_API_CALL("MItMeshVertex::getColors");
    return ItemColors(*iteration, kCorners).list(colorSetName, colors);
}

MStatus MItMeshVertex::getColorIndices(MIntArray& colorIndex, const MString* colorSetName) const
{
    TVX_API_CALL("MItMeshVertex::getColorIndices");
    return ItemColors(*iteration, kCorners).numbers(colorSetName, colorIndex);
}
