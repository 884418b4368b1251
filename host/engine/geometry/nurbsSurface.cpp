// NurbsSurface; see nurbsSurface.h.
#include "nurbsSurface.h"

#include "nurbsWords.h"
#include "polynomials.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tvxhost::engine {

namespace {

using Direction = NurbsSurface::Direction;
using Parameters = NurbsSurface::Parameters;

/// Along v at one place in u.
Polynomials rowOf(const NurbsSurface& surface, std::size_t inU)
{
    Polynomials row{surface.v.degree, surface.v.knots, {}};
    for (std::size_t i = 0; i < static_cast<std::size_t>(surface.v.pointCount()); ++i) {
        const NurbsCurve::Point& point = surface.points[surface.indexOf(inU, i)];
        row.points.push_back({point.place * point.weight, point.weight});
    }
    return row;
}

/// Along u at one parameter of v: so many times derived by v.
Polynomials columnAt(const NurbsSurface& surface, double v, int timesDerived)
{
    Polynomials column{surface.u.degree, surface.u.knots, {}};
    for (std::size_t i = 0; i < static_cast<std::size_t>(surface.u.pointCount()); ++i) {
        Polynomials row = rowOf(surface, i);
        for (int time = 0; time < timesDerived && !row.points.empty(); ++time)
            row = row.derivative();
        column.points.push_back(row.at(v));
    }
    return column;
}

/// The end of an iteration: no nearer than this, as part of the range of a parameter.
constexpr double kSmallestStep = 1e-9;

double squaredDistance(const NurbsSurface& surface, const Parameters& where, const Imath::V3d& point)
{
    return (surface.at(where) - point).length2();
}

/// Parameters that lie close enough that the nearest of them is near the nearest of all.
std::vector<double> samplesOf(const Direction& direction)
{
    constexpr int kPerSpan = 8;
    std::vector<double> samples{direction.begin()};
    const auto degree = static_cast<std::size_t>(direction.degree);
    for (std::size_t i = degree - 1; i + degree < direction.knots.size(); ++i) {
        const double width = direction.knots[i + 1] - direction.knots[i];
        for (int part = 1; part <= kPerSpan && width > 0.0; ++part)
            samples.push_back(direction.knots[i] + width * part / kPerSpan);
    }
    return samples;
}

Parameters nearestSample(const NurbsSurface& surface, const Imath::V3d& point)
{
    Parameters best{surface.u.begin(), surface.v.begin()};
    double least = squaredDistance(surface, best, point);
    const auto inU = samplesOf(surface.u);
    for (const double v : samplesOf(surface.v)) {
        // One column serves all places along it.
        const Polynomials column = columnAt(surface, v, 0);
        for (const double u : inU) {
            const Homogeneous there = column.at(u);
            const double distance = (there.place / there.weight - point).length2();
            if (distance < least) {
                least = distance;
                best = {u, v};
            }
        }
    }
    return best;
}

/// Goes to the nearest of the eight neighbours at a step as long as one is nearer; then halves the step.
Parameters descended(const NurbsSurface& surface, Parameters where, const Imath::V3d& point)
{
    const double rangeU = surface.u.end() - surface.u.begin();
    const double rangeV = surface.v.end() - surface.v.begin();
    double least = squaredDistance(surface, where, point);
    for (double step = 1.0 / 8.0; step > kSmallestStep;) {
        const Parameters centre = where;
        for (int i = 0; i < 9; ++i) {
            const Parameters tried{surface.u.clamped(centre.u + step * rangeU * (i % 3 - 1)),
                                   surface.v.clamped(centre.v + step * rangeV * (i / 3 - 1))};
            const double distance = squaredDistance(surface, tried, point);
            if (distance < least) {
                least = distance;
                where = tried;
            }
        }
        if (where.u == centre.u && where.v == centre.v)
            step /= 2.0;
    }
    return where;
}

} // namespace

bool Direction::isValid() const
{
    return degree >= 1 && knots.size() >= 2 * static_cast<std::size_t>(degree) &&
           std::is_sorted(knots.begin(), knots.end());
}

int Direction::nonZeroSpanCount() const
{
    int count = 0;
    const auto order = static_cast<std::size_t>(degree);
    for (std::size_t i = order - 1; i + order < knots.size(); ++i)
        count += knots[i] < knots[i + 1] ? 1 : 0;
    return count;
}

double Direction::clamped(double parameter) const
{
    return std::clamp(parameter, begin(), end());
}

