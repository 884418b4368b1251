// The parts of `setAttr` statements; see setAttrText.h.
#include "setAttrText.h"

#include "attributeTypes.h"
#include "typedData.h"

#include "engine/node.h"

#include <optional>

namespace tvxhost::scene {

using engine::Attribute;
using engine::AttributeKind;
using engine::Plug;

namespace {

constexpr const char* kAltered = "-av .";

} // namespace

std::string stateFlags(const Plug& plug)
{
    const engine::PlugState state = engine::stateOf(plug);
    const engine::AttributeFlags& own = plug.attribute()->flags;
    std::string flags;
    const auto add = [&](const char* name, bool value) {
        flags += std::string(" -") + name + (value ? " on" : " off");
    };
    // The lock of a plug that is fed goes with its connection: nothing could be connected to it otherwise.
    if (state.locked && engine::sourceOf(plug).isNull())
        add("l", true);
    // An added attribute that is keyable is told to be so twice.
    const bool isAddedKeyable = own.dynamic && own.keyable && !plug.attribute()->parent && !plug.isElement();
    if (state.keyable.value_or(own.keyable) != own.keyable ||
        (isAddedKeyable && state.keyable.value_or(true)))
        add("k", state.keyable.value_or(true));
    if (state.channelBox && *state.channelBox != own.channelBox)
        add("cb", *state.channelBox);
    return flags;
}

bool isStored(const Plug& plug)
{
    const Attribute& attribute = *plug.attribute();
    if (!attribute.flags.storable || !attribute.flags.writable)
        return false;
    if (engine::NodeBehaviour* behaviour = plug.node()->behaviour())
        if (const std::optional<bool> opinion = behaviour->shouldSave(plug))
            return *opinion;
    return true;
}

bool isNumeric(const Attribute& attribute)
{
    return attribute.kind == AttributeKind::numeric || attribute.kind == AttributeKind::unit ||
           attribute.kind == AttributeKind::enumeration;
}

bool isGroup(const Attribute& attribute)
{
    const std::string type = attribute.children.empty() ? std::string() : attributeTypeName(attribute);
    return isNumericTypeName(type);
}

std::vector<double> numbersOf(const Plug& plug)
{
    const auto numbers = engine::readNumbers(plug);
    return numbers ? numbers.value : std::vector<double>();
}

std::string typeFlag(const Attribute& attribute)
{
    return isGroup(attribute) ? " -type \"" + attributeTypeName(attribute) + "\"" : std::string();
}

std::string pathText(const std::string& path)
{
    return " \"." + path + "\"";
}

std::string sizeFlag(std::size_t count)
{
    return " -s " + std::to_string(count);
}

std::string alteredMark(const std::string& path)
{
    return kAltered + path;
}

std::string alteredPath(const std::string& line)
{
    const std::string mark = kAltered;
    return line.compare(0, mark.size(), mark) == 0 ? line.substr(mark.size()) : std::string();
}

} // namespace tvxhost::scene
