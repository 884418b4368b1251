// Meshes: see mesh.h.
#include "mesh.h"

#include "cell.h"
#include "values.h"

#include <cctype>
#include <charconv>
#include <optional>

namespace tvxhost::engine {

namespace {

/// Words and whole numbers one after the other.
class FaceWords
{
public:
    explicit FaceWords(std::string_view text) : m_rest(text) {}

    std::string_view word()
    {
        skipBlanks();
        std::size_t end = 0;
        while (end < m_rest.size() && !isBlank(m_rest[end]))
            ++end;
        const std::string_view result = m_rest.substr(0, end);
        m_rest.remove_prefix(end);
        return result;
    }
    std::optional<int> number()
    {
        skipBlanks();
        int value = 0;
        const auto [end, error] = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), value);
        if (error != std::errc())
            return std::nullopt;
        m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.data()));
        return value;
    }
    /// A count and that many numbers.
    bool numbers(std::vector<std::int32_t>& values)
    {
        const std::optional<int> count = number();
        if (!count || *count < 0)
            return false;
        for (int i = 0; i < *count; ++i) {
            const std::optional<int> value = number();
            if (!value)
                return false;
            values.push_back(*value);
        }
        return true;
    }

private:
    static bool isBlank(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }
    void skipBlanks()
    {
        while (!m_rest.empty() && isBlank(m_rest[0]))
            m_rest.remove_prefix(1);
    }

    std::string_view m_rest;
};

Plug plugOf(DagNode& node, const char* name)
{
    Attribute* attribute = node.type().find(name);
    return attribute ? Plug(node, *attribute) : Plug();
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
    const Plug tweaks = plugOf(shape, "pnts");
    for (const int i : existingElements(tweaks))
        if (static_cast<std::size_t>(i) < mesh.points.size())
            mesh.points[static_cast<std::size_t>(i)] += pointAt(tweaks.element(i));
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
        const Ref<Data> data = storedData(faces.element(i));
        MeshData::Face& face = grownTo(mesh.faces, i);
        if (data && data->type() == DataType::plugin)
            (void)readFace(static_cast<const KeptData&>(*data).text, face);
    }
}

Ref<Data> assemble(DagNode& shape)
{
    Ref<Data> result(new MeshData);
    auto& mesh = static_cast<MeshData&>(*result);
    readPoints(shape, mesh);
    readEdges(shape, mesh);
    readFaces(shape, mesh);
    return mesh.points.empty() ? Ref<Data>() : result;
}

const MeshData* incomingMesh(DagNode& shape)
{
    const Plug input = plugOf(shape, "inMesh");
    if (!isFedAnywhere(input))
        return nullptr;
    const Ref<Data> data = readData(input).value;
    return data && data->type() == DataType::mesh ? static_cast<const MeshData*>(data.get()) : nullptr;
}

} // namespace

bool readFace(std::string_view text, MeshData::Face& face)
{
    FaceWords words(text);
    if (words.word() != "f" || !words.numbers(face.edges))
        return false;
    for (std::string_view word = words.word(); !word.empty(); word = words.word()) {
        std::vector<std::int32_t> values;
        const bool hasSet = word == "mu" || word == "mc";
        if (hasSet && !words.number())
            return false;
        if ((!hasSet && word != "h" && word != "mf") || !words.numbers(values))
            return false;
        if (word == "h")
            face.holes.push_back(std::move(values));
    }
    return true;
}

const MeshData* meshOf(DagNode& shape)
{
    if (!shape.isAlive() || !shape.type().isA("mesh"))
        return nullptr;
    if (const MeshData* incoming = incomingMesh(shape))
        return incoming;
    CellStore& cells = shape.cells();
    if (cells.derivedMeshEdits != cells.edits) {
        cells.derivedMesh = assemble(shape);
        cells.derivedMeshEdits = cells.edits;
    }
    return static_cast<const MeshData*>(cells.derivedMesh.get());
}

} // namespace tvxhost::engine
