// ScriptEditor: where messages, results and printed text go, and how they look.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <unordered_set>
#include <vector>

namespace tvxhost::engine {

enum class MessageKind
{
    print,
    info,
    result,
    warning,
    error
};

/// Where in a script a message comes from; no file: typed text.
struct ScriptPlace
{
    std::string file;
    int line = 0; ///< 0: no place
};

/// One line (or printed piece) as it was given, without any frame.
struct Message
{
    MessageKind kind = MessageKind::info;
    std::string text;
    ScriptPlace place;
};

/// Collects messages and shows them on two streams as batch Maya does, or framed as in the script editor of
/// an interactive session. Counts what went wrong, for the exit code.
class ScriptEditor
{
public:
    enum class Frame
    {
        batch,       ///< "Warning: text", "Error: text"; info, results and print as they are
        interactive, ///< "// Warning: text // ", "// text", "// Result: v // "
    };

    /// Results, print and info go to `out`, warnings and errors to `err`; null for nowhere.
    void setStreams(std::ostream* out, std::ostream* err);
    void setFrame(Frame frame) { m_frame = frame; }
    Frame frame() const { return m_frame; }

    void print(const std::string& text);
    void info(const std::string& text);
    void result(const std::string& text);
    void warning(const std::string& text, const ScriptPlace& place = {});
    void error(const std::string& text, const ScriptPlace& place = {});
    /// An error about something the host does not do; each text is shown once per session.
    void notImplemented(const std::string& what);

    /// The message as it is shown, line end included.
    static std::string framed(const Message& message, Frame frame);

    /// Everything since the start or the last clear, oldest first; print in the pieces that were printed.
    const std::vector<Message>& history() const { return m_history; }
    void clearHistory();
    int warnings() const { return m_warnings; }
    int errors() const { return m_errors; }

    /// Called with each message after it was shown; for tests and windows. One at most.
    void setListener(std::function<void(const Message&)> listener) { m_listener = std::move(listener); }
    /// While quiet, warnings and errors are neither shown, kept nor counted (catchQuiet). Nests.
    void pushQuiet() { ++m_quiet; }
    void popQuiet() { --m_quiet; }

private:
    void show(Message message);

    std::ostream* m_out = nullptr;
    std::ostream* m_err = nullptr;
    Frame m_frame = Frame::batch;
    std::vector<Message> m_history;
    std::unordered_set<std::string> m_toldOnce;
    std::function<void(const Message&)> m_listener;
    int m_warnings = 0;
    int m_errors = 0;
    int m_quiet = 0;
};

} // namespace tvxhost::engine
