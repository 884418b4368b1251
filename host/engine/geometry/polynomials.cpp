// Polynomials; see polynomials.h.
#include "polynomials.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

Homogeneous blend(const Homogeneous& a, const Homogeneous& b, double t)
{
    return {a.place * (1.0 - t) + b.place * t, a.weight * (1.0 - t) + b.weight * t};
}

Homogeneous scaledDifference(const Homogeneous& a, const Homogeneous& b, double factor)
{
    return {(b.place - a.place) * factor, (b.weight - a.weight) * factor};
}

} // namespace

Polynomials Polynomials::derivative() const
{
    Polynomials made{degree - 1, {}, {}};
    if (degree == 0)
        return made;
    const auto order = static_cast<std::size_t>(degree);
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const double width = knots[i + order] - knots[i];
        made.points.push_back(scaledDifference(points[i], points[i + 1], width > 0.0 ? degree / width : 0.0));
    }
    made.knots.assign(knots.begin() + 1, knots.end() - 1);
    return made;
}

/// De Boor's algorithm: control points are blended until one is left.
Homogeneous Polynomials::at(double parameter) const
{
    if (points.empty())
        return {};
    if (degree == 0) {
        const auto behind = std::upper_bound(knots.begin(), knots.end(), parameter);
        const auto span = static_cast<std::size_t>(behind - knots.begin());
        return points[std::min(span, points.size() - 1)];
    }
    const auto order = static_cast<std::size_t>(degree);
    // The span: knots[first + order - 1] <= parameter < knots[first + order].
    std::size_t first = 0;
    while (first + order + 1 < points.size() && knots[first + order] <= parameter)
        ++first;
    std::vector<Homogeneous> left(points.begin() + static_cast<std::ptrdiff_t>(first),
                                  points.begin() + static_cast<std::ptrdiff_t>(first + order + 1));
    for (std::size_t round = 1; round <= order; ++round)
        for (std::size_t i = 0; i + round <= order; ++i) {
            const double low = knots[first + i + round - 1];
            const double high = knots[first + i + order];
            const double t = high > low ? (parameter - low) / (high - low) : 0.0;
            left[i] = blend(left[i], left[i + 1], t);
        }
    return left.front();
}

} // namespace tvxhost::engine
