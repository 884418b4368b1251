// NurbsCurve; see nurbsCurve.h.
#include "nurbsCurve.h"

#include "nurbsWords.h"
#include "polynomials.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tvxhost::engine {

namespace {

Polynomials polynomialsOf(const NurbsCurve& curve)
{
    Polynomials made{curve.degree, curve.knots, {}};
    for (const NurbsCurve::Point& point : curve.points)
        made.points.push_back({point.place * point.weight, point.weight});
    return made;
}

/// The curve's own place and its first two derivatives, the quotient rule applied to the weights.
std::array<Imath::V3d, 3> placesAt(const NurbsCurve& curve, double parameter)
{
    const double u = std::clamp(parameter, curve.begin(), curve.end());
    const Polynomials whole = polynomialsOf(curve);
    const Polynomials slope = whole.derivative();
    const Homogeneous a = whole.at(u);
    const Homogeneous b = slope.at(u);
    const Homogeneous c = curve.degree > 1 ? slope.derivative().at(u) : Homogeneous();
    const Imath::V3d place = a.place / a.weight;
    const Imath::V3d velocity = (b.place - place * b.weight) / a.weight;
    const Imath::V3d acceleration = (c.place - velocity * (2.0 * b.weight) - place * c.weight) / a.weight;
    return {place, velocity, acceleration};
}

/// Gauss-Legendre with five points, exact for polynomials up to the ninth degree.
double lengthBetween(const NurbsCurve& curve, double from, double to)
{
    constexpr std::array<double, 5> kPlaces = {0.0, 0.5384693101056831, -0.5384693101056831,
                                               0.9061798459386640, -0.9061798459386640};
    constexpr std::array<double, 5> kWeights = {0.5688888888888889, 0.4786286704993665, 0.4786286704993665,
                                                0.2369268850561891, 0.2369268850561891};
    const double half = (to - from) / 2.0;
    double sum = 0.0;
    for (std::size_t i = 0; i < kPlaces.size(); ++i)
        sum += kWeights[i] * curve.velocityAt(from + half * (1.0 + kPlaces[i])).length();
    return sum * half;
}

} // namespace

bool NurbsCurve::isValid() const
{
    return degree >= 1 && points.size() > static_cast<std::size_t>(degree) &&
           knots.size() == points.size() + static_cast<std::size_t>(degree) - 1 &&
           std::is_sorted(knots.begin(), knots.end());
}

Imath::V3d NurbsCurve::at(double parameter) const
{
    return placesAt(*this, parameter)[0];
}

Imath::V3d NurbsCurve::velocityAt(double parameter) const
{
    return placesAt(*this, parameter)[1];
}

Imath::V3d NurbsCurve::accelerationAt(double parameter) const
{
    return placesAt(*this, parameter)[2];
}

double NurbsCurve::lengthTo(double parameter) const
{
    const double last = std::clamp(parameter, begin(), end());
    double length = 0.0;
    const auto d = static_cast<std::size_t>(degree);
    constexpr int kPartsPerSpan = 16;
    for (std::size_t i = d - 1; i + d < knots.size() && knots[i] < last; ++i) {
        const double from = knots[i];
        const double to = std::min(knots[i + 1], last);
        for (int part = 0; part < kPartsPerSpan && to > from; ++part)
            length += lengthBetween(*this, from + (to - from) * part / kPartsPerSpan,
                                    from + (to - from) * (part + 1) / kPartsPerSpan);
    }
    return length;
}

std::optional<NurbsCurve> parseNurbsCurve(const std::string& words)
{
    NurbsWords from(words);
    NurbsCurve curve;
    curve.degree = from.integer();
    from.integer(); // how many spans, which follows from the others
    curve.form = from.form();
    curve.isRational = from.yes();
    curve.dimensions = from.integer();
    curve.knots = from.knots();
    curve.points = from.points(curve.dimensions, curve.isRational);
    if (!from.isGood() || !curve.isValid())
        return std::nullopt;
    return curve;
}

std::string nurbsCurveWords(const NurbsCurve& curve)
{
    return "\n\t\t" + std::to_string(curve.degree) + ' ' + std::to_string(curve.spanCount()) + ' ' +
           std::to_string(static_cast<int>(curve.form)) + (curve.isRational ? " yes " : " no ") +
           std::to_string(curve.dimensions) + knotWords(curve.knots) +
           pointWords(curve.points, curve.dimensions, curve.isRational) + "\n\t\t";
}

} // namespace tvxhost::engine
