// A run of an example.
#include "exampleRun.h"

#include <algorithm>

namespace tvxhost::test {

namespace {

const Environment kFixedDate = {{"SOURCE_DATE_EPOCH", "1457345551"}};

} // namespace

ProgramResult ExampleRun::run(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), {"--plugin", pluginFile()});
    return runHost(arguments, kFixedDate);
}

std::string ExampleRun::script(const std::string& name)
{
    return sourceRoot() / "examples" / name;
}

void ExampleRun::expectPrinted(const std::string& scriptName, const std::string& output)
{
    const ProgramResult result = run({"--script", script(scriptName)});
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, output);
}

std::string ExampleRun::sceneMadeBy(const std::string& scriptName, const std::string& name) const
{
    const std::string scene = file(name);
    const ProgramResult saved = run({"--script", script(scriptName), "--save", scene});
    EXPECT_EQ(saved.exitCode, 0) << saved.errors;
    return scene;
}

void ExampleRun::expectReadingAndSavingChangesNothing(const std::string& scene)
{
    std::filesystem::create_directory(file("again"));
    const std::string again = file("again") + "/" + std::filesystem::path(scene).filename().string();
    Environment environment = kFixedDate;
    environment["MAYA_PLUG_IN_PATH"] = pluginFile().parent_path();
    const ProgramResult result = runHost({scene, "--save", again}, environment);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(contentsOf(again), contentsOf(scene));
}

void ExampleRun::expectLoadingFailsWith(const std::vector<std::string>& calls)
{
    for (const std::string& call : calls) {
        const ProgramResult result = run({"--fail", call});
        EXPECT_EQ(result.exitCode, 1) << call;
        EXPECT_EQ(linesOf(result.errors).size(), 1u) << call << ": " << result.errors;
    }
}

std::string nodeText(const std::string& scene, const std::string& node)
{
    std::string text;
    bool isInside = false;
    for (const std::string& line : linesOf(scene)) {
        if (line.empty() || line[0] != '\t')
            isInside =
                line.rfind("createNode ", 0) == 0 && line.find(" -n \"" + node + "\"") != std::string::npos;
        if (isInside && line.rfind("\trename -uid ", 0) != 0)
            text += line + "\n";
    }
    return text;
}

} // namespace tvxhost::test
