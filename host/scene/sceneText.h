// The text of a scene file, and the check that it is one.
#pragma once

#include "engine/atomicFile.h"
#include "engine/outcome.h"
#include "engine/scriptEditor.h"

#include <string>
#include <string_view>

namespace tvxhost::scene {

/// Why a file is no scene, and where in it.
struct SceneTextError
{
    engine::Outcome outcome; ///< success when it is one
    int line = 0;            ///< 0: the file as a whole
};

using engine::readFile;

/// Refuses what is empty, binary or does not begin as Maya ASCII does.
SceneTextError checkSceneText(std::string_view text, const std::string& name);

/// Whether the text is one that Maya wrote (its head has a `//Name:` line) but lacks the `// End of` line
/// that Maya ends it with: the rest has been cut off. Scenes written by hand may do without both.
bool lacksItsEnd(std::string_view text);

} // namespace tvxhost::scene
