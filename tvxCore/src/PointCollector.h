// Collects some of the points of a set.
#pragma once

#include "Points.h"

#include <array>
#include <utility>

namespace tarvox::core {

/// Takes points one by one, wanted or not. No branch hangs on which are wanted: it could not be predicted,
/// and would cost more than all the rest.
class PointCollector
{
public:
    explicit PointCollector(std::size_t atMost) { m_points.reserve(atMost); }

    void add(Point p, bool wanted)
    {
        m_block[m_count] = p;
        m_count += wanted;
        if (m_count == m_block.size())
            flush();
    }

    /// The wanted points in the order they came; nothing is left here.
    Points take()
    {
        flush();
        return std::move(m_points);
    }

private:
    void flush()
    {
        m_points.insert(m_points.end(), m_block.data(), m_block.data() + m_count);
        m_count = 0;
    }

    Points m_points;
    std::array<Point, 256> m_block;
    std::size_t m_count = 0;
};

} // namespace tarvox::core
