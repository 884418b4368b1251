// Forwards one core log's messages to the logger.
#include "core/log/tvxMayaLogEventListener.h"

#include "core/log/tvxMayaLogger.h"

namespace tarvox::crowd {

MayaLogEventListener::MayaLogEventListener(const std::string& logName) : m_logName(logName) {}

void MayaLogEventListener::onLogEvent(const core::LogEvent& event)
{
    BorrowedText borrowed(m_text);
    borrowed.text.append(m_logName);
    borrowed.text.append(": ");
    borrowed.text.append(event.message);
    MayaLogger::getInstance().log(event.severity, borrowed.text.c_str(), true);
}

} // namespace tarvox::crowd
