// Gift wrapping with GMP's whole numbers.
#include "ExactHull.h"

#include <gmpxx.h>

#include <algorithm>
#include <cmath>
#include <ostream>

namespace tarvox::core {
namespace {

struct WholePoint
{
    explicit WholePoint(Vector2<float> p)
        : x(std::ldexp(double{p.x}, 149)), y(std::ldexp(double{p.y}, 149)), point{p.x + 0.0f, p.y + 0.0f}
    {
    }

    mpz_class x, y;
    Vector2<float> point;
};

bool comesFirst(const WholePoint& a, const WholePoint& b)
{
    return a.x < b.x || (a.x == b.x && a.y < b.y);
}

std::vector<WholePoint> distinct(const std::vector<Vector2<float>>& points)
{
    std::vector<WholePoint> result;
    for (const Vector2<float> p : points)
        if (std::isfinite(p.x) && std::isfinite(p.y))
            result.emplace_back(p);
    std::sort(result.begin(), result.end(), comesFirst);
    const auto isSame = [](const WholePoint& a, const WholePoint& b) { return a.x == b.x && a.y == b.y; };
    result.erase(std::unique(result.begin(), result.end(), isSame), result.end());
    return result;
}

/// Whether the edge from `from` should rather go to `p` than to `to`: p is to the right, or farther ahead.
bool wrapsTighter(const WholePoint& from, const WholePoint& to, const WholePoint& p)
{
    const mpz_class toX = to.x - from.x, toY = to.y - from.y;
    const mpz_class pX = p.x - from.x, pY = p.y - from.y;
    const mpz_class area = toX * pY - toY * pX;
    if (area != 0)
        return area < 0;
    return pX * pX + pY * pY > toX * toX + toY * toY;
}

std::size_t nextCorner(const std::vector<WholePoint>& points, std::size_t from)
{
    std::size_t to = from == 0 ? 1 : 0;
    for (std::size_t i = 0; i < points.size(); ++i)
        if (i != from && i != to && wrapsTighter(points[from], points[to], points[i]))
            to = i;
    return to;
}

} // namespace

std::vector<Vector2<float>> exactHull(const std::vector<Vector2<float>>& points)
{
    const std::vector<WholePoint> candidates = distinct(points);
    if (candidates.empty())
        return {};
    std::vector<Vector2<float>> hull{candidates[0].point};
    if (candidates.size() > 1)
        for (std::size_t i = nextCorner(candidates, 0); i != 0; i = nextCorner(candidates, i))
            hull.push_back(candidates[i].point);
    return hull;
}

void PrintTo(Vector2<float> point, std::ostream* out)
{
    const auto precision = out->precision(9);
    *out << '(' << point.x << ", " << point.y << ')';
    out->precision(precision);
}

} // namespace tarvox::core
