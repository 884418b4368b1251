// Utility nodes: what they compute with vectors.
#include "computeSupport.h"
#include "matrixParts.h"
#include "node.h"
#include "turns.h"
#include "utilityNodes.h"

#include <string>

namespace tvxhost::engine {

namespace {

// angleBetween

/// The shortest turn from the direction of one vector to that of the other; none where one has no direction.
Turn shortestTurn(const Vec3d& from, const Vec3d& to)
{
    Turn turn;
    if (from.length2() > 0.0 && to.length2() > 0.0)
        turn.setRotation(from.normalized(), to.normalized());
    return turn;
}

Computed computeAngleBetween(Node& node, const Plug& plug)
{
    constexpr int kXyz = 0;
    const Plug output = topPlug(plug);
    const std::string& name = output.attribute()->longName;
    const Turn turn = shortestTurn(vectorOf(node, "vector1"), vectorOf(node, "vector2"));
    if (name == "euler") {
        finishVector(output, anglesOf(turn.toMatrix44(), kXyz));
        return Computed::done;
    }
    if (name != "axisAngle")
        return Computed::unknown;
    finishVector(output.child(0), turn.v.length2() > 0.0 ? turn.axis() : Vec3d(0.0, 0.0, 1.0));
    finishNumber(output.child(1), turn.angle());
    return Computed::done;
}

// vectorProduct

enum class VectorOperation
{
    none = 0, ///< the first input alone
    dot = 1,
    cross = 2,
    vectorMatrix = 3,
    pointMatrix = 4
};

Vec3d vectorProduct(Node& node, bool isNormalized)
{
    const Vec3d first = vectorOf(node, "input1");
    const Vec3d second = vectorOf(node, "input2");
    const Matrix matrix = matrixOf(plugOf(node, "matrix"));
    Vec3d turned;
    switch (static_cast<VectorOperation>(static_cast<int>(numberOf(node, "operation")))) {
    case VectorOperation::dot:
        // The cosine of the angle when it is normalized.
        return Vec3d(isNormalized ? first.normalized() ^ second.normalized() : first ^ second);
    case VectorOperation::cross:
        turned = first % second;
        break;
    case VectorOperation::vectorMatrix:
        matrix.multDirMatrix(first, turned);
        break;
    case VectorOperation::pointMatrix:
        turned = first * matrix;
        break;
    case VectorOperation::none:
        turned = first;
        break;
    }
    return isNormalized ? turned.normalized() : turned;
}

Computed computeVectorProduct(Node& node, const Plug& plug)
{
    const Plug output = topPlug(plug);
    if (output.attribute()->longName != "output")
        return Computed::unknown;
    finishVector(output, vectorProduct(node, numberOf(node, "normalizeOutput") != 0.0));
    return Computed::done;
}

} // namespace

void addVectorComputes(TypeTable& types)
{
    types.find("angleBetween")->compute = computeAngleBetween;
    types.find("vectorProduct")->compute = computeVectorProduct;
}

} // namespace tvxhost::engine
