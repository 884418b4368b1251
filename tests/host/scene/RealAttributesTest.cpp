// Scenes that real Maya wrote: the built-in types have every attribute that a scene sets or connects, but for
// those that other plug-ins have added to them. TVX_SCENES_DIR names the folder of the scenes, beside a table
// contents.tsv.
#include "../support/sceneTable.h"

#include "scene/plugTarget.h"
#include "scene/reader.h"
#include "scene/sceneText.h"
#include "scene/setAttr.h"

#include "engine/scene.h"
#include "mel/parser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tvxhost::scene {
namespace {

/// What plug-ins for rendering add to Maya's own types; files do not declare it.
constexpr std::string_view kAdded[] = {"ai_", "mtco_", "mtin_", "textureFilterWidth", "normalMap"};

bool isAddedByPlugins(std::string_view path)
{
    return std::any_of(std::begin(kAdded), std::end(kAdded),
                       [path](std::string_view prefix) { return path.substr(0, prefix.size()) == prefix; });
}

/// Type and attribute, and where it was seen first.
using Unknown = std::map<std::string, std::string>;

/// Goes over the statements of a file beside the scene that was read from it.
class AttributeCheck
{
public:
    AttributeCheck(engine::Scene& scene, std::string file, Unknown& unknown)
        : m_scene(scene), m_file(std::move(file)), m_unknown(unknown)
    {
    }

    void run(const std::string& text)
    {
        mel::StatementReader reader(text, m_file);
        while (reader.next()) {
            if (!reader.plain())
                continue;
            const mel::PlainCommand& plain = *reader.plain();
            m_line = plain.line;
            if (plain.name == "createNode")
                enter(wordAfter(plain.arguments, "-n"));
            else if (plain.name == "select")
                enter(plain.arguments.empty() ? "" : plain.arguments.end()[-1].text);
            else if (plain.name == "setAttr")
                checkSetAttr(plain.arguments);
            else if (plain.name == "connectAttr" && plain.arguments.size() > 1)
                for (int end : {0, 1})
                    checkEnd(plain.arguments[static_cast<std::size_t>(end)].text);
        }
    }

    std::size_t checked() const { return m_checked; }

private:
    static std::string_view wordAfter(const mel::ArgumentList& arguments, std::string_view flag)
    {
        for (const mel::Argument* word = arguments.begin(); word + 1 < arguments.end(); ++word)
            if (word->text == flag)
                return word[1].text;
        return {};
    }

    /// The node that the following statements are about; null when its name is not that of one node.
    void enter(std::string_view name)
    {
        const auto found = m_scene.findNode(std::string(name));
        m_node = found ? found.value : nullptr;
    }

    void checkSetAttr(const mel::ArgumentList& arguments)
    {
        const auto request = parseSetAttr(arguments);
        if (m_node && request && !request.value.plug.empty() && request.value.plug.front() == '.')
            check(*m_node, std::string(request.value.plug.substr(1)));
    }

    /// One end of a connection: "node.path".
    void checkEnd(std::string_view name)
    {
        const std::size_t dot = name.find('.');
        if (dot == std::string_view::npos)
            return;
        if (const auto node = m_scene.findNode(std::string(name.substr(0, dot))))
            check(*node.value, std::string(name.substr(dot + 1)));
    }

    void check(engine::Node& node, const std::string& path)
    {
        const std::string& type = node.type().name;
        if (type.rfind("unknown", 0) == 0 || isAddedByPlugins(path))
            return;
        ++m_checked;
        if (!findTarget(node, path))
            m_unknown.try_emplace(type + "." + path, m_file + " line " + std::to_string(m_line));
    }

    engine::Scene& m_scene;
    std::string m_file;
    Unknown& m_unknown;
    engine::Node* m_node = nullptr;
    int m_line = 0;
    std::size_t m_checked = 0;
};

TEST(RealAttributes, AreThoseOfTheBuiltInTypes)
{
    Unknown unknown;
    std::size_t checked = 0;
    for (const std::vector<std::string>& fields : test::tableRows("contents.tsv")) {
        const std::string& file = fields.at(0);
        const auto text = readFile(std::string(TVX_SCENES_DIR) + "/" + file);
        ASSERT_TRUE(text) << text.outcome.text;
        engine::Scene scene;
        ASSERT_TRUE(openSceneText(scene, text.value, file).outcome);
        AttributeCheck check(scene, file, unknown);
        check.run(text.value);
        checked += check.checked();
    }
    for (const auto& [attribute, place] : unknown)
        ADD_FAILURE() << attribute << " is unknown: " << place;
    EXPECT_GT(checked, 20'000u);
}

} // namespace
} // namespace tvxhost::scene
