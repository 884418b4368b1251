// Scenes that real Maya wrote: every value that a scene sets on an attribute the host knows is the one that
// is read back. TVX_SCENES_DIR names the folder of the scenes, beside a table contents.tsv.
#include "../support/sceneTable.h"

#include "scene/attributeTypes.h"
#include "scene/plugTarget.h"
#include "scene/polyFaces.h"
#include "scene/reader.h"
#include "scene/sceneText.h"
#include "scene/setAttr.h"
#include "scene/typedData.h"
#include "scene/uiUnits.h"
#include "scene/xformMatrix.h"

#include "engine/data.h"
#include "engine/scene.h"
#include "mel/parser.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace tvxhost::scene {
namespace {

using engine::Attribute;
using engine::NumberKind;
using engine::Plug;

std::vector<std::string> sceneFiles()
{
    std::vector<std::string> files;
    for (const std::vector<std::string>& fields : test::tableRows("contents.tsv"))
        files.push_back(fields.at(0));
    return files;
}

/// The number that a leaf holds when a file gives it a word.
double stored(const Attribute& leaf, const mel::Argument& word, const engine::Units& units)
{
    const double value = numberOf(word).value_or(0.0) * internalPerUi(leaf, units);
    switch (leaf.number) {
    case NumberKind::boolean:
        return value != 0.0 ? 1.0 : 0.0;
    case NumberKind::single:
        return static_cast<double>(static_cast<float>(value));
    case NumberKind::real:
        return value;
    default:
        return std::trunc(value);
    }
}

/// What the words of a data object are, one by one; numbers in one form, as floats where the object holds
/// such.
std::vector<std::string> wordsOf(const mel::Argument* begin, const mel::Argument* end, bool areFloats = false)
{
    std::vector<std::string> words;
    for (const mel::Argument* word = begin; word != end; ++word) {
        const auto number = word->kind == mel::ArgumentKind::string ? std::nullopt : numberOf(*word);
        std::ostringstream text;
        text.precision(17);
        if (number)
            text << (areFloats ? static_cast<double>(static_cast<float>(*number)) : *number);
        else
            text << word->text;
        words.push_back(text.str());
    }
    return words;
}

std::vector<std::string> wordsOf(const std::string& values)
{
    const std::string text = "values" + values + ";";
    mel::StatementReader reader(text, "");
    if (!reader.next() || !reader.plain())
        return {"not plain: " + text};
    const mel::ArgumentList& arguments = reader.plain()->arguments;
    const bool hasType = arguments.size() > 1 && arguments[0].text == "-type";
    return wordsOf(arguments.begin() + (hasType ? 2 : 0), arguments.end());
}

/// Goes over the statements of a file beside the scene that was read from it.
class ValueCheck
{
public:
    ValueCheck(engine::Scene& scene, const std::string& file) : m_scene(scene), m_file(file) {}

    void run(const std::string& text)
    {
        mel::StatementReader reader(text, m_file);
        while (reader.next()) {
            const mel::PlainCommand* plain = reader.plain();
            if (!plain)
                continue;
            if (plain->name == "createNode")
                enter(plain->arguments, "-n");
            else if (plain->name == "select")
                enter(plain->arguments, "-ne");
            else if (plain->name == "rename")
                takeUuid(plain->arguments);
            else if (plain->name == "setAttr")
                check(plain->arguments, plain->line);
        }
    }

    std::size_t checked() const { return m_checked; }

private:
    /// The node that the following statements are about; one whose name is not unique is told by its uuid.
    void enter(const mel::ArgumentList& arguments, std::string_view flag)
    {
        m_node = nullptr;
        for (const mel::Argument* word = arguments.begin(); word + 1 < arguments.end(); ++word)
            if (word->text == flag)
                if (const auto found = m_scene.findNode(std::string(word[1].text)))
                    m_node = found.value;
    }

    void takeUuid(const mel::ArgumentList& arguments)
    {
        if (m_node || arguments.size() < 2)
            return;
        for (engine::Node* node : m_scene.nodes())
            if (node->uuid() == arguments[1].text)
                m_node = node;
    }

