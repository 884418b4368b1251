// Text under construction.
#include "core/log/tvxTextBuffer.h"

#include <algorithm>

namespace tarvox::crowd {

void TextBuffer::enlarge(std::size_t size)
{
    constexpr std::size_t kSmallest = 256;
    const std::size_t capacity = std::max({kSmallest, 2 * m_capacity, m_size + size + 1});
    std::unique_ptr<char[]> characters(new char[capacity]);
    std::copy_n(m_characters.get(), m_size, characters.get());
    m_characters = std::move(characters);
    m_capacity = capacity;
}

} // namespace tarvox::crowd
