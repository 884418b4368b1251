// The curve of a nurbsCurve node; see curveNode.h. Plugs hold curves as the words of a scene file.
#include "curveNode.h"

#include "../data.h"
#include "../node.h"

namespace tvxhost::engine {

namespace {

constexpr const char* kTypeName = "nurbsCurve";

} // namespace

std::optional<NurbsCurve> curveIn(const Plug& plug)
{
    const auto data = readData(plug);
    if (!data || data.value->type() != DataType::plugin)
        return std::nullopt;
    const auto& kept = static_cast<const KeptData&>(*data.value);
    auto curve = kept.typeName == kTypeName ? parseNurbsCurve(kept.text) : std::nullopt;
    return curve && curve->isValid() ? curve : std::nullopt;
}

bool hasCurveHistory(Node& node)
{
    Attribute* create = node.findAttribute("create");
    return create && isFedAnywhere(Plug(node, *create));
}

std::optional<NurbsCurve> curveOf(Node& node)
{
    Attribute* held = node.findAttribute(hasCurveHistory(node) ? "create" : "cached");
    return held && node.type().isA(kTypeName) ? curveIn(Plug(node, *held)) : std::nullopt;
}

Outcome storeCurve(Node& node, const NurbsCurve& curve)
{
    if (!curve.isValid())
        return {Reason::noData, "this is no curve"};
    if (hasCurveHistory(node))
        return {Reason::notWritable, "'" + node.name() + "' has construction history"};
    return writeData(Plug(node, *node.findAttribute("cached")), KeptData(kTypeName, nurbsCurveWords(curve)));
}

} // namespace tvxhost::engine
