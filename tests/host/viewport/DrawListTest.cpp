// What of a scene is drawn, how often, where, and with which display status.
#include "viewport/drawList.h"

#include "sceneFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace tvxhost;
using engine::DagNode;
using testing::ElementsAre;
using testing::IsEmpty;
using viewport::DrawItem;
using viewport::DrawKind;

class DrawListTest : public viewport::test::SceneFixture
{
protected:
    /// A locator under a transform of its own.
    DagNode& locator(const std::string& name)
    {
        return create("locator", (name + "Shape").c_str(), &create("transform", name.c_str()));
    }
    void select(const std::vector<std::string>& names)
    {
        engine::SelectionList list;
        for (const std::string& name : names)
            list.add(m_scene.findItem(name).value);
        m_scene.setSelection(list);
    }
    std::vector<std::string> paths()
    {
        std::vector<std::string> names;
        for (const DrawItem& item : viewport::drawList(m_scene))
            names.push_back(item.path.fullName());
        return names;
    }
    M3dView::DisplayStatus statusOf(const std::string& path)
    {
        for (const DrawItem& item : viewport::drawList(m_scene)) {
            if (item.path.fullName() == path)
                return item.status;
        }
        return M3dView::kNoStatus;
    }
};

TEST_F(DrawListTest, OfANewSceneIsEmptyCamerasAreNotDrawn)
{
    EXPECT_THAT(paths(), IsEmpty());
}

TEST_F(DrawListTest, HoldsMeshesAndLocatorsInTheOrderOfTheDag)
{
    DagNode& group = create("transform", "group");
    create("mesh", "bodyShape", &create("transform", "body", &group));
    locator("mark");
    create("directionalLight", "sunShape", &create("transform", "sun"));
    EXPECT_THAT(paths(), ElementsAre("|group|body|bodyShape", "|mark|markShape"));
    EXPECT_EQ(viewport::drawList(m_scene)[0].kind, DrawKind::wire);
    EXPECT_EQ(viewport::drawList(m_scene)[1].kind, DrawKind::cross);
}

TEST_F(DrawListTest, HoldsEachInstanceOnceInItsPlace)
{
    DagNode& shape = locator("first");
    DagNode& second = create("transform", "second");
    ASSERT_TRUE(m_scene.addParent(shape, second));
    set(second, "translateX", 5);
    const auto list = viewport::drawList(m_scene);
    ASSERT_EQ(list.size(), 2u);
    EXPECT_EQ(list[0].path.fullName(), "|first|firstShape");
    EXPECT_EQ(list[0].matrix[3][0], 0);
    EXPECT_EQ(list[1].path.fullName(), "|second|firstShape");
    EXPECT_EQ(list[1].matrix[3][0], 5);
}

TEST_F(DrawListTest, LeavesOutWhatIsHiddenOrIntermediate)
{
    set(locator("hiddenShape"), "visibility", 0);
    locator("underHidden");
    set(*m_scene.findNode("underHidden").value->asDag(), "visibility", 0);
    set(locator("construction"), "intermediateObject", 1);
    locator("seen");
    EXPECT_THAT(paths(), ElementsAre("|seen|seenShape"));
}

TEST_F(DrawListTest, IsDormantWhenNothingIsSelected)
{
    locator("a");
    EXPECT_EQ(statusOf("|a|aShape"), M3dView::kDormant);
}

TEST_F(DrawListTest, TheLastSelectedIsLeadTheOthersAreActive)
{
    locator("a");
    locator("b");
    locator("c");
    select({"bShape", "aShape"});
    EXPECT_EQ(statusOf("|a|aShape"), M3dView::kLead);
    EXPECT_EQ(statusOf("|b|bShape"), M3dView::kActive);
    EXPECT_EQ(statusOf("|c|cShape"), M3dView::kDormant);
}

TEST_F(DrawListTest, TheSelectionOfATransformCountsForTheShapesBelow)
{
    locator("a");
    locator("b");
    DagNode& group = create("transform", "group");
    create("locator", "deepShape", &create("transform", "deep", &group));
    select({"a", "group"});
    EXPECT_EQ(statusOf("|a|aShape"), M3dView::kActive);
    EXPECT_EQ(statusOf("|b|bShape"), M3dView::kDormant);
    EXPECT_EQ(statusOf("|group|deep|deepShape"), M3dView::kLead);
}

TEST_F(DrawListTest, TemplatesAndHilitesHaveTheirOwnStatus)
{
    set(locator("a"), "template", 1);
    set(locator("b"), "template", 1);
    locator("c");
    select({"bShape"});
    engine::SelectionList hilite;
    hilite.add(m_scene.findItem("cShape").value);
    m_scene.setHilite(hilite);
    EXPECT_EQ(statusOf("|a|aShape"), M3dView::kTemplate);
    EXPECT_EQ(statusOf("|b|bShape"), M3dView::kActiveTemplate);
    EXPECT_EQ(statusOf("|c|cShape"), M3dView::kHilite);
}

} // namespace
