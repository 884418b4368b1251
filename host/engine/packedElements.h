// PackedElements: the plain values of a large array attribute side by side, without a cell for each.
#pragma once

#include "data.h"

#include <cstdint>
#include <vector>

namespace tvxhost::engine {

/// Values by logical index: blocks of numbers of one size, or data objects when that size is 0. Appending in
/// ascending order is cheap, which is how files and arrays come.
class PackedElements
{
public:
    explicit PackedElements(std::size_t bytesEach) : m_stride(bytesEach) {}

    bool has(int index) const { return position(index) >= 0; }
    /// Null when there is no such element. Valid until an element is added or removed.
    const std::uint8_t* bytes(int index) const;
    const Ref<Data>* data(int index) const;
    /// Makes the element when it is missing (`fresh` tells so; its bytes are then zero).
    std::uint8_t* makeBytes(int index, bool& fresh);
    Ref<Data>* makeData(int index);
    bool remove(int index);

    /// Ascending.
    const std::vector<int>& indices() const { return m_indices; }

private:
    /// Where the element stands, or -1 - the place where it would go.
    std::ptrdiff_t position(int index) const;
    std::size_t make(int index, bool& fresh);

    std::size_t m_stride;
    std::vector<int> m_indices;
    std::vector<std::uint8_t> m_bytes;
    std::vector<Ref<Data>> m_data;
};

} // namespace tvxhost::engine
