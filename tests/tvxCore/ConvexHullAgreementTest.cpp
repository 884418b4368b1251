// Hulls agree with those of an independent exact implementation, on ten thousand sets.
#include "ExactHull.h"
#include "PointSets.h"

#include <tvxCore/ConvexHull.h>

#include <gtest/gtest.h>

#include <ostream>

namespace tarvox::core {

void PrintTo(const PointSetFamily& family, std::ostream* out)
{
    *out << family.name;
}

namespace {

class ConvexHullAgreement : public testing::TestWithParam<PointSetFamily>
{
protected:
    void agreeOnSets(int sets, std::size_t fewest, std::size_t most)
    {
        std::uniform_int_distribution<std::size_t> count(fewest, most);
        for (int i = 0; i < sets; ++i) {
            const std::vector<Vector2<float>> points = GetParam().make(m_random, count(m_random));
            ASSERT_EQ(convexHull(points), exactHull(points))
                << "set " << i << " of " << points.size() << " points";
        }
    }

private:
    std::mt19937 m_random{20160229};
};

TEST_P(ConvexHullAgreement, OnSmallSets)
{
    agreeOnSets(630, 0, 40);
}

TEST_P(ConvexHullAgreement, OnSetsLargeEnoughToBeSampledAndSortedByDigits)
{
    agreeOnSets(12, 300, 1200);
}

INSTANTIATE_TEST_SUITE_P(Families, ConvexHullAgreement, testing::ValuesIn(pointSetFamilies()),
                         [](const auto& family) { return family.param.name; });

} // namespace
} // namespace tarvox::core
