// ItemColors: see itemColors.h.
#include "itemColors.h"

#include "meshColors.h"
#include "meshSets.h"

namespace tvxhost::api {

using engine::ColorSet;
using engine::MeshData;
using Corners = std::vector<std::size_t>;

namespace {

MStatus readMean(const ColorSet& set, const Corners& corners, MColor& color)
{
    engine::Color4f mean;
    if (!meanColor(set, corners, mean))
        return failure(StatusText::unexpectedFailure);
    color = toApi(mean);
    return MS::kSuccess;
}

} // namespace

/// Runs `use(set, corners)`, which returns a status, with the corners of the present item.
template <class Use>
MStatus ItemColors::with(const MString* set, const Use& use) const
{
    return withItem(m_iteration, [&](const MeshData& mesh, std::int32_t item) {
        return readSet<ColorKind>(
            m_iteration.target, mesh, set,
            [&](const MeshData&, const ColorSet& colors) { return use(colors, m_corners.all(mesh, item)); });
    });
}

template <class Use>
MStatus ItemColors::withOne(const MString* set, int key, const Use& use) const
{
    return withItem(m_iteration, [&](const MeshData& mesh, std::int32_t item) {
        return readSet<ColorKind>(
            m_iteration.target, mesh, set, [&](const MeshData&, const ColorSet& colors) {
                const std::optional<std::size_t> corner = m_corners.one(mesh, item, key);
                return corner ? use(colors, *corner) : failure(StatusText::noElementAtIndex);
            });
    });
}

bool ItemColors::has(MStatus* status) const
{
    int colors = 0;
    give(status, count(nullptr, colors));
    return colors > 0;
}

bool ItemColors::hasOne(int key, MStatus* status) const
{
    int value = engine::kUnmapped;
    give(status, number(nullptr, key, value));
    return value != engine::kUnmapped;
}

MStatus ItemColors::mean(const MString* set, MColor& color) const
{
    return with(set, [&](const ColorSet& colors, const Corners& corners) {
        return readMean(colors, corners, color);
    });
}

MStatus ItemColors::one(const MString* set, int key, MColor& color) const
{
    return withOne(set, key, [&](const ColorSet& colors, std::size_t corner) {
        return readMean(colors, {corner}, color);
    });
}

MStatus ItemColors::list(const MString* set, MColorArray& colors) const
{
    return with(set, [&](const ColorSet& from, const Corners& corners) {
        giveColors(from, corners, colors);
        return MStatus();
    });
}

MStatus ItemColors::count(const MString* set, int& count) const
{
    return with(set, [&](const ColorSet& colors, const Corners& corners) {
        count = static_cast<int>(countColors(colors, corners));
        return MStatus();
    });
}

MStatus ItemColors::numbers(const MString* set, MIntArray& numbers) const
{
    return with(set, [&](const ColorSet& colors, const Corners& corners) {
        numbers.clear();
        for (const std::size_t corner : corners)
            numbers.append(colors.at(corner));
        return MStatus();
    });
}

MStatus ItemColors::number(const MString* set, int key, int& number) const
{
    return withOne(set, key, [&](const ColorSet& colors, std::size_t corner) {
        number = colors.at(corner);
        return MStatus();
    });
}

} // namespace tvxhost::api
