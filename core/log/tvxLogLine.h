// What stands before the text on a line of the log.
#pragma once

#include "core/log/tvxTextBuffer.h"

#include <cstdint>

namespace tarvox::crowd {

/// The prefix of a severity code with its tab, for example "[TarvoxCrowd::ERROR]\t"; "" for a code outside 0
/// to 4.
const char* linePrefix(int severity);

/// Appends "hh:mm:ss ": at least two digits each, the hours not wrapped at 24. A time before the start counts
/// as the start.
/// @param elapsedSeconds  since the logger's start
void appendTimeStamp(TextBuffer& line, std::int64_t elapsedSeconds);

/// Two blanks for each level of indentation.
void appendIndentation(TextBuffer& line, int levels);

} // namespace tarvox::crowd
