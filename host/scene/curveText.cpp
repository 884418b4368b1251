// The keys of animation curves as scene files hold them; see curveText.h.
#include "curveText.h"

#include "plugTarget.h"
#include "uiUnits.h"
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

/// The values of one statement, over lines that end where Maya ends them: as soon as a count passes the
/// longest line. The count begins with a flat rate for the words before the values.
class ValueLines
{
public:
    /// How one kind of value is counted and set apart.
    struct Style
    {
        bool leads = false;        ///< a blank before each value and none behind it
        std::size_t flatWidth = 0; ///< what each value counts; 0 for its own width
        std::size_t beginning = 0; ///< what a further line counts before its first value
        std::size_t blanks = 1;    ///< between the path and the values
    };

    explicit ValueLines(const Style& style) : m_style(style), m_count(kPathCount + style.blanks)
    {
        m_text.assign(style.leads ? style.blanks - 1 : style.blanks, ' ');
    }

    /// Adds what must not be torn apart.
    void add(const std::string& words)
    {
        if (m_breaks) {
            m_text += m_style.leads ? "\n\t\t" : " \n\t\t";
            m_count = m_style.beginning;
        } else if (!m_style.leads && m_hasValues) {
            m_text += ' ';
        }
        if (m_style.leads)
            m_text += ' ';
        m_text += words;
        m_count += m_style.flatWidth != 0 ? m_style.flatWidth : words.size() + 1;
        m_breaks = m_count > kLongest;
        m_hasValues = true;
    }

    const std::string& text() const { return m_text; }

private:
    static constexpr std::size_t kLongest = 80;
    static constexpr std::size_t kPathCount = 40;

    Style m_style;
    std::string m_text;
    std::size_t m_count;
    bool m_breaks = false;
    bool m_hasValues = false;
};

/// Times are set apart by a blank before them, whole pairs to a line; other values by one behind them.
ValueLines::Style styleOf(const Attribute& array, const std::vector<Attribute*>& leaves)
{
    ValueLines::Style style;
    style.blanks = 2;
    style.leads = leaves.size() > 1 && leaves.front()->unit == engine::UnitKind::time;
    if (array.kind == engine::AttributeKind::enumeration)
        style.flatWidth = 5;
    if (array.number == engine::NumberKind::boolean) {
        style.blanks = 1;
        style.beginning = 1;
    }
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
        ValueLines lines(style);
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
        const bool tellsCount = statements.empty() && keyCount > 1;
        statements.push_back((tellsCount ? " -s " + std::to_string(keyCount) : std::string()) +
                             pathOf(array, elements[run.begin], elements[run.end - 1]) + lines.text() + ';');
    }
    return statements;
}

} // namespace tvxhost::scene