    void check(const mel::ArgumentList& arguments, int line)
    {
        const auto request = parseSetAttr(arguments);
        if (!m_node || !request || !request.value.hasValues() || request.value.plug.empty() ||
            request.value.plug.front() != '.' || request.value.values->text == kXformWord)
            return;
        const auto target = findTarget(*m_node, request.value.plug.substr(1));
        if (!target)
            return;
        SCOPED_TRACE(m_file + " line " + std::to_string(line) + ": " + m_node->name() +
                     std::string(request.value.plug));
        const bool isNumeric = request.value.type.empty() || isNumericTypeName(request.value.type);
        const Attribute& attribute = *target.value.plug.attribute();
        const bool isFaces = attribute.kind == engine::AttributeKind::typed &&
                             attribute.dataType == engine::DataType::polyFaces;
        if (isNumeric && !isFaces)
            checkNumbers(target.value, request.value);
        else
            checkData(target.value, request.value);
    }

    std::vector<Plug> plugsOf(const PlugTarget& target) const
    {
        if (!target.isRange)
            return {target.plug};
        std::vector<Plug> plugs;
        for (std::size_t i = 0; i < target.count(); ++i)
            if (const auto plug = target.nth(i))
                plugs.push_back(plug.value);
        return plugs;
    }

    void checkNumbers(const PlugTarget& target, const SetAttrRequest& request)
    {
        const mel::Argument* word = request.values;
        for (const Plug& plug : plugsOf(target)) {
            const std::vector<Attribute*> leaves = numberLeaves(*plug.attribute());
            if (leaves.empty() || plug.isArray() ||
                request.end - word < static_cast<std::ptrdiff_t>(leaves.size()))
                return;
            const mel::Argument* next = word + leaves.size();
            if (!engine::isFedAnywhere(plug)) {
                const auto values = engine::readNumbers(plug);
                ASSERT_TRUE(values) << values.outcome.text;
                ASSERT_EQ(values.value.size(), leaves.size());
                for (std::size_t i = 0; i < leaves.size(); ++i)
                    EXPECT_EQ(values.value[i], stored(*leaves[i], word[i], m_scene.units()));
                ++m_checked;
            }
            word = next;
        }
    }

    void checkData(const PlugTarget& target, const SetAttrRequest& request)
    {
        std::vector<std::string> read;
        for (const Plug& plug : plugsOf(target)) {
            if (engine::isFedAnywhere(plug))
                return;
            const auto data = engine::readData(plug);
            if (!data || !data.value)
                return expectEmpty(request);
            const bool isFace = data.value->type() == engine::DataType::plugin &&
                                static_cast<const engine::KeptData&>(*data.value).typeName == kPolyFacesType;
            const std::string values = isFace ? " " + static_cast<const engine::KeptData&>(*data.value).text
                                              : dataWords(*data.value, {});
            const auto words = wordsOf(values);
            read.insert(read.end(), words.begin(), words.end());
        }
        EXPECT_EQ(read, wordsOf(request.values, request.end, request.type == "floatArray"));
        ++m_checked;
    }

    void expectEmpty(const SetAttrRequest& request)
    {
        EXPECT_TRUE(request.values->text.empty()) << "nothing is read back";
        ++m_checked;
    }

    engine::Scene& m_scene;
    std::string m_file;
    engine::Node* m_node = nullptr;
    std::size_t m_checked = 0;
};

TEST(RealValues, areReadBackAsTheyWereSet)
{
    std::size_t checked = 0;
    for (const std::string& file : sceneFiles()) {
        const auto text = readFile(std::string(TVX_SCENES_DIR) + "/" + file);
        ASSERT_TRUE(text) << text.outcome.text;
        engine::Scene scene;
        ASSERT_TRUE(openSceneText(scene, text.value, file).outcome);
        ValueCheck check(scene, file);
        check.run(text.value);
        checked += check.checked();
    }
    EXPECT_GT(checked, 10'000u);
}

} // namespace
} // namespace tvxhost::scene
