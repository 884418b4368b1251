// Random numbers and noise. The same seed gives the same numbers, in every run and on every machine.
#include "language.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <memory>
#include <random>

namespace tvxhost::mel {

namespace {

using Arguments = std::vector<Value>;

/// The numbers of one session. The library's distributions differ between platforms, so they are made here.
class Generator
{
public:
    void seed(int value) { m_engine.seed(static_cast<std::uint32_t>(value)); }

    /// From 0 up to, not including, 1.
    double uniform()
    {
        const std::uint64_t high = m_engine() >> 5;
        const std::uint64_t low = m_engine() >> 6;
        return static_cast<double>((high << 26) | low) / 9007199254740992.0;
    }

    /// Normally distributed about 0 with a deviation of 1.
    double normal()
    {
        const double radius = std::sqrt(-2.0 * std::log(1.0 - uniform()));
        return radius * std::cos(2.0 * M_PI * uniform());
    }

    Vector onUnitSphere()
    {
        const double z = 2.0 * uniform() - 1.0;
        const double turn = 2.0 * M_PI * uniform();
        const double radius = std::sqrt(1.0 - z * z);
        return {radius * std::cos(turn), radius * std::sin(turn), z};
    }

private:
    std::mt19937 m_engine;
};

/// Calls `number` for a float argument, for each component of a vector.
template <class Function>
Value eachNumber(const Value& argument, Function number)
{
    if (argument.type() != Type::vector) {
        return number(argument.toNumber());
    }
    const Vector& vector = argument.vector();
    return Vector(number(vector.x), number(vector.y), number(vector.z));
}

/// `rand MOST` or `rand LEAST MOST`
Value rand(Generator& generator, const Arguments& arguments)
{
    if (arguments.size() == 1) {
        return eachNumber(arguments[0], [&](double most) { return generator.uniform() * most; });
    }
    if (arguments[0].type() != Type::vector) {
        const double least = arguments[0].toNumber();
        return least + generator.uniform() * (arguments[1].toNumber() - least);
    }
    const Vector least = arguments[0].vector();
    const Vector range = arguments[1].toVector() - least;
    return least + Vector(generator.uniform(), generator.uniform(), generator.uniform()) * range;
}

/// `gauss DEVIATION` or `gauss DEVIATION_X DEVIATION_Y`, a vector in the plane.
Value gauss(Generator& generator, const Arguments& arguments)
{
    if (arguments.size() == 2) {
        return Vector(generator.normal() * arguments[0].toNumber(),
                      generator.normal() * arguments[1].toNumber(), 0.0);
    }
    return eachNumber(arguments[0], [&](double deviation) { return generator.normal() * deviation; });
}

/// A point in a ball, or in an ellipsoid with these half axes.
Value sphrand(Generator& generator, const Arguments& arguments)
{
    const Vector axes = arguments[0].toVector();
    return generator.onUnitSphere() * std::cbrt(generator.uniform()) * axes;
}

// Gradient noise

constexpr int kTableSize = 256;

const std::array<std::uint8_t, kTableSize>& permutation()
{
    static const auto table = [] {
        std::array<std::uint8_t, kTableSize> values{};
        for (int i = 0; i < kTableSize; ++i) {
            values[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(i);
        }
        std::mt19937 engine(1985);
        for (std::size_t i = kTableSize - 1; i > 0; --i) {
            std::swap(values[i], values[engine() % (i + 1)]);
        }
        return values;
    }();
    return table;
}

double fade(double t)
{
    return t * t * t * (t * (t * 6.0 - 15.0) + 10.0);
}

double mix(double a, double b, double t)
{
    return a + (b - a) * t;
}

/// The slope at a lattice point, one of twelve, applied to the way from it.
double slope(std::int64_t x, std::int64_t y, std::int64_t z, const Vector& way)
{
    const auto hash = [](std::int64_t value) {
        return static_cast<std::int64_t>(permutation()[static_cast<std::size_t>(value & (kTableSize - 1))]);
    };
    const std::int64_t choice = hash(hash(hash(x) + y) + z) & 15;
    const double u = choice < 8 ? way.x : way.y;
    const double v = choice < 4 ? way.y : choice == 12 || choice == 14 ? way.x : way.z;
    return ((choice & 1) == 0 ? u : -u) + ((choice & 2) == 0 ? v : -v);
}

/// Smooth, between -1 and 1, 0 at whole coordinates.
double noiseAt(const Vector& point)
{
    const Vector base(std::floor(point.x), std::floor(point.y), std::floor(point.z));
    const Vector way = point - base;
    const auto x = static_cast<std::int64_t>(base.x);
    const auto y = static_cast<std::int64_t>(base.y);
    const auto z = static_cast<std::int64_t>(base.z);
    const auto edge = [&](int dy, int dz) {
        const Vector from = way - Vector(0.0, dy, dz);
        return mix(slope(x, y + dy, z + dz, from), slope(x + 1, y + dy, z + dz, from - Vector(1.0, 0.0, 0.0)),
                   fade(way.x));
    };
    return mix(mix(edge(0, 0), edge(1, 0), fade(way.y)), mix(edge(0, 1), edge(1, 1), fade(way.y)),
               fade(way.z));
}

/// `noise X`, `noise X Y` or `noise POINT`
Value noise(CommandContext&, Arguments& arguments)
{
    if (arguments[0].type() == Type::vector) {
        return noiseAt(arguments[0].vector());
    }
    return noiseAt({arguments[0].toNumber(), arguments.size() == 2 ? arguments[1].toNumber() : 0.0, 0.0});
}

/// Noise with a vector for a result, its components far apart in the same field.
Value dnoise(CommandContext&, Arguments& arguments)
{
    const Vector point = arguments[0].toVector();
    return Vector(noiseAt(point), noiseAt(point + Vector(31.416, -47.853, 12.793)),
                  noiseAt(point + Vector(-233.145, -113.408, 185.31)));
}

} // namespace

void addRandomCommands(CommandTable& table)
{
    const auto generator = std::make_shared<Generator>();
    const auto random = [generator](Value (*make)(Generator&, const Arguments&)) {
        return
            [generator, make](CommandContext&, Arguments& arguments) { return make(*generator, arguments); };
    };
    table.add({
        function("rand", "A random number below the number, or between two", {kAny, optional(kAny)},
                 random(rand)),
        function("gauss", "A random number about 0 with this deviation", {kAny, optional(kAny)},
                 random(gauss)),
        function("sphrand", "A random point in a ball or an ellipsoid", {kAny}, random(sphrand)),
        function("seed", "Where the random numbers begin", {kInt},
                 [generator](CommandContext&, Arguments& arguments) {
                     generator->seed(arguments[0].integer());
                     return Value();
                 }),
        function("noise", "Smooth noise between -1 and 1 at a place", {kAny, optional(kAny)}, noise),
        function("dnoise", "Smooth noise as a vector at a place", {kAny}, dnoise),
    });
}

} // namespace tvxhost::mel
