// The tool set's logger for Maya.
#pragma once

#include "core/log/tvxTextBuffer.h"

#include <tvxCore/Log.h>
#include <tvxCore/Singleton.h>

#include <maya/MString.h>

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace tarvox::crowd {

class LogFileStream;
class MayaLogEventListener;

/// The plug-in's single logging hub. Core logs are registered with it under a name; while it runs, it sends
/// their messages to up to three outputs: Maya's script editor, a console stream and a log file. Its
/// preferences, and the severity filter of each registered log, are kept in Maya option variables.
///
/// getInstance() may be called from any thread; everything else belongs to Maya's main thread. No function
/// throws or returns a status; see docs/logging.md for what the user sees.
class MayaLogger : public core::Singleton<MayaLogger>
{
    friend class core::Singleton<MayaLogger>;
    friend class MayaLoggerTest; // reaches the state that no call leads to

public:
    /// Attaches every registered log with its filter, resets the indentation and starts the time of the time
    /// stamps anew. Started while running, it detaches first. Does not reopen a log file that stop() closed.
    void start();

    /// Detaches every registered log, which stays registered for the next start(), and closes the log file.
    void stop();

    /// Registers a log, which must be unregistered before it ends unless it outlives the logger. A log that
    /// is registered already only counts one use more.
    /// @param name          marks its messages and names its option variable
    /// @param defaultLevel  severity filter when the option variable does not exist; also becomes the level
    ///                      up to which indent() and unindent() are heeded
    void registerLog(core::Log& log, const std::string& name, int defaultLevel);

    /// Takes back one registration; the last one detaches the log. A log that is not registered is ignored.
    void unregisterLog(core::Log& log);

    /// The severity filter kept for a log name; created with the latest default level when there is none.
    int getLogLevelPreference(const std::string& name) const;
    void setLogLevelPreference(const std::string& name, int level);

    /// Sets the filter of one registered log.
    /// @param index  place in the order of registration, from 0; one that does not exist is ignored
    /// @param level  0 to 4, see core::Severity
    /// @param save   whether the option variable is written too
    void setSeverityFilter(std::size_t index, int level, bool save);

    /// Sets the filter of every registered log.
    /// @return the number of registered logs
    std::size_t setSeverityFilterAll(int level, bool save);

    /// Switches the script editor on or off, and its preference.
    void setUseScriptEditor(bool use);

    /// Sets the console stream, not owned; null for none. The preference keeps whether there is one.
    void setOutputStream(std::ostream* stream);

    /// Opens the log file anew, emptied, or closes it. When it cannot be opened, that is reported and file
    /// output is off; the preference keeps what was asked for.
    void setUseFile(bool use);

    /// Sets the folder of "tvxCrowd.log", and its preference; a log file in use is opened there.
    void setLogDirectory(const std::string& directory);

    /// Indents the lines that follow by `levels` more, two blanks each; heeded when `severity` is at most the
    /// latest default level. The indentation is never negative.
    void indent(int severity, int levels);
    /// Takes back `levels` of indentation, under the same condition.
    void unindent(int severity, int levels);
    void resetIndent();

    /// The code of "critical", "error", "warning", "info" or "debug", in any case; 5 for another name.
    static int severityFromName(const std::string& name);
    /// The name of a code from 0 to 4; "unknownSeverityLevel" for another code.
    static const char* severityName(int code);

    /// Writes one line to every output that is on: the severity's prefix, for DEBUG with the time since
    /// start(), the indentation, the text. Codes outside 0 to 4 have no prefix and do not reach the script
    /// editor. Each output has the whole line before this returns.
    /// @param text  null counts as empty
    /// @param flag  carried along for callers; has no effect
    void log(int severity, const char* text, bool flag = true);
    /// The same, but an empty text writes nothing.
    void log(int severity, const MString& text, bool flag = true);

    /// Builds the text as described at appendFormatted() and logs it; a null or empty format writes nothing.
    /// An unknown conversion is logged as an error of its own, before the message.
    void write(int severity, bool flag, const char* format, ...);

private:
    struct Entry;

    MayaLogger();
    ~MayaLogger() override;

    Entry* findEntry(const core::Log& log);
    void attach(Entry& entry);
    void detachAll();
    void setFilter(Entry& entry, int level, bool save);
    void changeIndentation(int severity, std::int64_t levels);
    bool openFile();
    void closeFile();
    void reportUnknownConversion(bool isLong, char character);

    std::ostream* m_console = nullptr; // not owned
    std::unique_ptr<LogFileStream> m_file;
    bool m_useScriptEditor = true;
    int m_indentation = 0;
    std::int64_t m_startTime; // seconds of the calendar
    bool m_useFile = false;
    bool m_running = false;
    std::string m_filePath;
    int m_defaultLevel = core::kWarning;
    std::vector<Entry> m_entries;

    // Listeners of unregistered logs: one may be in the middle of a message.
    std::vector<std::unique_ptr<MayaLogEventListener>> m_retiredListeners;
    std::unique_ptr<std::ostream> m_standardOutput; // the console stream that the preference asks for
    TextBuffer m_line;                              // storage that each long line reuses
    TextBuffer m_message;                           // the same for write()
};

} // namespace tarvox::crowd
