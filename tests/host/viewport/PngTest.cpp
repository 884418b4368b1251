// PNG: what is encoded can be decoded again.
#include "viewport/png.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

using tvxhost::viewport::decodePng;
using tvxhost::viewport::encodePng;
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
    for (const auto& [width, height] : {std::pair{1, 1}, {3, 2}, {2, 5}, {640, 361}, {8192, 3}}) {
        const Picture picture = pattern(width, height);
        const auto bytes = encodePng(picture);
        ASSERT_TRUE(bytes) << bytes.outcome.text;
        const auto read = decodePng(bytes.value);
        ASSERT_TRUE(read) << read.outcome.text;
        EXPECT_EQ(read.value.width, width);
        EXPECT_EQ(read.value.height, height);
        EXPECT_EQ(read.value.bytes, picture.bytes);
    }
}

TEST(Png, BeginsWithTheSignatureOfTheFormat)
{
    EXPECT_EQ(encodePng(pattern(2, 2)).value.substr(0, 8), "\x89PNG\r\n\x1a\n");
}

TEST(Png, OfNoPixelsIsRefused)
{
    EXPECT_EQ(encodePng(Picture()).outcome.text, "the picture has no pixels");
}

TEST(Png, ThatIsNoneOrCutOffIsRefused)
{
    EXPECT_FALSE(decodePng(""));
    EXPECT_EQ(decodePng("not a picture").outcome.text, "Not a PNG file");
    const std::string whole = encodePng(pattern(64, 64)).value;
    EXPECT_FALSE(decodePng(whole.substr(0, whole.size() / 2)));
}

} // namespace
