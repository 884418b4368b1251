// NurbsCurve: a NURBS curve as scene files hold it, and points on it.
#pragma once

#include "../data.h"

#include <Imath/ImathVec.h>

#include <optional>
#include <string>
#include <vector>

namespace tvxhost::engine {

/// Control points, knots and degree. There are as many knots as control points and degree minus 1: the first
/// and the last are not repeated once more. Centimetres.
struct NurbsCurve
{
    /// The numbers are those of files.
    enum class Form
    {
        open = 0,
        closed = 1,
        periodic = 2
    };

    /// A control point with its weight.
    struct Point
    {
        Imath::V3d place{0.0};
        double weight = 1.0;
    };

    int degree = 3;
    Form form = Form::open;
    bool isRational = false;
    int dimensions = 3;
    std::vector<double> knots;
    std::vector<Point> points;

    /// Whether degree, knots and points fit together and the knots do not descend.
    bool isValid() const;
    int spanCount() const { return static_cast<int>(points.size()) - degree; }
    /// The parameters between which the curve is.
    double begin() const { return knots[static_cast<std::size_t>(degree) - 1]; }
    double end() const { return knots[knots.size() - static_cast<std::size_t>(degree)]; }

    /// The point at a parameter, which is brought into the range.
    Imath::V3d at(double parameter) const;
    /// The derivatives by the parameter there: how the point moves, and how that changes.
    Imath::V3d velocityAt(double parameter) const;
    Imath::V3d accelerationAt(double parameter) const;
    /// The length of the part from the beginning to a parameter.
    double lengthTo(double parameter) const;
};

/// The words of a `setAttr -type "nurbsCurve"`; empty for words that are no curve.
std::optional<NurbsCurve> parseNurbsCurve(const std::string& words);
/// The words as Maya writes them, over lines.
std::string nurbsCurveWords(const NurbsCurve& curve);

} // namespace tvxhost::engine
