// What stands before the text on a line of the log. Each part is put where the line goes on, in room made for
// all of it, and gives the place behind itself. What every line has is inline: beside a system call of a few
// hundred nanoseconds, calls count.
#pragma once

#include <tvxCore/Severity.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace tarvox::crowd {

/// The prefix of a severity, in a fixed length that is copied without a call.
struct LinePrefix
{
    template <std::size_t N>
    constexpr LinePrefix(const char (&literal)[N]) : text(), size(N - 1)
    {
        for (std::size_t i = 0; i < size; ++i)
            text[i] = literal[i];
    }

    char text[32];
    std::size_t size; ///< characters of the text that count
};

inline constexpr LinePrefix kLinePrefixes[] = {"[TarvoxCrowd::CRITICAL]\t", "[TarvoxCrowd::ERROR]\t",
                                               "[TarvoxCrowd::WARNING]\t", "[TarvoxCrowd::INFO]\t",
                                               "[TarvoxCrowd::DEBUG]\t"};

/// Characters that a time stamp and a blank behind it take at most.
inline constexpr std::size_t kTimeStampRoom = 24;

/// Room for everything on a line: prefix, time stamp, indentation, a text of `length` characters, and one
/// character that ends it.
inline std::size_t lineRoom(int indentation, std::size_t length)
{
    return sizeof LinePrefix::text + kTimeStampRoom + 2 * static_cast<std::size_t>(indentation) + length + 1;
}

/// Puts the prefix of a severity code with its tab; nothing for a code outside 0 to 4.
inline char* putLinePrefix(char* place, int severity)
{
    if (severity < core::kCritical || severity > core::kDebug)
        return place;
    const LinePrefix& prefix = kLinePrefixes[severity];
    std::memcpy(place, prefix.text, sizeof prefix.text);
    return place + prefix.size;
}

/// Puts "hh:mm:ss ": at least two digits each, the hours not wrapped at 24. A time before the start counts as
/// the start.
/// @param elapsedSeconds  since the logger's start
char* putTimeStamp(char* place, std::int64_t elapsedSeconds);

/// Puts two blanks for each level of indentation, which is not negative.
inline char* putIndentation(char* place, int levels)
{
    if (levels == 0)
        return place;
    const std::size_t blanks = 2 * static_cast<std::size_t>(levels);
    std::memset(place, ' ', blanks);
    return place + blanks;
}

} // namespace tarvox::crowd
