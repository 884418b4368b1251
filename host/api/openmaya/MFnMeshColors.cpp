// MFnMesh: the colours in a set, and which of them the faces have at their corners.
#include <maya/MFnMesh.h>

#include "support/fnMesh.h"
#include "support/meshColors.h"
#include "support/meshCorners.h"
#include "support/meshSets.h"

#include <maya/MIntArray.h>

#include <algorithm>
#include <numeric>
#include <optional>

using namespace tvxhost;
using api::ColorKind;
using api::failure;
using api::requireFit;
using api::StatusText;
using api::Stroke;
using api::targetOf;
using engine::Color4f;
using engine::ColorParts;
using engine::ColorSet;
using engine::MeshData;

namespace {

template <class Use>
MStatus withColors(const MFnMesh& set, const MString* name, const Use& use)
{
    return api::withMesh(
        set, [&](const MeshData& mesh) { return api::readSet<ColorKind>(targetOf(set), mesh, name, use); });
}

template <class Check, class Change>
MStatus changeColors(const MFnMesh& set, const MString* name, const Check& check, const Change& change)
{
    return api::changeSet<ColorKind>(targetOf(set), name, check, change);
}

// Corners, of faces, of vertices, and single ones; none for what is not there.

using Corners = std::optional<std::vector<std::size_t>>;

Corners ofFace(const MeshData& mesh, int face)
{
    return mesh.hasFace(face) ? Corners(api::cornersOfFace(mesh, face)) : std::nullopt;
}

Corners ofVertex(const MeshData& mesh, int vertex)
{
    return mesh.hasVertex(vertex) ? Corners(api::placesAtVertex(mesh, vertex)) : std::nullopt;
}

Corners single(const std::optional<std::size_t>& corner)
{
    return corner ? Corners(std::vector<std::size_t>{*corner}) : std::nullopt;
}

// Painting

/// Paints the corners that `cornersOf(mesh, i)` gives for each colour, in the current set; without one a set
/// is made. Nothing is painted when one of the corners is not there.
template <class CornersOf>
MStatus paint(const MFnMesh& set, const std::vector<MColor>& colors, const CornersOf& cornersOf,
              MDGModifier* modifier, MFnMesh::MColorRepresentation representation)
{
    const api::MeshTarget target = targetOf(set);
    const MeshData* mesh = target.mesh();
    if (!mesh)
        return target.status();
    std::vector<Stroke> strokes;
    for (std::size_t i = 0; i < colors.size(); ++i) {
        const Corners corners = cornersOf(*mesh, static_cast<unsigned int>(i));
        if (!corners)
            return failure(StatusText::noElementAtIndex);
        strokes.push_back({*corners, api::toEngine(colors[i])});
    }
    return api::makeChange(modifier, [&]() -> MStatus {
        std::string name = api::currentSetName<ColorKind>(target, *target.mesh());
        const MStatus status =
            name.empty() ? api::addSet<ColorKind>(target, name, ColorSet(), nullptr) : MStatus();
        const MString current = tvxAccess::string(name);
        return status ? changeColors(
                            set, &current,
                            [](const MeshData&, const ColorSet&) -> MStatus { return MS::kSuccess; },
                            [&](MeshData&, ColorSet& painted) {
                                api::paint(painted, strokes, api::toEngine(representation));
                            })
                      : status;
    });
}

MStatus paintFaces(const MFnMesh& set, const std::vector<MColor>& colors, const std::vector<int>& faces,
                   MFnMesh::MColorRepresentation representation)
{
    if (colors.size() != faces.size())
        return failure(StatusText::noElementAtIndex);
    return paint(
        set, colors, [&](const MeshData& mesh, unsigned int i) { return ofFace(mesh, faces[i]); }, nullptr,
        representation);
}

MStatus paintVertices(const MFnMesh& set, const std::vector<MColor>& colors, const std::vector<int>& vertices,
                      MDGModifier* modifier, MFnMesh::MColorRepresentation representation)
{
    if (colors.size() != vertices.size())
        return failure(StatusText::noElementAtIndex);
    return paint(
        set, colors, [&](const MeshData& mesh, unsigned int i) { return ofVertex(mesh, vertices[i]); },
        modifier, representation);
}

MStatus paintFaceVertices(const MFnMesh& set, const std::vector<MColor>& colors,
                          const std::vector<int>& faces, const std::vector<int>& vertices,
                          MDGModifier* modifier, MFnMesh::MColorRepresentation representation)
{
    if (colors.size() != faces.size() || faces.size() != vertices.size())
        return failure(StatusText::noElementAtIndex);
    return paint(
        set, colors,
        [&](const MeshData& mesh, unsigned int i) {
            return single(api::cornerAtVertex(mesh, faces[i], vertices[i]));
        },
        modifier, representation);
}

MStatus paintCorner(const MFnMesh& set, const MColor& color, int face, int corner, MDGModifier* modifier,
                    MFnMesh::MColorRepresentation representation)
{
    return paint(
        set, {color},
        [&](const MeshData& mesh, unsigned int) { return single(api::localCorner(mesh, face, corner)); },
        modifier, representation);
}

/// Takes the colours of the current set from the corners that `cornersOf(mesh, i)` gives.
template <class CornersOf>
MStatus wipe(const MFnMesh& set, unsigned int count, const CornersOf& cornersOf)
{
    return changeColors(
        set, nullptr,
        [&](const MeshData& mesh, const ColorSet&) {
            bool isThere = true;
            for (unsigned int i = 0; i < count; ++i)
                isThere = isThere && cornersOf(mesh, i);
            return requireFit(isThere);
        },
        [&](MeshData& mesh, ColorSet& colors) {
            for (unsigned int i = 0; i < count; ++i) {
                const Corners corners = cornersOf(mesh, i);
                for (const std::size_t corner : *corners)
                    colors.assign(corner, engine::kUnmapped);
            }
        });
}

// Values by number

/// The list grows where a number is behind its end.
MStatus writeColors(const MFnMesh& set, const MString* name, const std::vector<int>& numbers,
                    const std::vector<MColor>& values, MFnMesh::MColorRepresentation representation)
{
    if (numbers.size() != values.size())
        return failure(StatusText::noElementAtIndex);
    return changeColors(
        set, name,
        [&](const MeshData&, const ColorSet& colors) {
            return requireFit(api::isWithinReach(colors, numbers));
        },
        [&](MeshData&, ColorSet& colors) {
            for (std::size_t i = 0; i < numbers.size(); ++i) {
                const auto place = static_cast<std::size_t>(numbers[i]);
                if (place >= colors.values.size())
                    colors.values.resize(place + 1, Color4f(0, 0, 0, 1));
                colors.values[place] = api::keptColor(colors, api::toEngine(values[i]),
                                                      api::toEngine(representation), colors.values[place]);
            }
        });
}

/// All values at once: at least as many as there are.
MStatus writeAll(const MFnMesh& set, const MString* name, const MColorArray& values,
                 MFnMesh::MColorRepresentation representation)
{
    const MStatus status = withColors(set, name, [&](const MeshData&, const ColorSet& colors) {
        return requireFit(values.length() >= colors.values.size());
    });
    std::vector<int> numbers(values.length());
    std::iota(numbers.begin(), numbers.end(), 0);
    return status ? writeColors(set, name, numbers, tvxAccess::elements(values), representation) : status;
}

int countColors(const MFnMesh& set, const MString* name, MStatus* returnStatus)
{
    int count = 0;
    api::give(returnStatus, withColors(set, name, [&](const MeshData&, const ColorSet& colors) -> MStatus {
                  count = static_cast<int>(colors.values.size());
                  return MS::kSuccess;
              }));
    return count;
}

MColor colorOr(const MColor* otherwise, const Color4f* color)
{
    if (color)
        return api::toApi(*color);
    return otherwise ? *otherwise : api::kNoColor;
}

/// The colour of one corner; null when it has none.
const Color4f* colorAt(const ColorSet& colors, std::size_t corner)
{
    const std::int32_t number = colors.at(corner);
    return number == engine::kUnmapped ? nullptr : &colors.values[static_cast<std::size_t>(number)];
}

engine::Plug displayOf(engine::DagNode& shape)
{
    return {shape, *shape.findAttribute("displayColors")};
}

} // namespace

