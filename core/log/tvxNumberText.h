// Numbers as text, as an output stream in its default state writes them.
#pragma once

#include "core/log/tvxTextBuffer.h"

namespace tarvox::crowd {

void appendDecimal(TextBuffer& text, long value);
void appendDecimal(TextBuffer& text, unsigned int value);

/// Six significant digits, as "%g" gives them in the C locale.
void appendFloating(TextBuffer& text, double value);

/// Hexadecimal in small letters behind "0x"; a null pointer is "0".
void appendPointer(TextBuffer& text, const void* pointer);

} // namespace tarvox::crowd
