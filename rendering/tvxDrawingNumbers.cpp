// Small numeric functions of the drawing library.
#include "rendering/tvxDrawingNumbers.h"

#include <cmath>

namespace tarvox::crowd {

int roundHalfDown(float x)
{
    const float below = std::floor(x);
    return static_cast<int>(below) + (x - below > 0.5f ? 1 : 0);
}

float subtract(float a, float* b)
{
    return *b = a - *b;
}

float multiply(float a, float* b)
{
    return *b = a * *b;
}

float divide(float a, float* b)
{
    return *b = a / *b;
}

float scale(double s, float* x)
{
    return *x = static_cast<float>(s * static_cast<double>(*x));
}

} // namespace tarvox::crowd
