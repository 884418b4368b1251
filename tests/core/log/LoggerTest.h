// What the logger's tests share.
#pragma once

#include "../../host/support/temporaryFolder.h"
#include "HostSession.h"
#include "core/log/tvxMayaLogger.h"

#include <tvxCore/Log.h>

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace tarvox::crowd {

/// Loggers of a test's own, apart from the one instance of the library.
class MayaLoggerTest : public testing::Test
{
protected:
    struct Deleter
    {
        void operator()(MayaLogger* logger) const { delete logger; }
    };
    using Owned = std::unique_ptr<MayaLogger, Deleter>;

    static Owned makeLogger() { return Owned(new MayaLogger); }
    static void forgetFilePath(MayaLogger& logger) { logger.m_filePath.clear(); }

    test::HostSession host;
    tvxhost::test::TemporaryFolder folder;
};

/// The library's logger, as it is when it was just made and before it is started; put back afterwards.
class SharedLoggerTest : public MayaLoggerTest
{
protected:
    SharedLoggerTest() { reset(); }

    // Before the test's own logs and streams end.
    void TearDown() override
    {
        for (core::Log* log : m_registered)
            logger.unregisterLog(*log);
        reset();
    }

    void registerLog(core::Log& log, const std::string& name, int level)
    {
        logger.registerLog(log, name, level);
        m_registered.push_back(&log);
    }

    /// Sends the lines to a text and not to the script editor.
    void logToConsole()
    {
        logger.setUseScriptEditor(false);
        logger.setOutputStream(&console);
    }

    std::string takeConsole()
    {
        const std::string text = console.str();
        console.str("");
        return text;
    }

    static void trace(core::Log& log, int severity, const char* message)
    {
        log.trace(severity, "file.cpp", 1, "function", message);
    }

    MayaLogger& logger = MayaLogger::getInstance();
    std::ostringstream console;

private:
    void reset()
    {
        logger.stop();
        logger.setUseScriptEditor(true);
        logger.setOutputStream(nullptr);
        logger.setUseFile(false);
        logger.resetIndent();
        host.takeMessages();
    }

    std::vector<core::Log*> m_registered;
};

} // namespace tarvox::crowd
