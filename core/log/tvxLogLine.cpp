// Prefix, time stamp and indentation.
#include "core/log/tvxLogLine.h"

#include "core/log/tvxNumberText.h"

#include <tvxCore/Severity.h>

#include <algorithm>

namespace tarvox::crowd {

namespace {

void appendTwoDigits(TextBuffer& line, std::int64_t value)
{
    if (value < 10)
        line.append('0');
    appendDecimal(line, static_cast<long>(value));
}

} // namespace

const char* linePrefix(int severity)
{
    switch (severity) {
    case core::kCritical:
        return "[TarvoxCrowd::CRITICAL]\t";
    case core::kError:
        return "[TarvoxCrowd::ERROR]\t";
    case core::kWarning:
        return "[TarvoxCrowd::WARNING]\t";
    case core::kInfo:
        return "[TarvoxCrowd::INFO]\t";
    case core::kDebug:
        return "[TarvoxCrowd::DEBUG]\t";
    default:
        return "";
    }
}

void appendTimeStamp(TextBuffer& line, std::int64_t elapsedSeconds)
{
    const std::int64_t seconds = std::max<std::int64_t>(elapsedSeconds, 0);
    appendTwoDigits(line, seconds / 3600);
    line.append(':');
    appendTwoDigits(line, seconds / 60 % 60);
    line.append(':');
    appendTwoDigits(line, seconds % 60);
    line.append(' ');
}

void appendIndentation(TextBuffer& line, int levels)
{
    line.append(2 * static_cast<std::size_t>(levels), ' ');
}

} // namespace tarvox::crowd
