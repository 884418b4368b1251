// Polynomials: a curve of piecewise polynomials, from which NURBS curves and surfaces are built.
#pragma once

#include <Imath/ImathVec.h>

#include <vector>

namespace tvxhost::engine {

/// A point and its weight as one vector, in which curves are plain polynomials.
struct Homogeneous
{
    Imath::V3d place{0.0}; ///< multiplied by the weight
    double weight = 0.0;
};

/// Control points and knots, both without weights of their own. There are as many knots as control points
/// and degree minus 1.
struct Polynomials
{
    int degree = 0;
    std::vector<double> knots;
    std::vector<Homogeneous> points;

    /// Its derivative, of one degree less; without points for one of degree 0.
    Polynomials derivative() const;

    /// The value at a parameter that is within the range; zero when there are no points.
    Homogeneous at(double parameter) const;
};

} // namespace tvxhost::engine
