// setAttr: one statement that sets a value, an attribute's state or an array's size, for files and commands.
#pragma once

#include "plugTarget.h"
#include "words.h"

#include "engine/units.h"

#include <optional>
#include <string>
#include <string_view>

namespace tvxhost::scene {

/// The parts of a `setAttr`. Views stay valid as long as its arguments.
struct SetAttrRequest
{
    std::optional<bool> keyable;
    std::optional<bool> locked;
    std::optional<bool> channelBox;
    std::optional<bool> caching;
    bool hasHint = false; ///< -size, -capacityHint, -alteredValue: hints that need no value
    bool clamp = false;
    std::string_view plug;                 ///< as written: "node.path", or ".path" of the current node
    std::string_view type;                 ///< of -type; empty when it was not given
    const mel::Argument* end = nullptr;    ///< behind the last value
    const mel::Argument* values = nullptr; ///< the first value
    std::string_view source;               ///< the whole statement as it stands; empty when not known

    bool changesState() const { return keyable || locked || channelBox || caching; }
    bool hasValues() const { return values != end; }
};

/// Takes the arguments apart. notFound with "Invalid flag '-x'" for a flag that setAttr does not have.
engine::Expected<SetAttrRequest> parseSetAttr(const mel::ArgumentList& arguments);

/// How strictly values are stored.
struct SetAttrRules
{
    engine::Units units;
    /// Limits are held to (commands) or not looked at (files hold what was once legal).
    engine::Limits limits = engine::Limits::refuse;
};

/// Sets the value first, then the state. The outcome's text is the message for the user, without
/// "setAttr: ". Ranges stop at the first element that refuses. notImplemented for a value that the attribute
/// may hold in Maya but cannot hold here.
engine::Outcome applySetAttr(const PlugTarget& target, const SetAttrRequest& request,
                             const SetAttrRules& rules);

/// The message of a refused write of a plug: locked, past a limit …; the outcome's own text otherwise.
std::string refusedWriteMessage(const engine::Plug& plug, const engine::Outcome& outcome,
                                const engine::Units& units);

} // namespace tvxhost::scene
