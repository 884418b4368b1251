// MItMeshPolygon: the colours of a face.
#include <maya/MItMeshPolygon.h>

#include "support/itemColors.h"
#include "support/meshCorners.h"

using tvxhost::api::ItemColors;

namespace {

constexpr tvxhost::api::ItemCorners kCorners{
    tvxhost::api::cornersOfFace, [](const tvxhost::engine::MeshData& mesh, std::int32_t face, int corner) {
        return tvxhost::api::localCorner(mesh, face, corner);
    }};

} // namespace

bool MItMeshPolygon::hasColor(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItMeshPolygon::hasColor", ReturnStatus, false);
    return ItemColors(*iteration, kCorners).has(ReturnStatus);
}

bool MItMeshPolygon::hasColor(int localVertexIndex, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::hasColor", ReturnStatus, false);
    return ItemColors(*iteration, kCorners).hasOne(localVertexIndex, ReturnStatus);
}

MStatus MItMeshPolygon::getColor(MColor& color, const MString* colorSetName)
{
    TVX_API_CALL("MItMeshPolygon::getColor");
    return ItemColors(*iteration, kCorners).mean(colorSetName, color);
}

MStatus MItMeshPolygon::getColor(MColor& color, int vertexIndex)
{
    TVX_API_CALL("MItMeshPolygon::getColor");
    return ItemColors(*iteration, kCorners).one(nullptr, vertexIndex, color);
}

MStatus MItMeshPolygon::getColors(MColorArray& colors, const MString* colorSetName)
{
    TVX_API_CALL("MItMeshPolygon::getColors");
    return ItemColors(*iteration, kCorners).list(colorSetName, colors);
}

MStatus MItMeshPolygon::numColors(int& count, const MString* colorSetName)
{
    TVX_API_CALL("MItMeshPolygon::numColors");
    return ItemColors(*iteration, kCorners).count(colorSetName, count);
}

MStatus MItMeshPolygon::getColorIndex(int vertexIndex, int& colorIndex, const MString* colorSetName)
{
    TVX_API_CALL("MItMeshPolygon::getColorIndex");
    return ItemColors(*iteration, kCorners).number(colorSetName, vertexIndex, colorIndex);
}

MStatus MItMeshPolygon::getColorIndices(MIntArray& colorIndex, const MString* colorSetName)
{
    TVX_API_CALL("MItMeshPolygon::getColorIndices");
    return ItemColors(*iteration, kCorners).numbers(colorSetName, colorIndex);
}
