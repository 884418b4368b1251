// PNG files: what is written can be read again, or the old file stays.
#include "viewport/png.h"
#include "../support/temporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;
using tvxhost::test::TemporaryFolder;
using tvxhost::viewport::Picture;

Picture pattern(int width, int height)
{
    Picture picture(width, height);
    for (std::size_t i = 0; i < picture.bytes.size(); ++i)
        picture.bytes[i] = static_cast<std::uint8_t>(i * 37 + i / 251);
    return picture;
}

TEST(Png, KeepsEveryPixel)
{
    const TemporaryFolder folder;
    for (const auto& [width, height] : {std::pair{1, 1}, {3, 2}, {2, 5}, {640, 361}}) {
        const Picture picture = pattern(width, height);
        ASSERT_TRUE(writePng(picture, folder / "picture.png"));
        const auto read = tvxhost::viewport::readPng(folder / "picture.png");
        ASSERT_TRUE(read) << read.outcome.text;
        EXPECT_EQ(read.value.width, width);
        EXPECT_EQ(read.value.height, height);
        EXPECT_EQ(read.value.bytes, picture.bytes);
    }
}

TEST(Png, LeavesNothingElseInTheFolder)
{
    const TemporaryFolder folder;
    ASSERT_TRUE(writePng(pattern(4, 4), folder / "a.png"));
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.path()))
        names.push_back(entry.path().filename());
    EXPECT_EQ(names, std::vector<std::string>{"a.png"});
}

TEST(Png, OfNoPixelsIsRefused)
{
    const TemporaryFolder folder;
    const auto outcome = writePng(Picture(), folder / "empty.png");
    EXPECT_EQ(outcome.text,
              "cannot write picture \"" + (folder / "empty.png").string() + "\": it has no pixels");
    EXPECT_FALSE(fs::exists(folder / "empty.png"));
}

TEST(Png, IntoAMissingFolderIsRefused)
{
    const TemporaryFolder folder;
    const fs::path file = folder / "no" / "such.png";
    EXPECT_EQ(writePng(pattern(1, 1), file).text,
              "cannot write picture \"" + file.string() + "\": No such file or directory");
}

TEST(Png, ThatCannotTakeItsPlaceLeavesWhatWasThere)
{
    const TemporaryFolder folder;
    const fs::path target = folder / "taken.png";
    fs::create_directories(target / "inside");
    EXPECT_FALSE(writePng(pattern(2, 2), target));
    EXPECT_TRUE(fs::exists(target / "inside"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 1);
}

TEST(Png, ThatIsNoneIsNotRead)
{
    const TemporaryFolder folder;
    std::ofstream(folder / "text.png") << "not a picture";
    EXPECT_EQ(tvxhost::viewport::readPng(folder / "text.png").outcome.text,
              "cannot read picture \"" + (folder / "text.png").string() + "\": Not a PNG file");
}

} // namespace
