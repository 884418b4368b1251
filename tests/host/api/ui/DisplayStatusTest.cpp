// How an object is shown, by selection and display attributes.
#include "../sceneFixture.h"

#include <maya/M3dView.h>

namespace tvxhost::api::test {
namespace {

class DisplayStatusTest : public SceneFixture
{
protected:
    DisplayStatusTest()
    {
        for (const char* name : {"a", "b", "c"}) {
            make("transform", name);
            make("mesh", std::string(name) + "Shape", name);
        }
    }
    M3dView::DisplayStatus status(const std::string& name) { return M3dView::displayStatus(path(name)); }
};

TEST_F(DisplayStatusTest, LastSelectedLeadsAndTheOthersAreActive)
{
    select({"a", "b"});
    EXPECT_EQ(status("aShape"), M3dView::kActive);
    EXPECT_EQ(status("bShape"), M3dView::kLead);
    EXPECT_EQ(status("cShape"), M3dView::kDormant);
    EXPECT_EQ(status("b"), M3dView::kLead);
}

TEST_F(DisplayStatusTest, TheSelectionOfAGroupCountsForAllBelow)
{
    make("transform", "group");
    ASSERT_TRUE(scene.reparent(*node("a").asDag(), &scene.world(), node("group").asDag()));
    select({"group"});
    EXPECT_EQ(status("aShape"), M3dView::kLead);
    select({"group", "aShape", "b"});
    EXPECT_EQ(status("aShape"), M3dView::kActive);
}

TEST_F(DisplayStatusTest, OneInstanceIsSelectedAndTheOtherIsNot)
{
    instance("aShape", "b");
    select({"|b|aShape"});
    EXPECT_EQ(status("|b|aShape"), M3dView::kLead);
    EXPECT_EQ(status("|a|aShape"), M3dView::kDormant);
}

TEST_F(DisplayStatusTest, ATemplateStaysOneWhenSelected)
{
    set("a.template", {1});
    EXPECT_EQ(status("aShape"), M3dView::kTemplate);
    select({"a"});
    EXPECT_EQ(status("aShape"), M3dView::kActiveTemplate);
}

TEST_F(DisplayStatusTest, WhatIsHiddenIsInvisibleHoweverSelected)
{
    set("a.visibility", {0});
    select({"a"});
    EXPECT_EQ(status("aShape"), M3dView::kInvisible);
}

TEST_F(DisplayStatusTest, AnIntermediateObjectSaysSo)
{
    set("aShape.intermediateObject", {1});
    EXPECT_EQ(status("aShape"), M3dView::kIntermediateObject);
}

TEST_F(DisplayStatusTest, WhatIsHilitedIsShownSoUnlessSelected)
{
    engine::SelectionList hilited;
    hilited.add(scene.findItem("a").value);
    hilited.add(scene.findItem("b").value);
    scene.setHilite(hilited);
    select({"b"});
    EXPECT_EQ(status("aShape"), M3dView::kHilite);
    EXPECT_EQ(status("bShape"), M3dView::kLead);
}

TEST_F(DisplayStatusTest, NoPathHasNoStatus)
{
    MStatus result;
    EXPECT_EQ(M3dView::displayStatus(MDagPath(), &result), M3dView::kNoStatus);
    EXPECT_EQ(result, MS::kInvalidParameter);
    EXPECT_EQ(path("a").getDisplayStatus(), static_cast<unsigned int>(M3dView::kDormant));
}

} // namespace
} // namespace tvxhost::api::test
