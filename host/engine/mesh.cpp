// Meshes: see mesh.h.
#include "mesh.h"

#include "cell.h"
#include "geometry/faceText.h"
#include "scene.h"
#include "values.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

Plug plugOf(DagNode& node, const char* name)
{
    Attribute* attribute = node.type().find(name);
    return attribute ? Plug(node, *attribute) : Plug();
}

bool isMesh(DagNode& shape)
{
    return shape.isAlive() && shape.type().isA("mesh");
}

Vec3f pointAt(const Plug& element)
{
    return {static_cast<float>(storedNumber(element.child(0)).asReal()),
            static_cast<float>(storedNumber(element.child(1)).asReal()),
            static_cast<float>(storedNumber(element.child(2)).asReal())};
}

template <class T>
T& grownTo(std::vector<T>& values, int index)
{
    const auto place = static_cast<std::size_t>(index);
    if (place >= values.size())
        values.resize(place + 1);
    return values[place];
}

void readPoints(DagNode& shape, MeshData& mesh)
{
    const Plug vertices = plugOf(shape, "vrts");
    for (const int i : existingElements(vertices))
        grownTo(mesh.points, i) = pointAt(vertices.element(i));
}

void readEdges(DagNode& shape, MeshData& mesh)
{
    const Plug edges = plugOf(shape, "edge");
    for (const int i : existingElements(edges)) {
        const Plug element = edges.element(i);
        const auto number = [&](std::size_t child) {
            return static_cast<std::int32_t>(storedNumber(element.child(child)).asWhole());
        };
        grownTo(mesh.edges, i) = {number(0), number(1), number(2)};
    }
}

void readFaces(DagNode& shape, MeshData& mesh)
{
    const Plug faces = plugOf(shape, "face");
    for (const int i : existingElements(faces)) {
        while (mesh.faces.size() < static_cast<std::size_t>(i))
            mesh.faces.addFace();
        const Ref<Data> data = storedData(faces.element(i));
        MeshFace face;
        if (data && data->type() == DataType::plugin)
            (void)readFace(static_cast<const KeptData&>(*data).text, face);
        mesh.faces.add(face);
    }
}

/// What the attributes say, without tweaks.
Ref<Data> assemble(DagNode& shape)
{
    Ref<Data> result(new MeshData);
    auto& mesh = static_cast<MeshData&>(*result);
    readPoints(shape, mesh);
    readEdges(shape, mesh);
    readFaces(shape, mesh);
    if (mesh.points.empty())
        return {};
    if (isSound(mesh))
        return result;
    shape.scene().scriptEditor().warning("The geometry of '" + shape.name() +
                                         "' names points or edges that are not there; it is not used.");
    return {};
}

Ref<Data> asMesh(const Ref<Data>& data)
{
    return data && data->type() == DataType::mesh ? data : Ref<Data>();
}

/// What `inMesh` yields or holds; null when that is no mesh.
Ref<Data> incomingMesh(DagNode& shape)
{
    const Plug input = plugOf(shape, "inMesh");
    return asMesh(isFedAnywhere(input) ? readData(input).value : storedData(input));
}

/// The mesh with the tweaks of a shape; itself when there are none.
Ref<Data> withTweaks(DagNode& shape, const Ref<Data>& mesh)
{
    const Plug tweaks = plugOf(shape, "pnts");
    const std::vector<int> elements = existingElements(tweaks);
    if (!mesh || elements.empty())
        return mesh;
    Ref<Data> result = mesh->clone();
    auto& tweaked = static_cast<MeshData&>(*result);
    for (const int i : elements)
        if (tweaked.hasVertex(i))
            tweaked.points[static_cast<std::size_t>(i)] += pointAt(tweaks.element(i));
    return result;
}

/// Makes `inMesh` hold data that nobody else changes.
void hold(DagNode& shape, const Ref<Data>& mesh)
{
    shape.cells().ownMesh = mesh;
    storeInternal(plugOf(shape, "inMesh"), mesh);
}

void forget(const Plug& array)
{
    for (const int i : existingElements(array))
        (void)removeElement(array, i);
}

std::vector<double> numbersOf(const std::vector<Vec3f>& points)
{
    std::vector<double> numbers;
    numbers.reserve(points.size() * 3);
    for (const Vec3f& point : points)
        numbers.insert(numbers.end(), {point.x, point.y, point.z});
    return numbers;
}

std::vector<double> numbersOf(const std::vector<MeshData::Edge>& edges)
{
    std::vector<double> numbers;
    numbers.reserve(edges.size() * 3);
    for (const MeshData::Edge& edge : edges)
        for (const std::int32_t number : {edge.from, edge.to, edge.smooth})
            numbers.push_back(number);
    return numbers;
}

void writeAttributes(DagNode& shape, const MeshData& mesh)
{
    for (const char* name : {"vrts", "edge", "face"})
        forget(plugOf(shape, name));
    const std::vector<double> points = numbersOf(mesh.points);
    (void)writeElements(plugOf(shape, "vrts"), 0, points.data(), points.size());
    const std::vector<double> edges = numbersOf(mesh.edges);
    (void)writeElements(plugOf(shape, "edge"), 0, edges.data(), edges.size());
    const Plug faces = plugOf(shape, "face");
    for (std::size_t i = 0; i < mesh.faces.size(); ++i)
        (void)writeData(faces.element(static_cast<int>(i)), KeptData("polyFaces", faceText(mesh.faces, i)));
}

