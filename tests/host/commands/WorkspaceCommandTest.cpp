// workspace: the project.
#include "../support/temporaryFolder.h"
#include "CommandFixture.h"

#include <filesystem>

namespace tvxhost::mel {

using testing::ElementsAre;
using testing::IsEmpty;

class WorkspaceCommandTest : public CommandFixture
{
protected:
    WorkspaceCommandTest() { session.workspace.open(m_folder.path()); }

    std::string path(const std::string& name) const { return (m_folder.path() / name).string(); }

    test::TemporaryFolder m_folder;
};

TEST_F(WorkspaceCommandTest, tellsTheProjectWithoutASlash)
{
    EXPECT_EQ(run("workspace -q -fn"), m_folder.path().string());
    EXPECT_EQ(run("workspace -q -rd"), m_folder.path().string() + "/");
    EXPECT_EQ(run("workspace -q -sn"), m_folder.path().filename().string());
    EXPECT_EQ(run("workspace -q -dir"), m_folder.path().string());
}

TEST_F(WorkspaceCommandTest, opensFoldersThatAreThere)
{
    EXPECT_EQ(failure("workspace -o \"" + path("none") + "\""),
              "workspace: there is no folder \"" + path("none") + "\"");
    EXPECT_EQ(run("workspace -q -fn"), m_folder.path().string());
    run("workspace -nw \"shots\"");
    EXPECT_TRUE(std::filesystem::is_directory(path("shots")));
    EXPECT_EQ(run("workspace -q -fn"), path("shots"));
    run("file -rename \"take.ma\"");
    EXPECT_EQ(run("file -q -sn"), path("shots/take.ma"));
}

TEST_F(WorkspaceCommandTest, rulesSayWhereFilesAre)
{
    EXPECT_EQ(run("workspace -q -fre \"scene\""), "");
    run("workspace -fr \"scene\" \"scenes\" -fr \"images\" \"pictures\"");
    EXPECT_EQ(run("workspace -q -fre \"scene\""), "scenes");
    EXPECT_THAT(strings("workspace -q -frl"), ElementsAre("images", "scene"));
    EXPECT_THAT(strings("workspace -q -fr"), ElementsAre("images", "pictures", "scene", "scenes"));
    run("workspace -rfr \"images\"");
    EXPECT_THAT(strings("workspace -q -frl"), ElementsAre("scene"));
    EXPECT_EQ(run("workspace -q -en \"scenes/a.ma\""), path("scenes/a.ma"));
}

TEST_F(WorkspaceCommandTest, aSavedProjectHasItsRulesWhenItIsOpened)
{
    run("workspace -fr \"scene\" \"my scenes\" -v \"show\" \"crowd\"; workspace -s");
    run("workspace -nw \"other\"");
    EXPECT_THAT(strings("workspace -q -frl"), IsEmpty());
    run("workspace -o \"" + m_folder.path().string() + "\"");
    EXPECT_EQ(run("workspace -q -fre \"scene\""), "my scenes");
    EXPECT_EQ(run("workspace -q -ve \"show\""), "crowd");
}

TEST_F(WorkspaceCommandTest, makesFoldersAndKeepsTheCurrentOne)
{
    run("workspace -cr \"scenes/old\"; workspace -dir \"scenes\"");
    EXPECT_TRUE(std::filesystem::is_directory(path("scenes/old")));
    EXPECT_EQ(run("workspace -q -dir"), path("scenes"));
    EXPECT_EQ(run("workspace -q -fn"), m_folder.path().string());
    EXPECT_EQ(failure("workspace -q"), "workspace: nothing was asked");
}

} // namespace tvxhost::mel
