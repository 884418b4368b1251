// Unbuffered output.
#include "core/log/tvxDescriptorStream.h"

#include <iostream>

namespace tarvox::crowd {

DescriptorBuffer::int_type DescriptorBuffer::overflow(int_type character)
{
    if (traits_type::eq_int_type(character, traits_type::eof()))
        return traits_type::not_eof(character);
    const char text = traits_type::to_char_type(character);
    return writeAll(&text, 1) == 1 ? character : traits_type::eof();
}

std::streamsize DescriptorBuffer::xsputn(const char* text, std::streamsize size)
{
    return writeAll(text, size);
}

StandardOutputStream::StandardOutputStream() : std::ostream(nullptr)
{
    rdbuf(&m_buffer);
    tie(&std::cout);
}

LogFileStream::LogFileStream(const std::string& path) : std::ostream(nullptr)
{
    m_buffer.setFile(descriptor::openForWriting(path.c_str()));
    rdbuf(&m_buffer);
    if (!isOpen())
        setstate(failbit);
}

LogFileStream::~LogFileStream()
{
    close();
}

bool LogFileStream::isOpen() const
{
    return m_buffer.file() != descriptor::kNone;
}

void LogFileStream::close()
{
    if (!isOpen())
        return;
    const bool closed = descriptor::close(m_buffer.file());
    m_buffer.setFile(descriptor::kNone);
    if (!closed)
        setstate(failbit);
}

} // namespace tarvox::crowd
