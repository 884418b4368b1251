// Scenes that are damaged or extreme: told with file and line, without a crash, a hang or more memory than
// they are worth.
#include "damage.h"
#include "SceneFixture.h"

#include "scene/sceneText.h"

#include "../support/temporaryFolder.h"

#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <fstream>
#include <functional>
#include <memory>
#include <thread>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tvxhost::scene {

using testing::ElementsAre;

/// One of everything that files hold.
constexpr const char* kVaried =
    "//Maya ASCII 2016 scene\n//Name: varied.ma\n//Last modified: Thu, Jan 01, 1970 12:00:00 AM\n"
    "//Codeset: UTF-8\nrequires maya \"2016\";\n"
    "requires -nodeType \"Fancy\" -dataType \"fancyData\" \"fancy\" \"1.2\";\n"
    "currentUnit -l meter -a radian -t pal;\nfileInfo \"application\" \"maya\";\n"
    "createNode transform -s -n \"persp\";\n\tsetAttr \".v\" no;\n\tsetAttr \".t\" -type \"double3\" 1 2 3 "
    ";\n"
    "createNode camera -s -n \"perspShape\" -p \"persp\";\n\tsetAttr -k off \".v\" no;\n"
    "createNode transform -n \"a\";\n\trename -uid \"AAAAAAAA-0000-0000-0000-000000000001\";\n"
    "\taddAttr -ci true -sn \"o\" -ln \"options\" -at \"compound\" -nc 2;\n"
    "\taddAttr -ci true -sn \"oa\" -ln \"optionA\" -min 0 -max 9 -at \"double\" -p \"options\";\n"
    "\taddAttr -ci true -sn \"ob\" -ln \"optionB\" -dt \"string\" -p \"options\";\n"
    "\taddAttr -ci true -m -sn \"es\" -ln \"ends\" -en \"red:green=5:blue\" -at \"enum\";\n"
    "\tsetAttr \".rp\" -type \"double3\" 1e-300 -4.5 0x7 ;\n\tsetAttr -l on -k off \".tx\" 3;\n"
    "\tsetAttr \".oa\" 2.5;\n\tsetAttr \".ob\" -type \"string\" (\n\t\t\"one \\\"two\\\"\\n\"\n\t\t+ "
    "\"three\");\n"
    "\tsetAttr -s 2 \".es[3:4]\"  5 6;\n"
    "createNode mesh -n \"aShape\" -p \"a\";\n\tsetAttr -k off \".v\";\n\tsetAttr \".iog[0].og[0].gcl\" "
    "-type "
    "\"componentList\" 1 \"f[0]\";\n\tsetAttr \".uvst[0].uvsn\" -type \"string\" \"map1\";\n"
    "\tsetAttr -s 4 \".vt[0:3]\"  0 0 0 1 0 0 1 1 0 0 1 0;\n\tsetAttr -s 4 \".ed[0:3]\"  0 1 0 1 2 0 2 3 0 3 "
    "0 "
    "0;\n\tsetAttr -ch 4 \".fc[0]\" -type \"polyFaces\" \n\t\tf 4 0 1 2 3\n\t\tmu 0 4 0 1 2 3;\n"
    "createNode Fancy -n \"fancy\" -p \"a\";\n\tsetAttr \".weird[0:1].data\" -type \"fancyData\" 1 "
    "2\n\t\t3;\n"
    "createNode animCurveTL -n \"curve\";\n\tsetAttr -s 2 \".ktv[0:1]\"  1 0 24 10;\n"
    "createNode objectSet -n \"set\";\n\tsetAttr \".ihi\" 0;\nlockNode -l 1 ;\n"
    "parent -s -nc -r -add \"aShape\" \"persp\" ;\n"
    "select -ne :time1;\n\tsetAttr \".o\" 0.04;\nselect -ne :fancyGlobals;\n\tsetAttr \".x\" 1;\n"
    "connectAttr \"curve.o\" \"a.ty\";\nconnectAttr \"aShape.iog\" \"set.dsm\" -na;\n"
    "relationship \"link\" \":lightLinker1\" \":initialShadingGroup.message\" \":defaultLightSet.message\";\n"
    "dataStructure -fmt \"raw\" -as \"name=x:string=y\";\n// End of varied.ma\n";

