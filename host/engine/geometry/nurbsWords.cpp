// The words of NURBS curves and surfaces; see nurbsWords.h.
#include "nurbsWords.h"

#include <charconv>

namespace tvxhost::engine {

namespace {

std::string numberText(double number)
{
    char text[40];
    const auto end = std::to_chars(text, text + sizeof text, number).ptr;
    return {text, end};
}

} // namespace

int NurbsWords::integer()
{
    int number = 0;
    m_stream >> number;
    return number;
}

bool NurbsWords::yes()
{
    std::string word;
    m_stream >> word;
    return word == "yes" || word == "on" || word == "true" || word == "1";
}

NurbsCurve::Form NurbsWords::form()
{
    const int number = integer();
    const bool isForm = number >= 0 && number <= 2;
    m_isGood = m_isGood && isForm;
    return isForm ? static_cast<NurbsCurve::Form>(number) : NurbsCurve::Form::open;
}

/// No more than there are characters, whatever the words say.
std::size_t NurbsWords::count()
{
    std::size_t number = 0;
    m_stream >> number;
    m_isGood = m_isGood && number <= m_length;
    return isGood() ? number : 0;
}

std::vector<double> NurbsWords::knots()
{
    std::vector<double> all(count());
    for (double& knot : all)
        m_stream >> knot;
    return all;
}

std::vector<NurbsCurve::Point> NurbsWords::points(int dimensions, bool isRational)
{
    std::vector<NurbsCurve::Point> all(count());
    for (NurbsCurve::Point& point : all) {
        m_stream >> point.place.x >> point.place.y;
        if (dimensions > 2)
            m_stream >> point.place.z;
        if (isRational)
            m_stream >> point.weight;
    }
    return all;
}

std::string knotWords(const std::vector<double>& knots)
{
    std::string words = "\n\t\t" + std::to_string(knots.size());
    for (const double knot : knots)
        words += ' ' + numberText(knot);
    return words;
}

std::string pointWords(const std::vector<NurbsCurve::Point>& points, int dimensions, bool isRational)
{
    std::string words = "\n\t\t" + std::to_string(points.size());
    for (const NurbsCurve::Point& point : points) {
        words += "\n\t\t" + numberText(point.place.x) + ' ' + numberText(point.place.y);
        if (dimensions > 2)
            words += ' ' + numberText(point.place.z);
        if (isRational)
            words += ' ' + numberText(point.weight);
    }
    return words;
}

} // namespace tvxhost::engine
