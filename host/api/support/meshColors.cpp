// Colours of corners: see meshColors.h.
#include "meshColors.h"

#include <algorithm>
#include <map>
#include <set>

namespace tvxhost::api {

using engine::Color4f;
using engine::ColorParts;
using engine::ColorSet;

namespace {

const Color4f kBlack(0, 0, 0, 1);

/// How many corners have each value.
std::vector<std::size_t> countUses(const ColorSet& set)
{
    std::vector<std::size_t> uses(set.values.size(), 0);
    for (const std::int32_t number : set.used)
        if (number != engine::kUnmapped)
            ++uses[static_cast<std::size_t>(number)];
    return uses;
}

/// The value that all these corners have and no others; kUnmapped when there is none.
std::int32_t ownValue(const ColorSet& set, const std::vector<std::size_t>& corners,
                      const std::vector<std::size_t>& uses)
{
    const std::int32_t number = corners.empty() ? engine::kUnmapped : set.at(corners.front());
    if (number == engine::kUnmapped || uses[static_cast<std::size_t>(number)] != corners.size())
        return engine::kUnmapped;
    const bool isAll = std::all_of(corners.begin(), corners.end(),
                                   [&](std::size_t corner) { return set.at(corner) == number; });
    return isAll ? number : engine::kUnmapped;
}

/// Gives corners a new value; where a part of the former one stays, one for each former value.
void paintAnew(ColorSet& set, const Stroke& stroke, ColorParts parts, std::vector<std::size_t>& uses)
{
    std::map<std::int32_t, std::int32_t> made;
    for (const std::size_t corner : stroke.corners) {
        const std::int32_t former = set.at(corner);
        const auto next = static_cast<std::int32_t>(set.values.size());
        const auto [number, isNew] =
            made.emplace(parts == ColorParts::rgba ? engine::kUnmapped : former, next);
        if (isNew) {
            const Color4f old =
                former == engine::kUnmapped ? kBlack : set.values[static_cast<std::size_t>(former)];
            set.values.push_back(keptColor(set, stroke.color, parts, old));
            uses.push_back(0);
        }
        if (former != engine::kUnmapped)
            --uses[static_cast<std::size_t>(former)];
        ++uses[static_cast<std::size_t>(number->second)];
        set.assign(corner, number->second);
    }
}

} // namespace

MColor toApi(const Color4f& color)
{
    return MColor(color.r, color.g, color.b, color.a);
}

Color4f toEngine(const MColor& color)
{
    return {color.r, color.g, color.b, color.a};
}

ColorParts toEngine(MFnMesh::MColorRepresentation representation)
{
    if (representation == MFnMesh::kAlpha)
        return ColorParts::alpha;
    return representation == MFnMesh::kRGB ? ColorParts::rgb : ColorParts::rgba;
}

Color4f keptColor(const ColorSet& set, const Color4f& color, ColorParts parts, const Color4f& old)
{
    Color4f kept = parts == ColorParts::alpha ? old : color;
    kept.a = parts == ColorParts::rgb ? old.a : color.a;
    if (set.isClamped)
        for (float* part : {&kept.r, &kept.g, &kept.b, &kept.a})
            *part = std::clamp(*part, 0.0F, 1.0F);
    return kept;
}

void paint(ColorSet& set, const std::vector<Stroke>& strokes, ColorParts parts)
{
    std::vector<std::size_t> uses = countUses(set);
    for (const Stroke& stroke : strokes) {
        const std::int32_t own = ownValue(set, stroke.corners, uses);
        if (own == engine::kUnmapped) {
            paintAnew(set, stroke, parts, uses);
            continue;
        }
        Color4f& value = set.values[static_cast<std::size_t>(own)];
        value = keptColor(set, stroke.color, parts, value);
    }
}

const Color4f* meanColor(const ColorSet& set, const std::vector<std::size_t>& corners, Color4f& mean)
{
    mean = Color4f(0, 0, 0, 0);
    float count = 0;
    for (const std::size_t corner : corners)
        if (set.at(corner) != engine::kUnmapped) {
            mean += set.values[static_cast<std::size_t>(set.at(corner))];
            ++count;
        }
    if (count > 0)
        mean /= count;
    return count > 0 ? &mean : nullptr;
}

void giveColors(const ColorSet& set, const std::vector<std::size_t>& corners, MColorArray& colors)
{
    const bool hasAny = countColors(set, corners) > 0;
    colors.clear();
    for (const std::size_t corner : corners) {
        const std::int32_t number = set.at(corner);
        if (number != engine::kUnmapped)
            colors.append(toApi(set.values[static_cast<std::size_t>(number)]));
        else
            colors.append(hasAny ? toApi(kBlack) : MColor(-1, -1, -1, 1));
    }
}

std::size_t countColors(const ColorSet& set, const std::vector<std::size_t>& corners)
{
    std::set<std::int32_t> numbers;
    for (const std::size_t corner : corners)
        if (set.at(corner) != engine::kUnmapped)
            numbers.insert(set.at(corner));
    return numbers.size();
}

} // namespace tvxhost::api
