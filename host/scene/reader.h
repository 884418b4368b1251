// Reading Maya ASCII scenes.
#pragma once

#include "sceneSummary.h"

#include "engine/outcome.h"
#include "engine/scene.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tvxhost::mel {
class StatementReader;
}

namespace tvxhost::scene {

/// Which references are read of the files that a file names.
enum class ReferenceDepth
{
    asSaved, ///< as it was when the scene was saved
    none,
    topOnly, ///< those that it names itself, without the references within them
    all
};

struct ReadOptions
{
    /// Loads a plug-in that the file requires; the outcome says why it could not. Empty: none can be loaded.
    std::function<engine::Outcome(const std::string& plugin)> loadPlugin;
    /// Runs a statement that is none of a scene's own (MEL code in the file). May throw mel::ScriptError.
    /// Empty: such statements are errors.
    std::function<void(mel::StatementReader&, const std::string& file)> runStatement;
    /// Where files that are named relatively are looked for beside the scene's own folder.
    std::vector<std::filesystem::path> projectFolders;
    ReferenceDepth references = ReferenceDepth::asSaved;
    /// Called once the file has turned out to be a scene, right before the present one changes.
    std::function<void()> begins;
    /// Told how far the reading is, in bytes, now and then and at the end.
    std::function<void(std::size_t done, std::size_t total)> progress;
};

struct ReadResult
{
    /// A failure when the file could not be read as a scene at all; the scene is then as it was. The text
    /// names the file.
    engine::Outcome outcome;
    engine::ScriptPlace place; ///< of that failure
    SceneSummary summary;

    /// The file was a scene and nothing in it was wrong.
    bool isClean() const { return outcome && summary.errors == 0; }
};

/// Replaces the scene by that of a Maya ASCII file. Statements that fail are told to the script editor with
/// file and line, and the reading goes on; a last error then says that there were some. What the host does
/// not understand (types, attributes, relationships) is kept for the writer.
ReadResult openScene(engine::Scene& scene, const std::filesystem::path& file,
                     const ReadOptions& options = {});

/// The same for a text in memory; `name` stands for the file in messages and becomes the scene's file name.
ReadResult openSceneText(engine::Scene& scene, std::string_view text, const std::string& name,
                         const ReadOptions& options = {});

/// Adds the content of a file to the scene as it is.
ReadResult importScene(engine::Scene& scene, const std::filesystem::path& file,
                       const ReadOptions& options = {});

} // namespace tvxhost::scene
