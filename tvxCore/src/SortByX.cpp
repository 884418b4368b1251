// A radix sort, because hulls of millions of points spend most of their time sorting.
#include "SortByX.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <utility>

namespace tarvox::core {
namespace {

/// Below this many points comparing costs less than counting digits.
constexpr std::size_t kFewPoints = 128;

/// From this many points on, a pass less is worth the longer table of the longer digits.
constexpr std::size_t kManyPoints = 8192;

/// The bits of x as a number that grows with x.
std::uint32_t keyOf(Point p)
{
    std::uint32_t bits = 0;
    std::memcpy(&bits, &p.x, sizeof bits);
    const std::uint32_t sign = 0x80000000U;
    return bits & sign ? ~bits : bits | sign;
}

/// Sorts by one digit of the key after the other, the least significant first.
template <std::size_t kDigitBits>
class RadixSort
{
public:
    static void run(Points& points, Points& spare)
    {
        Places places = placesOf(points);
        spare.resize(points.size());
        for (std::size_t pass = 0; pass < kPasses; ++pass) {
            for (const Point p : points)
                spare[places[pass][digitOf(keyOf(p), pass)]++] = p;
            points.swap(spare);
        }
    }

private:
    static constexpr std::size_t kDigits = std::size_t{1} << kDigitBits;
    static constexpr std::size_t kPasses = (32 + kDigitBits - 1) / kDigitBits;

    /// For each pass and digit, where the first point of that digit goes.
    using Places = std::array<std::array<std::size_t, kDigits>, kPasses>;

    static std::size_t digitOf(std::uint32_t key, std::size_t pass)
    {
        return (key >> (pass * kDigitBits)) & (kDigits - 1);
    }

    static Places placesOf(const Points& points)
    {
        Places places{};
        for (const Point p : points)
            for (std::size_t pass = 0; pass < kPasses; ++pass)
                ++places[pass][digitOf(keyOf(p), pass)];
        for (auto& counts : places) {
            std::size_t before = 0;
            for (std::size_t& count : counts)
                before += std::exchange(count, before);
        }
        return places;
    }
};

} // namespace

void sortByX(Points& points, Points& spare)
{
    if (points.size() < kFewPoints)
        std::sort(points.begin(), points.end(), isLeftOf);
    else if (points.size() < kManyPoints)
        RadixSort<8>::run(points, spare);
    else
        RadixSort<11>::run(points, spare);
}

} // namespace tarvox::core