int MFnMesh::numColors(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::numColors", ReturnStatus, 0);
    return countColors(*this, nullptr, ReturnStatus);
}

int MFnMesh::numColors(const MString& colorSet, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::numColors", ReturnStatus, 0);
    return countColors(*this, &colorSet, ReturnStatus);
}

MStatus MFnMesh::setFaceColor(MColor& color, int index)
{
    TVX_API_CALL("MFnMesh::setFaceColor");
    return paintFaces(*this, {color}, {index}, kRGBA);
}

MStatus MFnMesh::setFaceColor(MColor& color, int index, MColorRepresentation rep)
{
    TVX_API_CALL("MFnMesh::setFaceColor");
    return paintFaces(*this, {color}, {index}, rep);
}

MStatus MFnMesh::setVertexColor(MColor& color, int index, MDGModifier* modifier)
{
    TVX_API_CALL("MFnMesh::setVertexColor");
    return paintVertices(*this, {color}, {index}, modifier, kRGBA);
}

MStatus MFnMesh::setVertexColor(MColor& color, int index, MDGModifier* modifier, MColorRepresentation rep)
{
    TVX_API_CALL("MFnMesh::setVertexColor");
    return paintVertices(*this, {color}, {index}, modifier, rep);
}

MStatus MFnMesh::setFaceVertexColor(MColor& color, int faceIndex, int vertexIndex, MDGModifier* modifier)
{
    TVX_API_CALL("MFnMesh::setFaceVertexColor");
    return paintFaceVertices(*this, {color}, {faceIndex}, {vertexIndex}, modifier, kRGBA);
}

