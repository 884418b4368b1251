// One logger line of 80 bytes: to the file, and to the file and the console stream.
#include "core/log/tvxMayaLogger.h"
#include "rows.h"
#include "scratch.h"

#include <benchmark/benchmark.h>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/spdlog.h>

#include <fcntl.h>
#include <unistd.h>

#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>

namespace tvxbench {
namespace {

using tarvox::crowd::MayaLogger;

constexpr int kInfo = 3;
const std::string kPrefix = "[TarvoxCrowd::INFO]\t";
/// With the prefix and the line end 80 bytes.
const std::string kText(80 - kPrefix.size() - 1, 'x');
const std::string kLine = kPrefix + kText + '\n';

/// A file opened as the log file is, closed at the end of its benchmark.
class Descriptor
{
public:
    explicit Descriptor(const std::string& path)
        : m_descriptor(open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666))
    {
        if (m_descriptor < 0)
            throw std::runtime_error("cannot write " + path);
    }
    ~Descriptor() { close(m_descriptor); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    void writeLine() const
    {
        if (write(m_descriptor, kLine.data(), kLine.size()) != static_cast<ssize_t>(kLine.size()))
            throw std::runtime_error("a bare write failed");
    }

private:
    int m_descriptor;
};

/// The logger with the outputs of one benchmark; all off again at its end.
class LoggerOutputs
{
public:
    explicit LoggerOutputs(std::ostream* console)
    {
        MayaLogger& logger = MayaLogger::getInstance();
        logger.setUseScriptEditor(false);
        logger.setLogDirectory(scratchFolder().c_str());
        logger.setUseFile(true);
        logger.setOutputStream(console);
    }
    ~LoggerOutputs()
    {
        MayaLogger& logger = MayaLogger::getInstance();
        logger.setUseFile(false);
        logger.setOutputStream(nullptr);
    }
};

void logLines(benchmark::State& state, std::ostream* console)
{
    const LoggerOutputs outputs(console);
    MayaLogger& logger = MayaLogger::getInstance();
    for (auto _ : state)
        logger.log(kInfo, kText.c_str(), true);
}

void loggerFile(benchmark::State& state)
{
    logLines(state, nullptr);
}

void loggerFileAndConsole(benchmark::State& state)
{
    std::ofstream console(scratchFile("console.txt"), std::ios::trunc);
    logLines(state, &console);
}

void bareWrite(benchmark::State& state)
{
    const Descriptor file(scratchFile("bare.txt"));
    for (auto _ : state)
        file.writeLine();
}

void bareWriteTwice(benchmark::State& state)
{
    const Descriptor file(scratchFile("bare.txt"));
    const Descriptor console(scratchFile("bareConsole.txt"));
    for (auto _ : state) {
        console.writeLine();
        file.writeLine();
    }
}

std::shared_ptr<spdlog::sinks::sink> fileSink(const std::string& name)
{
    return std::make_shared<spdlog::sinks::basic_file_sink_st>(scratchFile(name), true);
}

/// spdlog with our line's prefix as its pattern, flushing each message.
void spdlogLines(benchmark::State& state, spdlog::sinks_init_list sinks)
{
    spdlog::logger logger("bench", sinks);
    logger.set_pattern("[TarvoxCrowd::INFO]\t%v");
    logger.flush_on(spdlog::level::trace);
    for (auto _ : state)
        logger.info(kText);
}

void spdlogFile(benchmark::State& state)
{
    spdlogLines(state, {fileSink("spdlog.txt")});
}

void spdlogFileAndConsole(benchmark::State& state)
{
    spdlogLines(state, {fileSink("spdlogConsole.txt"), fileSink("spdlog.txt")});
}

void add(const char* name, void (*function)(benchmark::State&))
{
    benchmark::RegisterBenchmark(name, function)->MinTime(0.05)->UseRealTime();
}

} // namespace

std::vector<Row> loggerRows()
{
    add("logger_file", loggerFile);
    add("logger_file_console", loggerFileAndConsole);
    add("bare_write", bareWrite);
    add("bare_write_twice", bareWriteTwice);
    add("spdlog_file", spdlogFile);
    add("spdlog_file_console", spdlogFileAndConsole);
    return {
        {"a logger line of 80 bytes to the file", "bare write(2) of the finished line", "logger_file",
         "bare_write", 1.06},
        {"a logger line of 80 bytes to the file", "spdlog basic_file_sink_st, flushing", "logger_file",
         "spdlog_file", 0.80},
        {"a logger line to file and console stream", "two bare writes", "logger_file_console",
         "bare_write_twice", 1.15},
        {"a logger line to file and console stream", "spdlog with two sinks", "logger_file_console",
         "spdlog_file_console", 0.85},
    };
}

} // namespace tvxbench