bool NurbsSurface::isValid() const
{
    return u.isValid() && v.isValid() &&
           points.size() ==
               static_cast<std::size_t>(u.pointCount()) * static_cast<std::size_t>(v.pointCount());
}

Imath::V3d NurbsSurface::at(const Parameters& where) const
{
    const Homogeneous there = columnAt(*this, v.clamped(where.v), 0).at(u.clamped(where.u));
    return there.place / there.weight;
}

// The quotient rule, applied to the weights.
NurbsSurface::Jet NurbsSurface::jetAt(const Parameters& where) const
{
    const double inU = u.clamped(where.u);
    const double inV = v.clamped(where.v);
    const Polynomials plain = columnAt(*this, inV, 0);
    const Polynomials slope = plain.derivative();
    const Polynomials alongV = columnAt(*this, inV, 1);
    const Homogeneous a = plain.at(inU);
    const Homogeneous au = slope.at(inU);
    const Homogeneous auu = u.degree > 1 ? slope.derivative().at(inU) : Homogeneous();
    const Homogeneous av = alongV.at(inU);
    const Homogeneous auv = alongV.derivative().at(inU);
    const Homogeneous avv = v.degree > 1 ? columnAt(*this, inV, 2).at(inU) : Homogeneous();
    Jet jet;
    jet.place = a.place / a.weight;
    jet.du = (au.place - jet.place * au.weight) / a.weight;
    jet.dv = (av.place - jet.place * av.weight) / a.weight;
    jet.duu = (auu.place - jet.du * (2.0 * au.weight) - jet.place * auu.weight) / a.weight;
    jet.dvv = (avv.place - jet.dv * (2.0 * av.weight) - jet.place * avv.weight) / a.weight;
    jet.duv = (auv.place - jet.du * av.weight - jet.dv * au.weight - jet.place * auv.weight) / a.weight;
    return jet;
}

Parameters NurbsSurface::nearestTo(const Imath::V3d& point) const
{
    return descended(*this, nearestSample(*this, point), point);
}

double NurbsSurface::area() const
{
    // Gauss-Legendre with five points, on each part of a span.
    constexpr std::array<double, 5> kPlaces = {0.0, 0.5384693101056831, -0.5384693101056831,
                                               0.9061798459386640, -0.9061798459386640};
    constexpr std::array<double, 5> kWeights = {0.5688888888888889, 0.4786286704993665, 0.4786286704993665,
                                                0.2369268850561891, 0.2369268850561891};
    const auto inU = samplesOf(u);
    const auto inV = samplesOf(v);
    double sum = 0.0;
    for (std::size_t i = 0; i + 1 < inU.size(); ++i)
        for (std::size_t j = 0; j + 1 < inV.size(); ++j) {
            const double halfU = (inU[i + 1] - inU[i]) / 2.0;
            const double halfV = (inV[j + 1] - inV[j]) / 2.0;
            for (std::size_t k = 0; k < kPlaces.size(); ++k)
                for (std::size_t l = 0; l < kPlaces.size(); ++l) {
                    const Jet jet =
                        jetAt({inU[i] + halfU * (1.0 + kPlaces[k]), inV[j] + halfV * (1.0 + kPlaces[l])});
                    sum += kWeights[k] * kWeights[l] * halfU * halfV * jet.du.cross(jet.dv).length();
                }
        }
    return sum;
}

std::optional<NurbsSurface> parseNurbsSurface(const std::string& words)
{
    NurbsWords from(words);
    NurbsSurface surface;
    surface.u.degree = from.integer();
    surface.v.degree = from.integer();
    surface.u.form = from.form();
    surface.v.form = from.form();
    surface.isRational = from.yes();
    surface.u.knots = from.knots();
    surface.v.knots = from.knots();
    surface.points = from.points(3, surface.isRational);
    if (!from.isGood() || !surface.isValid())
        return std::nullopt;
    return surface;
}

std::string nurbsSurfaceWords(const NurbsSurface& surface)
{
    // The line that is empty would say how the surface is trimmed.
    return " \n\t\t" + std::to_string(surface.u.degree) + ' ' + std::to_string(surface.v.degree) + ' ' +
           std::to_string(static_cast<int>(surface.u.form)) + ' ' +
           std::to_string(static_cast<int>(surface.v.form)) + (surface.isRational ? " yes " : " no ") +
           knotWords(surface.u.knots) + knotWords(surface.v.knots) + "\n\t\t" +
           pointWords(surface.points, 3, surface.isRational) + "\n\t\t";
}

} // namespace tvxhost::engine