MStatus MFnMesh::setFaceVertexColor(MColor& color, int faceIndex, int vertexIndex, MDGModifier* modifier,
                                    MColorRepresentation rep)
{
    TVX_API_CALL("MFnMesh::setFaceVertexColor");
    return paintFaceVertices(*this, {color}, {faceIndex}, {vertexIndex}, modifier, rep);
}

MStatus MFnMesh::setFaceVertexColor(int faceIndex, int localVertexIndex, MColor& color, MDGModifier* modifier)
{
    TVX_API_CALL("MFnMesh::setFaceVertexColor");
    return paintCorner(*this, color, faceIndex, localVertexIndex, modifier, kRGBA);
}

MStatus MFnMesh::setFaceVertexColor(int faceIndex, int localVertexIndex, MColor& color, MDGModifier* modifier,
                                    MColorRepresentation rep)
{
    TVX_API_CALL("MFnMesh::setFaceVertexColor");
    return paintCorner(*this, color, faceIndex, localVertexIndex, modifier, rep);
}

MStatus MFnMesh::setFaceColors(MColorArray& colors, MIntArray& faceList)
{
    TVX_API_CALL("MFnMesh::setFaceColors");
    return paintFaces(*this, tvxAccess::elements(colors), tvxAccess::elements(faceList), kRGBA);
}

MStatus MFnMesh::setFaceColors(MColorArray& colors, MIntArray& faceList, MColorRepresentation rep)
{
    TVX_API_CALL("MFnMesh::setFaceColors");
    return paintFaces(*this, tvxAccess::elements(colors), tvxAccess::elements(faceList), rep);
}

MStatus MFnMesh::setVertexColors(MColorArray& colors, MIntArray& vertexList, MDGModifier* modifier)
{
    TVX_API_CALL("MFnMesh::setVertexColors");
    return paintVertices(*this, tvxAccess::elements(colors), tvxAccess::elements(vertexList), modifier,
                         kRGBA);
}

MStatus MFnMesh::setVertexColors(MColorArray& colors, MIntArray& vertexList, MDGModifier* modifier,
                                 MColorRepresentation rep)
{
    TVX_API_CALL("MFnMesh::setVertexColors");
    return paintVertices(*this, tvxAccess::elements(colors), tvxAccess::elements(vertexList), modifier, rep);
}

MStatus MFnMesh::setFaceVertexColors(MColorArray& colors, MIntArray& faceList, MIntArray& vertexList,
                                     MDGModifier* modifier)
{
    TVX_API_CALL("MFnMesh::setFaceVertexColors");
    return paintFaceVertices(*this, tvxAccess::elements(colors), tvxAccess::elements(faceList),
                             tvxAccess::elements(vertexList), modifier, kRGBA);
}

