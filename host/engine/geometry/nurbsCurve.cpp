// NurbsCurve; see nurbsCurve.h.
#include "nurbsCurve.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <sstream>

namespace tvxhost::engine {

namespace {

/// A point and its weight as one vector, in which curves are plain polynomials.
struct Homogeneous
{
    Imath::V3d place;
    double weight = 0.0;
};

Homogeneous blend(const Homogeneous& a, const Homogeneous& b, double t)
{
    return {a.place * (1.0 - t) + b.place * t, a.weight * (1.0 - t) + b.weight * t};
}

Homogeneous scaledDifference(const Homogeneous& a, const Homogeneous& b, double factor)
{
    return {(b.place - a.place) * factor, (b.weight - a.weight) * factor};
}

/// A curve of polynomials: control points and knots, both without weights of their own.
struct Polynomials
{
    int degree;
    std::vector<double> knots;
    std::vector<Homogeneous> points;
};

Polynomials polynomialsOf(const NurbsCurve& curve)
{
    Polynomials made{curve.degree, curve.knots, {}};
    for (const NurbsCurve::Point& point : curve.points)
        made.points.push_back({point.place * point.weight, point.weight});
    return made;
}

/// Its derivative, of one degree less.
Polynomials derivativeOf(const Polynomials& curve)
{
    Polynomials made{curve.degree - 1, {}, {}};
    if (curve.degree == 0)
        return made;
    const auto degree = static_cast<std::size_t>(curve.degree);
    for (std::size_t i = 0; i + 1 < curve.points.size(); ++i) {
        const double width = curve.knots[i + degree] - curve.knots[i];
        made.points.push_back(
            scaledDifference(curve.points[i], curve.points[i + 1], width > 0.0 ? curve.degree / width : 0.0));
    }
    made.knots.assign(curve.knots.begin() + 1, curve.knots.end() - 1);
    return made;
}

/// De Boor's algorithm: control points are blended until one is left.
Homogeneous valueAt(const Polynomials& curve, double parameter)
{
    if (curve.points.empty())
        return {};
    if (curve.degree == 0) {
        const auto behind = std::upper_bound(curve.knots.begin(), curve.knots.end(), parameter);
        const auto span = static_cast<std::size_t>(behind - curve.knots.begin());
        return curve.points[std::min(span, curve.points.size() - 1)];
    }
    const auto degree = static_cast<std::size_t>(curve.degree);
    // The span: knots[first + degree - 1] <= parameter < knots[first + degree].
    std::size_t first = 0;
    while (first + degree + 1 < curve.points.size() && curve.knots[first + degree] <= parameter)
        ++first;
    std::vector<Homogeneous> points(curve.points.begin() + static_cast<std::ptrdiff_t>(first),
                                    curve.points.begin() + static_cast<std::ptrdiff_t>(first + degree + 1));
    for (std::size_t round = 1; round <= degree; ++round)
        for (std::size_t i = 0; i + round <= degree; ++i) {
            const double low = curve.knots[first + i + round - 1];
            const double high = curve.knots[first + i + degree];
            const double t = high > low ? (parameter - low) / (high - low) : 0.0;
            points[i] = blend(points[i], points[i + 1], t);
        }
    return points.front();
}

/// The curve's own place and its first two derivatives, the quotient rule applied to the weights.
std::array<Imath::V3d, 3> placesAt(const NurbsCurve& curve, double parameter)
{
    const double u = std::clamp(parameter, curve.begin(), curve.end());
    const Polynomials whole = polynomialsOf(curve);
    const Polynomials slope = derivativeOf(whole);
    const Polynomials bend = derivativeOf(slope);
    const Homogeneous a = valueAt(whole, u);
    const Homogeneous b = valueAt(slope, u);
    const Homogeneous c = curve.degree > 1 ? valueAt(bend, u) : Homogeneous();
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

bool isPlainForm(int form)
{
    return form >= 0 && form <= 2;
}

std::string numberText(double number)
{
    char text[40];
    const auto end = std::to_chars(text, text + sizeof text, number).ptr;
    return {text, end};
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
    std::istringstream stream(words);
    NurbsCurve curve;
    int spans = 0;
    int form = 0;
    std::string rational;
    std::size_t knotCount = 0;
    std::size_t pointCount = 0;
    if (!(stream >> curve.degree >> spans >> form >> rational >> curve.dimensions >> knotCount) ||
        !isPlainForm(form) || knotCount > words.size())
        return std::nullopt;
    curve.form = static_cast<NurbsCurve::Form>(form);
    curve.isRational = rational == "yes" || rational == "on" || rational == "true" || rational == "1";
    curve.knots.resize(knotCount);
    for (double& knot : curve.knots)
        stream >> knot;
    if (!(stream >> pointCount) || pointCount > words.size())
        return std::nullopt;
    curve.points.resize(pointCount);
    for (NurbsCurve::Point& point : curve.points) {
        stream >> point.place.x >> point.place.y;
        if (curve.dimensions > 2)
            stream >> point.place.z;
        if (curve.isRational)
            stream >> point.weight;
    }
    if (!stream || !curve.isValid())
        return std::nullopt;
    return curve;
}

std::string nurbsCurveWords(const NurbsCurve& curve)
{
    std::string words = "\n\t\t" + std::to_string(curve.degree) + ' ' + std::to_string(curve.spanCount()) +
                        ' ' + std::to_string(static_cast<int>(curve.form)) +
                        (curve.isRational ? " yes " : " no ") + std::to_string(curve.dimensions) + "\n\t\t" +
                        std::to_string(curve.knots.size());
    for (const double knot : curve.knots)
        words += ' ' + numberText(knot);
    words += "\n\t\t" + std::to_string(curve.points.size());
    for (const NurbsCurve::Point& point : curve.points) {
        words += "\n\t\t" + numberText(point.place.x) + ' ' + numberText(point.place.y);
        if (curve.dimensions > 2)
            words += ' ' + numberText(point.place.z);
        if (curve.isRational)
            words += ' ' + numberText(point.weight);
    }
    return words + "\n\t\t";
}

} // namespace tvxhost::engine