class DamageTest : public SceneFixture
{
protected:
    double secondsOf(const std::function<void()>& work)
    {
        const auto start = std::chrono::steady_clock::now();
        work();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
};

TEST_F(DamageTest, theVariedSceneIsWholeItself)
{
    const ReadResult result = openSceneText(scene, kVaried, "varied.ma");
    EXPECT_TRUE(result.outcome);
    EXPECT_THAT(messages(), ElementsAre(testing::HasSubstr("fancy"), testing::HasSubstr("Fancy")));
}

TEST_F(DamageTest, aSceneThatIsCutOffIsToldAtAnyPlace)
{
    damage::expectTruncationsAreTold(scene, kVaried, 1);
}

TEST_F(DamageTest, aChangedByteDoesNoHarm)
{
    for (unsigned seed = 1; seed <= 5; ++seed)
        damage::expectChangedBytesAreHarmless(scene, kVaried, seed);
}

TEST_F(DamageTest, aStatementThatTheEndOfTheFileCutsOffIsToldAndNotRun)
{
    const ReadResult result = read("createNode transform -n \"a\";\n\tsetAttr \".tx\" 1");
    EXPECT_EQ(result.summary.errors, 1u);
    EXPECT_EQ(messages().front(),
              "Error: file: /scenes/test.ma line 3: The file ends within this statement: it is not whole\n");
    EXPECT_THAT(numbers("a.tx"), ElementsAre(0.0));
}

TEST_F(DamageTest, aStringThatTheEndOfTheFileCutsOffIsTheOnlyError)
{
    const ReadResult result = read("//Name: test.ma\ncreateNode script -n \"a\";\n\tsetAttr \".b\" -type "
                                   "\"string\" \"one");
    EXPECT_EQ(result.summary.errors, 1u);
    EXPECT_THAT(messages().front(),
                testing::StartsWith("Error: file: /scenes/test.ma line 4: Unterminated string.\n"));
}

TEST_F(DamageTest, aFileOfMayaThatLacksItsLastLineIsNotWhole)
{
    const ReadResult result = read("//Name: test.ma\ncreateNode transform -n \"a\";\n");
    EXPECT_EQ(result.summary.errors, 1u);
    EXPECT_EQ(messages().front(), "Error: file: /scenes/test.ma line 4: The file ends before its last line, "
                                  "\"// End of ...\": it is not whole\n");
    EXPECT_TRUE(read("//Name: test.ma\ncreateNode transform -n \"a\";\n// End of test.ma\n").isClean());
}

TEST_F(DamageTest, tenThousandNodesBelowOneAnotherAreReadSavedAndDeleted)
{
    std::string text = "createNode transform -n \"t0\";\n";
    for (int i = 1; i < 10000; ++i)
        text +=
            "createNode transform -n \"t" + std::to_string(i) + "\" -p \"t" + std::to_string(i - 1) + "\";\n";
    EXPECT_TRUE(read(text).isClean());
    EXPECT_EQ(engine::DagPath::firstTo(*node("t9999").asDag()).length(), 10000u);
    const std::string first = saved();
    EXPECT_TRUE(openSceneText(scene, first, "test.ma").isClean());
    EXPECT_EQ(saved(), first);
    EXPECT_TRUE(scene.deleteNode(node("t0")));
    EXPECT_FALSE(scene.findNode("t9999"));
}

TEST_F(DamageTest, scriptsThatNestTenThousandDeepAreRefusedWhereTheyAre)
{
    const std::string deep(10000, '{');
    for (const std::string& text : {deep + "print 1;" + std::string(10000, '}'),
                                    "print " + std::string(10000, '(') + "1" + std::string(10000, ')') + ";",
                                    "setAttr \".v\" " + deep + "1" + std::string(10000, '}') + ";"}) {
        const ReadResult result = read("\n" + text + "\ncreateNode transform -n \"after\";\n");
        EXPECT_EQ(result.summary.errors, 1u);
        EXPECT_THAT(messages().front(),
                    testing::StartsWith("Error: file: /scenes/test.ma line 3: Nested too deeply.\n"));
    }
}

TEST_F(DamageTest, compoundsThatNestTenThousandDeepAreRefused)
{
    std::string text = "createNode transform -n \"a\";\naddAttr -ln \"c0\" -at compound -nc 1;\n";
    for (int i = 1; i < 10000; ++i)
        text += "addAttr -ln \"c" + std::to_string(i) + "\" -at compound -nc 1 -p \"c" +
                std::to_string(i - 1) + "\";\n";
    EXPECT_EQ(read(text + "addAttr -ln \"leaf\" -at double -p \"c9999\";\n").summary.errors, 1u);
    EXPECT_EQ(messages().front(),
              "Error: file: /scenes/test.ma line 10003: 'c0' cannot be added to a node\n");
    EXPECT_EQ(read(text).summary.errors, 1u);
}

TEST_F(DamageTest, theGreatestIndexIsAnIndexLikeAnyOther)
{
    const std::string body = "createNode mesh -n \"m\";\n"
                             "\tsetAttr \".pt[2147483647]\" -type \"float3\" 1 2 3 ;\n"
                             "\tsetAttr \".uvst[2147483647].uvsn\" -type \"string\" \"a\";\n"
                             "\tsetAttr -s 2 \".ed[2147483646:2147483647]\"  1 2 0 3 4 0;\n";
    EXPECT_TRUE(read(body).isClean());
    EXPECT_THAT(numbers("m.pt[2147483647]"), ElementsAre(1, 2, 3));
    EXPECT_THAT(numbers("m.ed[2147483647]"), ElementsAre(3, 4, 0));
    EXPECT_THAT(savedSection("createNode mesh"),
                testing::HasSubstr("\tsetAttr -s 2 \".ed[2147483646:2147483647]\"  1 2 0 3 4 0;\n"));
}

TEST_F(DamageTest, rangesWithoutThatManyValuesAreErrorsAndTakeNoTime)
{
    const std::string body = "createNode mesh -n \"m\";\n\tsetAttr \".vt[0:2147483647]\"  1 2 3;\n"
                             "\tsetAttr -l on \".vt[0:2147483647]\";\n"
                             "\tsetAttr \".fc[0:2147483647]\" -type \"polyFaces\" f 3 0 1 2;\n"
                             "createNode skinCluster -n \"k\";\n\tsetAttr \".wl[0:2147483647].w\"  1 0 1;\n";
    ReadResult result;
    EXPECT_LT(secondsOf([&] { result = read(body); }), 5.0);
    EXPECT_EQ(result.summary.errors, 4u);
}

TEST_F(DamageTest, namesThatAreNoneGetTheOnesOfTheirType)
{
    EXPECT_TRUE(read("createNode transform -n \":\";\ncreateNode objectSet -n \"a:\";\n").isClean());
    EXPECT_TRUE(scene.findNode("|transform1"));
    EXPECT_TRUE(scene.findNode("objectSet1"));
}

// A sanitizer keeps memory that was given back, to catch who still uses it.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kKeepsFreedMemory = true;
#else
constexpr bool kKeepsFreedMemory = false;
#endif

/// Runs work in a process of its own, whose exit code it gives.
int inOwnProcess(const std::function<int()>& work)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(work());
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

class HugeStringTest : public DamageTest
{
protected:
    static constexpr std::size_t kSize = 100'000'000;

