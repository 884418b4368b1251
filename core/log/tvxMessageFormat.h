// The printf-like language of MayaLogger::write.
#pragma once

#include "core/log/tvxTextBuffer.h"

#include <cstdarg>
#include <functional>

namespace tarvox::crowd {

/// Called for a conversion that does not exist.
/// @param isLong     whether an "l" stood between the "%" and the character
/// @param character  what came where the conversion should be
using UnknownConversion = std::function<void(bool isLong, char character)>;

/// Appends `format` to `text` with each conversion replaced by the next argument:
/// "%%", "%c", "%d", "%i", "%u", "%f" (narrowed to single precision), "%s" (a null string is "(null)"), "%p",
/// "%ld", "%li", "%lf" (double precision). Numbers are written as an output stream in its default state
/// writes them. There are no flags, widths or precisions. An unknown conversion consumes no argument and
/// leaves nothing; one that the end of the format cuts short is dropped.
void appendFormatted(TextBuffer& text, const char* format, std::va_list arguments,
                     const UnknownConversion& onUnknown);

} // namespace tarvox::crowd
