// MAnimControl: the current time and playing.
#include "../sceneFixture.h"

#include <maya/MAnimControl.h>
#include <maya/MTime.h>

namespace tvxhost::api::test {
namespace {

class MAnimControlTest : public SceneFixture
{
};

TEST_F(MAnimControlTest, TheCurrentTimeIsTheScenes)
{
    EXPECT_EQ(MAnimControl::setCurrentTime(MTime(48, MTime::kFilm)), MS::kSuccess);
    EXPECT_DOUBLE_EQ(scene.time(), 2.0);
    EXPECT_EQ(MAnimControl::currentTime(), MTime(2, MTime::kSeconds));
    MTime::setUIUnit(MTime::kPALFrame);
    EXPECT_EQ(MAnimControl::currentTime().value(), 50.0);
    EXPECT_EQ(MAnimControl::currentTime().unit(), MTime::kPALFrame);
}

TEST_F(MAnimControlTest, NothingPlays)
{
    EXPECT_FALSE(MAnimControl::isPlaying());
    EXPECT_EQ(MAnimControl::stop(), MS::kSuccess);
    EXPECT_EQ(MAnimControl::playForward(), MS::kNotImplemented);
    EXPECT_EQ(messages(engine::MessageKind::error), (Texts{"Not implemented: MAnimControl::playForward"}));
}

} // namespace
} // namespace tvxhost::api::test
