// Forwards one core log's messages to the logger.
#pragma once

#include "core/log/tvxTextBuffer.h"

#include <tvxCore/ILogEventListener.h>

#include <string>

namespace tarvox::crowd {

/// Hands each message of the core log it is added to, marked with the log's name, to the MayaLogger. It
/// filters nothing: the core log does.
class MayaLogEventListener : public core::ILogEventListener
{
public:
    /// @param logName  name of the log it serves, copied
    explicit MayaLogEventListener(const std::string& logName);

    const std::string& logName() const { return m_logName; }

    void onLogEvent(const core::LogEvent& event) override;

private:
    std::string m_logName;
    TextBuffer m_text; // storage that each message reuses
};

} // namespace tarvox::crowd
