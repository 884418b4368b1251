// Files that are no scenes: one clear error, and the scene stays as it was.
#include "SceneFixture.h"

#include "../support/temporaryFolder.h"

#include <filesystem>

namespace tvxhost::scene {

class BadInputTest : public SceneFixture
{
protected:
    void SetUp() override { ASSERT_TRUE(scene.createNode("transform", "mine")); }
    void TearDown() override
    {
        EXPECT_TRUE(scene.findNode("mine")) << "the scene was changed";
        EXPECT_TRUE(messages().empty());
    }

    std::filesystem::path file(const std::string& name, const std::string& content)
    {
        m_folder.write(name, content);
        return m_folder / name;
    }

    void expectRefused(const std::filesystem::path& path, const std::string& text, int line)
    {
        const ReadResult result = openScene(scene, path);
        EXPECT_FALSE(result.outcome);
        EXPECT_EQ(result.outcome.text, text);
        EXPECT_EQ(result.place.line, line);
        EXPECT_EQ(result.place.file, path.string());
        EXPECT_FALSE(result.isClean());
    }

    test::TemporaryFolder m_folder;
};

TEST_F(BadInputTest, aMissingFile)
{
    const auto path = m_folder / "none.ma";
    expectRefused(path, "File not found: \"" + path.string() + "\"", 0);
}

TEST_F(BadInputTest, aFolder)
{
    expectRefused(m_folder.path(), "Cannot read file \"" + m_folder.path().string() + "\": Is a directory",
                  0);
}

TEST_F(BadInputTest, anEmptyFile)
{
    const auto path = file("empty.ma", "");
    expectRefused(path, "The file \"" + path.string() + "\" is empty", 0);
}

TEST_F(BadInputTest, aBinaryScene)
{
    for (const char* magic : {"FOR4", "FOR8"}) {
        const auto path = file("binary.mb", std::string(magic) + std::string(20, '\0'));
        expectRefused(path, "The file \"" + path.string() + "\" is Maya Binary; only Maya ASCII can be read",
                      1);
    }
}

TEST_F(BadInputTest, aTextWithAByteOfValueZero)
{
    const auto path = file("nul.ma", std::string("//Maya ASCII 2016 scene\n\nselect") + '\0' + ";\n");
    expectRefused(path, "The file \"" + path.string() + "\" is not text: it holds a byte of value 0", 3);
}

TEST_F(BadInputTest, anotherKindOfText)
{
    const auto path = file("notes.ma", "Dear diary\n");
    expectRefused(path,
                  "The file \"" + path.string() +
                      "\" is not a Maya ASCII scene: it does not begin with \"//Maya ASCII\"",
                  1);
}

} // namespace tvxhost::scene
