// PointerList: a list of pointers whose first few lie in the list itself.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>

namespace tvxhost::engine {

/// Pointers in order, which it does not own. Up to `inPlace` of them need no memory of their own: most nodes
/// have one parent and most paths are short, and each further block is one more place to fetch from memory.
/// Iterators are those of an array; every change makes them invalid.
template <class T, std::uint32_t inPlace>
class PointerList
{
public:
    using value_type = T*;
    using const_iterator = T* const*;
    using const_reverse_iterator = std::reverse_iterator<const_iterator>;

    PointerList() = default;
    PointerList(const PointerList& other) { append(other); }
    PointerList(PointerList&& other) noexcept { take(other); }
    ~PointerList() { freeBlock(); }
    PointerList& operator=(const PointerList& other)
    {
        if (this != &other) {
            clear();
            append(other);
        }
        return *this;
    }
    PointerList& operator=(PointerList&& other) noexcept
    {
        if (this != &other) {
            freeBlock();
            take(other);
        }
        return *this;
    }

    const_iterator begin() const { return isInPlace() ? m_here : m_block; }
    const_iterator end() const { return begin() + m_size; }
    const_reverse_iterator rbegin() const { return const_reverse_iterator(end()); }
    const_reverse_iterator rend() const { return const_reverse_iterator(begin()); }

    bool empty() const { return m_size == 0; }
    std::size_t size() const { return m_size; }
    T* operator[](std::size_t i) const { return begin()[i]; }
    T* front() const { return *begin(); }
    T* back() const { return begin()[m_size - 1]; }

    void push_back(T* pointer)
    {
        if (m_size == m_capacity)
            grow(m_size + 1);
        data()[m_size++] = pointer;
    }
    void insert(const_iterator before, T* pointer)
    {
        const auto place = before - begin();
        push_back(pointer);
        std::rotate(data() + place, data() + m_size - 1, data() + m_size);
    }
    /// Takes one away and puts the last in its place.
    void eraseUnordered(std::size_t i)
    {
        data()[i] = back();
        --m_size;
    }
    void erase(const_iterator at)
    {
        std::copy(at + 1, end(), data() + (at - begin()));
        --m_size;
    }
    /// Takes the last `count` away, of which there must be as many.
    void dropLast(std::size_t count) { m_size -= static_cast<std::uint32_t>(count); }
    void clear() { m_size = 0; }

    friend bool operator==(const PointerList& a, const PointerList& b)
    {
        return std::equal(a.begin(), a.end(), b.begin(), b.end());
    }

private:
    bool isInPlace() const { return m_capacity == inPlace; }
    T** data() { return isInPlace() ? m_here : m_block; }

    void append(const PointerList& other)
    {
        if (other.m_size > m_capacity)
            grow(other.m_size);
        std::copy(other.begin(), other.end(), data());
        m_size = other.m_size;
    }

    void grow(std::uint32_t needed)
    {
        const std::uint32_t capacity = std::max(needed, 2 * m_capacity);
        T** const block = new T*[capacity];
        std::copy(begin(), end(), block);
        freeBlock();
        m_block = block;
        m_capacity = capacity;
    }

    void freeBlock()
    {
        if (!isInPlace())
            delete[] m_block;
    }

    /// Leaves the other one empty. What was here is forgotten.
    void take(PointerList& other)
    {
        m_size = std::exchange(other.m_size, 0);
        m_capacity = std::exchange(other.m_capacity, inPlace);
        if (isInPlace())
            std::copy(other.m_here, other.m_here + m_size, m_here);
        else
            m_block = other.m_block;
    }

    union {
        T* m_here[inPlace] = {};
        T** m_block;
    };
    std::uint32_t m_size = 0;
    std::uint32_t m_capacity = inPlace; ///< that of the list itself: no block
};

} // namespace tvxhost::engine
