// A scene as the text of a file, saved at the same time always.
#pragma once

#include "scene/writer.h"

#include <ctime>
#include <string>

namespace tvxhost::test {

/// @param name  of the file, which the text names
inline std::string savedText(engine::Scene& scene, const std::string& name = "test.ma")
{
    scene::WriteOptions options;
    options.clock = [] { return std::time_t{0}; };
    return scene::sceneText(scene, name, options);
}

} // namespace tvxhost::test
