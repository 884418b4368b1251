// The list of pointers that keeps its first ones in itself, beside std::vector.
#include "engine/pointerList.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <vector>

namespace tvxhost::engine {
namespace {

using List = PointerList<int, 2>;

std::array<int, 100> g_numbers;

List listOf(std::size_t count)
{
    List list;
    for (std::size_t i = 0; i < count; ++i)
        list.push_back(&g_numbers[i]);
    return list;
}

std::vector<int*> vectorOf(const List& list)
{
    return {list.begin(), list.end()};
}

TEST(PointerList, IsEmptyAtFirst)
{
    const List list{};
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(list.size(), 0u);
    EXPECT_EQ(list.begin(), list.end());
}

TEST(PointerList, KeepsTheOrderBeyondItsOwnPlaces)
{
    const List list = listOf(5);
    const std::vector<int*> expected = {&g_numbers[0], &g_numbers[1], &g_numbers[2], &g_numbers[3],
                                        &g_numbers[4]};
    EXPECT_EQ(vectorOf(list), expected);
    EXPECT_EQ(list.front(), &g_numbers[0]);
    EXPECT_EQ(list.back(), &g_numbers[4]);
    EXPECT_EQ(list[3], &g_numbers[3]);
    EXPECT_EQ(*list.rbegin(), &g_numbers[4]);
}

TEST(PointerList, ACopyIsItsOwn)
{
    for (const std::size_t count : {0u, 1u, 2u, 3u, 50u}) {
        List original = listOf(count);
        List copy = original;
        EXPECT_TRUE(copy == original) << count;
        original.push_back(&g_numbers[99]);
        EXPECT_EQ(copy.size(), count);
        copy = original;
        EXPECT_TRUE(copy == original) << count;
    }
}

TEST(PointerList, WhatWasMovedFromIsEmptyAndOfUse)
{
    for (const std::size_t count : {0u, 1u, 2u, 3u, 50u}) {
        List original = listOf(count);
        List moved = std::move(original);
        EXPECT_EQ(vectorOf(moved), vectorOf(listOf(count)));
        EXPECT_TRUE(original.empty());
        original.push_back(&g_numbers[7]);
        EXPECT_EQ(vectorOf(original), std::vector<int*>{&g_numbers[7]});
        moved = std::move(original);
        EXPECT_EQ(vectorOf(moved), std::vector<int*>{&g_numbers[7]});
    }
}

TEST(PointerList, IsNotHarmedByBeingGivenItself)
{
    for (const std::size_t count : {1u, 3u}) {
        List list = listOf(count);
        const List& self = list;
        list = self;
        EXPECT_EQ(vectorOf(list), vectorOf(listOf(count)));
    }
}

TEST(PointerList, DoesAsAVectorDoesUnderRandomEdits)
{
    std::mt19937 random(7);
    List list;
    std::vector<int*> vector;
    for (int step = 0; step < 20'000; ++step) {
        int* const pointer = &g_numbers[random() % g_numbers.size()];
        const std::size_t place = vector.empty() ? 0 : random() % vector.size();
        switch (random() % 5) {
        case 0:
            list.push_back(pointer);
            vector.push_back(pointer);
            break;
        case 1:
            list.insert(list.begin() + place, pointer);
            vector.insert(vector.begin() + static_cast<std::ptrdiff_t>(place), pointer);
            break;
        case 2:
            if (!vector.empty()) {
                list.erase(list.begin() + place);
                vector.erase(vector.begin() + static_cast<std::ptrdiff_t>(place));
            }
            break;
        case 3:
            if (!vector.empty()) {
                list.eraseUnordered(place);
                vector[place] = vector.back();
                vector.pop_back();
            }
            break;
        default: {
            const std::size_t count = std::min<std::size_t>(vector.size(), random() % 3);
            list.dropLast(count);
            vector.resize(vector.size() - count);
        }
        }
        ASSERT_EQ(vectorOf(list), vector) << "step " << step;
    }
}

} // namespace
} // namespace tvxhost::engine
