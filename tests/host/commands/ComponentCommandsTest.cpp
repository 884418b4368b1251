// polyListComponentConversion and filterExpand.
#include "CommandFixture.h"

namespace tvxhost::mel {

using testing::ElementsAre;
using testing::IsEmpty;

/// A plane of three by three faces: four vertices in a row, the first row in front; the middle face is 4 and
/// has the vertices 5, 6, 9 and 10.
class ComponentCommandsTest : public CommandFixture
{
protected:
    ComponentCommandsTest() { run("polyPlane -n net -sx 3 -sy 3; polyCube -n box"); }

    Value::Strings converted(const std::string& arguments)
    {
        return strings("polyListComponentConversion " + arguments);
    }
    /// How many single components that is.
    std::string count(const std::string& arguments)
    {
        return run("size(`ls -flatten (`polyListComponentConversion " + arguments + "`)`)");
    }
};

TEST_F(ComponentCommandsTest, facesBecomeTheirVerticesAndEdges)
{
    EXPECT_THAT(converted("-ff -tv net.f[4]"), ElementsAre("net.vtx[5:6]", "net.vtx[9:10]"));
    EXPECT_EQ(count("-ff -te net.f[4]"), "4");
    EXPECT_THAT(converted("-ff -tf net.f[4]"), ElementsAre("net.f[4]"));
    EXPECT_THAT(converted("-tv -tf net.f[4]"), ElementsAre("net.vtx[5:6]", "net.vtx[9:10]", "net.f[4]"));
}

TEST_F(ComponentCommandsTest, verticesAndEdgesBecomeWhatTouchesThem)
{
    EXPECT_THAT(converted("-fv -tf net.vtx[0]"), ElementsAre("net.f[0]"));
    EXPECT_THAT(converted("-fv -tf net.vtx[5]"), ElementsAre("net.f[0:1]", "net.f[3:4]"));
    EXPECT_EQ(count("-fv -te net.vtx[5]"), "4");
    // An edge within the plane has two faces.
    run("select (`polyListComponentConversion -in -fv -te net.vtx[5:6]`)");
    EXPECT_THAT(converted("-fe -tf"), ElementsAre("net.f[1]", "net.f[4]"));
    EXPECT_THAT(converted("-fe -tv"), ElementsAre("net.vtx[5:6]"));
}

TEST_F(ComponentCommandsTest, whatIsInternalTouchesNothingElse)
{
    EXPECT_THAT(converted("-in -fv -tf net.vtx[5:6] net.vtx[9] net.vtx[10]"), ElementsAre("net.f[4]"));
    EXPECT_THAT(converted("-in -fv -tf net.vtx[5:6]"), IsEmpty());
    EXPECT_THAT(converted("-in -ff -tv net.f[0:1] net.f[3:4]"), ElementsAre("net.vtx[0:1]", "net.vtx[4:5]"));
    EXPECT_EQ(count("-in -fv -te net.vtx[5:6] net.vtx[9:10]"), "4");
}

TEST_F(ComponentCommandsTest, whatIsAtTheBorderTouchesSomethingElse)
{
    // Around the plane there are twelve edges, around two faces side by side six of their seven.
    EXPECT_EQ(count("-bo -ff -te net.f[*]"), "12");
    EXPECT_EQ(count("-bo -te net"), "12");
    EXPECT_EQ(count("-ff -te net.f[3:4]"), "7");
    EXPECT_EQ(count("-bo -ff -te net.f[3:4]"), "6");
    EXPECT_THAT(converted("-bo -te box"), IsEmpty());
    EXPECT_EQ(count("-bo -fv -tf net.vtx[5:6] net.vtx[9:10]"), "8");
}

TEST_F(ComponentCommandsTest, objectsStandForAllTheyHave)
{
    EXPECT_THAT(converted("-tf net"), ElementsAre("net.f[0:8]"));
    EXPECT_THAT(converted("-tv -te box"), ElementsAre("box.vtx[0:7]", "box.e[0:11]"));
    EXPECT_THAT(converted("-in -tv netShape"), ElementsAre("net.vtx[0:15]"));
    EXPECT_THAT(converted("-ff -tv net"), IsEmpty());
    EXPECT_THAT(converted("net.f[0] net.f[1]"), ElementsAre("netShape"));
    EXPECT_THAT(converted("-tf persp lambert1"), IsEmpty());
}

TEST_F(ComponentCommandsTest, onlyTheNamedKindsAreConverted)
{
    EXPECT_THAT(converted("-ff -tv net.f[0] net.vtx[15] box.f[0]"),
                ElementsAre("net.vtx[0:1]", "net.vtx[4:5]", "box.vtx[0:3]"));
    EXPECT_EQ(failure("polyListComponentConversion -tuv net"),
              "Flag '-toUV' of polyListComponentConversion is refused: there are no texture coordinates to "
              "select here");
}

TEST_F(ComponentCommandsTest, filterExpandTakesComponentsOfAKindOneByOne)
{
    run("select net.vtx[0:2] net.f[3] box");
    EXPECT_THAT(strings("filterExpand -sm 31"), ElementsAre("net.vtx[0]", "net.vtx[1]", "net.vtx[2]"));
    EXPECT_THAT(strings("filterExpand -sm 31 -ex false"), ElementsAre("net.vtx[0:2]"));
    EXPECT_THAT(strings("filterExpand -sm 34 -sm 12"), ElementsAre("net.f[3]", "box"));
    EXPECT_THAT(strings("filterExpand -sm 34 -fp 1"), ElementsAre("|net.f[3]"));
    EXPECT_THAT(strings("filterExpand -sm 32"), IsEmpty());
    EXPECT_THAT(strings("filterExpand -sm 32 net.e[1] box.e[2]"), ElementsAre("net.e[1]", "box.e[2]"));
}

TEST_F(ComponentCommandsTest, filterExpandKnowsObjectsAndCurves)
{
    run("createNode nurbsCurve -n bow; setAttr bow.cc -type \"nurbsCurve\" 1 1 0 no 3 2 0 1 2 0 0 0 1 1 1; "
        "spaceLocator -n spot");
    EXPECT_THAT(strings("filterExpand -sm 9 curve1 bow box spot"), ElementsAre("curve1", "bow"));
    EXPECT_THAT(strings("filterExpand -sm 22 bow box spot persp"), ElementsAre("spot"));
    EXPECT_THAT(strings("filterExpand -sm 28 -sm 30 bow.cv[0:1] bow.ep[1]"),
                ElementsAre("curve1.cv[0]", "curve1.cv[1]", "curve1.ep[1]"));
    EXPECT_EQ(failure("filterExpand -sm 46"), "filterExpand: nothing here is of the selection mask 46");
    EXPECT_EQ(failure("filterExpand box"), "filterExpand: which -selectionMask?");
}

} // namespace tvxhost::mel
