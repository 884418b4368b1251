// Points of shapes that components name; see pointComponents.h.
#include "pointComponents.h"

#include "memberLists.h"

#include "engine/geometry/curveNode.h"
#include "engine/mesh.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace tvxhost::mel {

using engine::Components;
using engine::DagNode;
using engine::MeshData;
using engine::NurbsCurve;
using engine::SelectionItem;
using engine::Vec3d;

namespace {

std::size_t toSize(int number)
{
    return static_cast<std::size_t>(number);
}

/// The vertices that a component of a mesh stands for.
struct VertexRow
{
    const char* kind;
    void (*add)(const MeshData& mesh, int number, std::set<int>& vertices);
};

constexpr VertexRow kVertexRows[] = {
    {"vtx", [](const MeshData&, int number, std::set<int>& vertices) { vertices.insert(number); }},
    {"e",
     [](const MeshData& mesh, int number, std::set<int>& vertices) {
         const MeshData::Edge& edge = mesh.edges[toSize(number)];
         vertices.insert({edge.from, edge.to});
     }},
    {"f",
     [](const MeshData& mesh, int number, std::set<int>& vertices) {
         for (const std::int32_t corner : mesh.faces.corners(toSize(number)))
             vertices.insert(mesh.startOf(corner));
     }},
};

NumberedPoints pointsOfMesh(const MeshData& mesh, const Components& components)
{
    std::set<int> vertices;
    for (const VertexRow& row : kVertexRows)
        if (components.kind() == row.kind)
            for (const Components::Run& run : components.runs())
                for (int i = run.first; i <= run.last; ++i)
                    row.add(mesh, i, vertices);
    NumberedPoints points;
    for (const int vertex : vertices)
        points.emplace_back(vertex, Vec3d(mesh.points[toSize(vertex)]));
    return points;
}

/// Edit points are where the pieces of a curve meet: at each new knot.
Vec3d editPoint(const NurbsCurve& curve, int number)
{
    return curve.at(curve.knots[toSize(curve.degree - 1 + number)]);
}

NumberedPoints pointsOfCurve(const NurbsCurve& curve, const Components& components)
{
    NumberedPoints points;
    for (const Components::Run& run : components.runs())
        for (int i = run.first; i <= run.last; ++i)
            points.emplace_back(i, components.kind() == "cv" ? curve.points[toSize(i)].place
                                                             : editPoint(curve, i));
    return points;
}

/// The components that an item names and its shape has; none of another kind.
Components componentsOf(const CommandContext& context, const SelectionItem& item)
{
    DagNode& shape = *item.path.node();
    const auto named = engine::parseComponents(shape, item.components);
    if (!named)
        context.fail("'" + context.command() + "' of '" + item.name() +
                     "' is not implemented: only vertices, edges and faces of meshes and points of curves");
    Components existing = named->common(engine::allComponents(shape, named->kind()));
    if (existing.empty())
        context.fail("No object matches name: " + item.name());
    return existing;
}

Components verticesOf(const NumberedPoints& points)
{
    Components vertices("vtx");
    for (const auto& [number, point] : points)
        vertices.add({number, number});
    return vertices;
}

SelectionItem withComponents(SelectionItem item, const Components& components)
{
    item.components.clear();
    for (const std::string& text : components.texts())
        item.components += (item.components.empty() ? "" : " ") + text;
    return item;
}

void storePoints(const CommandContext& context, DagNode& shape, const Components& components,
                 const NumberedPoints& points)
{
    if (shape.type().isA("mesh")) {
        engine::MovedPoints moved;
        for (const auto& [number, point] : points)
            moved.emplace_back(number, engine::Vec3f(point));
        return require(context, engine::movePoints(shape, moved));
    }
    if (components.kind() != "cv")
        context.fail("'" + context.command() + "': edit points cannot be moved here");
    NurbsCurve curve = *engine::curveOf(shape);
    // The first points of a periodic curve stand at its end once more.
    const std::size_t period = components.kind() == "cv" && curve.form == NurbsCurve::Form::periodic
                                   ? toSize(curve.spanCount())
                                   : curve.points.size();
    for (const auto& [number, point] : points)
        for (std::size_t i = toSize(number); i < curve.points.size(); i += period)
            curve.points[i].place = point;
    require(context, engine::storeCurve(shape, curve));
}

} // namespace

NumberedPoints pointsOf(const CommandContext& context, const SelectionItem& item)
{
    const Components components = componentsOf(context, item);
    DagNode& shape = *item.path.node();
    // Components that exist are those of a mesh or of a curve.
    if (const MeshData* mesh = engine::meshOf(shape))
        return pointsOfMesh(*mesh, components);
    return pointsOfCurve(*engine::curveOf(shape), components);
}

void changePoints(const CommandContext& context, const SelectionItem& item, bool isInWorld,
                  const PointChange& change)
{
    const engine::Matrix toSpace = isInWorld ? item.path.inclusiveMatrix() : engine::Matrix();
    const engine::Matrix back = toSpace.inverse();
    NumberedPoints points = pointsOf(context, item);
    for (auto& [number, point] : points)
        point = change(point * toSpace) * back;
    storePoints(context, *item.path.node(), componentsOf(context, item), points);
}

std::vector<SelectionItem> pointsOnce(const CommandContext& context, const std::vector<SelectionItem>& items)
{
    std::vector<SelectionItem> points;
    for (const SelectionItem& item : items) {
        const Components named = componentsOf(context, item);
        const bool isOfMesh = item.path.node()->type().isA("mesh");
        points.push_back(withComponents(item, isOfMesh ? verticesOf(pointsOf(context, item)) : named));
    }
    std::vector<SelectionItem> once;
    for (const auto& [item, numbers] : componentsByObject(points))
        once.push_back(withComponents(item, numbers));
    return once;
}

std::vector<SelectionItem> takeComponents(std::vector<SelectionItem>& items)
{
    const auto taken = std::stable_partition(
        items.begin(), items.end(), [](const SelectionItem& item) { return item.components.empty(); });
    std::vector<SelectionItem> components(std::make_move_iterator(taken),
                                          std::make_move_iterator(items.end()));
    items.erase(taken, items.end());
    return components;
}

} // namespace tvxhost::mel
