// ScriptEditor: see scriptEditor.h.
#include "scriptEditor.h"

namespace tvxhost::engine {

namespace {

const char* prefixOf(MessageKind kind)
{
    switch (kind) {
    case MessageKind::warning:
        return "Warning: ";
    case MessageKind::error:
        return "Error: ";
    default:
        return "";
    }
}

std::string placeText(const ScriptPlace& place)
{
    if (place.line <= 0)
        return {};
    const std::string line = "line " + std::to_string(place.line) + ": ";
    return place.file.empty() ? line : "file: " + place.file + " " + line;
}

} // namespace

void ScriptEditor::setStreams(std::ostream* out, std::ostream* err)
{
    m_out = out;
    m_err = err;
}

void ScriptEditor::print(const std::string& text)
{
    show({MessageKind::print, text, {}});
}

void ScriptEditor::info(const std::string& text)
{
    show({MessageKind::info, text, {}});
}

void ScriptEditor::result(const std::string& text)
{
    show({MessageKind::result, text, {}});
}

void ScriptEditor::warning(const std::string& text, const ScriptPlace& place)
{
    show({MessageKind::warning, text, place});
}

void ScriptEditor::error(const std::string& text, const ScriptPlace& place)
{
    show({MessageKind::error, text, place});
}

void ScriptEditor::notImplemented(const std::string& what)
{
    if (m_toldOnce.insert(what).second)
        error("Not implemented: " + what);
}

std::string ScriptEditor::framed(const Message& message, Frame frame)
{
    if (message.kind == MessageKind::print)
        return message.text;
    const std::string body = prefixOf(message.kind) + placeText(message.place) + message.text;
    if (frame == Frame::batch)
        return body + "\n";
    switch (message.kind) {
    case MessageKind::info:
        return "// " + body + "\n";
    case MessageKind::result:
        return "// Result: " + body + " // \n";
    default:
        return "// " + body + " // \n";
    }
}

void ScriptEditor::clearHistory()
{
    m_history.clear();
}

void ScriptEditor::show(Message message)
{
    const bool isTrouble = message.kind == MessageKind::warning || message.kind == MessageKind::error;
    if (isTrouble && m_quiet > 0)
        return;
    m_warnings += message.kind == MessageKind::warning;
    m_errors += message.kind == MessageKind::error;

    if (std::ostream* stream = isTrouble ? m_err : m_out)
        *stream << framed(message, m_frame) << std::flush;
    m_history.push_back(message);
    if (m_listener)
        m_listener(message);
}

} // namespace tvxhost::engine
