// Each locator as the viewport shows it, dormant, active and lead: the picture as it was looked at, and where
// its lines have to be.
#include "../host/support/temporaryFolder.h"
#include "program.h"
#include "viewport/png.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

using namespace tvxhost::test;
using tvxhost::viewport::Picture;
using tvxhost::viewport::Rgb;

constexpr int kSide = 240; // pixels

constexpr Rgb kSelected{255, 115, 0}; // (1.0, 0.45, 0.0)
constexpr Rgb kDormant{166, 77, 26};  // (0.65, 0.3, 0.1)

bool isNear(const Rgb& a, const Rgb& b)
{
    // The last bit of a channel is OpenGL's to round.
    return std::abs(a[0] - b[0]) <= 1 && std::abs(a[1] - b[1]) <= 1 && std::abs(a[2] - b[2]) <= 1;
}

/// The least rectangle around the pixels of a colour; edges are pixels' centres.
struct Extent
{
    int left = kSide, right = -1, top = kSide, bottom = -1;
    int pixels = 0;
};

Extent extentOf(const Picture& picture, const Rgb& color)
{
    Extent extent;
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            if (isNear(picture.at(x, y), color)) {
                extent.left = std::min(extent.left, x);
                extent.right = std::max(extent.right, x);
                extent.top = std::min(extent.top, y);
                extent.bottom = std::max(extent.bottom, y);
                ++extent.pixels;
            }
    return extent;
}

/// How many pixels of a colour in one picture have none of that colour beside them in the other.
int strayPixels(const Picture& picture, const Picture& other, const Rgb& color)
{
    const auto hasNeighbour = [&](int x, int y) {
        for (int v = std::max(0, y - 1); v <= std::min(other.height - 1, y + 1); ++v)
            for (int u = std::max(0, x - 1); u <= std::min(other.width - 1, x + 1); ++u)
                if (isNear(other.at(u, v), color))
                    return true;
        return false;
    };
    int stray = 0;
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            stray += isNear(picture.at(x, y), color) && !hasNeighbour(x, y);
    return stray;
}

/// Of the same size, and all but two of a hundred pixels of the colour within a pixel of one another.
bool isAlike(const Picture& picture, const Picture& reference, const Rgb& color)
{
    const int allowed = extentOf(reference, color).pixels / 50;
    return picture.width == reference.width && picture.height == reference.height &&
           strayPixels(picture, reference, color) <= allowed &&
           strayPixels(reference, picture, color) <= allowed;
}

struct Camera
{
    const char* name;
    const char* place; ///< MEL that puts it where it looks from
};

// Sees x and z from -2.5 to 2.5, up is -z.
constexpr Camera kTop{"top", "setAttr topShape.orthographicWidth 5"};
// Sees x and y from -2.5 to 2.5.
constexpr Camera kFront{"front", "setAttr frontShape.orthographicWidth 5"};
// Ten units away on the z axis, straight ahead, the film as high as the picture.
constexpr Camera kAhead{"persp",
                        "setAttr persp.t 0 0 10; setAttr persp.r 0 0 0; setAttr perspShape.filmFit 2"};
constexpr Camera kAbove{"persp", "setAttr persp.t 4 3.5 5; setAttr persp.r -28 38.66 0"};

enum class Shown
{
    dormant,
    active,
    lead
};

class LocatorPictures : public testing::TestWithParam<Shown>
{
protected:
    /// The picture of a locator of a type, alone with the grid; of the grid alone when no type is given.
    Picture render(const std::string& type, const Camera& camera, Shown shown)
    {
        const std::filesystem::path file = m_folder / "picture.png";
        std::vector<std::string> arguments{"--plugin", pluginFile(), "--render", file,
                                           "--size",   size(),       "--camera", camera.name};
        const auto mel = [&](const std::string& text) { arguments.insert(arguments.end(), {"-e", text}); };
        mel(camera.place);
        if (!type.empty())
            mel("string $shape = `createNode " + type + "`; group -em -n other; select -cl;");
        if (shown == Shown::lead)
            mel("select -r $shape");
        if (shown == Shown::active)
            mel("select -r $shape other");
        const ProgramResult result = runHost(arguments);
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        auto picture = tvxhost::viewport::decodePng(contentsOf(file));
        EXPECT_TRUE(picture) << picture.outcome.text;
        return std::move(picture.value);
    }

