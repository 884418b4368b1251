// Meshes: see mesh.h.
#include "mesh.h"

#include "cell.h"
#include "geometry/meshMaps.h"
#include "lockedNormals.h"
#include "meshSets.h"
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
        FaceMaps maps;
        if (data && data->type() == DataType::plugin)
            (void)readFace(static_cast<const KeptData&>(*data).text, face, &maps);
        mesh.faces.add(face);
        giveMaps(mesh, mesh.faces.size() - 1, maps);
    }
    dropUnknownValues(mesh);
}

/// What the attributes say, without tweaks.
Ref<Data> assemble(DagNode& shape)
{
    Ref<Data> result(new MeshData);
    auto& mesh = static_cast<MeshData&>(*result);
    readPoints(shape, mesh);
    readEdges(shape, mesh);
    readSets(shape, mesh);
    readFaces(shape, mesh);
    if (mesh.points.empty())
        return {};
    if (isSound(mesh)) {
        readNormals(shape, mesh);
        return result;
    }
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

std::string wordsOf(const MeshData& mesh, std::size_t face)
{
    return faceText(mesh.faces, face, mapsOf(mesh, face));
}

Outcome writeFace(const Plug& faces, const MeshData& mesh, std::size_t face)
{
    return writeData(faces.element(static_cast<int>(face)), KeptData("polyFaces", wordsOf(mesh, face)));
}

/// Whether there are no values in any set, and no colours at all: nothing that has to be kept.
bool hasOnlyNames(const MeshData& mesh)
{
    return mesh.uvSets.size() == 1 && mesh.uvSets.front().values.empty() && mesh.colorSets.empty();
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
        (void)writeFace(faces, mesh, i);
    MeshData former;
    readSets(shape, former);
    if (!hasOnlyNames(mesh) || !hasOnlyNames(former))
        (void)writeSets(shape, former, mesh);
    (void)writeNormals(shape, mesh);
}

/// Changes sets where attributes hold the mesh: those that differ, and the faces that have something else.
Outcome editSetsInAttributes(DagNode& shape, const SetEdit& edit)
{
    const Ref<Data> before = assemble(shape), after = before->clone();
    auto& changed = static_cast<MeshData&>(*after);
    const auto& former = static_cast<const MeshData&>(*before);
    edit(changed);
    const Plug faces = plugOf(shape, "face");
    for (std::size_t i = 0; i < changed.faces.size(); ++i)
        if (wordsOf(changed, i) != wordsOf(former, i))
            if (const Outcome written = writeFace(faces, changed, i); !written)
                return written;
    return writeSets(shape, former, changed);
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

/// The normals that were set get other numbers with the edge.
Outcome smoothInAttributes(DagNode& shape, const MeshData& mesh, std::int32_t edge, int value)
{
    const Ref<Data> after = mesh.lockedNormals.empty() ? Ref<Data>() : mesh.clone();
    const Outcome written = writeNumber(plugOf(shape, "edge").element(edge).child(2), value);
    if (!written || !after)
        return written;
    auto& changed = static_cast<MeshData&>(*after);
    changed.edges[static_cast<std::size_t>(edge)].smooth = value;
    return writeNormals(shape, changed);
}

/// Whether a shape has a mesh that history does not make; `what` of it is to be changed.
Outcome requireEditable(DagNode& shape, const char* what)
{
    if (!meshOf(shape))
        return {Reason::noData, "'" + shape.name() + "' has no geometry"};
    if (hasHistory(shape))
        return {Reason::notWritable,
                std::string("the ") + what + " of '" + shape.name() + "' are made by its history"};
    return {};
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
    if (mesh && !mesh->hasEdge(edge))
        return {Reason::badIndex, "'" + shape.name() + "' has no such edge"};
    if (const Outcome editable = requireEditable(shape, "edges"); !editable)
        return editable;
    const int value = smooth ? 1 : 0;
    const Ref<Data> held = incomingMesh(shape);
    if (!held)
        return smoothInAttributes(shape, *mesh, edge, value);
    changeHeld(shape, held,
               [&](MeshData& changed) { changed.edges[static_cast<std::size_t>(edge)].smooth = value; });
    return {};
}

Outcome editNormals(DagNode& shape, const NormalEdit& edit)
{
    if (const Outcome editable = requireEditable(shape, "normals"); !editable)
        return editable;
    if (const Ref<Data> held = incomingMesh(shape)) {
        changeHeld(shape, held, edit);
        return {};
    }
    const Ref<Data> after = meshOf(shape)->clone();
    auto& changed = static_cast<MeshData&>(*after);
    edit(changed);
    return writeNormals(shape, changed);
}

Outcome editSets(DagNode& shape, const SetEdit& edit)
{
    if (const Outcome editable = requireEditable(shape, "texture coordinates and colours"); !editable)
        return editable;
    const Ref<Data> held = incomingMesh(shape);
    if (!held)
        return editSetsInAttributes(shape, edit);
    changeHeld(shape, held, edit);
    return {};
}

namespace {

/// The set that an attribute of the shape names, else the first one; empty when there is none.
template <class Set>
std::string currentSet(DagNode& shape, const char* attribute, const std::vector<Set>& sets)
{
    const std::string named = readString(plugOf(shape, attribute)).value;
    if (findSet(sets, named))
        return named;
    return sets.empty() ? std::string() : sets.front().name;
}

} // namespace

std::string currentUvSet(DagNode& shape)
{
    const MeshData* mesh = meshOf(shape);
    return mesh ? currentSet(shape, kCurrentUvSet, mesh->uvSets) : std::string();
}

std::string currentColorSet(DagNode& shape)
{
    const MeshData* mesh = meshOf(shape);
    return mesh ? currentSet(shape, kCurrentColorSet, mesh->colorSets) : std::string();
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
