// workspace: the project.
#include "projectFixture.h"

#include <cstdlib>

namespace tvxhost::mel {

using testing::ElementsAre;
using testing::IsEmpty;

class WorkspaceCommandTest : public ProjectFixture
{
protected:
    const std::string project = folder.path().string();
};

TEST_F(WorkspaceCommandTest, tellsTheProjectWithoutASlash)
{
    EXPECT_EQ(run("workspace -q -fn"), project);
    EXPECT_EQ(run("workspace -q -rd"), project + "/");
    EXPECT_EQ(run("workspace -q -sn"), folder.path().filename().string());
    EXPECT_EQ(run("workspace -q -dir"), project);
}

TEST_F(WorkspaceCommandTest, opensFoldersThatAreThere)
{
    EXPECT_EQ(failure("workspace -o \"" + path("none") + "\""),
              "workspace: there is no folder \"" + path("none") + "\"");
    EXPECT_EQ(run("workspace -q -fn"), project);
    run("workspace -cr \"shots\"; workspace -o \"shots\"");
    EXPECT_EQ(run("workspace -q -fn"), path("shots"));
    EXPECT_EQ(run("workspace -q -openWorkspace"), path("shots"));
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
    run("workspace -cr \"other\"; workspace -newWorkspace \"other\"");
    EXPECT_THAT(strings("workspace -q -frl"), IsEmpty());
    run("workspace -o \"" + project + "\"");
    EXPECT_EQ(run("workspace -q -fre \"scene\""), "my scenes");
    EXPECT_EQ(run("workspace -q -ve \"show\""), "crowd");
}

TEST_F(WorkspaceCommandTest, aNewProjectIsNothingButAPlaceUntilItIsSaved)
{
    run("workspace -fr \"scene\" \"scenes\"; workspace -s");
    EXPECT_EQ(failure("workspace -n \"" + project + "\""),
              "workspace: there is a project in \"" + project + "\" already");
    run("workspace -n \"nowhere\"");
    EXPECT_FALSE(std::filesystem::exists(path("nowhere")));
    EXPECT_EQ(run("workspace -q -rd"), "/") << "as the reference has it";
}

TEST_F(WorkspaceCommandTest, whatIsAskedNeedsNoQueryFlag)
{
    run("workspace -fr \"scene\" \"scenes\"");
    EXPECT_EQ(run("workspace -fre \"scene\""), "scenes");
    EXPECT_THAT(strings("workspace -frl"), ElementsAre("scene"));
    EXPECT_EQ(run("workspace -en \"scenes/a.ma\""), path("scenes/a.ma"));
    EXPECT_EQ(run("workspace -fn"), project);
}

TEST_F(WorkspaceCommandTest, theOlderNamesOfRulesAreTheSameRules)
{
    run("workspace -rt \"images\" \"pictures\" -objectType \"scene\" \"scenes\"");
    EXPECT_THAT(strings("workspace -q -fr"), ElementsAre("images", "pictures", "scene", "scenes"));
    for (const char* flag : {"-renderTypeEntry", "-rte", "-ote", "-objectTypeEntry", "-fre"})
        EXPECT_EQ(run(std::string("workspace -q ") + flag + " \"images\""), "pictures") << flag;
    for (const char* flag : {"-renderTypeList", "-rtl", "-otl", "-objectTypeList"})
        EXPECT_THAT(strings(std::string("workspace ") + flag), ElementsAre("images", "scene")) << flag;
}

TEST_F(WorkspaceCommandTest, variablesAndTheHomeFolderAreReplacedInNames)
{
    ::setenv("TVX_TEST_PLACE", "outside", 1);
    ::setenv("HOME", "/home/me", 1);
    run("workspace -v \"show\" \"crowd\" -v \"TVX_TEST_PLACE\" \"inside\"");
    const std::pair<const char*, std::string> rows[] = {
        {"%show%/a.ma", path("crowd/a.ma")},
        {"$show/a.ma", path("crowd/a.ma")},
        {"x${show}x", path("xcrowdx")},
        {"%TVX_TEST_PLACE%", path("inside")},
        {"~%TVX_TEST_PLACE%", path("~outside")},
        {"~/maya", "/home/me/maya"},
        {"~root", "/root"},
        {"100%", path("100%")},
        {"/whole/", "/whole/"},
        {"", project + "/"},
    };
    for (const auto& [name, expected] : rows)
        EXPECT_EQ(run(std::string("workspace -expandName \"") + name + "\""), expected) << name;
}

TEST_F(WorkspaceCommandTest, pathsAreMadeRelativeToTheProject)
{
    EXPECT_EQ(run("workspace -pp \"" + path("scenes/a.ma") + "\""), "scenes/a.ma");
    EXPECT_EQ(run("workspace -projectPath \"scenes/a.ma\""), "scenes/a.ma");
    EXPECT_EQ(run("workspace -q -pp \"/other/a.ma\""), "/other/a.ma");
}

TEST_F(WorkspaceCommandTest, projectsAreKnownByName)
{
    run("workspace -cr \"one\"; workspace -cr \"two\"; workspace -cr \"plain\"");
    run("workspace -o \"one\"; workspace -fr \"scene\" \"first\" -s");
    run("workspace -n \"" + path("two") + "\"; workspace -s");
    EXPECT_EQ(failure("workspace -o \"plain\""),
              "workspace: there is no folder \"" + path("two/plain") + "\"");
    EXPECT_THAT(strings("workspace -listWorkspaces"),
                ElementsAre(folder.path().filename().string(), "one", "two"));
    EXPECT_THAT(strings("workspace -q -lfw"), ElementsAre(project, path("one"), path("two")));
    run("workspace -o \"one\"");
    EXPECT_EQ(run("workspace -fre \"scene\""), "first");
}

TEST_F(WorkspaceCommandTest, projectsInTheCurrentFolderAreFound)
{
    run("workspace -cr \"one\"; workspace -cr \"plain\"");
    folder.write("one/workspace.mel", "workspace -fr \"scene\" \"first\";\n");
    run("workspace -update");
    EXPECT_THAT(strings("workspace -lw"), ElementsAre(folder.path().filename().string(), "one"));
    EXPECT_THAT(strings("workspace -list"), ElementsAre("one", "plain"));
    EXPECT_THAT(strings("workspace -q -l \"one\""), ElementsAre("workspace.mel"));
}

TEST_F(WorkspaceCommandTest, aProjectTakesFromItsBaseWhatItHasNotItself)
{
    run("workspace -cr \"base\"; workspace -cr \"own\"");
    run("workspace -o \"base\"; workspace -fr \"scene\" \"theirs\" -fr \"images\" \"pictures\" -v \"show\" "
        "\"crowd\" -s");
    run("workspace -n \"" + path("own") + "\"; workspace -fr \"scene\" \"mine\"");
    EXPECT_EQ(run("workspace -q -bw"), "default");
    run("workspace -baseWorkspace \"base\"");
    EXPECT_EQ(run("workspace -q -baseWorkspace"), "base");
    EXPECT_THAT(strings("workspace -q -fr"), ElementsAre("images", "pictures", "scene", "mine"));
    EXPECT_EQ(run("workspace -en \"$show\""), path("own/crowd"));
    EXPECT_EQ(run("workspace -q -fn"), path("own"));
    EXPECT_EQ(failure("workspace -bw \"nobody\""), "workspace: there is no project 'nobody'");
}

TEST_F(WorkspaceCommandTest, aBaseThatCannotBeReadLeavesTheProjectAsItWas)
{
    run("workspace -cr \"base\"; workspace -fr \"scene\" \"mine\"");
    folder.write("base/workspace.mel", "workspace -fr \"scene\" \"theirs\";\nerror \"broken\";\n");
    EXPECT_THAT(failure("workspace -bw \"base\""), testing::HasSubstr("broken"));
    EXPECT_EQ(run("workspace -q -fn"), project);
    EXPECT_EQ(run("workspace -q -bw"), "default");
    EXPECT_THAT(strings("workspace -q -fr"), ElementsAre("scene", "mine"));
}

TEST_F(WorkspaceCommandTest, aFolderMayBeCalledAsAProjectThatIsKnown)
{
    run("workspace -cr \"one\"; workspace -cr \"two\"; workspace -o \"one\"; workspace -o \"" + path("two") +
        "\"");
    run("workspace -cr \"one\"; workspace -dir \"one\"");
    EXPECT_TRUE(std::filesystem::is_directory(path("two/one")));
    EXPECT_EQ(run("workspace -q -dir"), path("two/one"));
}

TEST_F(WorkspaceCommandTest, aNameThatIsTooLongIsThatOfNoFolder)
{
    const std::string name(5000, 'a');
    EXPECT_EQ(failure("workspace -o " + name), "workspace: there is no folder \"" + path(name) + "\"");
    EXPECT_EQ(failure("workspace -bw " + name), "workspace: there is no project '" + name + "'");
    EXPECT_EQ(run("file -q -exists " + name), "0");
    EXPECT_EQ(failure("file -q -exists"), "file -query -exists: which file is asked for?");
    EXPECT_EQ(failure("file -r " + name), "File not found: \"" + path(name) + "\"");
    run("workspace -n " + name);
    EXPECT_EQ(run("workspace -q -rd"), "/");
}

TEST_F(WorkspaceCommandTest, theProjectIsTheRootWhereTheFolderOfTheProgramIsGone)
{
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::create_directory(path("gone"));
    std::filesystem::current_path(path("gone"));
    std::filesystem::remove(path("gone"));
    EXPECT_EQ(SceneSession(scene, nullptr).workspace.root(), "/");
    std::filesystem::current_path(before);
}

TEST_F(WorkspaceCommandTest, makesFoldersAndKeepsTheCurrentOne)
{
    run("workspace -cr \"scenes/old\"; workspace -dir \"scenes\"");
    EXPECT_TRUE(std::filesystem::is_directory(path("scenes/old")));
    EXPECT_EQ(run("workspace -q -dir"), path("scenes"));
    EXPECT_EQ(run("workspace -q -fn"), project);
    EXPECT_EQ(failure("workspace -q"), "workspace: nothing was asked");
}

} // namespace tvxhost::mel
