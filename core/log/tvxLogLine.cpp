// The time stamp.
#include "core/log/tvxLogLine.h"

#include <algorithm>
#include <charconv>

namespace tarvox::crowd {

namespace {

char* putTwoDigits(char* place, std::int64_t value)
{
    constexpr std::ptrdiff_t kMostDigits = 19;
    if (value < 10)
        *place++ = '0';
    return std::to_chars(place, place + kMostDigits, value).ptr;
}

} // namespace

char* putTimeStamp(char* place, std::int64_t elapsedSeconds)
{
    const std::int64_t seconds = std::max<std::int64_t>(elapsedSeconds, 0);
    place = putTwoDigits(place, seconds / 3600);
    *place++ = ':';
    place = putTwoDigits(place, seconds / 60 % 60);
    *place++ = ':';
    place = putTwoDigits(place, seconds % 60);
    *place++ = ' ';
    return place;
}

} // namespace tarvox::crowd
