// Writing Maya ASCII scenes.
#pragma once

#include "engine/outcome.h"
#include "engine/scene.h"

#include <ctime>
#include <filesystem>
#include <functional>
#include <string>

namespace tvxhost::scene {

struct WriteOptions
{
    /// The time of the `//Last modified` line. Empty: the environment's SOURCE_DATE_EPOCH (in seconds, shown
    /// in UTC) when it is set, else the system's clock in local time.
    std::function<std::time_t()> clock;
    /// The version of a plug-in that is loaded; empty for any other. Empty function: none is.
    std::function<std::string(const std::string& plugin)> pluginVersion;
};

/// The scene as the text of a file of that name, as Maya 2016 would write it.
std::string sceneText(engine::Scene& scene, const std::string& fileName, const WriteOptions& options = {});

/// Writes the scene whole or not at all: on failure an existing file is as it was. The scene then has the
/// file's name and is not modified any more.
engine::Outcome saveScene(engine::Scene& scene, const std::filesystem::path& file,
                          const WriteOptions& options = {});

} // namespace tvxhost::scene
