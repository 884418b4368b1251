// The motionPath node: see motionPathNode.h.
#include "motionPathNode.h"

#include "aiming.h"
#include "computeSupport.h"
#include "geometry/curveNode.h"
#include "matrixParts.h"
#include "node.h"

#include <algorithm>
#include <array>
#include <string>

namespace tvxhost::engine {

namespace {

bool isOn(Node& node, std::string_view attribute)
{
    return numberOf(node, attribute) != 0.0;
}

/// The parameter up to which a curve has a fraction of its length.
double parameterAt(const NurbsCurve& curve, double fraction)
{
    const double wanted = std::clamp(fraction, 0.0, 1.0) * curve.lengthTo(curve.end());
    double low = curve.begin();
    double high = curve.end();
    // Each step halves the range; with 60 of them it is as fine as numbers are.
    for (int step = 0; step < 60; ++step) {
        const double middle = 0.5 * (low + high);
        if (curve.lengthTo(middle) < wanted)
            low = middle;
        else
            high = middle;
    }
    return 0.5 * (low + high);
}

double parameterOf(Node& node, const NurbsCurve& curve)
{
    const double value = numberOf(node, "uValue");
    return isOn(node, "fractionMode") ? parameterAt(curve, value) : value;
}

Vec3d upAt(Node& node, const NurbsCurve& curve, double parameter)
{
    constexpr int kNormal = 4;
    const bool isNormal = static_cast<int>(numberOf(node, "worldUpType")) == kNormal;
    const Vec3d up = isNormal ? curve.accelerationAt(parameter) : worldUp(node, curve.at(parameter));
    return isOn(node, "inverseUp") ? -up : up;
}

Vec3d axisOf(Node& node, std::string_view attribute)
{
    Vec3d axis(0.0);
    axis[std::clamp(static_cast<int>(numberOf(node, attribute)), 0, 2)] = 1.0;
    return axis;
}

/// The front axis goes along the curve and the up axis upwards, as far as both can be.
Matrix orientationAt(Node& node, const NurbsCurve& curve, double parameter)
{
    if (!isOn(node, "follow"))
        return {};
    const Vec3d along = curve.velocityAt(parameter) * (isOn(node, "inverseFront") ? -1.0 : 1.0);
    const std::optional<Matrix> own = axesAlong(axisOf(node, "frontAxis"), axisOf(node, "upAxis"));
    const std::optional<Matrix> wanted = axesAlong(along, upAt(node, curve, parameter));
    return own && wanted ? own->transposed() * *wanted : Matrix();
}

Computed computeMotionPath(Node& node, const Plug& plug)
{
    const Plug output = topPlug(plug);
    const std::string& name = output.attribute()->longName;
    const auto curve = curveIn(plugOf(node, "geometryPath"));
    if (!curve || (name != "allCoordinates" && name != "rotate" && name != "orientMatrix"))
        return Computed::unknown;
    const double parameter = parameterOf(node, *curve);
    const Matrix orientation = orientationAt(node, *curve, parameter);
    if (name == "allCoordinates")
        finishVector(output, curve->at(parameter));
    else if (name == "rotate")
        finishVector(output, anglesOf(orientation, static_cast<int>(numberOf(node, "rotateOrder"))));
    else
        finishMatrix(output, orientation);
    return Computed::done;
}

} // namespace

void addMotionPathCompute(TypeTable& types)
{
    types.find("motionPath")->compute = computeMotionPath;
}

} // namespace tvxhost::engine
