// Colours of corners, read and painted: shared by MFnMesh and the iterators.
#pragma once

#include "engine/geometry/meshData.h"

#include <maya/MColor.h>
#include <maya/MColorArray.h>
#include <maya/MFnMesh.h>

#include <cstddef>
#include <vector>

namespace tvxhost::api {

MColor toApi(const engine::Color4f& color);
engine::Color4f toEngine(const MColor& color);
engine::ColorParts toEngine(MFnMesh::MColorRepresentation representation);

/// What members answer for what has no colour, unless their caller says something else.
inline const MColor kNoColor{-1, -1, -1, -1};

/// A colour as a set keeps it: what the set is clamped to, and of `old` what `parts` leaves.
engine::Color4f keptColor(const engine::ColorSet& set, const engine::Color4f& color, engine::ColorParts parts,
                          const engine::Color4f& old);

/// Corners that get one colour.
struct Stroke
{
    std::vector<std::size_t> corners;
    engine::Color4f color;
};
/// Gives corners colours. A value that only corners of one stroke have is changed, others get a new one.
void paint(engine::ColorSet& set, const std::vector<Stroke>& strokes, engine::ColorParts parts);

/// The mean of the colours that corners have; null when none has one.
const engine::Color4f* meanColor(const engine::ColorSet& set, const std::vector<std::size_t>& corners,
                                 engine::Color4f& mean);

/// The colours of corners as the iterators tell them: (0, 0, 0, 1) for those without, all of them
/// (-1, -1, -1, 1) when none has one.
void giveColors(const engine::ColorSet& set, const std::vector<std::size_t>& corners, MColorArray& colors);

/// How many different colour values corners have.
std::size_t countColors(const engine::ColorSet& set, const std::vector<std::size_t>& corners);

} // namespace tvxhost::api
