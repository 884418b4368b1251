// PackedElements: see packedElements.h.
#include "packedElements.h"

#include <algorithm>

namespace tvxhost::engine {

std::ptrdiff_t PackedElements::position(int index) const
{
    const auto count = static_cast<std::ptrdiff_t>(m_indices.size());
    // Most arrays have no gaps: then the index is the place.
    if (index >= 0 && index < count && m_indices[static_cast<std::size_t>(index)] == index)
        return index;
    if (count == 0 || m_indices.back() < index)
        return -1 - count;
    const auto place = std::lower_bound(m_indices.begin(), m_indices.end(), index);
    const std::ptrdiff_t at = place - m_indices.begin();
    return *place == index ? at : -1 - at;
}

const std::uint8_t* PackedElements::bytes(int index) const
{
    const std::ptrdiff_t at = position(index);
    return at < 0 || m_stride == 0 ? nullptr : m_bytes.data() + static_cast<std::size_t>(at) * m_stride;
}

const Ref<Data>* PackedElements::data(int index) const
{
    const std::ptrdiff_t at = position(index);
    return at < 0 || m_stride != 0 ? nullptr : &m_data[static_cast<std::size_t>(at)];
}

std::size_t PackedElements::make(int index, bool& fresh)
{
    const std::ptrdiff_t at = position(index);
    fresh = at < 0;
    if (!fresh)
        return static_cast<std::size_t>(at);
    const std::ptrdiff_t place = -1 - at;
    m_indices.insert(m_indices.begin() + place, index);
    const auto stride = static_cast<std::ptrdiff_t>(m_stride);
    if (m_stride)
        m_bytes.insert(m_bytes.begin() + place * stride, m_stride, 0);
    else
        m_data.insert(m_data.begin() + place, Ref<Data>());
    return static_cast<std::size_t>(place);
}

std::uint8_t* PackedElements::makeBytes(int index, bool& fresh)
{
    // The room may move while the element is made.
    const std::size_t place = make(index, fresh);
    return m_bytes.data() + place * m_stride;
}

Ref<Data>* PackedElements::makeData(int index)
{
    bool fresh = false;
    const std::size_t place = make(index, fresh);
    return m_data.data() + place;
}

bool PackedElements::remove(int index)
{
    const std::ptrdiff_t at = position(index);
    if (at < 0)
        return false;
    m_indices.erase(m_indices.begin() + at);
    const auto stride = static_cast<std::ptrdiff_t>(m_stride);
    if (m_stride)
        m_bytes.erase(m_bytes.begin() + at * stride, m_bytes.begin() + (at + 1) * stride);
    else
        m_data.erase(m_data.begin() + at);
    return true;
}

} // namespace tvxhost::engine
