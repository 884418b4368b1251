// polyEvaluate: what meshes are made of, and how large they are.
#include "commandSupport.h"
#include "sceneCommands.h"

#include "engine/geometry/shells.h"
#include "engine/mesh.h"

#include <Imath/ImathBox.h>

#include <optional>
#include <tuple>

namespace tvxhost::mel {

using engine::DagNode;
using engine::Vec3d;

namespace {

/// A mesh, the texture coordinates that are meant, and where it stands.
struct Subject
{
    const engine::MeshData& mesh;
    const engine::UvSet& uvs;
    engine::Matrix toWorld;
};

// Counts

/// What is counted of a mesh.
struct Measure
{
    const char* shortName;
    const char* longName;
    const char* help;
    std::size_t (*count)(const Subject& subject);
};

/// A face with n corners is n - 2 triangles, each hole two more.
std::size_t trianglesOf(const Subject& subject)
{
    const engine::MeshData& mesh = subject.mesh;
    std::size_t count = 0;
    for (std::size_t face = 0; face < mesh.faces.size(); ++face)
        if (const std::size_t loops = mesh.faces.loopCount(face); loops > 0)
            count += mesh.faces.corners(face).size() + 2 * loops - 4;
    return count;
}

constexpr Measure kMeasures[] = {
    {"v", "vertex", "number of vertices", [](const Subject& subject) { return subject.mesh.points.size(); }},
    {"e", "edge", "number of edges", [](const Subject& subject) { return subject.mesh.edges.size(); }},
    {"f", "face", "number of faces", [](const Subject& subject) { return subject.mesh.faces.size(); }},
    {"t", "triangle", "number of triangles", trianglesOf},
    {"s", "shell", "number of pieces that do not hang together",
     [](const Subject& subject) { return engine::vertexShells(subject.mesh).count(); }},
    {"uv", "uvcoord", "number of texture coordinates",
     [](const Subject& subject) { return subject.uvs.values.size(); }},
    {"us", "uvShell", "number of pieces of the texture that do not hang together",
     [](const Subject& subject) { return engine::uvShells(subject.mesh, subject.uvs).count(); }},
};

/// What is told when nothing is asked.
constexpr std::size_t kUsualMeasures = 4;

// Sizes

/// Half the sum of the cross products along the loops: holes run the other way, and take away.
double areaOf(const engine::MeshData& mesh, const engine::Matrix& to)
{
    double area = 0.0;
    const auto pointAt = [&](std::int32_t corner) {
        return Vec3d(mesh.points[static_cast<std::size_t>(mesh.startOf(corner))]) * to;
    };
    for (std::size_t face = 0; face < mesh.faces.size(); ++face) {
        Vec3d sum(0.0);
        for (std::size_t i = 0; i < mesh.faces.loopCount(face); ++i) {
            const auto loop = mesh.faces.loop(face, i);
            const Vec3d first = pointAt(*loop.begin());
            for (const std::int32_t* corner = loop.begin(); corner != loop.end(); ++corner) {
                const std::int32_t* next = corner + 1 == loop.end() ? loop.begin() : corner + 1;
                sum += (pointAt(*corner) - first).cross(pointAt(*next) - first);
            }
        }
        area += 0.5 * sum.length();
    }
    return area;
}

Value::Numbers boxOf(const engine::MeshData& mesh)
{
    Imath::Box3d box;
    for (const auto& point : mesh.points)
        box.extendBy(Vec3d(point));
    return {box.min.x, box.max.x, box.min.y, box.max.y, box.min.z, box.max.z};
}

/// All zero without texture coordinates.
Value::Numbers textureBoxOf(const engine::UvSet& uvs)
{
    if (uvs.values.empty())
        return {0, 0, 0, 0};
    Imath::Box2d box;
    for (const engine::Vec2f& uv : uvs.values)
        box.extendBy(Imath::V2d(uv));
    return {box.min.x, box.max.x, box.min.y, box.max.y};
}

struct Size
{
    const char* shortName;
    const char* longName;
    const char* help;
    Value::Numbers (*numbers)(const Subject& subject);
};

constexpr Size kSizes[] = {
    {"a", "area", "area of the faces, as they were modelled",
     [](const Subject& subject) { return Value::Numbers{areaOf(subject.mesh, engine::Matrix())}; }},
    {"wa", "worldArea", "area of the faces in the world",
     [](const Subject& subject) { return Value::Numbers{areaOf(subject.mesh, subject.toWorld)}; }},
    {"b", "boundingBox", "least and greatest x, y, z, as they were modelled",
     [](const Subject& subject) { return boxOf(subject.mesh); }},
    {"b2", "boundingBox2d", "least and greatest u, v",
     [](const Subject& subject) { return textureBoxOf(subject.uvs); }},
};

// The command

/// The set of that name; empty: the current one.
const engine::UvSet& uvSetOf(const CommandContext& context, DagNode& shape, const engine::MeshData& mesh,
                             const std::string& name)
{
    const std::string wanted = name.empty() ? engine::currentUvSet(shape) : name;
    const engine::UvSet* set = engine::findSet(mesh.uvSets, wanted);
    if (!set)
        require(context, {engine::Reason::notFound, "'" + shape.name() + "' has no UV set '" + wanted + "'"});
    return *set;
}

std::optional<Subject> subjectOf(const CommandContext& context, const engine::SelectionItem& item,
                                 const std::string& uvSet)
{
    if (!item.isDag())
        return std::nullopt;
    DagNode* shape = item.path.node();
    if (shape->isTransform())
        for (DagNode* child : shape->children())
            if (child->type().isA("mesh") && !child->isIntermediate()) {
                shape = child;
                break;
            }
    const engine::MeshData* mesh = engine::meshOf(*shape);
    if (!mesh)
        return std::nullopt;
    return Subject{*mesh, uvSetOf(context, *shape, *mesh, uvSet), item.path.inclusiveMatrix()};
}

std::string describe(const Subject& subject)
{
    std::string text;
    for (std::size_t i = 0; i < kUsualMeasures; ++i)
        text += (text.empty() ? "" : " ") + std::string(kMeasures[i].longName) + "=" +
                std::to_string(kMeasures[i].count(subject));
    return text;
}

template <class T>
Value oneOrAll(std::vector<T> values)
{
    return values.size() == 1 ? Value(values.front()) : Value(std::move(values));
}

/// The numbers in the order in which they were asked for.
struct Answer
{
    Value::Numbers numbers;
    bool isWhole = true; ///< there are only counts
};

void measure(const Subject& subject, const std::string& flag, Answer& answer)
{
    for (const Measure& row : kMeasures)
        if (flag == row.longName)
            answer.numbers.push_back(static_cast<double>(row.count(subject)));
    for (const Size& row : kSizes)
        if (flag == row.longName) {
            const auto numbers = row.numbers(subject);
            answer.numbers.insert(answer.numbers.end(), numbers.begin(), numbers.end());
            answer.isWhole = false;
        }
}

Value polyEvaluate(CommandContext& context, const ParsedCommand& call)
{
    Answer answer;
    const std::string uvSet = call.string("uvSetName");
    std::string text;
    for (const engine::SelectionItem& item : itemsOrSelection(context, call.names())) {
        const std::optional<Subject> subject = subjectOf(context, item, uvSet);
        if (!subject)
            continue;
        text += (text.empty() ? "" : " ") + describe(*subject);
        for (const FlagUse& use : call.flags)
            measure(*subject, use.flag->longName, answer);
    }
    if (text.empty())
        return Value("Nothing counted : no polygonal object is selected.");
    if (answer.numbers.empty())
        return Value(text);
    return answer.isWhole ? oneOrAll(Value::Integers(answer.numbers.begin(), answer.numbers.end()))
                          : oneOrAll(std::move(answer.numbers));
}

} // namespace

void registerPolyEvaluateCommands(CommandTable& table)
{
    std::vector<FlagSpec> flags;
    for (const Measure& measure : kMeasures)
        flags.push_back(switchFlag(measure.shortName, measure.longName, measure.help));
    for (const Size& size : kSizes)
        flags.push_back(switchFlag(size.shortName, size.longName, size.help));
    flags.push_back(valueFlag("uvs", "uvSetName", ArgumentType::string,
                              "the set of texture coordinates (the current one when it is not given)"));
    const char* const noTextures = "of texture coordinates there are counts and boxes only";
    const char* const noComponents = "components are counted by what is selected of them: use ls -flatten";
    for (const auto& [shortName, longName, why] :
         {std::tuple("uvc", "uvComponent", noTextures), std::tuple("vc", "vertexComponent", noComponents),
          std::tuple("ec", "edgeComponent", noComponents), std::tuple("fc", "faceComponent", noComponents),
          std::tuple("tc", "triangleComponent", noComponents),
          std::tuple("bc", "boundingBoxComponent", noComponents), std::tuple("fa", "faceArea", noComponents),
          std::tuple("wfa", "worldFaceArea", noComponents), std::tuple("as", "activeShells", noComponents),
          std::tuple("bc2", "boundingBoxComponent2d", noTextures), std::tuple("uva", "uvArea", noTextures),
          std::tuple("ufa", "uvFaceArea", noTextures), std::tuple("uep", "uvEdgePairs", noTextures),
          std::tuple("usi", "uvShellIds", noTextures), std::tuple("uis", "uvsInShell", noTextures),
          std::tuple("aus", "activeUVShells", noTextures),
          std::tuple("ds", "displayStats", "nothing is shown above the view")})
        flags.push_back(refusedFlag(shortName, longName, why));
    flags.push_back(switchFlag("ae", "accurateEvaluation", "boxes are always exact"));
    table.add({makeCommand("polyEvaluate", "Counts and measures what meshes are made of", std::move(flags),
                           names(), polyEvaluate)});
}

} // namespace tvxhost::mel
