// fileDialog2, fileDialog: answered in advance.
#include "projectFixture.h"

namespace tvxhost::mel {

using testing::ElementsAre;
using testing::IsEmpty;

class DialogCommandsTest : public ProjectFixture
{
protected:
    DialogCommandsTest()
    {
        folder.write("a.ma", "a");
        folder.write("b.ma", "b");
        std::filesystem::create_directory(path("scenes"));
    }

    void answer(std::deque<std::string> answers) { session.dialogAnswers = std::move(answers); }
};

TEST_F(DialogCommandsTest, aDialogThatNobodyAnswersIsCancelled)
{
    EXPECT_THAT(strings("fileDialog2"), IsEmpty());
    EXPECT_THAT(strings("fileDialog2 -fileMode 3 "), IsEmpty());
    EXPECT_EQ(run("fileDialog"), "");
}

TEST_F(DialogCommandsTest, answersAreTakenInOrder)
{
    answer({path("a.ma"), path("scenes")});
    EXPECT_THAT(strings("fileDialog2 -ds 2  -fm 1 -ff \"Maya (*.ma)\""), ElementsAre(path("a.ma")));
    EXPECT_THAT(strings("fileDialog2 -fileMode 3 -startingDirectory \"/\""), ElementsAre(path("scenes")));
    EXPECT_THAT(strings("fileDialog2 -fm 1"), IsEmpty());
}

TEST_F(DialogCommandsTest, relativeAnswersStartWhereTheDialogDoes)
{
    answer({"new.ma", "new.ma"});
    EXPECT_THAT(strings("fileDialog2 -dir \"scenes\""), ElementsAre(path("scenes/new.ma")));
    EXPECT_THAT(strings("fileDialog2"), ElementsAre(path("new.ma")));
}

TEST_F(DialogCommandsTest, whatMustExistDoes)
{
    answer({"none.ma", "a.ma", "scenes"});
    EXPECT_EQ(failure("fileDialog2 -fm 1"), "fileDialog2: there is no file \"" + path("none.ma") + "\"");
    EXPECT_EQ(failure("fileDialog2 -fm 2"), "fileDialog2: there is no folder \"" + path("a.ma") + "\"");
    EXPECT_EQ(failure("fileDialog2 -fm 1"), "fileDialog2: there is no file \"" + path("scenes") + "\"");
    const std::string tooLong(5000, 'a');
    answer({tooLong, tooLong});
    EXPECT_EQ(failure("fileDialog2 -fm 1"), "fileDialog2: there is no file \"" + path(tooLong) + "\"");
    EXPECT_EQ(failure("fileDialog2 -fm 2"), "fileDialog2: there is no folder \"" + path(tooLong) + "\"");
    EXPECT_EQ(failure("fileDialog2 -fm 5"), "fileDialog2: there is no file mode 5");
}

TEST_F(DialogCommandsTest, severalFilesAreOneAnswer)
{
    answer({"a.ma:b.ma"});
    EXPECT_THAT(strings("fileDialog2 -fm 4"), ElementsAre(path("a.ma"), path("b.ma")));
}

TEST_F(DialogCommandsTest, theFilterComesLastWhenItIsAskedFor)
{
    answer({"a.ma", "a.ma", "a.ma"});
    EXPECT_THAT(strings("fileDialog2 -fm 1 -rf on -ff \"Maya (*.ma);;All (*.*)\""),
                ElementsAre(path("a.ma"), "Maya (*.ma)"));
    EXPECT_THAT(strings("fileDialog2 -fm 1 -rf on -sff \"All\" -ff \"Maya (*.ma);;All (*.*)\""),
                ElementsAre(path("a.ma"), "All (*.*)"));
    EXPECT_THAT(strings("fileDialog2 -fm 1 -rf on"), ElementsAre(path("a.ma"), "All Files (*.*)"));
}

TEST_F(DialogCommandsTest, theOldDialogGivesOneFile)
{
    answer({"a.ma", "new.ma", "new.ma"});
    EXPECT_EQ(run("fileDialog -dm \"" + path("*.ma") + "\""), path("a.ma"));
    EXPECT_EQ(run("fileDialog -m 1 -dm \"scenes/*.ma\""), path("scenes/new.ma"));
    EXPECT_EQ(failure("fileDialog -m 0"), "fileDialog: there is no file \"" + path("new.ma") + "\"");
}

} // namespace tvxhost::mel
