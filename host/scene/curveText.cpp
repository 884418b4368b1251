// The keys of animation curves as scene files hold them; see curveText.h.
#include "curveText.h"

#include "plugTarget.h"
#include "uiUnits.h"
#include "valueLines.h"
#include "valueText.h"

#include "engine/animCurve.h"
#include "engine/scene.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tvxhost::scene {

using engine::Attribute;
using engine::Plug;

namespace {

/// Values that one statement holds at most.
constexpr std::size_t kValuesPerStatement = 500;

constexpr std::array<std::string_view, 11> kKeyArrays = {
    "keyTimeValue",    "keyBreakdown", "keyTickDrawSpecial", "keyTanInType", "keyTanOutType", "keyTanLocked",
    "keyWeightLocked", "keyTanInX",    "keyTanInY",          "keyTanOutX",   "keyTanOutY"};

/// Times are set apart by a blank before them, whole pairs to a line; other values by one behind them.
ValueLines::Style styleOf(const Attribute& array, const std::vector<Attribute*>& leaves)
{
    ValueLines::Style style = listStyle(array);
    style.leads = leaves.size() > 1 && leaves.front()->unit == engine::UnitKind::time;
    return style;
}

/// Consecutive elements, as many as a statement holds.
struct Run
{
    std::size_t begin;
    std::size_t end;
};

std::vector<Run> runsOf(const std::vector<int>& elements, std::size_t longest)
{
    std::vector<Run> runs;
    for (std::size_t i = 0; i < elements.size(); ++i) {
        const bool goesOn =
            !runs.empty() && elements[i] == elements[i - 1] + 1 && i - runs.back().begin < longest;
        if (!goesOn)
            runs.push_back({i, i});
        runs.back().end = i + 1;
    }
    return runs;
}

std::string pathOf(const Plug& array, int first, int last)
{
    std::string range = std::to_string(first);
    if (last != first)
        range += ':' + std::to_string(last);
    return " \"." + filePath(array) + '[' + range + "]\"";
}

} // namespace

std::vector<Attribute*> inFileOrder(const engine::Node& node)
{
    std::vector<Attribute*> attributes = node.attributes();
    if (!engine::isAnimCurve(node))
        return attributes;
    const auto place = [&](std::string_view name) {
        return std::find_if(attributes.begin(), attributes.end(),
                            [&](const Attribute* attribute) { return attribute->longName == name; });
    };
    const auto keys = place("keyTimeValue");
    std::rotate(place("weightedTangents") + 1, keys, keys + 1);
    return attributes;
}

bool isKeyArray(const Plug& plug)
{
    return plug.isArray() && engine::isAnimCurve(*plug.node()) &&
           std::find(kKeyArrays.begin(), kKeyArrays.end(), plug.attribute()->longName) != kKeyArrays.end();
}

std::vector<std::string> keyStatements(const Plug& array)
{
    engine::Node& curve = *array.node();
    const engine::Units& units = curve.scene().units();
    const std::size_t keyCount =
        engine::existingElements(Plug(curve, *curve.findAttribute("keyTimeValue"))).size();
    const std::vector<int> elements = engine::existingElements(array);
    const std::vector<Attribute*> leaves = numberLeaves(*array.attribute());
    const ValueLines::Style style = styleOf(*array.attribute(), leaves);

    std::vector<std::string> statements;
    for (const Run& run : runsOf(elements, kValuesPerStatement / leaves.size())) {
        const bool tellsCount = statements.empty() && keyCount > 1;
        ValueLines lines(style, countBefore(filePath(array), true));
        for (std::size_t i = run.begin; i < run.end; ++i) {
            const std::vector<double> numbers = engine::readNumbers(array.element(elements[i])).value;
            std::vector<std::string> words;
            for (std::size_t leaf = 0; leaf < leaves.size(); ++leaf)
                words.push_back(leafText(*leaves[leaf], numbers[leaf], units, false));
            if (style.leads)
                lines.add(words[0] + ' ' + words[1]);
            else
                for (const std::string& word : words)
                    lines.add(word);
        }
        statements.push_back((tellsCount ? " -s " + std::to_string(keyCount) : std::string()) +
                             pathOf(array, elements[run.begin], elements[run.end - 1]) + lines.text() + ';');
    }
    return statements;
}

} // namespace tvxhost::scene
