// The values of a sparse array: what is where, and how often values are moved.
#include "engine/elementList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <random>
#include <utility>
#include <vector>

namespace tvxhost::engine {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A number that is empty (0) when it was moved from; counts how often any is moved.
class Counted
{
public:
    Counted() = default;
    explicit Counted(int value) : m_value(value) {}
    Counted(Counted&& other) noexcept : m_value(std::exchange(other.m_value, 0)) { ++moves; }
    Counted& operator=(Counted&& other) noexcept
    {
        m_value = std::exchange(other.m_value, 0);
        ++moves;
        return *this;
    }
    explicit operator bool() const { return m_value != 0; }
    int value() const { return m_value; }

    static inline std::size_t moves = 0;

private:
    int m_value = 0;
};

class ElementListTest : public testing::Test
{
protected:
    void put(int index) { list.put(index, Counted(100 + index)); }
    std::vector<int> values() const
    {
        std::vector<int> found;
        for (const Counted& value : list.values())
            if (value)
                found.push_back(value.value() - 100);
        return found;
    }

    ElementList<Counted> list;
};

TEST_F(ElementListTest, KeepsValuesInTheOrderOfTheirIndices)
{
    for (const int index : {5, 9, 2, 7, 1, 0, 6})
        put(index);
    EXPECT_THAT(values(), ElementsAre(0, 1, 2, 5, 6, 7, 9));
    EXPECT_EQ(list.count(), 7U);
    ASSERT_TRUE(list.find(7));
    EXPECT_EQ(list.find(7)->value(), 107);
    EXPECT_FALSE(list.find(3));
    EXPECT_FALSE(list.find(10));
}

TEST_F(ElementListTest, AValueGivesWayToAnotherOfItsIndex)
{
    put(3);
    list.put(3, Counted(42));
    EXPECT_EQ(list.count(), 1U);
    EXPECT_EQ(list.find(3)->value(), 42);
}

TEST_F(ElementListTest, WhatIsTakenIsGone)
{
    for (const int index : {1, 2, 3, 4})
        put(index);
    EXPECT_EQ(list.take(2).value(), 102);
    EXPECT_FALSE(list.take(2));
    EXPECT_FALSE(list.find(2));
    EXPECT_THAT(values(), ElementsAre(1, 3, 4));
    EXPECT_TRUE(list.hasFreePlaces());
    list.dropFreePlaces();
    EXPECT_FALSE(list.hasFreePlaces());
    EXPECT_EQ(list.indexAt(1), 3);
    for (const int index : {1, 3, 4})
        EXPECT_TRUE(list.take(index));
    EXPECT_THAT(values(), IsEmpty());
    EXPECT_EQ(list.count(), 0U);
}

TEST_F(ElementListTest, AFreePlaceIsUsedAgain)
{
    for (const int index : {1, 4, 9})
        put(index);
    EXPECT_TRUE(list.take(4));
    put(7);
    EXPECT_EQ(list.values().size(), 3U);
    put(4);
    EXPECT_THAT(values(), ElementsAre(1, 4, 7, 9));
}

TEST_F(ElementListTest, IsAsAMapWhateverComesAndGoes)
{
    std::mt19937 random(5);
    std::vector<bool> expected(60, false);
    for (int step = 0; step < 20000; ++step) {
        const auto index = static_cast<std::size_t>(random() % expected.size());
        const int runs = static_cast<int>(random() % 8);
        // Runs of neighbours, ascending or descending, come or go.
        for (int i = 0; i < runs; ++i) {
            const std::size_t next = (random() % 2 == 0 ? index + static_cast<std::size_t>(i)
                                                        : index + 60 - static_cast<std::size_t>(i)) %
                                     expected.size();
            if (step % 3 == 0)
                EXPECT_EQ(static_cast<bool>(list.take(static_cast<int>(next))), expected[next]);
            else
                put(static_cast<int>(next));
            expected[next] = step % 3 != 0;
        }
        std::vector<int> indices;
        for (std::size_t i = 0; i < expected.size(); ++i)
            if (expected[i])
                indices.push_back(static_cast<int>(i));
        ASSERT_EQ(values(), indices) << step;
        ASSERT_EQ(list.count(), indices.size()) << step;
    }
}

/// Steps that grow hardly faster than their number: n log n, and what growing costs anyway.
std::size_t fewFor(std::size_t count)
{
    return static_cast<std::size_t>(4.0 * static_cast<double>(count) * std::log2(static_cast<double>(count)));
}

constexpr int kMany = 20000;

TEST_F(ElementListTest, ValuesComeInAscendingOrderInFewSteps)
{
    Counted::moves = 0;
    for (int index = 0; index < kMany; ++index)
        put(index);
    EXPECT_LT(Counted::moves, fewFor(kMany));
}

TEST_F(ElementListTest, ValuesComeInDescendingOrderInFewSteps)
{
    Counted::moves = 0;
    for (int index = kMany; index-- > 0;)
        put(index);
    EXPECT_LT(Counted::moves, fewFor(kMany));
    EXPECT_EQ(list.count(), static_cast<std::size_t>(kMany));
    EXPECT_LE(list.values().size(), 2U * kMany);
}

TEST_F(ElementListTest, ValuesComeBackBetweenOthersInFewSteps)
{
    for (int index = 0; index < kMany; ++index)
        put(index < kMany / 2 ? index : index + kMany);
    Counted::moves = 0;
    for (int index = kMany + kMany / 2; index-- > kMany / 2;)
        put(index);
    EXPECT_LT(Counted::moves, fewFor(2 * kMany));
}

TEST_F(ElementListTest, ValuesGoInFewSteps)
{
    for (int index = 0; index < kMany; ++index)
        put(index);
    Counted::moves = 0;
    for (int index = 0; index < kMany; ++index)
        list.take(index);
    EXPECT_LT(Counted::moves, fewFor(kMany));
}

} // namespace
} // namespace tvxhost::engine
