// The logger's life, its registered logs and its preferences.
#include "core/log/tvxMayaLogger.h"

#include "core/log/tvxDescriptorStream.h"
#include "core/log/tvxLogPreferences.h"
#include "core/log/tvxMayaLogEventListener.h"
#include "core/log/tvxReport.h"

#include <tvxCore/StringUtils.h>

#include <algorithm>
#include <ctime>
#include <iterator>
#include <limits>

namespace tarvox::crowd {

namespace {

constexpr const char* kSeverityNames[] = {"critical", "error", "warning", "info", "debug"};
constexpr int kSeverityCount = static_cast<int>(std::size(kSeverityNames));

std::string logFileIn(const std::string& directory)
{
    return directory + "/tvxCrowd.log";
}

std::int64_t now()
{
    return static_cast<std::int64_t>(std::time(nullptr));
}

} // namespace

struct MayaLogger::Entry
{
    core::Log* log;
    std::uint32_t useCount;
    std::int32_t filter;
    std::unique_ptr<MayaLogEventListener> listener;
};

MayaLogger::MayaLogger() : m_startTime(now())
{
    // Reports of the logger, and the log it detaches at its end, need the core log: it must outlive this.
    coreLog();
    if (preference::flag(preference::kConsole, false)) {
        m_standardOutput = std::make_unique<StandardOutputStream>();
        m_console = m_standardOutput.get();
    }
    m_useScriptEditor = preference::flag(preference::kScriptEditor, m_useScriptEditor);
    m_filePath = logFileIn(preference::text(preference::kDirectory, "c:"));
    if (preference::flag(preference::kFile, false))
        m_useFile = openFile();
}

MayaLogger::~MayaLogger()
{
    stop();
}

void MayaLogger::start()
{
    if (m_running)
        detachAll();
    m_indentation = 0;
    m_startTime = now();
    for (Entry& entry : m_entries)
        attach(entry);
    m_running = true;
}

void MayaLogger::stop()
{
    detachAll();
    if (m_useFile)
        closeFile();
    m_running = false;
}

void MayaLogger::registerLog(core::Log& log, const std::string& name, int defaultLevel)
{
    if (Entry* known = findEntry(log)) {
        ++known->useCount;
        return;
    }
    m_defaultLevel = defaultLevel;
    auto listener = std::make_unique<MayaLogEventListener>(name);
    const int filter = getLogLevelPreference(name);
    m_entries.push_back(Entry{&log, 1, filter, std::move(listener)});
    if (m_running)
        attach(m_entries.back());
}

void MayaLogger::unregisterLog(core::Log& log)
{
    Entry* entry = findEntry(log);
    if (!entry)
        return;
    if (entry->useCount > 1) {
        --entry->useCount;
        return;
    }
    if (m_running)
        log.removeLogEventListener(entry->listener.get());
    m_retiredListeners.push_back(std::move(entry->listener));
    m_entries.erase(m_entries.begin() + (entry - m_entries.data()));
}

int MayaLogger::getLogLevelPreference(const std::string& name) const
{
    return preference::numberOrCreate(preference::levelFor(name), m_defaultLevel);
}

void MayaLogger::setLogLevelPreference(const std::string& name, int level)
{
    preference::setNumber(preference::levelFor(name), level);
}

void MayaLogger::setSeverityFilter(std::size_t index, int level, bool save)
{
    if (index < m_entries.size())
        setFilter(m_entries[index], level, save);
}

std::size_t MayaLogger::setSeverityFilterAll(int level, bool save)
{
    for (Entry& entry : m_entries)
        setFilter(entry, level, save);
    return m_entries.size();
}

void MayaLogger::setUseScriptEditor(bool use)
{
    preference::setFlag(preference::kScriptEditor, use);
    m_useScriptEditor = use;
}

void MayaLogger::setOutputStream(std::ostream* stream)
{
    preference::setFlag(preference::kConsole, stream != nullptr);
    m_console = stream;
}

void MayaLogger::setUseFile(bool use)
{
    constexpr char kFunction[] = "tarvox::crowd::MayaLogger::setUseFile";
    m_useFile = use;
    preference::setFlag(preference::kFile, use);
    closeFile();
    if (!use)
        return;
    if (m_filePath.empty()) {
        TVX_REPORT(core::kError, kFunction, "Logger log file name in use is empty, cannot create log file");
        m_useFile = false;
    } else if (!openFile()) {
        TVX_REPORT(core::kError, kFunction, "Unable to create " << m_filePath << " as log file");
        m_useFile = false;
    }
}

void MayaLogger::setLogDirectory(const std::string& directory)
{
    preference::setText(preference::kDirectory, directory);
    m_filePath = logFileIn(directory);
    setUseFile(m_useFile);
}

void MayaLogger::indent(int severity, int levels)
{
    changeIndentation(severity, levels);
}

void MayaLogger::unindent(int severity, int levels)
{
    changeIndentation(severity, -std::int64_t{levels});
}

void MayaLogger::resetIndent()
{
    m_indentation = 0;
}

int MayaLogger::severityFromName(const std::string& name)
{
    const auto* end = std::end(kSeverityNames);
    const auto* found = std::find(std::begin(kSeverityNames), end, core::toLower(name));
    return static_cast<int>(found - std::begin(kSeverityNames));
}

const char* MayaLogger::severityName(int code)
{
    return code >= 0 && code < kSeverityCount ? kSeverityNames[code] : "unknownSeverityLevel";
}

MayaLogger::Entry* MayaLogger::findEntry(const core::Log& log)
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&](const Entry& entry) { return entry.log == &log; });
    return found == m_entries.end() ? nullptr : &*found;
}

void MayaLogger::attach(Entry& entry)
{
    entry.log->setSeverityFilter(entry.filter);
    entry.log->addLogEventListener(entry.listener.get());
}

void MayaLogger::detachAll()
{
    for (Entry& entry : m_entries)
        entry.log->removeLogEventListener(entry.listener.get());
}

void MayaLogger::setFilter(Entry& entry, int level, bool save)
{
    if (m_running)
        entry.log->setSeverityFilter(level);
    entry.filter = level;
    if (save)
        setLogLevelPreference(entry.listener->logName(), level);
}

void MayaLogger::changeIndentation(int severity, std::int64_t levels)
{
    if (severity > m_defaultLevel)
        return;
    constexpr std::int64_t kDeepest = std::numeric_limits<int>::max();
    m_indentation = static_cast<int>(std::clamp<std::int64_t>(m_indentation + levels, 0, kDeepest));
}

bool MayaLogger::openFile()
{
    m_file = std::make_unique<LogFileStream>(m_filePath);
    if (m_file->isOpen())
        return true;
    m_file.reset();
    return false;
}

void MayaLogger::closeFile()
{
    m_file.reset();
}

} // namespace tarvox::crowd
