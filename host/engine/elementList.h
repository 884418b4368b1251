// ElementList: the values of a sparse array in ascending order of their indices, quick at both ends.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace tvxhost::engine {

/// Values with an index each, of a type that is empty when it was moved from, such as std::unique_ptr. Places
/// of values that have gone are kept for a while, and room is made where values come in descending order (an
/// undo of many removals): n values that come in ascending or in descending order, or that go in any order,
/// take n log n steps at most.
template <class Value>
class ElementList
{
public:
    /// Ascending by index; empty where a value has gone or may come.
    const std::vector<Value>& values() const { return m_values; }
    /// The places themselves, for those who use no indices.
    std::vector<Value>& places() { return m_values; }
    /// How many values there are.
    std::size_t count() const { return m_values.size() - m_free; }
    bool hasFreePlaces() const { return m_free > 0; }
    /// The index of the value at a place.
    int indexAt(std::size_t place) const { return m_indices[place]; }

    /// The value of an index; null when there is none.
    const Value* find(int index) const
    {
        const std::size_t place = placeOf(index);
        return isPlaceOf(place, index) && m_values[place] ? &m_values[place] : nullptr;
    }

    /// Puts a value in; one that has the index gives way.
    Value& put(int index, Value value)
    {
        std::size_t place = placeOf(index);
        if (!isPlaceOf(place, index))
            place = makePlace(place, index);
        m_free -= m_values[place] ? 0 : 1;
        return m_values[place] = std::move(value);
    }

    /// Takes a value out; an empty one when there is none.
    Value take(int index)
    {
        const std::size_t place = placeOf(index);
        if (!isPlaceOf(place, index) || !m_values[place])
            return {};
        Value value = std::move(m_values[place]);
        ++m_free;
        // Dropping each place at once would move all that follow, again and again.
        if (m_free * 2 > m_values.size())
            dropFreePlaces();
        return value;
    }

    void dropFreePlaces()
    {
        std::size_t kept = 0;
        for (std::size_t i = 0; i < m_values.size(); ++i) {
            if (!m_values[i])
                continue;
            m_indices[kept] = m_indices[i];
            if (kept != i)
                m_values[kept] = std::move(m_values[i]);
            ++kept;
        }
        m_indices.resize(kept);
        m_values.resize(kept);
        m_free = 0;
    }

private:
    static constexpr int kNone = -1;

    /// Where an index is, or where it would go.
    std::size_t placeOf(int index) const
    {
        // Appending is the common case.
        if (m_indices.empty() || m_indices.back() < index)
            return m_indices.size();
        return static_cast<std::size_t>(std::lower_bound(m_indices.begin(), m_indices.end(), index) -
                                        m_indices.begin());
    }

    bool isPlaceOf(std::size_t place, int index) const
    {
        return place < m_indices.size() && m_indices[place] == index;
    }

    /// A free place right before another one.
    std::size_t makePlace(std::size_t before, int index)
    {
        const bool descends = before < m_indices.size() && m_indices[before] == m_lastMade;
        m_lastMade = index;
        if (before > 0 && !m_values[before - 1]) {
            m_indices[before - 1] = index;
            return before - 1;
        }
        m_room = descends ? std::min(2 * m_room + 1, count()) : 0;
        insertPlaces(before, m_room + 1);
        m_indices[before + m_room] = index;
        return before + m_room;
    }

    /// Free places have the index of the value before them, which is found first.
    void insertPlaces(std::size_t before, std::size_t added)
    {
        const auto offset = static_cast<std::ptrdiff_t>(before);
        m_indices.insert(m_indices.begin() + offset, added, before > 0 ? m_indices[before - 1] : kNone);
        const auto size = static_cast<std::ptrdiff_t>(m_values.size());
        m_values.resize(m_values.size() + added);
        std::move_backward(m_values.begin() + offset, m_values.begin() + size, m_values.end());
        m_free += added;
    }

    std::vector<int> m_indices;
    std::vector<Value> m_values;
    std::size_t m_free = 0;
    std::size_t m_room = 0; ///< how many further places were made last
    int m_lastMade = kNone; ///< the index of the last place that was made
};

} // namespace tvxhost::engine
