// How a message becomes a line on each of the logger's outputs.
#include "core/log/tvxDescriptorStream.h"
#include "core/log/tvxLogLine.h"
#include "core/log/tvxMayaLogger.h"
#include "core/log/tvxMessageFormat.h"

#include <maya/MGlobal.h>
#include <maya/MString.h>

#include <cstdarg>
#include <cstring>
#include <ctime>
#include <optional>
#include <ostream>

namespace tarvox::crowd {

namespace {

/// A line up to this is built in place; longer ones in storage that is kept from line to line.
constexpr std::size_t kShortLine = 512;

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
    const std::size_t length = text ? std::strlen(text) : 0;
    const std::size_t room = lineRoom(m_indentation, length);
    char inPlace[kShortLine];
    std::optional<BorrowedText> large;
    char* const line = room <= sizeof inPlace ? inPlace : large.emplace(m_line).text.room(room);

    char* end = putLinePrefix(line, severity);
    if (severity == core::kDebug) {
        end = putTimeStamp(end, static_cast<std::int64_t>(std::time(nullptr)) - m_startTime);
        *end++ = ' ';
    }
    end = putIndentation(end, m_indentation);
    if (length > 0)
        std::memcpy(end, text, length);
    end += length;
    if (m_useScriptEditor) {
        *end = '\0';
        showInScriptEditor(severity, line);
    }
    *end++ = '\n';
    const auto size = static_cast<std::size_t>(end - line);
    if (m_console)
        m_console->write(line, static_cast<std::streamsize>(size)).flush();
    if (m_file)
        m_file->writeAtOnce(line, size);
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
