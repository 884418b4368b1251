// What stands before the text on a line of the log. What every line has is inline: beside a system call of a
// few hundred nanoseconds, calls count.
#pragma once

#include "core/log/tvxTextBuffer.h"

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

/// Appends the prefix of a severity code with its tab; nothing for a code outside 0 to 4.
inline void appendLinePrefix(TextBuffer& line, int severity)
{
    if (severity < core::kCritical || severity > core::kDebug)
        return;
    const LinePrefix& prefix = kLinePrefixes[severity];
    std::memcpy(line.room(sizeof prefix.text), prefix.text, sizeof prefix.text);
    line.advance(prefix.size);
}

/// Appends "hh:mm:ss ": at least two digits each, the hours not wrapped at 24. A time before the start counts
/// as the start.
/// @param elapsedSeconds  since the logger's start
void appendTimeStamp(TextBuffer& line, std::int64_t elapsedSeconds);

/// Appends two blanks for each level of indentation.
inline void appendIndentation(TextBuffer& line, int levels)
{
    if (levels > 0)
        line.append(2 * static_cast<std::size_t>(levels), ' ');
}

} // namespace tarvox::crowd
