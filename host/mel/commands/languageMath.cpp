// Mathematics on numbers.
#include "language.h"

#include <algorithm>
#include <cmath>

namespace tvxhost::mel {

namespace {

using Arguments = std::vector<Value>;

constexpr double kDegreesPerRadian = 57.295779513082320876798154814105;

double inDegrees(double radians)
{
    return radians * kDegreesPerRadian;
}

double inRadians(double degrees)
{
    return degrees / kDegreesPerRadian;
}

struct UnaryRow
{
    const char* name;
    const char* summary;
    double (*apply)(double);
};

const UnaryRow kUnary[] = {
    {"ceil", "The smallest whole number not below", [](double x) { return std::ceil(x); }},
    {"floor", "The largest whole number not above", [](double x) { return std::floor(x); }},
    {"trunc", "The whole part", [](double x) { return std::trunc(x); }},
    {"exp", "e to the power of the number", [](double x) { return std::exp(x); }},
    {"sin", "Sine of an angle in radians", [](double x) { return std::sin(x); }},
    {"cos", "Cosine of an angle in radians", [](double x) { return std::cos(x); }},
    {"tan", "Tangent of an angle in radians", [](double x) { return std::tan(x); }},
    {"atan", "Angle in radians with this tangent", [](double x) { return std::atan(x); }},
    {"sind", "Sine of an angle in degrees", [](double x) { return std::sin(inRadians(x)); }},
    {"cosd", "Cosine of an angle in degrees", [](double x) { return std::cos(inRadians(x)); }},
    {"tand", "Tangent of an angle in degrees", [](double x) { return std::tan(inRadians(x)); }},
    {"atand", "Angle in degrees with this tangent", [](double x) { return inDegrees(std::atan(x)); }},
    {"deg_to_rad", "Degrees as radians", inRadians},
    {"rad_to_deg", "Radians as degrees", inDegrees},
};

/// Functions that are not defined for every number, with the numbers they are defined for.
struct PartialRow
{
    const char* name;
    const char* summary;
    double least;
    double most;
    double (*apply)(double);
};

const PartialRow kPartial[] = {
    {"sqrt", "The square root", 0.0, HUGE_VAL, [](double x) { return std::sqrt(x); }},
    {"log", "The natural logarithm", 1e-323, HUGE_VAL, [](double x) { return std::log(x); }},
    {"log10", "The logarithm to base 10", 1e-323, HUGE_VAL, [](double x) { return std::log10(x); }},
    {"asin", "Angle in radians with this sine", -1.0, 1.0, [](double x) { return std::asin(x); }},
    {"acos", "Angle in radians with this cosine", -1.0, 1.0, [](double x) { return std::acos(x); }},
    {"asind", "Angle in degrees with this sine", -1.0, 1.0, [](double x) { return inDegrees(std::asin(x)); }},
    {"acosd", "Angle in degrees with this cosine", -1.0, 1.0,
     [](double x) { return inDegrees(std::acos(x)); }},
};

struct BinaryRow
{
    const char* name;
    const char* summary;
    double (*apply)(double, double);
};

const BinaryRow kBinary[] = {
    {"pow", "The first number to the power of the second", [](double x, double y) { return std::pow(x, y); }},
    {"fmod", "The remainder of a division", [](double x, double y) { return std::fmod(x, y); }},
    {"min", "The smaller number", [](double x, double y) { return std::min(x, y); }},
    {"max", "The larger number", [](double x, double y) { return std::max(x, y); }},
    {"atan2", "Angle in radians to the point (second, first)",
     [](double y, double x) { return std::atan2(y, x); }},
    {"atan2d", "Angle in degrees to the point (second, first)",
     [](double y, double x) { return inDegrees(std::atan2(y, x)); }},
    {"hypot", "The distance of the point (first, second) from the origin",
     [](double x, double y) { return std::hypot(x, y); }},
};

Value abs(CommandContext&, Arguments& arguments)
{
    const Value& value = arguments[0];
    switch (value.type()) {
    case Type::integer:
        return static_cast<int>(std::min(std::abs(static_cast<long long>(value.integer())), 0x7fffffffLL));
    case Type::vector: {
        const Vector& vector = value.vector();
        return Vector(std::abs(vector.x), std::abs(vector.y), std::abs(vector.z));
    }
    default:
        return std::abs(value.toNumber());
    }
}

Value sign(CommandContext&, Arguments& arguments)
{
    const double number = arguments[0].number();
    return number > 0.0 ? 1.0 : number < 0.0 ? -1.0 : 0.0;
}

Value clamp(CommandContext&, Arguments& arguments)
{
    return std::max(arguments[0].number(), std::min(arguments[1].number(), arguments[2].number()));
}

/// Where the number stands between two others: 0 at or below the first, 1 at or above the second.
double portion(const Arguments& arguments)
{
    const double start = arguments[0].number();
    const double end = arguments[1].number();
    const double number = arguments[2].number();
    return number <= start ? 0.0 : number >= end ? 1.0 : (number - start) / (end - start);
}

Value linstep(CommandContext&, Arguments& arguments)
{
    return portion(arguments);
}

Value smoothstep(CommandContext&, Arguments& arguments)
{
    const double x = portion(arguments);
    return x * x * (3.0 - 2.0 * x);
}

/// The cubic curve from one value to another with given tangents; on vectors when the first is one.
template <class T>
T hermiteCurve(const T& start, const T& end, const T& startTangent, const T& endTangent, double x)
{
    const double x2 = x * x;
    const double x3 = x2 * x;
    return start * (2.0 * x3 - 3.0 * x2 + 1.0) + end * (3.0 * x2 - 2.0 * x3) +
           startTangent * (x3 - 2.0 * x2 + x) + endTangent * (x3 - x2);
}

Value hermite(CommandContext&, Arguments& arguments)
{
    const double x = arguments[4].number();
    if (arguments[0].type() == Type::vector) {
        return hermiteCurve(arguments[0].toVector(), arguments[1].toVector(), arguments[2].toVector(),
                            arguments[3].toVector(), x);
    }
    return hermiteCurve(arguments[0].toNumber(), arguments[1].toNumber(), arguments[2].toNumber(),
                        arguments[3].toNumber(), x);
}

} // namespace

void addMathCommands(CommandTable& table)
{
    for (const UnaryRow& row : kUnary) {
        table.add(function(row.name, row.summary, {kFloat},
                           [apply = row.apply](CommandContext&, Arguments& arguments) {
                               return apply(arguments[0].number());
                           }));
    }
    for (const PartialRow& row : kPartial) {
        table.add(
            function(row.name, row.summary, {kFloat}, [row](CommandContext& context, Arguments& arguments) {
                const double number = arguments[0].number();
                if (number < row.least || number > row.most) {
                    context.fail(std::string(row.name) + " is not defined for " + numberText(number) + ".");
                }
                return Value(row.apply(number));
            }));
    }
    for (const BinaryRow& row : kBinary) {
        table.add(function(row.name, row.summary, {kFloat, kFloat},
                           [apply = row.apply](CommandContext&, Arguments& arguments) {
                               return apply(arguments[0].number(), arguments[1].number());
                           }));
    }
    table.add({
        function("abs", "The number without its sign", {kAny}, abs),
        function("sign", "-1, 0 or 1 by the number's sign", {kFloat}, sign),
        function("clamp", "The third number, kept between the first two", {kFloat, kFloat, kFloat}, clamp),
        function("linstep", "0 to 1 as the third number goes from the first to the second",
                 {kFloat, kFloat, kFloat}, linstep),
        function("smoothstep", "As linstep, smooth at both ends", {kFloat, kFloat, kFloat}, smoothstep),
        function("hermite", "A point on a cubic curve: ends, tangents, parameter",
                 {kAny, kAny, kAny, kAny, kFloat}, hermite),
    });
}

} // namespace tvxhost::mel
