// The time stamp.
#include "core/log/tvxLogLine.h"

#include "core/log/tvxNumberText.h"

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

} // namespace tarvox::crowd
