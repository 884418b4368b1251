// Nodes of construction history: see historyNodes.h.
#include "historyNodes.h"

#include "../scene.h"
#include "../values.h"
#include "meshData.h"
#include "meshNormals.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

Plug plugOf(Node& node, const char* name)
{
    return Plug(node, *node.findAttribute(name));
}

/// Moves points by the matrix, or back by it.
void transformPoints(Node& node, MeshData& mesh)
{
    const Ref<Data> data = readData(plugOf(node, "transform")).value;
    if (!data || data->type() != DataType::matrix)
        return;
    Matrix matrix = static_cast<const MatrixData&>(*data).value;
    if (readNumber(plugOf(node, "invertTransform")).value.asWhole() != 0)
        matrix.invert();
    for (Vec3f& point : mesh.points)
        point = Vec3f(Vec3d(point) * matrix);
    turnLockedNormals(mesh, matrix);
}

void tweakPoints(Node& node, MeshData& mesh)
{
    const Plug tweaks = plugOf(node, "tweak");
    for (const int i : existingElements(tweaks)) {
        const std::vector<double> offset = readNumbers(tweaks.element(i)).value;
        if (mesh.hasVertex(i) && offset.size() == 3)
            mesh.points[static_cast<std::size_t>(i)] += Vec3f(Vec3d(offset[0], offset[1], offset[2]));
    }
}

/// Moves texture coordinates of the set that the node names; without a name, of the first one.
void tweakUvs(Node& node, MeshData& mesh)
{
    const std::string name = readString(plugOf(node, "uvSetName")).value;
    const auto set = std::find_if(mesh.uvSets.begin(), mesh.uvSets.end(),
                                  [&](const UvSet& uvs) { return name.empty() || uvs.name == name; });
    if (set == mesh.uvSets.end())
        return;
    const Plug tweaks = plugOf(node, "uvTweak");
    for (const int i : existingElements(tweaks)) {
        const std::vector<double> offset = readNumbers(tweaks.element(i)).value;
        if (set->hasValue(i) && offset.size() == 2)
            set->values[static_cast<std::size_t>(i)] += Vec2f(Imath::V2d(offset[0], offset[1]));
    }
}

/// Cutting renumbers texture coordinates in a way that is not known: none are better than wrong ones.
void forgetUvs(Node& /*node*/, MeshData& mesh)
{
    for (UvSet& set : mesh.uvSets) {
        set.values.clear();
        set.used.clear();
    }
}

struct HistoryRow
{
    const char* type;
    const char* input;
    const char* output;
    void (*change)(Node& node, MeshData& mesh); ///< null: the mesh goes through as it is
};

constexpr HistoryRow kRows[] = {
    {"groupParts", "inputGeometry", "outputGeometry", nullptr},
    {"transformGeometry", "inputGeometry", "outputGeometry", transformPoints},
    {"polyTweak", "inputPolymesh", "output", tweakPoints},
    {"polyTweakUV", "inputPolymesh", "output", tweakUvs},
    {"polyMapCut", "inputPolymesh", "output", forgetUvs},
};

Computed computeHistory(Node& node, const Plug& plug, const HistoryRow& row)
{
    if (plug.attribute()->longName != row.output)
        return Computed::unknown;
    Ref<Data> data = readData(plugOf(node, row.input)).value;
    if (!data || (row.change && data->type() != DataType::mesh))
        return Computed::unknown;
    if (row.change) {
        data = data->clone();
        row.change(node, static_cast<MeshData&>(*data));
    }
    keepData(plug, data);
    setClean(plug);
    return Computed::done;
}

} // namespace

void addHistoryComputes(TypeTable& types)
{
    for (const HistoryRow& row : kRows)
        types.find(row.type)->compute = [&row](Node& node, const Plug& plug) {
            return computeHistory(node, plug, row);
        };
}

} // namespace tvxhost::engine
