// Rotations as quaternions: see turns.h.
#include "turns.h"

#include "matrixParts.h"

#include <Imath/ImathMatrixAlgo.h>

#include <cmath>

namespace tvxhost::engine {

namespace {

/// Turns that are this near to each other or to each other's negative have no way between them.
constexpr double kSame = 1.0 - 1e-12;

Turn turnAbout(int axis, double angle)
{
    Vec3d direction(0.0);
    direction[axis] = std::sin(angle / 2.0);
    return {std::cos(angle / 2.0), direction};
}

/// The mean of turns as four numbers; the first one where they cancel each other out.
Turn sumOf(const std::vector<WeightedTurn>& turns, bool onOneSide)
{
    const Turn& first = turns.front().turn;
    Turn sum(0.0, 0.0, 0.0, 0.0);
    for (const WeightedTurn& each : turns) {
        const bool isOpposite = onOneSide && (first ^ each.turn) < 0.0;
        sum += each.turn * (isOpposite ? -each.weight : each.weight);
    }
    return sum.length() > 0.0 ? sum.normalized() : first;
}

Turn between(const Turn& from, const Turn& to, double part, bool theLongWay)
{
    const double likeness = from ^ to;
    if (std::abs(likeness) > kSame)
        return from;
    return Imath::slerp(from, (likeness < 0.0) == theLongWay ? to : -to, part).normalized();
}

/// From the first turn towards the second one, from there towards the third, each as far as it weighs.
Turn chainOf(const std::vector<WeightedTurn>& turns, bool theLongWay)
{
    Turn mean = turns.front().turn;
    double weight = turns.front().weight;
    for (std::size_t i = 1; i < turns.size(); ++i) {
        weight += turns[i].weight;
        mean = between(mean, turns[i].turn, turns[i].weight / weight, theLongWay);
    }
    return mean;
}

} // namespace

Turn turnOf(const Vec3d& angles, int order)
{
    Turn turn;
    for (const int axis : axesOf(order))
        turn = then(turn, turnAbout(axis, angles[axis]));
    return turn;
}

Turn turnOf(const Matrix& matrix)
{
    return Imath::extractQuat(takeApart(matrix).rotation);
}

Turn then(const Turn& first, const Turn& second)
{
    return second * first;
}

Turn meanOf(const std::vector<WeightedTurn>& turns, TurnPath path)
{
    switch (path) {
    case TurnPath::average:
        return sumOf(turns, true);
    case TurnPath::shortest:
        return chainOf(turns, false);
    case TurnPath::longest:
        return chainOf(turns, true);
    case TurnPath::continuous:
        break;
    }
    return sumOf(turns, false);
}

Turn blended(const Turn& from, const Turn& to, double part)
{
    return between(from, to, part, false);
}

} // namespace tvxhost::engine