    void SetUp() override { m_folder = std::make_unique<test::TemporaryFolder>(); }

    std::filesystem::path write(const std::string& value)
    {
        const auto file = *m_folder / "huge.ma";
        std::ofstream(file) << kHeader << "createNode script -n \"s\";\n\tsetAttr \".b\" -type \"string\" "
                            << value << ";\n";
        return file;
    }

    /// Success when the string arrives and the memory stays within three times the file.
    int open(const std::filesystem::path& file)
    {
        // Nothing of the parent's memory but what is shared anyway.
        const std::size_t before = peakMemory();
        if (!openScene(scene, file).isClean())
            return 1;
        const std::size_t limit = 3 * std::filesystem::file_size(file);
        if (!kKeepsFreedMemory && peakMemory() - before > limit)
            return 2;
        return string("s.b").size() == kSize ? 0 : 3;
    }

    std::unique_ptr<test::TemporaryFolder> m_folder;
};

TEST_F(HugeStringTest, inOnePieceIsRead)
{
    const auto file = write('"' + std::string(kSize, 'x') + '"');
    EXPECT_EQ(inOwnProcess([&] { return open(file); }), 0);
}

TEST_F(HugeStringTest, withEscapesIsRead)
{
    constexpr std::size_t kBetween = 999;
    std::string value = "\"";
    for (std::size_t i = 0; i < kSize / (kBetween + 1); ++i)
        value.append(kBetween, 'x').append("\\n");
    const auto file = write(value + '"');
    value.clear();
    value.shrink_to_fit();
    EXPECT_EQ(inOwnProcess([&] { return open(file); }), 0);
}

TEST_F(HugeStringTest, inManyPiecesIsRead)
{
    constexpr std::size_t kPiece = 1000;
    std::string pieces = "(";
    const std::string piece = "\n\t\t+ \"" + std::string(kPiece, 'x') + '"';
    for (std::size_t i = 0; i < kSize / kPiece; ++i)
        pieces += i == 0 ? piece.substr(5) : piece;
    const auto file = write(pieces + ")");
    pieces.clear();
    pieces.shrink_to_fit();
    EXPECT_EQ(inOwnProcess([&] { return open(file); }), 0);
}

TEST(ReadFileTest, tellsOfAFileThatAnotherProcessTruncatesMeanwhile)
{
    const test::TemporaryFolder folder;
    const auto file = folder / "changing.ma";
    const std::string whole(8'000'000, 'x');
    folder.write("changing.ma", whole);
    std::atomic<bool> isDone{false};
    std::thread other([&] {
        while (!isDone) {
            std::filesystem::resize_file(file, whole.size() / 2);
            std::ofstream(file, std::ios::in | std::ios::out) << whole;
        }
    });
    int changes = 0;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (changes == 0 && std::chrono::steady_clock::now() < end) {
        const auto text = readFile(file);
        if (!text) {
            ++changes;
            EXPECT_EQ(text.outcome.text, "The file \"" + file.string() + "\" was changed while it was read");
        }
    }
    isDone = true;
    other.join();
    EXPECT_GT(changes, 0);
}

TEST(DiskTest, aFileMayHaveTheLongestNameThereIs)
{
    const test::TemporaryFolder folder;
    const std::string name = std::string(252, 'n') + ".ma";
    engine::Scene scene;
    EXPECT_EQ(saveScene(scene, folder / name).text, "");
    EXPECT_EQ(folder.names(), std::vector<std::string>{name});
}

TEST(DiskTest, withoutRoomIsAnErrorAndTheFileStaysAsItWas)
{
    const test::TemporaryFolder folder;
    const auto file = folder / "shot.ma";
    folder.write("shot.ma", "before");
    const int code = inOwnProcess([&] {
        engine::Scene scene;
        const rlimit little = {100, 100};
        signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &little);
        const engine::Outcome saved = saveScene(scene, file);
        return saved.text == "cannot write '" + file.string() + "': File too large" ? 0 : 1;
    });
    EXPECT_EQ(code, 0);
    EXPECT_EQ(folder.read("shot.ma"), "before");
    EXPECT_EQ(folder.names(), std::vector<std::string>{"shot.ma"});
}

} // namespace tvxhost::scene
