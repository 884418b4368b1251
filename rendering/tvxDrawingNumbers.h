// Angles and small numeric functions of the drawing library, in single precision.
#pragma once

namespace tarvox::crowd {

/// A full turn in radians.
constexpr float twoPi()
{
    return 6.2831855f;
}

/// Half a turn in radians.
constexpr float pi()
{
    return 3.1415927f;
}

/// A quarter turn in radians.
constexpr float halfPi()
{
    return 1.5707964f;
}

/// An eighth of a turn in radians.
constexpr float quarterPi()
{
    return 0.7853982f;
}

/// The integer nearest to `x`; an exact half goes to the lower one, so 2.5 gives 2 and -2.5 gives -3.
/// The result has to fit an int.
int roundHalfDown(float x);

/// @name Arithmetic in place
/// Each writes its result through the second argument, the right-hand operand, and returns it. The pointer
/// must not be null.
/// @{
float subtract(float a, float* b); ///< a - b
float multiply(float a, float* b); ///< a * b
float divide(float a, float* b);   ///< a / b
float scale(double s, float* x);   ///< s * x, computed in double precision and rounded once
/// @}

} // namespace tarvox::crowd
