// Turns: rotations as quaternions, which can be blended.
#pragma once

#include "data.h"

#include <Imath/ImathQuat.h>

#include <vector>

namespace tvxhost::engine {

/// A rotation; of length 1.
using Turn = Imath::Quatd;

/// The turn by angles in radians about x, y and z, in an order as in the attribute rotateOrder. It goes on as
/// the angles do: that of a full turn is not that of none, but its negative.
Turn turnOf(const Vec3d& angles, int order);
/// The turn in a matrix, whatever else the matrix does.
Turn turnOf(const Matrix& matrix);

/// One turn after another.
Turn then(const Turn& first, const Turn& second);

/// The way between turns, of which there are always two.
enum class TurnPath
{
    continuous = 0, ///< what the angles say, so that targets that turn on and on do not make the mean flip
    average = 1,    ///< all on the side of the first one
    shortest = 2,   ///< from one to the next the short way
    longest = 3     ///< from one to the next the long way
};

struct WeightedTurn
{
    Turn turn;
    double weight = 1.0; ///< positive
};

/// The weighted mean of turns, of which there is one at least.
Turn meanOf(const std::vector<WeightedTurn>& turns, TurnPath path);

/// A part of the way from one turn to another, the short way: 0 is the first, 1 the second.
Turn blended(const Turn& from, const Turn& to, double part);

} // namespace tvxhost::engine
