// How a message becomes a line on each of the logger's outputs.
#include "core/log/tvxDescriptorStream.h"
#include "core/log/tvxLogLine.h"
#include "core/log/tvxMayaLogger.h"
#include "core/log/tvxMessageFormat.h"

#include <maya/MGlobal.h>
#include <maya/MString.h>

#include <cstdarg>
#include <ctime>
#include <ostream>

namespace tarvox::crowd {

namespace {

void showInScriptEditor(int severity, const char* line)
{
    switch (severity) {
    case core::kCritical:
    case core::kError:
        MGlobal::displayError(line);
        break;
    case core::kWarning:
        MGlobal::displayWarning(line);
        break;
    case core::kInfo:
    case core::kDebug:
        MGlobal::displayInfo(line);
        break;
    default:
        break;
    }
}

} // namespace

void MayaLogger::log(int severity, const char* text, bool /*flag*/)
{
    BorrowedText borrowed(m_line);
    TextBuffer& line = borrowed.text;
    appendLinePrefix(line, severity);
    if (severity == core::kDebug) {
        appendTimeStamp(line, static_cast<std::int64_t>(std::time(nullptr)) - m_startTime);
        line.append(' ');
    }
    appendIndentation(line, m_indentation);
    if (text)
        line.append(text);
    if (m_useScriptEditor)
        showInScriptEditor(severity, line.c_str());
    line.append('\n');
    if (m_console)
        m_console->write(line.data(), static_cast<std::streamsize>(line.size())).flush();
    if (m_file)
        m_file->writeAtOnce(line.data(), line.size());
}

void MayaLogger::log(int severity, const MString& text, bool flag)
{
    if (text.length() > 0)
        log(severity, text.asChar(), flag);
}

void MayaLogger::write(int severity, bool flag, const char* format, ...)
{
    if (!format || !*format)
        return;
    BorrowedText borrowed(m_message);
    std::va_list arguments;
    va_start(arguments, format);
    appendFormatted(borrowed.text, format, arguments,
                    [this](bool isLong, char character) { reportUnknownConversion(isLong, character); });
    va_end(arguments);
    log(severity, borrowed.text.c_str(), flag);
}

void MayaLogger::reportUnknownConversion(bool isLong, char character)
{
    const char* const format = isLong ? "MayaLogger::write(...) using unknown format %%l%c"
                                      : "MayaLogger::write(...) using unknown format %%%c";
    write(core::kError, true, format, character);
}

} // namespace tarvox::crowd