    static std::string size() { return std::to_string(kSide) + "x" + std::to_string(kSide); }

    /// The lines of the locator lie where they lay when the reference was looked at, up to a pixel.
    static void expectAsKept(const Picture& picture, const std::string& locator, Shown shown)
    {
        const std::string name = locator + (shown == Shown::dormant ? "_dormant.png" : "_selected.png");
        const std::filesystem::path kept = sourceRoot() / "tests/end_to_end/pictures" / name;
        const auto reference = tvxhost::viewport::decodePng(contentsOf(kept));
        if (reference && isAlike(picture, reference.value, colorOf(shown)))
            return;
        const std::filesystem::path actual = std::filesystem::temp_directory_path() / name;
        writeFile(actual, tvxhost::viewport::encodePng(picture).value);
        ADD_FAILURE() << "differs from " << kept << "; what was drawn is kept as " << actual;
    }

    static Rgb colorOf(Shown shown) { return shown == Shown::dormant ? kDormant : kSelected; }
    static Rgb otherColorOf(Shown shown) { return shown == Shown::dormant ? kSelected : kDormant; }

    TemporaryFolder m_folder;
};

std::string nameOf(const testing::TestParamInfo<Shown>& shown)
{
    const char* const names[] = {"dormant", "active", "lead"};
    return names[static_cast<std::size_t>(shown.param)];
}

INSTANTIATE_TEST_SUITE_P(Statuses, LocatorPictures,
                         testing::Values(Shown::dormant, Shown::active, Shown::lead), nameOf);

/// The pixel of a place in an orthographic picture of 5 units.
double pixelAt(double place)
{
    return (place / 5 + 0.5) * kSide - 0.5;
}

TEST_P(LocatorPictures, TheRendermanEmblemLiesOnTheGroundTurnedToItsBack)
{
    const Picture picture = render("CrowdProxyRendermanStudio", kTop, GetParam());
    const Extent extent = extentOf(picture, colorOf(GetParam()));
    // The outline's x runs from 4 to 112, the circle's to 120 + 21; z runs from 3 to 187; half a turn about y
    // changes both signs; a unit of the emblem is 0.012.
    EXPECT_NEAR(extent.left, pixelAt(-141 * 0.012), 1);
    EXPECT_NEAR(extent.right, pixelAt(-4 * 0.012), 1);
    EXPECT_NEAR(extent.top, pixelAt(-187 * 0.012), 1);
    EXPECT_NEAR(extent.bottom, pixelAt(-3 * 0.012), 1);
    EXPECT_EQ(extentOf(picture, otherColorOf(GetParam())).pixels, 0);
    expectAsKept(picture, "CrowdProxyRendermanStudio", GetParam());
}

TEST_P(LocatorPictures, TheRendermanEmblemsCircleIsRound)
{
    const Picture picture = render("CrowdProxyRendermanStudio", kTop, GetParam());
    // Sixty-four places on it, each within a pixel of a lit one.
    int missed = 0;
    for (int k = 0; k < 64; ++k) {
        const double angle = 2 * M_PI * k / 64;
        const int x = static_cast<int>(std::lround(pixelAt(-0.012 * (120 + 21 * std::cos(angle)))));
        const int y = static_cast<int>(std::lround(pixelAt(-0.012 * (63 + 21 * std::sin(angle)))));
        bool isLit = false;
        for (int v = y - 1; v <= y + 1; ++v)
            for (int u = x - 1; u <= x + 1; ++u)
                isLit = isLit || isNear(picture.at(u, v), colorOf(GetParam()));
        missed += !isLit;
    }
    EXPECT_EQ(missed, 0);
    // It is a line and no disc.
    const int x = static_cast<int>(std::lround(pixelAt(-0.012 * 120)));
    const int y = static_cast<int>(std::lround(pixelAt(-0.012 * 63)));
    for (int v = y - 6; v <= y + 6; ++v)
        for (int u = x - 6; u <= x + 6; ++u)
            EXPECT_FALSE(isNear(picture.at(u, v), colorOf(GetParam()))) << u << " " << v;
}

