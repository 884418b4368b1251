// What the nodes of curves compute: the curve in its own space and in the world, its length, its points.
#include "../computeSupport.h"
#include "../data.h"
#include "../node.h"
#include "curveNode.h"

#include <string>

namespace tvxhost::engine {

namespace {

Ref<Data> dataOf(const NurbsCurve& curve)
{
    return Ref<Data>(new KeptData("nurbsCurve", nurbsCurveWords(curve)));
}

NurbsCurve moved(NurbsCurve curve, const Matrix& matrix)
{
    for (NurbsCurve::Point& point : curve.points)
        point.place = point.place * matrix;
    return curve;
}

Computed computeCurveShape(Node& node, const Plug& plug)
{
    const std::string& name = plug.attribute()->longName;
    const auto curve = name == "local" || name == "worldSpace" ? curveOf(node) : std::nullopt;
    if (!curve)
        return Computed::unknown;
    if (name == "local") {
        finishData(plug, dataOf(*curve));
        return Computed::done;
    }
    if (plug.isArray())
        return Computed::unknown;
    const Matrix matrix = matrixOf(plugOf(node, "worldMatrix").element(plug.logicalIndex()));
    finishData(plug, dataOf(moved(*curve, matrix)));
    return Computed::done;
}

Computed computeCurveInfo(Node& node, const Plug& plug)
{
    const auto curve =
        plug.attribute()->longName == "arcLength" ? curveIn(plugOf(node, "inputCurve")) : std::nullopt;
    if (!curve)
        return Computed::unknown;
    finishNumber(plug, curve->lengthTo(curve->end()));
    return Computed::done;
}

double parameterOf(Node& node, const NurbsCurve& curve)
{
    const double parameter = numberOf(node, "parameter");
    if (numberOf(node, "turnOnPercentage") == 0.0)
        return parameter;
    return curve.begin() + parameter * (curve.end() - curve.begin());
}

/// How a curve bends at a point; all zero where it does not.
struct Bend
{
    Vec3d normal{0.0}; ///< the part of the acceleration that is not along the curve
    Vec3d center{0.0};
    double radius = 0.0;
};

Bend bendOf(const Vec3d& place, const Vec3d& velocity, const Vec3d& acceleration)
{
    const Vec3d tangent = velocity.normalized();
    Bend bend;
    bend.normal = acceleration - tangent * (acceleration ^ tangent);
    if (bend.normal.length() <= 0.0)
        return bend;
    bend.radius = velocity.length2() / bend.normal.length();
    bend.center = place + bend.normal.normalized() * bend.radius;
    return bend;
}

Computed computePointOnCurve(Node& node, const Plug& plug)
{
    const Plug result = topPlug(plug);
    const auto curve =
        result.attribute()->longName == "result" ? curveIn(plugOf(node, "inputCurve")) : std::nullopt;
    if (!curve)
        return Computed::unknown;
    const double parameter = parameterOf(node, *curve);
    const Vec3d place = curve->at(parameter);
    const Vec3d velocity = curve->velocityAt(parameter);
    const Bend bend = bendOf(place, velocity, curve->accelerationAt(parameter));
    finishVector(plugOf(node, "position"), place);
    finishVector(plugOf(node, "tangent"), velocity);
    finishVector(plugOf(node, "normalizedTangent"), velocity.normalized());
    finishVector(plugOf(node, "normal"), bend.normal);
    finishVector(plugOf(node, "normalizedNormal"), bend.normal.normalized());
    finishVector(plugOf(node, "curvatureCenter"), bend.center);
    finishNumber(plugOf(node, "curvatureRadius"), bend.radius);
    return Computed::done;
}

} // namespace

void addCurveComputes(TypeTable& types)
{
    types.find("nurbsCurve")->compute = computeCurveShape;
    types.find("curveInfo")->compute = computeCurveInfo;
    types.find("pointOnCurveInfo")->compute = computePointOnCurve;
}

} // namespace tvxhost::engine
