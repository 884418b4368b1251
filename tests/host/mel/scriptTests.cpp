// Every script under scripts/ prints exactly what the file of the same name beside it says, errors included.
#include "../support/scriptFolder.h"
#include "../support/temporaryFolder.h"
#include "mel/interpreter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace tvxhost;

const fs::path kFolder = fs::path(TVX_SOURCE_DIR) / "tests/host/mel";

std::vector<std::string> scriptNames()
{
    return test::scriptNames(kFolder / "scripts");
}

class Script : public testing::TestWithParam<std::string>
{
protected:
    void SetUp() override { ::setenv("TVX_TEST_FOLDER", m_folder.path().c_str(), 1); }

private:
    test::TemporaryFolder m_folder;
};

TEST_P(Script, PrintsWhatIsExpected)
{
    std::ostringstream output;
    engine::ScriptEditor editor;
    editor.setStreams(&output, &output);
    mel::CommandTable commands;
    mel::registerLanguageCommands(commands);
    mel::Interpreter interpreter(commands, editor);
    interpreter.scriptPath().append(kFolder / "library");

    interpreter.run(test::contentOf(kFolder / "scripts" / (GetParam() + ".mel")), GetParam() + ".mel");
    interpreter.runDeferred();

    EXPECT_EQ(output.str(), test::contentOf(kFolder / "scripts" / (GetParam() + ".expected")));
}

INSTANTIATE_TEST_SUITE_P(Mel, Script, testing::ValuesIn(scriptNames()),
                         [](const auto& script) { return script.param; });

TEST(Scripts, AreAllThere)
{
    EXPECT_GE(scriptNames().size(), 300u);
}

} // namespace
