// Text under construction, in storage that is reused from message to message.
#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

namespace tarvox::crowd {

/// A growing text. It keeps its storage when it is cleared, and everything that appends is inline: a message
/// is built of many small pieces.
class TextBuffer
{
public:
    std::size_t size() const { return m_size; }
    const char* data() const { return m_characters.get(); }

    /// The text with a zero behind it; valid until the next change.
    const char* c_str()
    {
        *room(1) = '\0';
        return data();
    }

    void clear() { m_size = 0; }

    void append(char character)
    {
        *room(1) = character;
        ++m_size;
    }

    void append(const char* text, std::size_t size)
    {
        std::memcpy(room(size), text, size);
        m_size += size;
    }

    void append(std::string_view text) { append(text.data(), text.size()); }

    /// Room for `size` characters, and one more, behind the text; they become part of it by advance().
    char* room(std::size_t size)
    {
        if (m_capacity - m_size <= size)
            enlarge(size);
        return m_characters.get() + m_size;
    }

    /// Takes the first `size` characters written into room() into the text.
    void advance(std::size_t size) { m_size += size; }

    void swap(TextBuffer& other) noexcept
    {
        m_characters.swap(other.m_characters);
        std::swap(m_size, other.m_size);
        std::swap(m_capacity, other.m_capacity);
    }

private:
    void enlarge(std::size_t size);

    std::unique_ptr<char[]> m_characters;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
};

/// Lends a long-lived buffer, emptied, for as long as this lives. A nested borrower of the same buffer finds
/// it taken and gets storage of its own, so that it cannot spoil the outer one's text.
class BorrowedText
{
public:
    explicit BorrowedText(TextBuffer& home) : m_home(home)
    {
        text.swap(m_home);
        text.clear();
    }

    ~BorrowedText() { text.swap(m_home); }

    BorrowedText(const BorrowedText&) = delete;
    BorrowedText& operator=(const BorrowedText&) = delete;

    TextBuffer text;

private:
    TextBuffer& m_home;
};

} // namespace tarvox::crowd
