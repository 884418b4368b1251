// Utility nodes: what they compute with matrices.
#include "computeSupport.h"
#include "matrixParts.h"
#include "node.h"
#include "utilityNodes.h"

#include <Imath/ImathMatrixAlgo.h>

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
    return vectorOf(node, point) * matrixOf(plugOf(node, matrix));
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
