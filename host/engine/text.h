// Text: the engine's string slot. The API's MString is laid out the same, so that a handle can lend a
// reference to a stored string.
#pragma once

#include <string>
#include <utility>

namespace tvxhost::engine {

/// An owned string of two words; no characters are allocated while it is empty. UTF-8.
class Text
{
public:
    Text() = default;
    Text(std::string text) : m_text(text.empty() ? nullptr : new std::string(std::move(text))) {}
    Text(const Text& other) : m_text(other.m_text ? new std::string(*other.m_text) : nullptr) {}
    Text(Text&& other) noexcept : m_text(std::exchange(other.m_text, nullptr)) {}
    ~Text() { delete m_text; }
    Text& operator=(Text other) noexcept
    {
        std::swap(m_text, other.m_text);
        return *this;
    }

    const std::string& str() const;
    /// The string to write to; made when there is none yet.
    std::string& edit();
    bool empty() const { return !m_text || m_text->empty(); }
    friend bool operator==(const Text& a, const Text& b) { return a.str() == b.str(); }

private:
    std::string* m_text = nullptr;
    void* m_reserved = nullptr;
};
static_assert(sizeof(Text) == 16);

} // namespace tvxhost::engine
