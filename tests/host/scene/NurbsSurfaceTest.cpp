// NURBS surfaces in scene files: what is read, and what is written of surfaces that were made or changed.
#include "SceneFixture.h"

#include "engine/geometry/surfaceNode.h"

#include <gmock/gmock.h>

namespace tvxhost::scene {
namespace {

using testing::HasSubstr;

constexpr const char* kPatch = "\tsetAttr \".cc\" -type \"nurbsSurface\" \n"
                               "\t\t3 1 0 0 no \n"
                               "\t\t6 0 0 0 1 1 1\n"
                               "\t\t2 0 1\n"
                               "\t\t\n"
                               "\t\t8\n"
                               "\t\t0 0 0\n\t\t0 0 -1\n\t\t1 0.5 0\n\t\t1 0.5 -1\n"
                               "\t\t2 0.5 0\n\t\t2 0.5 -1\n\t\t3 0 0\n\t\t3 0 -1\n"
                               "\t\t\n"
                               "\t\t;\n";

class NurbsSurfaceTest : public SceneFixture
{
protected:
    engine::Node& readPatch()
    {
        EXPECT_TRUE(read("createNode nurbsSurface -n \"patch\";\n" + std::string(kPatch)).outcome);
        EXPECT_EQ(messages(), std::vector<std::string>());
        return node("patch");
    }
};

TEST_F(NurbsSurfaceTest, AFilesSurfaceIsUnderstoodAndComesBack)
{
    const auto surface = engine::surfaceOf(readPatch());
    ASSERT_TRUE(surface);
    EXPECT_EQ(surface->u.degree, 3);
    EXPECT_EQ(surface->v.pointCount(), 2);
    EXPECT_TRUE(surface->at({0.5, 0.5}).equalWithAbsError({1.5, 0.375, -0.5}, 1e-12));
    EXPECT_THAT(saved(), HasSubstr(kPatch));
}

TEST_F(NurbsSurfaceTest, AChangedSurfaceIsWrittenInTheFormOfFiles)
{
    engine::Node& patch = readPatch();
    engine::NurbsSurface surface = *engine::surfaceOf(patch);
    surface.points[surface.indexOf(1, 0)].place.y = 2.25;
    surface.v.form = engine::NurbsCurve::Form::closed;
    EXPECT_TRUE(engine::storeSurface(patch, surface));
    const std::string text = saved();
    EXPECT_THAT(text,
                HasSubstr("\tsetAttr \".cc\" -type \"nurbsSurface\" \n\t\t3 1 0 1 no \n\t\t6 0 0 0 1 1 1\n"
                          "\t\t2 0 1\n\t\t\n\t\t8\n\t\t0 0 0\n\t\t0 0 -1\n\t\t1 2.25 0\n"));
    read(text.substr(text.find('\n') + 1));
    const auto again = engine::surfaceOf(node("patch"));
    ASSERT_TRUE(again);
    EXPECT_EQ(again->points[2].place.y, 2.25);
}

TEST_F(NurbsSurfaceTest, ATrimmedSurfaceIsKeptButNotUnderstood)
{
    const std::string trimmed =
        "\tsetAttr \".cc\" -type \"nurbsSurface\" \n\t\t1 1 0 0 no \n\t\t2 0 1\n\t\t2 0 1\n"
        "\t\tTRIM 1 2 3\n\t\t4\n\t\t0 0 0\n\t\t0 0 1\n\t\t1 0 0\n\t\t1 0 1\n\t\t;\n";
    read("createNode nurbsSurface -n \"patch\";\n" + trimmed);
    EXPECT_FALSE(engine::surfaceOf(node("patch")));
    EXPECT_THAT(saved(), HasSubstr(trimmed));
}

} // namespace
} // namespace tvxhost::scene
