// Components: sets of numbers, compared with sets that hold each number by itself.
#include "engine/components.h"
#include "engine/scene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <vector>

using namespace tvxhost::engine;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Numbers = std::set<int>;

Components ofRuns(const std::vector<Components::Run>& runs, const std::string& kind = "f")
{
    Components components(kind);
    for (const Components::Run& run : runs)
        components.add(run);
    return components;
}

Numbers numbersOf(const Components& components)
{
    Numbers numbers;
    for (const Components::Run& run : components.runs())
        for (int i = run.first; i <= run.last; ++i)
            numbers.insert(i);
    return numbers;
}

template <class Algorithm>
Numbers combined(Algorithm algorithm, const Numbers& a, const Numbers& b)
{
    Numbers result;
    algorithm(a.begin(), a.end(), b.begin(), b.end(), std::inserter(result, result.end()));
    return result;
}

/// Runs ascend and do not touch.
bool isTidy(const Components& components)
{
    const auto& runs = components.runs();
    return std::all_of(runs.begin(), runs.end(), [](const auto& run) { return run.first <= run.last; }) &&
           std::adjacent_find(runs.begin(), runs.end(), [](const auto& a, const auto& b) {
               return b.first <= a.last + 1;
           }) == runs.end();
}

} // namespace

TEST(Components, RunsThatTouchOrOverlapBecomeOne)
{
    EXPECT_THAT(ofRuns({{4, 5}, {0, 1}, {8, 9}, {2, 3}}).texts(), ElementsAre("f[0:5]", "f[8:9]"));
    EXPECT_THAT(ofRuns({{7, 7}, {0, 20}}).texts(), ElementsAre("f[0:20]"));
    EXPECT_THAT(ofRuns({{3, 3}}).texts(), ElementsAre("f[3]"));
}

TEST(Components, JoinCutAndLeaveOutAsSetsDo)
{
    std::mt19937 random(20161109);
    const auto some = [&] {
        Components components("f");
        for (std::size_t i = random() % 12; i > 0; --i) {
            const int first = static_cast<int>(random() % 60);
            components.add({first, first + static_cast<int>(random() % 8)});
        }
        return components;
    };
    for (int i = 0; i < 2000; ++i) {
        const Components a = some(), b = some();
        const Numbers inA = numbersOf(a), inB = numbersOf(b);
        const auto set = [](auto... of) { return std::set_union(of...); };
        const auto cut = [](auto... of) { return std::set_intersection(of...); };
        const auto rest = [](auto... of) { return std::set_difference(of...); };
        ASSERT_EQ(numbersOf(a.joined(b)), combined(set, inA, inB));
        ASSERT_EQ(numbersOf(a.common(b)), combined(cut, inA, inB));
        ASSERT_EQ(numbersOf(a.without(b)), combined(rest, inA, inB));
        ASSERT_TRUE(isTidy(a) && isTidy(a.joined(b)) && isTidy(a.common(b)) && isTidy(a.without(b)));
        ASSERT_EQ(a.count(), inA.size());
    }
}

TEST(Components, OfTwoKindsHaveNothingInCommon)
{
    const Components faces = ofRuns({{0, 3}}, "f"), edges = ofRuns({{0, 3}}, "e");
    EXPECT_TRUE(faces.common(edges).empty());
    EXPECT_THAT(faces.without(edges).texts(), ElementsAre("f[0:3]"));
}

TEST(Components, ReachToTheLargestNumber)
{
    const Components all = ofRuns({{0, INT_MAX}});
    EXPECT_EQ(all.count(), 2147483648u);
    EXPECT_THAT(all.without(ofRuns({{5, INT_MAX}})).texts(), ElementsAre("f[0:4]"));
    EXPECT_THAT(all.without(ofRuns({{0, INT_MAX - 1}})).texts(), ElementsAre("f[2147483647]"));
    EXPECT_THAT(all.without(all).texts(), IsEmpty());
    EXPECT_THAT(all.common(ofRuns({{INT_MAX, INT_MAX}})).texts(), ElementsAre("f[2147483647]"));
}

TEST(Components, ScatteredByTheHundredThousandAreCombinedAtOnce)
{
    Components even("f"), odd("f");
    for (int i = 0; i < 400'000; i += 4) {
        even.add({i, i});
        odd.add({i + 2, i + 2});
    }
    EXPECT_EQ(even.joined(odd).count(), 200'000u);
    EXPECT_TRUE(even.common(odd).empty());
    EXPECT_EQ(even.joined(odd).without(odd).runs().size(), 100'000u);
}

TEST(Components, AreReadFromTextWithRunsBackwardsAndStars)
{
    Scene scene;
    DagNode& curve = *scene.createNode("nurbsCurve").value->asDag();
    const auto read = [&](const std::string& text) {
        const auto components = parseComponents(curve, text);
        return components ? components->texts() : std::vector<std::string>{"none"};
    };
    EXPECT_THAT(read("cv[3:1] cv[7]"), ElementsAre("cv[1:3]", "cv[7]"));
    EXPECT_THAT(read("cv[*]"), IsEmpty()) << "there is no geometry yet";
    for (const char* wrong : {"f[0]", "cv[0] ep[1]", "cv[", "cv[x]", "cv[1:]", "cv[-1]", "cv[2147483648]"})
        EXPECT_THAT(read(wrong), ElementsAre("none")) << wrong;
}
