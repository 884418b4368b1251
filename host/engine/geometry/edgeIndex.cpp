// EdgeIndex: see edgeIndex.h.
#include "edgeIndex.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

constexpr std::size_t kFirstSize = 64;
constexpr std::int32_t kFree = -1;

/// The two ends as one number whose bits are spread over the whole word.
std::size_t hashOf(std::int32_t a, std::int32_t b)
{
    const auto low = static_cast<std::uint32_t>(std::min(a, b));
    const auto high = static_cast<std::uint32_t>(std::max(a, b));
    const std::uint64_t key = (std::uint64_t{low} << 32) | high;
    const std::uint64_t spread = (key ^ (key >> 29)) * 0x9e3779b97f4a7c15ULL;
    return static_cast<std::size_t>(spread ^ (spread >> 32));
}

} // namespace

std::int32_t EdgeIndex::corner(std::int32_t from, std::int32_t to)
{
    if (m_slots.size() < 2 * (m_edges.size() + 1))
        grow();
    std::int32_t& slot = m_slots[placeOf(from, to)];
    if (slot == kFree) {
        slot = static_cast<std::int32_t>(m_edges.size());
        m_edges.push_back({from, to, 1});
    }
    return m_edges[static_cast<std::size_t>(slot)].from == from ? slot : -slot - 1;
}

std::size_t EdgeIndex::placeOf(std::int32_t from, std::int32_t to) const
{
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t place = hashOf(from, to) & mask;; place = (place + 1) & mask) {
        if (m_slots[place] == kFree)
            return place;
        const MeshData::Edge& edge = m_edges[static_cast<std::size_t>(m_slots[place])];
        if ((edge.from == from && edge.to == to) || (edge.from == to && edge.to == from))
            return place;
    }
}

void EdgeIndex::grow()
{
    m_slots.assign(std::max(kFirstSize, m_slots.size() * 2), kFree);
    for (std::size_t i = 0; i < m_edges.size(); ++i)
        m_slots[placeOf(m_edges[i].from, m_edges[i].to)] = static_cast<std::int32_t>(i);
}

} // namespace tvxhost::engine
