// The surface of a nurbsSurface node; see surfaceNode.h. Plugs hold surfaces as the words of a scene file.
#include "surfaceNode.h"

#include "../data.h"
#include "../node.h"

namespace tvxhost::engine {

namespace {

constexpr const char* kTypeName = "nurbsSurface";

} // namespace

bool hasSurfaceHistory(Node& node)
{
    Attribute* create = node.findAttribute("create");
    return create && isFedAnywhere(Plug(node, *create));
}

Plug surfacePlugOf(Node& node)
{
    Attribute* held = node.findAttribute(hasSurfaceHistory(node) ? "create" : "cached");
    return held && node.type().isA(kTypeName) ? Plug(node, *held) : Plug();
}

std::optional<NurbsSurface> surfaceOf(Node& node)
{
    const Plug plug = surfacePlugOf(node);
    if (plug.isNull())
        return std::nullopt;
    const auto data = readData(plug);
    if (!data || data.value->type() != DataType::plugin)
        return std::nullopt;
    const auto& kept = static_cast<const KeptData&>(*data.value);
    return kept.typeName == kTypeName ? parseNurbsSurface(kept.text) : std::nullopt;
}

Outcome storeSurface(Node& node, const NurbsSurface& surface)
{
    if (!surface.isValid())
        return {Reason::noData, "this is no surface"};
    if (hasSurfaceHistory(node))
        return {Reason::notWritable, "'" + node.name() + "' has construction history"};
    return writeData(surfacePlugOf(node), KeptData(kTypeName, nurbsSurfaceWords(surface)));
}

} // namespace tvxhost::engine
