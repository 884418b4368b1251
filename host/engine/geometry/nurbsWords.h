// The words of NURBS curves and surfaces in scene files: what both have in common.
#pragma once

#include "nurbsCurve.h"

#include <sstream>
#include <string>
#include <vector>

namespace tvxhost::engine {

/// Reads one value after the other. What is not as it should be reads as zero or nothing, and isGood() says
/// so.
class NurbsWords
{
public:
    explicit NurbsWords(const std::string& words) : m_stream(words), m_length(words.size()) {}

    bool isGood() const { return m_isGood && !m_stream.fail(); }

    int integer();
    bool yes();
    NurbsCurve::Form form();
    /// A count, and so many numbers.
    std::vector<double> knots();
    /// A count, and so many control points of two or three numbers, and (rational) a weight.
    std::vector<NurbsCurve::Point> points(int dimensions, bool isRational);

private:
    std::size_t count();

    std::istringstream m_stream;
    std::size_t m_length;
    bool m_isGood = true;
};

/// The words, each list on lines of its own.
std::string knotWords(const std::vector<double>& knots);
std::string pointWords(const std::vector<NurbsCurve::Point>& points, int dimensions, bool isRational);

} // namespace tvxhost::engine
