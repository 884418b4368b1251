// The larger of the keyframe commands, which have files of their own.
#pragma once

#include "../commandTable.h"

namespace tvxhost::mel {

CommandSpec setKeyframeCommand();
CommandSpec keyframeCommand();
CommandSpec keyTangentCommand();
CommandSpec copyKeyCommand();
CommandSpec cutKeyCommand();
CommandSpec pasteKeyCommand();

} // namespace tvxhost::mel
