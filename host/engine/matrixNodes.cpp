// Utility nodes: what they compute with matrices.
#include "computeSupport.h"
#include "node.h"
#include "utilityNodes.h"

#include <Imath/ImathEuler.h>
#include <Imath/ImathMatrixAlgo.h>

#include <array>
#include <string>

namespace tvxhost::engine {

namespace {

Computed computeMultMatrix(Node& node, const Plug& plug)
{
    if (plug.attribute()->longName != "matrixSum")
        return Computed::unknown;
    const Plug factors = plugOf(node, "matrixIn");
    Matrix product;
    for (const int index : existingElements(factors))
        product *= matrixOf(factors.element(index));
    finishMatrix(plug, product);
    return Computed::done;
}

/// A matrix taken apart: p' = p * scale * shear * rotation * translation.
struct MatrixPieces
{
    Vec3d scale{1.0};
    Vec3d shear{0.0};
    Vec3d translation{0.0};
    Matrix rotation;
};

MatrixPieces takeApart(const Matrix& matrix)
{
    MatrixPieces pieces;
    pieces.translation = matrix.translation();
    pieces.rotation = matrix;
    // One without volume has no rotation to be found.
    if (!Imath::extractAndRemoveScalingAndShear(pieces.rotation, pieces.scale, pieces.shear, false))
        pieces.rotation.makeIdentity();
    return pieces;
}

/// As the attribute rotateOrder numbers the orders.
constexpr std::array<Imath::Eulerd::Order, 6> kOrders = {Imath::Eulerd::XYZ, Imath::Eulerd::YZX,
                                                         Imath::Eulerd::ZXY, Imath::Eulerd::XZY,
                                                         Imath::Eulerd::YXZ, Imath::Eulerd::ZYX};

Vec3d anglesOf(const Matrix& rotation, int order)
{
    const bool exists = order >= 0 && order < static_cast<int>(kOrders.size());
    Imath::Eulerd angles(kOrders[exists ? static_cast<std::size_t>(order) : 0]);
    angles.extract(rotation);
    return angles.toXYZVector();
}

Computed computeDecomposeMatrix(Node& node, const Plug& plug)
{
    const Plug output = topPlug(plug);
    const std::string& name = output.attribute()->longName;
    const MatrixPieces pieces = takeApart(matrixOf(plugOf(node, "inputMatrix")));
    if (name == "outputTranslate")
        finishVector(output, pieces.translation);
    else if (name == "outputRotate")
        finishVector(output, anglesOf(pieces.rotation, static_cast<int>(numberOf(node, "inputRotateOrder"))));
    else if (name == "outputScale")
        finishVector(output, pieces.scale);
    else if (name == "outputShear")
        finishVector(output, pieces.shear);
    else if (name == "outputQuat") {
        const Imath::Quatd turn = Imath::extractQuat(pieces.rotation);
        finishNumbers(output, {turn.v.x, turn.v.y, turn.v.z, turn.r});
    } else
        return Computed::unknown;
    return Computed::done;
}

Vec3d pointOf(Node& node, const char* point, const char* matrix)
{
    const std::vector<double> local = numbersOf(node, point);
    return Vec3d(local[0], local[1], local[2]) * matrixOf(plugOf(node, matrix));
}

Computed computeDistanceBetween(Node& node, const Plug& plug)
{
    if (plug.attribute()->longName != "distance")
        return Computed::unknown;
    finishNumber(plug,
                 (pointOf(node, "point2", "inMatrix2") - pointOf(node, "point1", "inMatrix1")).length());
    return Computed::done;
}

} // namespace

void addMatrixComputes(TypeTable& types)
{
    types.find("multMatrix")->compute = computeMultMatrix;
    types.find("decomposeMatrix")->compute = computeDecomposeMatrix;
    types.find("distanceBetween")->compute = computeDistanceBetween;
}

} // namespace tvxhost::engine
