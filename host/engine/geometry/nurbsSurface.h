// NurbsSurface: a NURBS surface as scene files hold it, and points on it.
#pragma once

#include "nurbsCurve.h"

#include <Imath/ImathVec.h>

#include <optional>
#include <string>
#include <vector>

namespace tvxhost::engine {

/// Control points in rows, and knots and degree of both directions; untrimmed. Centimetres.
struct NurbsSurface
{
    /// What runs in one direction. There are as many knots as control points and degree minus 1.
    struct Direction
    {
        int degree = 3;
        NurbsCurve::Form form = NurbsCurve::Form::open;
        std::vector<double> knots;

        /// Whether degree and knots fit together and the knots do not descend.
        bool isValid() const;
        int pointCount() const { return static_cast<int>(knots.size()) - degree + 1; }
        int spanCount() const { return pointCount() - degree; }
        /// Those of some length.
        int nonZeroSpanCount() const;
        /// The parameters between which the surface is.
        double begin() const { return knots[static_cast<std::size_t>(degree) - 1]; }
        double end() const { return knots[knots.size() - static_cast<std::size_t>(degree)]; }
        bool contains(double parameter) const { return parameter >= begin() && parameter <= end(); }
        double clamped(double parameter) const;
    };

    /// A place on the surface and how it moves with the parameters.
    struct Jet
    {
        Imath::V3d place{0.0};
        Imath::V3d du, dv;
        Imath::V3d duu, dvv, duv;
    };

    /// Two parameters.
    struct Parameters
    {
        double u = 0.0;
        double v = 0.0;
    };

    Direction u;
    Direction v;
    bool isRational = false;
    std::vector<NurbsCurve::Point> points; ///< all along v for the first place in u, then for the next

    /// Whether everything fits together.
    bool isValid() const;

    std::size_t indexOf(std::size_t inU, std::size_t inV) const
    {
        return inU * static_cast<std::size_t>(v.pointCount()) + inV;
    }

    /// The place at two parameters, which are brought into the range; with its derivatives.
    Imath::V3d at(const Parameters& where) const;
    Jet jetAt(const Parameters& where) const;

    /// Where the surface is nearest to a point.
    Parameters nearestTo(const Imath::V3d& point) const;

    double area() const;
};

/// The words of a `setAttr -type "nurbsSurface"`; empty for words that are no surface, or a trimmed one.
std::optional<NurbsSurface> parseNurbsSurface(const std::string& words);
/// The words as Maya writes them, over lines.
std::string nurbsSurfaceWords(const NurbsSurface& surface);

} // namespace tvxhost::engine
