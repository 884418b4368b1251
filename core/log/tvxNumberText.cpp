// Numbers as text.
#include "core/log/tvxNumberText.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace tarvox::crowd {

namespace {

// "00" to "99" in a row.
struct DigitPairs
{
    constexpr DigitPairs() : characters()
    {
        for (int i = 0; i < 100; ++i) {
            characters[2 * i] = static_cast<char>('0' + i / 10);
            characters[2 * i + 1] = static_cast<char>('0' + i % 10);
        }
    }

    void write(char* place, std::uint64_t value) const { std::memcpy(place, characters + 2 * value, 2); }

    char characters[200];
};

constexpr DigitPairs kPairs;

constexpr std::size_t kLongestNumber = 32;

void appendDecimal(TextBuffer& text, bool negative, std::uint64_t size)
{
    char number[kLongestNumber];
    char* const end = std::end(number);
    char* begin = end;
    for (; size >= 100; size /= 100)
        kPairs.write(begin -= 2, size % 100);
    if (size >= 10)
        kPairs.write(begin -= 2, size);
    else
        *--begin = static_cast<char>('0' + size);
    if (negative)
        *--begin = '-';
    text.append(begin, static_cast<std::size_t>(end - begin));
}

template <class... Arguments>
void appendConverted(TextBuffer& text, Arguments... arguments)
{
    char* const place = text.room(kLongestNumber);
    char* const end = std::to_chars(place, place + kLongestNumber, arguments...).ptr;
    text.advance(static_cast<std::size_t>(end - place));
}

// Where a number of a size has its sixth significant digit.
struct Scale
{
    double least;  // applies from here up
    double factor; // brings the sixth digit to the ones; exact as a double
    int decimals;
};

constexpr Scale kScales[] = {{1e5, 1e0, 0}, {1e4, 1e1, 1},  {1e3, 1e2, 2},  {1e2, 1e3, 3},  {1e1, 1e4, 4},
                             {1e0, 1e5, 5}, {1e-1, 1e6, 6}, {1e-2, 1e7, 7}, {1e-3, 1e8, 8}, {1e-4, 1e9, 9}};

constexpr int kDigits = 6;

// Six digits, the last `decimals` of which stand behind the decimal point, without the zeros at the end.
void appendFixed(TextBuffer& text, bool negative, std::uint32_t digits, int decimals)
{
    char six[kDigits];
    kPairs.write(six, digits / 10000);
    kPairs.write(six + 2, digits / 100 % 100);
    kPairs.write(six + 4, digits % 100);

    char* const place = text.room(kLongestNumber);
    char* end = place;
    if (negative)
        *end++ = '-';
    int used = 0;
    if (decimals >= kDigits) {
        std::memcpy(end, "0.000", 5);
        end += 2 + decimals - kDigits;
    } else {
        used = kDigits - decimals;
        std::memcpy(end, six, kDigits);
        end += used;
        *end++ = '.';
    }
    std::memcpy(end, six + used, static_cast<std::size_t>(kDigits - used));
    end += kDigits - used;
    if (decimals > 0)
        while (end[-1] == '0')
            --end;
    if (end[-1] == '.')
        --end;
    text.advance(static_cast<std::size_t>(end - place));
}

// Writes the numbers that a crowd's messages are full of several times faster than the general conversion.
// Its only inexact step is one rounded product; where that could decide the last digit it declines.
bool appendOrdinary(TextBuffer& text, double value)
{
    const double size = std::fabs(value);
    if (!(size >= 1e-4 && size < 999999.0))
        return false;
    const Scale* scale = kScales;
    while (size < scale->least)
        ++scale;
    const double scaled = size * scale->factor;
    const auto whole = static_cast<std::uint32_t>(scaled);
    const double rest = scaled - whole;
    constexpr double kDoubt = 1e-6; // the product is below 1e6: its error is below 1e-9
    const std::uint32_t digits = rest > 0.5 ? whole + 1 : whole;
    if (std::fabs(rest - 0.5) < kDoubt || digits == 1000000)
        return false;
    appendFixed(text, value < 0, digits, scale->decimals);
    return true;
}

} // namespace

void appendDecimal(TextBuffer& text, long value)
{
    const auto bits = static_cast<std::uint64_t>(value);
    appendDecimal(text, value < 0, value < 0 ? 0 - bits : bits);
}

void appendDecimal(TextBuffer& text, unsigned int value)
{
    appendDecimal(text, false, value);
}

void appendFloating(TextBuffer& text, double value)
{
    if (!appendOrdinary(text, value))
        appendConverted(text, value, std::chars_format::general, 6);
}

void appendPointer(TextBuffer& text, const void* pointer)
{
    if (pointer)
        text.append("0x");
    appendConverted(text, reinterpret_cast<std::uintptr_t>(pointer), 16);
}

} // namespace tarvox::crowd
