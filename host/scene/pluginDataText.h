// Data of plug-ins' own types in scene files: read and written by the plug-in's code.
#pragma once

#include "engine/pluginData.h"
#include "mel/arguments.h"

#include <memory>
#include <string>

namespace tvxhost::scene {

/// New data of a registered type with the values behind `-type "NAME"`.
engine::Expected<engine::Ref<engine::Data>>
parsePluginData(const std::shared_ptr<engine::PluginDataType>& type, const mel::Argument* begin,
                const mel::Argument* end);

/// The ` -type "NAME" values` part of a `setAttr`; empty when the plug-in's code fails, which is told as an
/// error.
std::string pluginDataWords(const engine::PluginData& data, engine::ScriptEditor& editor);

} // namespace tvxhost::scene
