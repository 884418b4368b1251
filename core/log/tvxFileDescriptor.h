// The few system calls that the logger's outputs are made of. One implementation per platform.
#pragma once

#include <cstddef>

namespace tarvox::crowd::descriptor {

/// No open file.
inline constexpr int kNone = -1;
/// The process's standard output.
inline constexpr int kStandardOutput = 1;

/// Opens a file for writing, created or emptied, while others may read and write it.
/// @return the descriptor, or kNone when it cannot be opened
int openForWriting(const char* path) noexcept;

/// Makes one system call that writes up to `size` bytes; made again when a signal interrupts it.
/// @return the number of bytes written, which may be fewer, or a negative number on failure
std::ptrdiff_t writeSome(int file, const char* data, std::size_t size) noexcept;

/// Closes a descriptor, which is free afterwards in any case.
/// @return whether everything written has been accepted
bool close(int file) noexcept;

} // namespace tarvox::crowd::descriptor

#ifndef _WIN32
#include "core/log/tvxFileDescriptorPosix.h"
#endif
