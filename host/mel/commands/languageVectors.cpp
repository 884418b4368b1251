// Mathematics on vectors.
#include "language.h"

#include <algorithm>
#include <cmath>

namespace tvxhost::mel {

namespace {

using Arguments = std::vector<Value>;

Value mag(CommandContext&, Arguments& arguments)
{
    return arguments[0].vector().length();
}

Value unit(CommandContext&, Arguments& arguments)
{
    return arguments[0].vector().normalized();
}

Value dot(CommandContext&, Arguments& arguments)
{
    return arguments[0].vector().dot(arguments[1].vector());
}

Value cross(CommandContext&, Arguments& arguments)
{
    return arguments[0].vector().cross(arguments[1].vector());
}

Value angle(CommandContext&, Arguments& arguments)
{
    const Vector& left = arguments[0].vector();
    const Vector& right = arguments[1].vector();
    // Stable for angles near 0 and pi, where the arc cosine is not.
    return std::atan2(left.cross(right).length(), left.dot(right));
}

/// The first vector turned about the axis by an angle in radians, counter-clockwise seen from the axis' tip.
Value rot(CommandContext&, Arguments& arguments)
{
    const Vector& point = arguments[0].vector();
    const Vector axis = arguments[1].vector().normalized();
    const double c = std::cos(arguments[2].number());
    const double s = std::sin(arguments[2].number());
    return point * c + axis.cross(point) * s + axis * (axis.dot(point) * (1.0 - c));
}

/// Hue, saturation and value, all from 0 to 1.
Value rgbToHsv(CommandContext&, Arguments& arguments)
{
    const Vector& rgb = arguments[0].vector();
    const double value = std::max({rgb.x, rgb.y, rgb.z});
    const double range = value - std::min({rgb.x, rgb.y, rgb.z});
    if (range <= 0.0) {
        return Vector(0.0, 0.0, value);
    }
    const double sixth = value == rgb.x   ? (rgb.y - rgb.z) / range
                         : value == rgb.y ? 2.0 + (rgb.z - rgb.x) / range
                                          : 4.0 + (rgb.x - rgb.y) / range;
    return Vector(sixth < 0.0 ? sixth / 6.0 + 1.0 : sixth / 6.0, range / value, value);
}

Value hsvToRgb(CommandContext&, Arguments& arguments)
{
    const Vector& hsv = arguments[0].vector();
    const double hue = (hsv.x - std::floor(hsv.x)) * 6.0;
    const auto channel = [&](double offset) {
        const double k = std::fmod(offset + hue, 6.0);
        return hsv.z - hsv.z * hsv.y * std::clamp(std::min(k, 4.0 - k), 0.0, 1.0);
    };
    return Vector(channel(5.0), channel(3.0), channel(1.0));
}

} // namespace

void addVectorCommands(CommandTable& table)
{
    table.add({
        function("mag", "The length of a vector", {kVector}, mag),
        function("unit", "The vector of length 1 in the same direction", {kVector}, unit),
        function("dot", "The dot product", {kVector, kVector}, dot),
        function("cross", "The cross product", {kVector, kVector}, cross),
        function("angle", "The angle between two vectors in radians", {kVector, kVector}, angle),
        function("rot", "A vector turned about an axis by radians", {kVector, kVector, kFloat}, rot),
        function("rgb_to_hsv", "A colour as hue, saturation, value", {kVector}, rgbToHsv),
        function("hsv_to_rgb", "A colour from hue, saturation, value", {kVector}, hsvToRgb),
    });
}

} // namespace tvxhost::mel
