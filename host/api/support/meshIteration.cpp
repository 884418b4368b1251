// MeshIteration: see meshIteration.h.
#include "meshIteration.h"

#include "component.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace tvxhost::api {

namespace {

/// Reads "e[0:3] e[7]": the numbers of components of one kind that the mesh has. False for other words.
class ComponentReader
{
public:
    ComponentReader(std::string_view text, std::string_view kind, std::size_t count)
        : m_rest(text), m_kind(kind), m_count(count)
    {
    }

    bool read(std::vector<std::int32_t>& numbers)
    {
        for (skipBlanks(); !m_rest.empty(); skipBlanks())
            if (!take(m_kind) || !take("[") || !readRange(numbers) || !take("]"))
                return false;
        return true;
    }

private:
    bool readRange(std::vector<std::int32_t>& numbers)
    {
        std::size_t first = 0, last = m_count - 1;
        if (!take("*")) {
            if (!number(first))
                return false;
            last = first;
            if (take(":") && !number(last))
                return false;
        }
        for (std::size_t i = first; i <= last && i < m_count; ++i)
            numbers.push_back(static_cast<std::int32_t>(i));
        return true;
    }
    bool number(std::size_t& value)
    {
        const auto [end, error] = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), value);
        if (error != std::errc())
            return false;
        m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.data()));
        return true;
    }
    bool take(std::string_view word)
    {
        if (m_rest.substr(0, word.size()) != word)
            return false;
        m_rest.remove_prefix(word.size());
        return true;
    }
    void skipBlanks()
    {
        while (!m_rest.empty() && m_rest.front() == ' ')
            m_rest.remove_prefix(1);
    }

    std::string_view m_rest;
    std::string_view m_kind;
    std::size_t m_count;
};

} // namespace

const MeshItems kEdgeItems{"e", [](const engine::MeshData& mesh) { return mesh.edges.size(); }};
const MeshItems kVertexItems{"vtx", [](const engine::MeshData& mesh) { return mesh.points.size(); }};
const MeshItems kFaceItems{"f", [](const engine::MeshData& mesh) { return mesh.faces.size(); }};

MStatus MeshIteration::start(MeshTarget from, const MObject& component)
{
    target = std::move(from);
    chosen.clear();
    isWhole = component.isNull();
    restart();
    const std::string names = componentsOf(component);
    if (!mesh || isWhole)
        return target.status();
    if (!names.empty() && ComponentReader(names, items.component, size).read(chosen)) {
        goTo(0);
        return MS::kSuccess;
    }
    chosen.clear();
    goTo(0);
    return failure(StatusText::objectIsIncompatible);
}

MStatus MeshIteration::restart()
{
    m_world.reset();
    refresh();
    goTo(0);
    return target.status();
}

void MeshIteration::refresh()
{
    mesh = engine::Ref<engine::MeshData>(target.mesh());
    size = mesh ? items.count(*mesh) : 0;
    if (current >= 0 && static_cast<std::size_t>(current) >= size)
        current = -1;
}

void MeshIteration::goTo(std::size_t newPlace)
{
    place = newPlace;
    if (newPlace >= count())
        current = -1;
    else
        current = isWhole ? static_cast<std::int32_t>(newPlace) : chosen[newPlace];
}

MStatus MeshIteration::next()
{
    if (isDone())
        return failure(StatusText::unexpectedFailure);
    goTo(place + 1);
    return MS::kSuccess;
}

MStatus MeshIteration::jump(int index, int& previous)
{
    if (index < 0 || static_cast<std::size_t>(index) >= size)
        return failure(StatusText::noElementAtIndex);
    previous = current;
    current = index;
    if (isWhole)
        place = static_cast<std::size_t>(index);
    return MS::kSuccess;
}

MStatus MeshIteration::placement(MSpace::Space space, engine::Matrix& matrix) const
{
    if (space == MSpace::kWorld && m_world) {
        matrix = *m_world;
        return MS::kSuccess;
    }
    const MStatus status = target.placement(space, matrix);
    if (space == MSpace::kWorld && status)
        m_world = matrix;
    return status;
}

MStatus MeshIteration::move(const std::vector<std::pair<std::int32_t, MPoint>>& points, MSpace::Space space)
{
    engine::Matrix matrix;
    if (const MStatus placed = placement(space, matrix); !placed)
        return placed;
    const engine::Matrix back = matrix.inverse();
    engine::MovedPoints moved;
    for (const auto& [vertex, point] : points)
        moved.emplace_back(vertex, engine::Vec3f(toImath(point) * back));
    const MStatus status = target.move(moved);
    refresh();
    return status;
}

std::int32_t presentItem(const MeshIteration& iteration, MStatus* status)
{
    give(status, iteration.isDone() ? failure(StatusText::objectDoesNotExist) : MStatus());
    return iteration.current;
}

MObject presentComponent(const MeshIteration& iteration, MStatus* status)
{
    const std::int32_t item = presentItem(iteration, status);
    return item < 0
               ? MObject()
               : componentHandle(std::string(iteration.items.component) + '[' + std::to_string(item) + ']');
}

bool holds(engine::IndexSpan span, int number)
{
    return std::find(span.begin(), span.end(), number) != span.end();
}

bool requireItem(bool exists, MStatus* status)
{
    give(status, exists ? MStatus() : failure(StatusText::noElementAtIndex));
    return exists;
}

} // namespace tvxhost::api
