// Reading Maya ASCII scenes; see reader.h.
#include "reader.h"

#include "sceneReader.h"
#include "sceneText.h"

namespace tvxhost::scene {

namespace {

constexpr const char* kErrorsOccurred =
    "Errors have occurred while reading this scene that may result in data loss.";

ReadResult refused(const engine::Outcome& outcome, const std::string& name, int line = 0)
{
    ReadResult result;
    result.outcome = outcome;
    result.place = {name, line};
    result.summary.file = name;
    result.summary.errors = 1;
    return result;
}

/// Time is what the file says of the node that tells it.
void takeTimeOver(engine::Scene& scene)
{
    const engine::Expected<engine::Plug> time = scene.findPlug(":time1.outTime");
    if (!time)
        return;
    const engine::Expected<engine::Number> seconds = engine::readNumber(time.value);
    if (seconds && seconds.value.asReal() != scene.time())
        scene.setTime(seconds.value.asReal());
}

void tellBeginning(const ReadOptions& options)
{
    if (options.begins)
        options.begins();
}

ReadResult readInto(engine::Scene& scene, std::string_view text, const std::string& name,
                    const ReadOptions& options)
{
    ReadResult result;
    SceneReader reader(scene, options, name);
    reader.read(text);
    scene.setSelection({});
    result.summary = reader.summary();
    if (result.summary.errors > 0)
        scene.scriptEditor().error(kErrorsOccurred, {name, 0});
    return result;
}

} // namespace

ReadResult openSceneText(engine::Scene& scene, std::string_view text, const std::string& name,
                         const ReadOptions& options)
{
    if (const SceneTextError error = checkSceneText(text, name); !error.outcome)
        return refused(error.outcome, name, error.line);
    tellBeginning(options);
    const engine::Journal::Into nothing(scene.journal(), nullptr);
    scene.newScene();
    ReadResult result = readInto(scene, text, name, options);
    takeTimeOver(scene);
    scene.fileName = name;
    scene.isModified = false;
    return result;
}

ReadResult openScene(engine::Scene& scene, const std::filesystem::path& file, const ReadOptions& options)
{
    const engine::Expected<std::string> text = readFile(file);
    if (!text)
        return refused(text.outcome, file.string());
    return openSceneText(scene, text.value, std::filesystem::absolute(file).string(), options);
}

ReadResult importScene(engine::Scene& scene, const std::filesystem::path& file, const ReadOptions& options)
{
    const engine::Expected<std::string> text = readFile(file);
    if (!text)
        return refused(text.outcome, file.string());
    if (const SceneTextError error = checkSceneText(text.value, file.string()); !error.outcome)
        return refused(error.outcome, file.string(), error.line);
    tellBeginning(options);
    scene.journal().keep(scene.keptConnections);
    scene.journal().keep(scene.fileInfo);
    scene.journal().keep(scene.requirements);
    const engine::Units units = scene.units();
    ReadResult result = readInto(scene, text.value, std::filesystem::absolute(file).string(), options);
    scene.units() = units;
    scene.isModified = true;
    return result;
}

} // namespace tvxhost::scene