TEST_P(LocatorPictures, TheVRayCubeSpansOneUnitToEachSide)
{
    const Picture picture = render("CrowdProxyVRay", kFront, GetParam());
    const Extent extent = extentOf(picture, colorOf(GetParam()));
    EXPECT_NEAR(extent.left, pixelAt(-1), 1);
    EXPECT_NEAR(extent.right, pixelAt(1), 1);
    EXPECT_NEAR(extent.top, pixelAt(-1), 1);
    EXPECT_NEAR(extent.bottom, pixelAt(1), 1);
    // A square of four sides, front on back: nothing inside.
    EXPECT_NEAR(extent.pixels, 4 * 2 * kSide / 5, 8);
    EXPECT_EQ(extentOf(picture, otherColorOf(GetParam())).pixels, 0);
}

TEST_P(LocatorPictures, TheVRayCubeHasDepth)
{
    // Film 24 mm high, 35 mm behind the lens: half the picture is 12 / 35 of the distance.
    const Picture picture = render("CrowdProxyVRay", kAhead, GetParam());
    const Extent extent = extentOf(picture, colorOf(GetParam()));
    const auto pixelAtDistance = [](double place, double distance) {
        return (place / distance * 35 / 12 / 2 + 0.5) * kSide - 0.5;
    };
    EXPECT_NEAR(extent.left, pixelAtDistance(-1, 9), 1);
    EXPECT_NEAR(extent.right, pixelAtDistance(1, 9), 1);
    EXPECT_NEAR(extent.top, pixelAtDistance(-1, 9), 1);
    EXPECT_NEAR(extent.bottom, pixelAtDistance(1, 9), 1);
    // The farther square lies inside: its upper edge crosses the picture's middle column.
    const int middle = kSide / 2;
    const int farTop = static_cast<int>(std::lround(pixelAtDistance(-1, 11)));
    bool isLit = false;
    for (int y = farTop - 1; y <= farTop + 1; ++y)
        isLit = isLit || isNear(picture.at(middle, y), colorOf(GetParam()));
    EXPECT_TRUE(isLit);
}

TEST_P(LocatorPictures, TheVRayCubeLooksAsItDid)
{
    const Picture picture = render("CrowdProxyVRay", kAbove, GetParam());
    EXPECT_GT(extentOf(picture, colorOf(GetParam())).pixels, 500);
    EXPECT_EQ(extentOf(picture, otherColorOf(GetParam())).pixels, 0);
    expectAsKept(picture, "CrowdProxyVRay", GetParam());
}

TEST_P(LocatorPictures, TheRenderManagerShowsNothing)
{
    EXPECT_EQ(render("CrowdRenderManagerNode", kAbove, GetParam()).bytes,
              render("", kAbove, Shown::dormant).bytes);
}

class OtherStatuses : public LocatorPictures
{
};

TEST_F(OtherStatuses, TemplatesAndHilitedLocatorsAreDormant)
{
    const Picture dormant = render("CrowdProxyVRay", kAbove, Shown::dormant);
    for (const char* mel : {"createNode CrowdProxyVRay; setAttr crowdProxyVRayShape.template 1; select -cl",
                            "createNode CrowdProxyVRay; setAttr crowdProxyVRayShape.template 1",
                            "createNode CrowdProxyVRay; select -cl; hilite crowdProxyVRayShape"}) {
        const Camera camera{kAbove.name, kAbove.place};
        const std::string place = std::string(camera.place) + "; " + mel;
        EXPECT_EQ(render("", {camera.name, place.c_str()}, Shown::dormant).bytes, dormant.bytes) << mel;
    }
}

TEST_F(OtherStatuses, AHiddenLocatorIsNotDrawn)
{
    const std::string place = std::string(kAbove.place) + "; createNode CrowdProxyVRay; setAttr "
                                                          "crowdProxyVRayShape.v 0";
    EXPECT_EQ(render("", {kAbove.name, place.c_str()}, Shown::dormant).bytes,
              render("", kAbove, Shown::dormant).bytes);
}

TEST_F(OtherStatuses, AnUnboundedLocatorIsDrawnWhereverItsOriginLies)
{
    // The cube's centre is far outside of the picture, and one of its edges crosses it.
    const std::string place = std::string(kFront.place) +
                              "; createNode transform -n far; setAttr far.tx 40; setAttr far.s 40 40 40;"
                              "createNode CrowdProxyVRay -p far; select -cl";
    const Picture picture = render("", {kFront.name, place.c_str()}, Shown::dormant);
    const Extent extent = extentOf(picture, kDormant);
    EXPECT_NEAR(extent.left, pixelAt(0), 1);
    EXPECT_GT(extent.pixels, kSide / 2);
}

} // namespace
