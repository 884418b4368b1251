// The built-in node types: what they compute.
#include "builtinTypes.h"

#include "animCurve.h"
#include "boundingBox.h"
#include "cell.h"
#include "computeSupport.h"
#include "constraintNodes.h"
#include "geometry/curveNode.h"
#include "geometry/historyNodes.h"
#include "geometry/polyNodes.h"
#include "mesh.h"
#include "motionPathNode.h"
#include "number.h"
#include "particle.h"
#include "scene.h"
#include "utilityNodes.h"
#include "values.h"

#include <functional>
#include <string_view>

namespace tvxhost::engine {

namespace {

// DAG nodes

using PathMatrix = Matrix (*)(DagNode& node, std::size_t instance);

/// The matrix above one instance: what the parent on that path says of itself, so that it is asked again when
/// the parent moves.
Matrix parentMatrix(DagNode& node, std::size_t instance)
{
    const std::vector<DagPath> paths = DagPath::allTo(node);
    if (instance >= paths.size())
        return {};
    DagPath above = paths[instance];
    if (above.length() < 2 || !above.pop())
        return {};
    const Plug array = plugOf(*above.node(), "worldMatrix");
    return matrixOf(array.element(above.instanceNumber()));
}

Matrix worldMatrix(DagNode& node, std::size_t instance)
{
    const Matrix local = matrixOf(plugOf(node, "matrix"));
    if (!inheritsTransform(node))
        return local;
    return local * matrixOf(plugOf(node, "parentMatrix").element(static_cast<int>(instance)));
}

Matrix parentInverseMatrix(DagNode& node, std::size_t instance)
{
    return matrixOf(plugOf(node, "parentMatrix").element(static_cast<int>(instance))).inverse();
}

Matrix worldInverseMatrix(DagNode& node, std::size_t instance)
{
    return matrixOf(plugOf(node, "worldMatrix").element(static_cast<int>(instance))).inverse();
}

struct PathMatrixRow
{
    std::string_view attribute;
    PathMatrix matrix;
};

constexpr PathMatrixRow kPathMatrices[] = {
    {"parentMatrix", parentMatrix},
    {"parentInverseMatrix", parentInverseMatrix},
    {"worldMatrix", worldMatrix},
    {"worldInverseMatrix", worldInverseMatrix},
};

/// Runs for the element that was asked for, or for all instances when it was the array.
void forInstances(DagNode& node, const Plug& plug,
                  const std::function<void(const Plug&, std::size_t)>& finish)
{
    if (!plug.isArray()) {
        finish(plug, static_cast<std::size_t>(plug.logicalIndex()));
        return;
    }
    const std::size_t count = DagPath::countTo(node);
    for (std::size_t i = 0; i < count; ++i)
        finish(plug.element(static_cast<int>(i)), i);
    setClean(plug);
}

Computed computeDag(Node& base, const Plug& plug)
{
    DagNode& node = *base.asDag();
    const Plug top = topPlug(plug);
    const std::string& name = top.attribute()->longName;
    for (const PathMatrixRow& row : kPathMatrices)
        if (row.attribute == name) {
            forInstances(node, top, [&](const Plug& element, std::size_t i) {
                finishMatrix(element, row.matrix(node, i));
            });
            return Computed::done;
        }
    if (name == "matrix" || name == "xformMatrix")
        finishMatrix(top, node.localMatrix());
    else if (name == "inverseMatrix")
        finishMatrix(top, node.localMatrix().inverse());
    else if (name == "boundingBox" || name == "center")
        return computeBounds(node);
    else
        return Computed::unknown;
    return Computed::done;
}

Computed computeLocator(Node& base, const Plug& plug)
{
    const Plug top = topPlug(plug);
    if (top.attribute()->longName != "worldPosition")
        return Computed::unknown;
    DagNode& node = *base.asDag();
    const std::vector<double> local = readNumbers(plugOf(node, "localPosition")).value;
    forInstances(node, top, [&](const Plug& element, std::size_t i) {
        const Matrix matrix = matrixOf(plugOf(node, "worldMatrix").element(static_cast<int>(i)));
        finishVector(element, Vec3d(local[0], local[1], local[2]) * matrix);
    });
    return Computed::done;
}

Computed computeMesh(Node& base, const Plug& plug)
{
    if (plug.attribute()->longName != "outMesh")
        return Computed::unknown;
    const MeshData* mesh = meshOf(*base.asDag());
    finishData(plug, mesh ? Ref<Data>(const_cast<MeshData*>(mesh)) : Ref<Data>());
    return Computed::done;
}

// Conversions

/// Numbers, one or a few, times a factor.
Computed computeConversion(Node& node, const Plug& plug, double ticksFactor)
{
    if (plug.attribute()->longName != "output")
        return Computed::unknown;
    const double factor = readNumber(plugOf(node, "conversionFactor")).value.asReal() * ticksFactor;
    const Ref<Data> input = readData(plugOf(node, "input")).value;
    if (!input || input->type() != DataType::numeric)
        return Computed::unknown;
    const auto& from = static_cast<const NumericData&>(*input);
    auto* to = new NumericData(static_cast<int>(NumberKind::real), from.size);
    const Ref<Data> output(to);
    const auto kind = static_cast<NumberKind>(from.kind);
    for (std::size_t i = 0; i < static_cast<std::size_t>(from.size); ++i) {
        const double value = loadNumber(kind, from.bytes + i * sizeOf(kind)).asReal();
        storeNumber(NumberKind::real, to->bytes + i * sizeof(double), Number(value * factor));
    }
    finishData(plug, output);
    return Computed::done;
}

/// Times are seconds here and ticks in files: a second has 6000 of them.
constexpr double kTicksPerSecond = 6000.0;

ComputeFunction conversion(double ticksFactor)
{
    return [ticksFactor](Node& node, const Plug& plug) { return computeConversion(node, plug, ticksFactor); };
}

/// Animation curves: what comes in and goes out is told apart by the type's name.
Computed computeCurve(Node& node, const Plug& plug)
{
    if (plug.attribute()->longName != "output")
        return Computed::unknown;
    finishNumber(plug, valueOfCurve(node));
    return Computed::done;
}

} // namespace

void addBuiltinComputes(TypeTable& types)
{
    const auto give = [&](const char* name, ComputeFunction compute) {
        types.find(name)->compute = std::move(compute);
    };
    give("dagNode", computeDag);
    give("locator", computeLocator);
    give("mesh", computeMesh);
    give("unitConversion", conversion(1.0));
    give("timeToUnitConversion", conversion(kTicksPerSecond));
    give("unitToTimeConversion", conversion(1.0 / kTicksPerSecond));
    give("animCurve", computeCurve);
    addPolyComputes(types);
    addHistoryComputes(types);
    addParticleBehaviour(types);
    addUtilityComputes(types);
    addVectorComputes(types);
    addMatrixComputes(types);
    addConstraintComputes(types);
    addCurveComputes(types);
    addMotionPathCompute(types);
}

} // namespace tvxhost::engine