/// The tweaks that bring the points of history to where they are wanted.
Outcome moveByTweaks(DagNode& shape, const MeshData& history, const MovedPoints& moved)
{
    const Plug tweaks = plugOf(shape, "pnts");
    for (const auto& [i, point] : moved) {
        const Vec3f offset = point - history.points[static_cast<std::size_t>(i)];
        if (const Outcome written = writeNumbers(tweaks.element(i), {offset.x, offset.y, offset.z}); !written)
            return written;
    }
    return {};
}

void forgetTweaks(DagNode& shape, const MovedPoints& moved)
{
    const Plug tweaks = plugOf(shape, "pnts");
    for (const auto& point : moved)
        (void)removeElement(tweaks, point.first);
}

Outcome moveInAttributes(DagNode& shape, const MovedPoints& moved)
{
    const Plug vertices = plugOf(shape, "vrts");
    for (const auto& [i, point] : moved)
        if (const Outcome written = writeNumbers(vertices.element(i), {point.x, point.y, point.z}); !written)
            return written;
    forgetTweaks(shape, moved);
    return {};
}

/// Changes the data that `inMesh` holds, which is copied first when others may see it.
template <class Change>
void changeHeld(DagNode& shape, Ref<Data> held, const Change& change)
{
    // What is remembered for undo is not to change.
    if (held != shape.cells().ownMesh || shape.scene().journal().isRecording())
        held = held->clone();
    auto& mesh = static_cast<MeshData&>(*held);
    change(mesh);
    mesh.forgetDerived();
    hold(shape, held);
}

void moveInPlace(DagNode& shape, const Ref<Data>& held, const MovedPoints& moved)
{
    forgetTweaks(shape, moved);
    changeHeld(shape, held, [&](MeshData& mesh) {
        for (const auto& [i, point] : moved)
            mesh.points[static_cast<std::size_t>(i)] = point;
    });
}

} // namespace

const MeshData* meshOf(DagNode& shape)
{
    if (!isMesh(shape))
        return nullptr;
    const Ref<Data> incoming = incomingMesh(shape);
    CellStore& cells = shape.cells();
    if (cells.derivedMeshEdits != cells.edits || cells.derivedMeshSource != incoming) {
        cells.derivedMesh = withTweaks(shape, incoming ? incoming : assemble(shape));
        cells.derivedMeshSource = incoming;
        cells.derivedMeshEdits = cells.edits;
    }
    return static_cast<const MeshData*>(cells.derivedMesh.get());
}

bool hasHistory(DagNode& shape)
{
    return isMesh(shape) && isFedAnywhere(plugOf(shape, "inMesh")) && incomingMesh(shape);
}

void storeMesh(DagNode& shape, const Ref<Data>& mesh)
{
    forget(plugOf(shape, "pnts"));
    hold(shape, mesh);
}

void copyHeldMesh(DagNode& original, DagNode& copy)
{
    if (!isMesh(original) || !isMesh(copy))
        return;
    if (const Ref<Data> mesh = incomingMesh(original))
        hold(copy, mesh->clone());
}

Outcome movePoints(DagNode& shape, const MovedPoints& moved)
{
    const MeshData* mesh = meshOf(shape);
    if (!mesh)
        return {Reason::noData, "'" + shape.name() + "' has no geometry"};
    if (!std::all_of(moved.begin(), moved.end(), [&](const auto& p) { return mesh->hasVertex(p.first); }))
        return {Reason::badIndex, "'" + shape.name() + "' has no such vertex"};
    const Ref<Data> incoming = incomingMesh(shape);
    if (!incoming)
        return moveInAttributes(shape, moved);
    if (hasHistory(shape))
        return moveByTweaks(shape, static_cast<const MeshData&>(*incoming), moved);
    moveInPlace(shape, incoming, moved);
    return {};
}

Outcome smoothEdge(DagNode& shape, std::int32_t edge, bool smooth)
{
    const MeshData* mesh = meshOf(shape);
    if (!mesh)
        return {Reason::noData, "'" + shape.name() + "' has no geometry"};
    if (!mesh->hasEdge(edge))
        return {Reason::badIndex, "'" + shape.name() + "' has no such edge"};
    if (hasHistory(shape))
        return {Reason::notWritable, "the edges of '" + shape.name() + "' are made by its history"};
    const int value = smooth ? 1 : 0;
    const Ref<Data> held = incomingMesh(shape);
    if (!held)
        return writeNumber(plugOf(shape, "edge").element(edge).child(2), value);
    changeHeld(shape, held,
               [&](MeshData& changed) { changed.edges[static_cast<std::size_t>(edge)].smooth = value; });
    return {};
}

void settleMesh(DagNode& shape)
{
    const Plug input = plugOf(shape, "inMesh");
    if (!isMesh(shape) || isFedAnywhere(input) || !incomingMesh(shape))
        return;
    const Ref<Data> held = incomingMesh(shape);
    writeAttributes(shape, static_cast<const MeshData&>(*held));
    hold(shape, Ref<Data>());
}

} // namespace tvxhost::engine