MStatus MFnMesh::setFaceVertexColors(MColorArray& colors, MIntArray& faceList, MIntArray& vertexList,
                                     MDGModifier* modifier, MColorRepresentation rep)
{
    TVX_API_CALL("MFnMesh::setFaceVertexColors");
    return paintFaceVertices(*this, tvxAccess::elements(colors), tvxAccess::elements(faceList),
                             tvxAccess::elements(vertexList), modifier, rep);
}

MStatus MFnMesh::removeFaceColors(MIntArray& faceList)
{
    TVX_API_CALL("MFnMesh::removeFaceColors");
    return wipe(*this, faceList.length(),
                [&](const MeshData& mesh, unsigned int i) { return ofFace(mesh, faceList[i]); });
}

MStatus MFnMesh::removeVertexColors(MIntArray& vertexList)
{
    TVX_API_CALL("MFnMesh::removeVertexColors");
    return wipe(*this, vertexList.length(),
                [&](const MeshData& mesh, unsigned int i) { return ofVertex(mesh, vertexList[i]); });
}

MStatus MFnMesh::removeFaceVertexColors(MIntArray& faceList, MIntArray& vertexList)
{
    TVX_API_CALL("MFnMesh::removeFaceVertexColors");
    if (faceList.length() != vertexList.length())
        return failure(StatusText::noElementAtIndex);
    return wipe(*this, faceList.length(), [&](const MeshData& mesh, unsigned int i) {
        return single(api::cornerAtVertex(mesh, faceList[i], vertexList[i]));
    });
}

MStatus MFnMesh::getVertexColors(MColorArray& colors, const MString* colorSet,
                                 const MColor* defaultUnsetColor)
{
    TVX_API_CALL("MFnMesh::getVertexColors");
    return withColors(*this, colorSet, [&](const MeshData& mesh, const ColorSet& set) -> MStatus {
        colors.clear();
        for (int vertex = 0; mesh.hasVertex(vertex); ++vertex) {
            Color4f mean;
            colors.append(colorOr(defaultUnsetColor, api::meanColor(set, *ofVertex(mesh, vertex), mean)));
        }
        return MS::kSuccess;
    });
}

MStatus MFnMesh::getFaceVertexColors(MColorArray& colors, const MString* colorSet,
                                     const MColor* defaultUnsetColor)
{
    TVX_API_CALL("MFnMesh::getFaceVertexColors");
    return withColors(*this, colorSet, [&](const MeshData& mesh, const ColorSet& set) -> MStatus {
        colors.clear();
        for (std::size_t corner = 0; corner < mesh.faces.cornerCount(); ++corner)
            colors.append(colorOr(defaultUnsetColor, colorAt(set, corner)));
        return MS::kSuccess;
    });
}

MStatus MFnMesh::getFaceVertexColorIndex(int faceIndex, int localVertexIndex, int& colorIndex,
                                         const MString* colorSet)
{
    TVX_API_CALL("MFnMesh::getFaceVertexColorIndex");
    return withColors(*this, colorSet, [&](const MeshData& mesh, const ColorSet&) {
        const auto corner = api::localCorner(mesh, faceIndex, localVertexIndex);
        if (corner)
            colorIndex = static_cast<int>(*corner);
        return requireFit(corner.has_value());
    });
}

MStatus MFnMesh::setColors(const MColorArray& colors, const MString* colorSet)
{
    TVX_API_CALL("MFnMesh::setColors");
    return writeAll(*this, colorSet, colors, kRGBA);
}

MStatus MFnMesh::setColors(const MColorArray& colors, const MString* colorSet, MColorRepresentation rep)
{
    TVX_API_CALL("MFnMesh::setColors");
    return writeAll(*this, colorSet, colors, rep);
}

MStatus MFnMesh::setSomeColors(const MIntArray& colorIds, const MColorArray& colors, const MString* colorSet)
{
    TVX_API_CALL("MFnMesh::setSomeColors");
    return writeColors(*this, colorSet, tvxAccess::elements(colorIds), tvxAccess::elements(colors), kRGBA);
}

MStatus MFnMesh::setSomeColors(const MIntArray& colorIds, const MColorArray& colors, const MString* colorSet,
                               MColorRepresentation rep)
{
    TVX_API_CALL("MFnMesh::setSomeColors");
    return writeColors(*this, colorSet, tvxAccess::elements(colorIds), tvxAccess::elements(colors), rep);
}

