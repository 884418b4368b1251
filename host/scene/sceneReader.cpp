// SceneReader: the flow from statement to statement; see sceneReader.h.
#include "sceneReader.h"

#include "constantArguments.h"
#include "sceneText.h"

#include "mel/scriptError.h"

#include <algorithm>

namespace tvxhost::scene {

namespace {

constexpr std::size_t kProgressStep = 1 << 20;

/// Only the end of the file ends a statement without a semicolon or a brace.
bool isCutOff(const mel::StatementReader& reader)
{
    const std::string_view source = reader.source();
    const std::size_t last = source.find_last_not_of(" \t\r\n");
    return last != std::string_view::npos && source[last] != ';' && source[last] != '}';
}

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
    {"relationship", &SceneReader::relationship},
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

SceneReader::SceneReader(engine::Scene& scene, const ReadOptions& options, std::string file,
                         engine::Reference* reference, ReferenceStates* states)
    : m_scene(scene), m_options(options), m_file(std::move(file)), m_reference(reference),
      m_states(states ? *states : m_ownStates), m_addAttr(addAttrSpec()),
      m_created(scene.nodes().back()->serial())
{
    m_summary.file = m_file;
}

void SceneReader::read(std::string_view text)
{
    m_textSize = text.size();
    const engine::Scene::RelativeNames inCurrentNamespace(m_scene);
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
    loadReferences();
    if (!m_isCutOff && lacksItsEnd(text))
        error("The file ends before its last line, \"// End of ...\": it is not whole", reader.line());
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
            m_isCutOff = reader.offset() == m_textSize;
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
    if (isCutOff(reader)) {
        error("The file ends within this statement: it is not whole", reader.line());
        m_isCutOff = true;
        return;
    }
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
        error("The compound attribute '" + name + "' lacks some of its children", m_lastDeclaration);
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
    // What another file says of the scene as a whole is not for this one's to say again.
    if (m_reference && &lines == &m_scene.keptConnections)
        return;
    lines.push_back(keptText(statement.source));
    ++m_summary.keptStatements;
}

std::string keptText(std::string_view source)
{
    constexpr const char* kBlanks = " \t\r\n";
    const std::size_t begin = std::min(source.find_first_not_of(kBlanks), source.size());
    const std::string_view bare = source.substr(begin, source.find_last_not_of(kBlanks) + 1 - begin);
    std::string text;
    text.reserve(bare.size());
    for (std::size_t i = 0; i < bare.size(); ++i) {
        if (bare[i] != '\r')
            text += bare[i];
        else if (bare[i + 1] != '\n')
            text += '\n';
    }
    return text;
}

} // namespace tvxhost::scene
