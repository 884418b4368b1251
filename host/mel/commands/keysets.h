// Keysets: the curves and keys that the keyframe commands work on, as their common flags say.
#pragma once

#include "commandSupport.h"

#include "engine/animCurve.h"

#include <optional>
#include <string>
#include <vector>

namespace tvxhost::mel {

/// The flags that choose plugs, curves and keys.
std::vector<FlagSpec> plugFlags();
std::vector<FlagSpec> keysetFlags();
FlagSpec animationFlag();
FlagSpec clipboardFlag();
/// Stops the script when -clipboard names another clipboard than that of the session.
void requireOwnClipboard(const CommandContext& context, const ParsedCommand& call);

/// The plugs that the arguments (or the selection) and -attribute name: leaves of numbers. Without -attribute
/// those that a node has keyable, and those of the shapes below a transform. -hierarchy reaches further
/// nodes.
std::vector<engine::Plug> plugsToKey(const CommandContext& context, const ParsedCommand& call);

/// The leaves of one item: those of its plug, or of the attributes of its node that -attribute names.
std::vector<engine::Plug> namedPlugs(const engine::SelectionItem& item, const ParsedCommand& call);

/// Whether a leaf is offered for keys.
bool isKeyable(const engine::Plug& leaf);

/// The curves of the arguments (or the selection): themselves, those of plugs, and of all plugs of a node.
std::vector<engine::Node*> curvesOf(const CommandContext& context, const ParsedCommand& call);
/// The same of one of the objects.
std::vector<engine::Node*> curvesOf(const CommandContext& context, const ParsedCommand& call,
                                    const engine::SelectionItem& item);

std::vector<std::string> namesOf(const CommandContext& context, const std::vector<engine::Node*>& curves);

/// From one place of a curve's input to another; either may be infinite.
struct KeySpan
{
    double low;
    double high;

    double length() const { return high - low; }
    bool isFinite() const;
};

/// The keys that -time, -float and -index choose; all without them.
class KeyChoice
{
public:
    KeyChoice(const CommandContext& context, const ParsedCommand& call);

    /// The indices of the chosen keys of a curve.
    std::vector<std::size_t> of(const engine::Node& curve, const engine::AnimCurveKeys& keys) const;
    /// The places that -time and -float name one by one, of the curve's sort.
    std::vector<double> places(const engine::Node& curve) const;
    /// From the first to the last place that -time (or -float) names; none without them.
    std::optional<KeySpan> span(bool isTimed) const;
    bool includesUpper() const { return m_includesUpper; }

private:
    struct Range
    {
        double low;
        double high;
        bool isPoint;
    };
    static Range rangeOf(const CommandContext& context, const Value& value, ArgumentType type);
    bool holds(const std::vector<Range>& ranges, double at) const;

    std::vector<Range> m_times;
    std::vector<Range> m_numbers;
    std::vector<Range> m_indices;
    bool m_includesUpper = true;
};

/// A kind of tangent by its name in commands; stops the script for what is none.
engine::TangentKind tangentNamed(const CommandContext& context, const std::string& name);
std::string nameOf(engine::TangentKind kind);

/// A number of a curve's input or value: UI units outside, internal units inside.
double inputToUi(const engine::Node& curve, double internal);
double valueToUi(const engine::Node& curve, double internal);

} // namespace tvxhost::mel
