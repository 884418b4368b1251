// Saving onto disks as they are: killed processes, symbolic links, folders and files that refuse.
#include "SceneFixture.h"

#include "engine/atomicFile.h"

#include "../support/temporaryFolder.h"

#include <gmock/gmock.h>

#include <csignal>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tvxhost::scene {

namespace fs = std::filesystem;
using engine::writeFileAtomically;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

class SaveTest : public SceneFixture
{
protected:
    SaveTest() { fs::permissions(m_folder.path(), fs::perms::all); }

    /// Starts a process that does something and ends with 0.
    template <class Work>
    static pid_t start(const Work& work)
    {
        const pid_t process = ::fork();
        if (process == 0) {
            work();
            ::_exit(0);
        }
        return process;
    }
    static int statusOf(pid_t process)
    {
        int status = -1;
        ::waitpid(process, &status, 0);
        return status;
    }
    /// The text of a failed saving by somebody who is no superuser.
    std::string failureForOthers(const fs::path& file)
    {
        int ends[2];
        EXPECT_EQ(::pipe(ends), 0);
        const pid_t process = start([&] {
            constexpr uid_t kNobody = 65534;
            if (::geteuid() == 0 && ::setuid(kNobody) != 0)
                ::_exit(1);
            const std::string text = saveScene(scene, file).text;
            (void)!::write(ends[1], text.data(), text.size());
        });
        ::close(ends[1]);
        EXPECT_EQ(statusOf(process), 0);
        std::string text(1000, '\0');
        text.resize(
            static_cast<std::size_t>(std::max<ssize_t>(0, ::read(ends[0], text.data(), text.size()))));
        ::close(ends[0]);
        return text;
    }

    test::TemporaryFolder m_folder;
};

TEST_F(SaveTest, thatIsCutOffLeavesTheOldSceneAndWhatItLeavesGoesWithTheNext)
{
    m_folder.write("shot.ma", "before");
    for (int times = 0; times < 2; ++times) {
        const int status = statusOf(start([&] {
            const rlimit nothing = {0, 0};
            setrlimit(RLIMIT_CORE, &nothing);
            // The system ends a process that writes past this.
            const rlimit little = {100, 100};
            setrlimit(RLIMIT_FSIZE, &little);
            std::signal(SIGXFSZ, SIG_DFL);
            (void)saveScene(scene, m_folder / "shot.ma");
        }));
        ASSERT_TRUE(WIFSIGNALED(status));
        EXPECT_EQ(m_folder.read("shot.ma"), "before");
        EXPECT_THAT(m_folder.names(), ElementsAre("shot.ma", StartsWith("shot.ma.")));
    }
    EXPECT_EQ(saveScene(scene, m_folder / "shot.ma").text, "");
    EXPECT_THAT(m_folder.names(), ElementsAre("shot.ma"));
}

TEST_F(SaveTest, thatIsKilledAtAnyTimeLeavesTheOldSceneOrTheNewOne)
{
    const std::string before(1000, 'a');
    const std::string after(20'000'000, 'b');
    for (const int signal : {SIGTERM, SIGKILL, SIGINT}) {
        m_folder.write("shot.ma", before);
        const pid_t process = start([&] { (void)writeFileAtomically(m_folder / "shot.ma", after); });
        int status = 0;
        while (m_folder.names().size() == 1 && ::waitpid(process, &status, WNOHANG) == 0)
            ;
        ::kill(process, signal);
        (void)statusOf(process);
        const std::string content = m_folder.read("shot.ma");
        EXPECT_TRUE(content == before || content == after) << content.size();
        EXPECT_TRUE(writeFileAtomically(m_folder / "shot.ma", "next"));
        EXPECT_THAT(m_folder.names(), ElementsAre("shot.ma"));
    }
}