MStatus MFnMesh::getColors(MColorArray& colors, const MString* colorSet, const MColor*) const
{
    TVX_API_CALL("MFnMesh::getColors");
    return withColors(*this, colorSet, [&](const MeshData&, const ColorSet& set) -> MStatus {
        colors.clear();
        for (const Color4f& color : set.values)
            colors.append(api::toApi(color));
        return MS::kSuccess;
    });
}

MStatus MFnMesh::getColorIndex(int faceIndex, int localVertexIndex, int& colorIndex, const MString* colorSet)
{
    TVX_API_CALL("MFnMesh::getColorIndex");
    return withColors(*this, colorSet, [&](const MeshData& mesh, const ColorSet& set) {
        const auto corner = api::localCorner(mesh, faceIndex, localVertexIndex);
        if (corner)
            colorIndex = set.at(*corner);
        return requireFit(corner.has_value());
    });
}

MStatus MFnMesh::setColor(int colorId, const MColor& color, const MString* colorSet)
{
    TVX_API_CALL("MFnMesh::setColor");
    return writeColors(*this, colorSet, {colorId}, {color}, kRGBA);
}

MStatus MFnMesh::setColor(int colorId, const MColor& color, const MString* colorSet, MColorRepresentation rep)
{
    TVX_API_CALL("MFnMesh::setColor");
    return writeColors(*this, colorSet, {colorId}, {color}, rep);
}

MStatus MFnMesh::getColor(int colorId, MColor& color, const MString* colorSet, const MColor*) const
{
    TVX_API_CALL("MFnMesh::getColor");
    return withColors(*this, colorSet, [&](const MeshData&, const ColorSet& set) {
        if (set.hasValue(colorId))
            color = api::toApi(set.values[static_cast<std::size_t>(colorId)]);
        return requireFit(set.hasValue(colorId));
    });
}

MStatus MFnMesh::assignColor(int polygonId, int vertexIndex, int colorId, const MString* colorSet)
{
    TVX_API_CALL("MFnMesh::assignColor");
    return changeColors(
        *this, colorSet,
        [&](const MeshData& mesh, const ColorSet& set) {
            return requireFit(api::localCorner(mesh, polygonId, vertexIndex) && set.hasValue(colorId));
        },
        [&](MeshData& mesh, ColorSet& set) {
            set.assign(*api::localCorner(mesh, polygonId, vertexIndex), colorId);
        });
}

MStatus MFnMesh::assignColors(const MIntArray& colorIds, const MString* colorSet)
{
    TVX_API_CALL("MFnMesh::assignColors");
    const auto& ids = tvxAccess::elements(colorIds);
    return changeColors(
        *this, colorSet,
        [&](const MeshData& mesh, const ColorSet& set) {
            return requireFit(ids.size() == mesh.faces.cornerCount() &&
                              std::all_of(ids.begin(), ids.end(), [&set](int id) {
                                  return id == engine::kUnmapped || set.hasValue(id);
                              }));
        },
        [&](MeshData&, ColorSet& set) { set.used.assign(ids.begin(), ids.end()); });
}

MStatus MFnMesh::clearColors(const MString* colorSet)
{
    TVX_API_CALL("MFnMesh::clearColors");
    return changeColors(
        *this, colorSet, [](const MeshData&, const ColorSet&) -> MStatus { return MS::kSuccess; },
        [](MeshData&, ColorSet& set) {
            set.values.clear();
            set.used.clear();
        });
}

bool MFnMesh::displayColors(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::displayColors", ReturnStatus, false);
    engine::DagNode* shape = targetOf(*this).shape();
    api::give(ReturnStatus, shape ? MStatus() : failure(StatusText::objectIsIncompatible));
    return shape && engine::readNumber(displayOf(*shape)).value.asWhole() != 0;
}

MStatus MFnMesh::setDisplayColors(bool enable)
{
    TVX_API_CALL("MFnMesh::setDisplayColors");
    engine::DagNode* shape = targetOf(*this).shape();
    return shape ? api::toStatus(engine::writeNumber(displayOf(*shape), enable ? 1 : 0))
                 : failure(StatusText::objectIsIncompatible);
}
