// UTF-8 and wide characters (one per code point).
#include "utf8.h"

namespace tvxhost::api {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isCodePoint(char32_t c)
{
    return c < 0xD800 || (c > 0xDFFF && c <= 0x10FFFF);
}

unsigned char byteAt(const std::string& text, std::size_t i)
{
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0;
}

/// Bytes of the sequence that a first byte announces; 0 when it cannot be a first byte.
std::size_t sequenceLength(unsigned char first)
{
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first <= 0xDF)
        return 2;
    if (first >= 0xE0 && first <= 0xEF)
        return 3;
    return first >= 0xF0 && first <= 0xF4 ? 4 : 0;
}

/// The code point at `i`, which is moved behind it.
char32_t decode(const std::string& text, std::size_t& i)
{
    static constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const unsigned char first = byteAt(text, i);
    const std::size_t length = sequenceLength(first);
    const std::size_t start = i++;
    if (length <= 1)
        return length == 1 ? first : kReplacement;
    char32_t c = first & (0xFFu >> (length + 1));
    for (std::size_t k = 1; k < length; ++k) {
        const unsigned char next = byteAt(text, start + k);
        if ((next & 0xC0u) != 0x80u)
            return kReplacement;
        c = (c << 6) | (next & 0x3Fu);
    }
    if (c < kSmallest[length] || !isCodePoint(c))
        return kReplacement;
    i = start + length;
    return c;
}

void encode(std::string& text, char32_t c)
{
    const auto add = [&text](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (c < 0x80) {
        add(c);
    } else if (c < 0x800) {
        add(0xC0 | (c >> 6));
        add(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        add(0xE0 | (c >> 12));
        add(0x80 | ((c >> 6) & 0x3F));
        add(0x80 | (c & 0x3F));
    } else {
        add(0xF0 | (c >> 18));
        add(0x80 | ((c >> 12) & 0x3F));
        add(0x80 | ((c >> 6) & 0x3F));
        add(0x80 | (c & 0x3F));
    }
}

} // namespace

std::wstring toWide(const std::string& utf8)
{
    std::wstring wide;
    wide.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();)
        wide += static_cast<wchar_t>(decode(utf8, i));
    return wide;
}

std::string toUtf8(const std::wstring& wide)
{
    std::string utf8;
    utf8.reserve(wide.size());
    for (const wchar_t w : wide) {
        const auto c = static_cast<char32_t>(w);
        encode(utf8, isCodePoint(c) ? c : kReplacement);
    }
    return utf8;
}

} // namespace tvxhost::api
