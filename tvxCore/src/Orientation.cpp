// The orientation of three points from the exact sum of the six products of their coordinates.
#include "Orientation.h"

#include <array>

namespace tarvox::core {
namespace {

/// A sum of doubles kept without loss: its terms do not overlap and grow in magnitude, zeros between them.
class ExactSum
{
public:
    void add(double value)
    {
        for (int i = 0; i < m_count; ++i) {
            // The rounded sum goes on to the next term, what the rounding lost stays here.
            double& term = m_terms[static_cast<std::size_t>(i)];
            const double sum = value + term;
            const double part = sum - value;
            term = (value - (sum - part)) + (term - part);
            value = sum;
        }
        m_terms[static_cast<std::size_t>(m_count++)] = value;
    }

    /// The largest term that is not zero outweighs all the smaller ones.
    int sign() const
    {
        for (int i = m_count - 1; i >= 0; --i) {
            const double term = m_terms[static_cast<std::size_t>(i)];
            if (term != 0)
                return term > 0 ? 1 : -1;
        }
        return 0;
    }

private:
    std::array<double, 6> m_terms{};
    int m_count = 0;
};

} // namespace

int exactOrientation(Point a, Point b, Point c)
{
    const double ax = a.x, ay = a.y, bx = b.x, by = b.y, cx = c.x, cy = c.y;
    ExactSum area;
    // Two significands of 24 bits make one of 48: none of these products is rounded.
    for (const double product : {ax * by, -ay * bx, bx * cy, -by * cx, cx * ay, -cy * ax})
        area.add(product);
    return area.sign();
}

} // namespace tarvox::core