TEST_F(SaveTest, leavesTheFilesOfOthersAlone)
{
    for (const char* name :
         {"shot.ma.7.tmp", "shot.ma.8.tmp", "shot.ma.notes.tmp", "other.ma.7.tmp", "7.tmp"})
        m_folder.write(name, "x");
    const int writing = ::open((m_folder / "shot.ma.8.tmp").c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::flock(writing, LOCK_EX), 0);
    EXPECT_EQ(saveScene(scene, m_folder / "shot.ma").text, "");
    EXPECT_THAT(m_folder.names(),
                ElementsAre("7.tmp", "other.ma.7.tmp", "shot.ma", "shot.ma.8.tmp", "shot.ma.notes.tmp"));
    ::close(writing);
}

TEST_F(SaveTest, writesThroughSymbolicLinks)
{
    fs::create_directory(m_folder / "store");
    m_folder.write("store/shot.ma", "before");
    fs::create_symlink("store/shot.ma", m_folder / "relative.ma");
    fs::create_symlink(m_folder / "relative.ma", m_folder / "link to link.ma");
    EXPECT_TRUE(writeFileAtomically(m_folder / "link to link.ma", "after"));
    EXPECT_EQ(m_folder.read("store/shot.ma"), "after");
    EXPECT_TRUE(fs::is_symlink(m_folder / "relative.ma"));
    EXPECT_TRUE(fs::is_symlink(m_folder / "link to link.ma"));

    fs::create_symlink("store/new.ma", m_folder / "to nothing.ma");
    EXPECT_TRUE(writeFileAtomically(m_folder / "to nothing.ma", "new"));
    EXPECT_EQ(m_folder.read("store/new.ma"), "new");
    EXPECT_TRUE(fs::is_symlink(m_folder / "to nothing.ma"));
}

TEST_F(SaveTest, namesTheLinkThatLeadsNowhere)
{
    fs::create_symlink("circle.ma", m_folder / "circle.ma");
    fs::create_symlink("none/shot.ma", m_folder / "far.ma");
    EXPECT_EQ(saveScene(scene, m_folder / "circle.ma").text,
              "cannot write '" + m_folder.path("circle.ma") + "': Too many levels of symbolic links");
    EXPECT_EQ(saveScene(scene, m_folder / "far.ma").text,
              "cannot write '" + m_folder.path("far.ma") + "': No such file or directory");
    EXPECT_THAT(m_folder.names(), ElementsAre("circle.ma", "far.ma"));
}

TEST_F(SaveTest, doesNotReplaceAFileThatMayNotBeWrittenTo)
{
    m_folder.write("shot.ma", "before");
    fs::permissions(m_folder / "shot.ma", fs::perms::owner_read | fs::perms::others_read);
    EXPECT_EQ(failureForOthers(m_folder / "shot.ma"),
              "cannot write '" + m_folder.path("shot.ma") + "': Permission denied");
    EXPECT_EQ(m_folder.read("shot.ma"), "before");
    EXPECT_THAT(m_folder.names(), ElementsAre("shot.ma"));
}

TEST_F(SaveTest, doesNotWriteToAFolderThatMayNotBeWrittenTo)
{
    constexpr fs::perms kReadOnly =
        fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read | fs::perms::others_exec;
    fs::permissions(m_folder.path(), kReadOnly);
    EXPECT_EQ(failureForOthers(m_folder / "shot.ma"),
              "cannot write '" + m_folder.path("shot.ma") + "': Permission denied");
    EXPECT_THAT(m_folder.names(), IsEmpty());
}

TEST_F(SaveTest, namesAFileWhoseNameIsTooLong)
{
    const fs::path file = m_folder / (std::string(253, 'n') + ".ma");
    EXPECT_EQ(saveScene(scene, file).text, "cannot write '" + file.string() + "': File name too long");
    EXPECT_THAT(m_folder.names(), IsEmpty());
}

TEST_F(SaveTest, keepsThePermissionsOfTheOldFile)
{
    constexpr fs::perms kPrivate = fs::perms::owner_read | fs::perms::owner_write;
    m_folder.write("shot.ma", "before");
    fs::permissions(m_folder / "shot.ma", kPrivate);
    EXPECT_EQ(saveScene(scene, m_folder / "shot.ma").text, "");
    EXPECT_EQ(fs::status(m_folder / "shot.ma").permissions(), kPrivate);
}

} // namespace tvxhost::scene
