// Every script under scripts/ does its work in an empty scene of a batch session and prints exactly what the
// file of the same name beside it says, errors included.
#include "../support/scriptFolder.h"
#include "CommandFixture.h"

#include <filesystem>
#include <sstream>

namespace tvxhost::mel {
namespace {

const std::filesystem::path kScripts = std::filesystem::path(TVX_SOURCE_DIR) / "tests/host/commands/scripts";

class SceneScript : public CommandFixture, public testing::WithParamInterface<std::string>
{
};

TEST_P(SceneScript, PrintsWhatIsExpected)
{
    std::ostringstream output;
    scene.scriptEditor().setStreams(&output, &output);
    interpreter.run(test::contentOf(kScripts / (GetParam() + ".mel")), GetParam() + ".mel");
    interpreter.runDeferred();
    scene.scriptEditor().setStreams(nullptr, nullptr);
    EXPECT_EQ(output.str(), test::contentOf(kScripts / (GetParam() + ".expected")));
}

INSTANTIATE_TEST_SUITE_P(Scene, SceneScript, testing::ValuesIn(test::scriptNames(kScripts)),
                         [](const auto& script) { return script.param; });

} // namespace
} // namespace tvxhost::mel
