// What a file would say of one node; see referenceStatements.h.
#include "referenceStatements.h"

#include "beginsWith.h"
#include "nodeWriter.h"

#include <array>
#include <functional>
#include <string_view>

namespace tvxhost::scene {

namespace {

/// Edits say 1 and 0 where statements say on and off, yes and no.
std::string inNumbers(std::string words)
{
    constexpr std::array<std::pair<std::string_view, const char*>, 4> kWords = {
        {{" on", " 1"}, {" off", " 0"}, {" yes", " 1"}, {" no", " 0"}}};
    for (const auto& [word, number] : kWords) {
        std::size_t at = words.find(word);
        while (at != std::string::npos) {
            const std::size_t end = at + word.size();
            if (end == words.size() || words[end] == ' ')
                words.replace(at, word.size(), number);
            at = words.find(word, at + 1);
        }
    }
    return words;
}

std::string withoutBlanksBehind(std::string words)
{
    words.erase(words.find_last_not_of(' ') + 1);
    return words;
}

/// `setAttr FLAGS ".path" VALUES;`
NodeStatement setAttrIn(std::string_view text)
{
    constexpr std::string_view kCommand = "setAttr";
    const std::size_t quote = text.find(" \".");
    const std::size_t end = text.find('"', quote + 3);
    NodeStatement statement;
    statement.path = text.substr(quote + 3, end - quote - 3);
    std::string values(text.substr(end + 1, text.rfind(';') - end - 1));
    if (values.find('"') == std::string::npos)
        values = inNumbers(std::move(values));
    statement.words = inNumbers(std::string(text.substr(kCommand.size(), quote - kCommand.size()))) +
                      withoutBlanksBehind(std::move(values));
    return statement;
}

/// Takes the flag of a name out of the words, and gives the name.
std::string takeName(std::string& words, std::string_view flag)
{
    const std::size_t at = words.find(flag);
    if (at == std::string::npos)
        return {};
    const std::size_t begin = at + flag.size() + 1;
    const std::size_t end = words.find('"', begin);
    std::string name = words.substr(begin, end - begin);
    words.erase(at, end + 1 - at);
    return name;
}

/// `addAttr FLAGS;`
NodeStatement addAttrIn(std::string_view text)
{
    constexpr std::string_view kCommand = "addAttr";
    NodeStatement statement;
    statement.isDeclaration = true;
    statement.words = std::string(text.substr(kCommand.size(), text.rfind(';') - kCommand.size()));
    statement.path = takeName(statement.words, " -sn ");
    statement.longName = takeName(statement.words, " -ln ");
    return statement;
}

} // namespace

std::size_t NodeStatement::digest() const
{
    return std::hash<std::string>()(words);
}

std::vector<NodeStatement> statementsOf(engine::Scene& scene, engine::Node& node)
{
    std::string text;
    NodeWriter(scene, text).writeLines(node);
    std::vector<NodeStatement> statements;
    for (std::size_t begin = 0; begin < text.size();) {
        // Lines that go on with a statement begin with two tabs.
        std::size_t end = text.find('\n', begin);
        while (end + 1 < text.size() && (text.compare(end + 1, 2, "\t\t") == 0))
            end = text.find('\n', end + 1);
        const std::string_view statement(text.data() + begin + 1, end - begin - 1);
        if (beginsWith(statement, "setAttr ") && statement.find(" \".") != std::string_view::npos)
            statements.push_back(setAttrIn(statement));
        else if (beginsWith(statement, "addAttr "))
            statements.push_back(addAttrIn(statement));
        begin = end + 1;
    }
    return statements;
}

std::string statementOf(engine::Scene& scene, const engine::Plug& plug)
{
    std::string unused;
    const std::string statement = NodeWriter(scene, unused).statement(plug);
    return statement.empty() ? statement : setAttrIn(statement).words;
}

} // namespace tvxhost::scene
