// Light links: relationship statements are connections of light linkers, and are written as such statements.
#include "SceneFixture.h"

#include "scene/lightLinks.h"

#include <gmock/gmock.h>

namespace tvxhost::scene {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class LightLinkTest : public SceneFixture
{
protected:
    static constexpr const char* kNodes =
        "createNode transform -n \"lamp\";\ncreateNode pointLight -n \"lampShape\" -p \"lamp\";\n"
        "createNode lightLinker -s -n \"lightLinker1\";\ncreateNode shadingEngine -n \"skinSG\";\n";
    static constexpr const char* kLinks =
        "relationship \"link\" \":lightLinker1\" \":initialShadingGroup.message\" "
        "\":defaultLightSet.message\";\n"
        "relationship \"link\" \":lightLinker1\" \"skinSG.message\" \":defaultLightSet.message\";\n"
        "relationship \"ignore\" \":lightLinker1\" \"skinSG.message\" \"lampShape.message\";\n"
        "relationship \"shadowLink\" \":lightLinker1\" \"skinSG.message\" \":defaultLightSet.message\";\n";

    /// Statements of the saved scene that begin with a word.
    std::string savedLines(const std::string& start)
    {
        std::string lines;
        const std::string text = saved();
        for (std::size_t at = text.find(start); at != std::string::npos; at = text.find(start, at + 1))
            lines += text.substr(at, text.find('\n', at) + 1 - at);
        return lines;
    }
};

TEST_F(LightLinkTest, isAPairOfConnections)
{
    EXPECT_TRUE(read(std::string(kNodes) + kLinks).isClean());
    EXPECT_EQ(source("lightLinker1.link[0].light"), "defaultLightSet.message");
    EXPECT_EQ(source("lightLinker1.link[0].object"), "initialShadingGroup.message");
    EXPECT_EQ(source("lightLinker1.link[1].object"), "skinSG.message");
    EXPECT_EQ(source("lightLinker1.ignore[0].lightIgnored"), "lampShape.message");
    EXPECT_EQ(source("lightLinker1.shadowLink[0].shadowObject"), "skinSG.message");
    EXPECT_EQ(savedLines("relationship"), kLinks);
    EXPECT_THAT(saved(), HasSubstr("\tsetAttr -s 2 \".lnk\";\n"));
    EXPECT_THAT(saved(), Not(HasSubstr("connectAttr \":defaultLightSet")));
}

TEST_F(LightLinkTest, isThereOnce)
{
    read(std::string(kNodes) + kLinks + kLinks);
    EXPECT_THAT(engine::existingElements(scene.findPlug("lightLinker1.link").value), ElementsAre(0, 1));
    EXPECT_EQ(savedLines("relationship"), kLinks);
}

TEST_F(LightLinkTest, ofANodeThatIsDeletedIsNoneAndComesBackWithIt)
{
    read(std::string(kNodes) + kLinks);
    engine::Step step;
    {
        const engine::Journal::Into into(scene.journal(), &step);
        ASSERT_TRUE(scene.deleteNode(node("skinSG")));
    }
    EXPECT_EQ(savedLines("relationship"),
              "relationship \"link\" \":lightLinker1\" \":initialShadingGroup.message\" "
              "\":defaultLightSet.message\";\n");
    {
        const engine::Journal::Into nothing(scene.journal(), nullptr);
        step.undo();
    }
    EXPECT_EQ(savedLines("relationship"), kLinks);
}

TEST_F(LightLinkTest, thatIsHalfIsSavedAsAConnection)
{
    const std::string half = "connectAttr \":defaultLightSet.msg\" \":lightLinker1.lnk[3].llnk\";\n";
    read(std::string(kNodes) + half);
    EXPECT_EQ(savedLines("relationship"), "");
    EXPECT_EQ(savedLines("connectAttr \":defaultLightSet"), half);
}

TEST_F(LightLinkTest, thatCannotBeMadeIsKeptAsItStands)
{
    for (const char* kept :
         {"relationship \"link\" \":lightLinker1\" \"none.message\" \":defaultLightSet.message\";\n",
          "relationship \"link\" \"skinSG\" \"skinSG.message\" \":defaultLightSet.message\";\n",
          "relationship \"blindData\" \":lightLinker1\" \"skinSG.message\" \"lampShape.message\";\n",
          "relationship -b \"link\" \":lightLinker1\" \"skinSG.message\" \"lampShape.message\";\n"}) {
        EXPECT_EQ(read(std::string(kNodes) + kept).summary.keptStatements, 1u) << kept;
        EXPECT_EQ(savedLines("relationship"), kept);
    }
}

} // namespace tvxhost::scene
