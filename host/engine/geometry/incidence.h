// Incidence: which items belong to which key, in two flat lists.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tvxhost::engine {

/// Whole numbers side by side in a larger list, lent: valid as long as that list is.
class IndexSpan
{
public:
    using value_type = std::int32_t;
    using const_iterator = const std::int32_t*;

    IndexSpan() = default;
    IndexSpan(const std::int32_t* begin, const std::int32_t* end) : m_begin(begin), m_end(end) {}

    const std::int32_t* begin() const { return m_begin; }
    const std::int32_t* end() const { return m_end; }
    std::size_t size() const { return static_cast<std::size_t>(m_end - m_begin); }
    bool empty() const { return m_begin == m_end; }
    std::int32_t operator[](std::size_t i) const { return m_begin[i]; }

private:
    const std::int32_t* m_begin = nullptr;
    const std::int32_t* m_end = nullptr;
};

/// For each of the keys 0 to n - 1 a row of items: four bytes for each key and each item.
class Incidence
{
public:
    /// `forEachPair(use)` calls `use(key, item)` for every pair. It is run twice and has to name the same
    /// pairs in the same order; the items of a key keep that order.
    template <class ForEachPair>
    Incidence(std::size_t keys, const ForEachPair& forEachPair) : m_ends(keys, 0)
    {
        forEachPair([this](std::int32_t key, std::int32_t) { ++m_ends[static_cast<std::size_t>(key)]; });
        std::uint32_t total = 0;
        for (std::uint32_t& end : m_ends) {
            const std::uint32_t count = end;
            end = total;
            total += count;
        }
        m_items.resize(total);
        // What is the beginning of each row now has become its end when the row is full.
        forEachPair([this](std::int32_t key, std::int32_t item) {
            m_items[m_ends[static_cast<std::size_t>(key)]++] = item;
        });
    }

    std::size_t keys() const { return m_ends.size(); }
    /// Empty for a key out of range.
    IndexSpan operator[](std::int32_t key) const
    {
        const auto i = static_cast<std::size_t>(key);
        if (key < 0 || i >= m_ends.size())
            return {};
        const std::size_t begin = i == 0 ? 0 : m_ends[i - 1];
        return {m_items.data() + begin, m_items.data() + m_ends[i]};
    }

private:
    std::vector<std::uint32_t> m_ends; ///< by key: past its last item
    std::vector<std::int32_t> m_items;
};

} // namespace tvxhost::engine
