// SceneReader: the flow from statement to statement; see sceneReader.h.
#include "sceneReader.h"

#include "constantArguments.h"

#include "mel/scriptError.h"

#include <algorithm>

namespace tvxhost::scene {

namespace {

constexpr std::size_t kProgressStep = 1 << 20;

} // namespace

const SceneReader::HandlerRow SceneReader::kHandlers[] = {
    {"setAttr", &SceneReader::setAttr},
    {"createNode", &SceneReader::createNode},
    {"rename", &SceneReader::rename},
    {"connectAttr", &SceneReader::connectAttr},
    {"addAttr", &SceneReader::addAttr},
    {"select", &SceneReader::select},
    {"parent", &SceneReader::parent},
    {"lockNode", &SceneReader::lockNode},
    {"disconnectAttr", &SceneReader::disconnectAttr},
    {"relationship", &SceneReader::keepStatement},
    {"dataStructure", &SceneReader::keepStatement},
    {"applyMetadata", &SceneReader::keepStatement},
    {"requires", &SceneReader::requires_},
    {"currentUnit", &SceneReader::currentUnit},
    {"fileInfo", &SceneReader::fileInfo},
    {"file", &SceneReader::file},
};

SceneReader::Handler SceneReader::handlerOf(std::string_view name)
{
    const auto* row = std::find_if(std::begin(kHandlers), std::end(kHandlers),
                                   [&](const HandlerRow& candidate) { return candidate.name == name; });
    return row == std::end(kHandlers) ? nullptr : row->handler;
}

SceneReader::SceneReader(engine::Scene& scene, const ReadOptions& options, std::string file)
    : m_scene(scene), m_options(options), m_file(std::move(file)), m_addAttr(addAttrSpec())
{
    m_summary.file = m_file;
}

void SceneReader::read(std::string_view text)
{
    mel::StatementReader reader(text, m_file);
    std::size_t told = 0;
    while (nextStatement(reader)) {
        readStatement(reader);
        if (m_options.progress && reader.offset() - told >= kProgressStep) {
            told = reader.offset();
            m_options.progress(told, text.size());
        }
    }
    finish();
    if (m_options.progress)
        m_options.progress(text.size(), text.size());
}

bool SceneReader::nextStatement(mel::StatementReader& reader)
{
    for (;;) {
        try {
            return reader.next();
        } catch (const mel::SyntaxError& broken) {
            error(broken.what(), broken.place().line);
            reader.skipBroken();
        }
    }
}

void SceneReader::readStatement(mel::StatementReader& reader)
{
    if (const mel::PlainCommand* plain = reader.plain()) {
        ++m_summary.statements;
        ++m_summary.commands[std::string(plain->name)];
        if (handlerOf(plain->name))
            dispatch({plain->name, plain->arguments, reader.source(), plain->line});
        else
            runOther(reader);
        return;
    }
    ++m_summary.statements;
    std::string name;
    mel::ArgumentList arguments;
    if (constantArguments(*reader.statement(), name, arguments) && handlerOf(name)) {
        ++m_summary.commands[name];
        dispatch({name, arguments, reader.source(), reader.line()});
    } else {
        ++m_summary.commands[name.empty() ? "script" : name];
        runOther(reader);
    }
}

void SceneReader::runOther(mel::StatementReader& reader)
{
    if (!m_options.runStatement) {
        error("Not a statement of a scene: " + keptText(reader.source().substr(0, 80)), reader.line());
        return;
    }
    const int line = reader.line();
    try {
        m_options.runStatement(reader, m_file);
    } catch (const mel::ScriptError& failure) {
        error(failure.what(), failure.place().line > 0 ? failure.place().line : line);
    }
}

void SceneReader::dispatch(const SceneStatement& statement)
{
    (this->*handlerOf(statement.name))(statement);
}

void SceneReader::finish()
{
    for (const std::string& name : m_compounds.abandon())
        error("The compound attribute '" + name + "' lacks some of its children", 0);
}

void SceneReader::error(const std::string& text, int line)
{
    ++m_summary.errors;
    m_scene.scriptEditor().error(text, place(line));
}

void SceneReader::warning(const std::string& text, int line)
{
    ++m_summary.warnings;
    m_scene.scriptEditor().warning(text, place(line));
}

void SceneReader::keep(std::vector<std::string>& lines, const SceneStatement& statement)
{
    lines.push_back(keptStatement(statement.source));
    ++m_summary.keptStatements;
}

std::string keptStatement(std::string_view source)
{
    std::string text = keptText(source);
    if (text.empty() || text.back() != ';')
        text += ';';
    return text;
}

std::string keptText(std::string_view source)
{
    std::string text;
    text.reserve(source.size());
    for (std::size_t i = 0; i < source.size(); ++i) {
        if (source[i] != '\r')
            text += source[i];
        else if (i + 1 == source.size() || source[i + 1] != '\n')
            text += '\n';
    }
    const std::size_t begin = text.find_first_not_of(" \t\n");
    const std::size_t end = text.find_last_not_of(" \t\n");
    return begin == std::string::npos ? std::string() : text.substr(begin, end - begin + 1);
}

} // namespace tvxhost::scene
