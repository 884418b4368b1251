// UUIDs: see uuid.h.
#include "uuid.h"

#include <cstdint>
#include <random>

namespace tvxhost::engine {

std::string makeUuid()
{
    static std::mt19937_64 random = [] {
        std::random_device device;
        std::seed_seq seed{device(), device(), device(), device()};
        return std::mt19937_64(seed);
    }();
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::uint64_t bits[2] = {random(), random()};
    bits[0] = (bits[0] & ~0xF000ULL) | 0x4000ULL;                         // version 4
    bits[1] = (bits[1] & ~0xC000000000000000ULL) | 0x8000000000000000ULL; // variant 10
    std::string text;
    text.reserve(36);
    for (int i = 0; i < 32; ++i) {
        if (i == 8 || i == 12 || i == 16 || i == 20)
            text += '-';
        text += kDigits[(bits[i / 16] >> (60 - 4 * (i % 16))) & 0xF];
    }
    return text;
}

} // namespace tvxhost::engine
