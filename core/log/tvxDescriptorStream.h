// Output streams over a file descriptor that hold nothing back.
#pragma once

#include "core/log/tvxFileDescriptor.h"

#include <cstddef>
#include <ostream>
#include <streambuf>
#include <string>

namespace tarvox::crowd {

/// Writes what it is given at once: one system call per sputn, more only when the system takes less than all.
class DescriptorBuffer : public std::streambuf
{
public:
    /// @param file  an open descriptor, not owned, or descriptor::kNone, to which nothing can be written
    explicit DescriptorBuffer(int file) : m_file(file) {}

    /// Writes all of a text, or as much as the system takes.
    /// @return the number of characters written
    std::streamsize writeAll(const char* text, std::streamsize size)
    {
        std::streamsize done = 0;
        while (done < size) {
            const std::ptrdiff_t written =
                descriptor::writeSome(m_file, text + done, static_cast<std::size_t>(size - done));
            if (written <= 0)
                break;
            done += written;
        }
        return done;
    }

    int file() const { return m_file; }
    void setFile(int file) { m_file = file; }

protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* text, std::streamsize size) override;

private:
    int m_file;
};

/// The process's standard output. What std::cout holds is written first, so that the order of lines is kept.
class StandardOutputStream : public std::ostream
{
public:
    StandardOutputStream();

private:
    DescriptorBuffer m_buffer{descriptor::kStandardOutput};
};

/// A log file. A failed write sets the bad bit, a failed close the fail bit.
class LogFileStream : public std::ostream
{
public:
    /// Creates or empties the file; when that fails the stream is not open and has its fail bit set.
    explicit LogFileStream(const std::string& path);
    ~LogFileStream() override;

    /// Writes a text as write() and flush() do, without what they cost beside the system call. Stands here
    /// because behind a system call each return to a caller is a slow one.
    void writeAtOnce(const char* text, std::size_t size)
    {
        const auto count = static_cast<std::streamsize>(size);
        if (good() && m_buffer.writeAll(text, count) != count)
            setstate(badbit);
    }

    bool isOpen() const;
    /// Closes the file; does nothing when it is not open.
    void close();

private:
    DescriptorBuffer m_buffer{descriptor::kNone};
};

} // namespace tarvox::crowd
