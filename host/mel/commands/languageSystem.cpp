// The environment, time, other programs.
#include "../interpreter.h"
#include "language.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <unistd.h>
#include <utility>

namespace tvxhost::mel {

namespace {

using Arguments = std::vector<Value>;

Value getenv(CommandContext&, Arguments& arguments)
{
    const char* value = std::getenv(arguments[0].string().c_str());
    return value == nullptr ? "" : value;
}

Value putenv(CommandContext&, Arguments& arguments)
{
    return ::setenv(arguments[0].string().c_str(), arguments[1].string().c_str(), 1);
}

/// Runs a shell command and gives what it printed.
Value system(CommandContext& context, Arguments& arguments)
{
    if (!context.interpreter().systemAllowed()) {
        context.fail("system is not allowed in this session.");
    }
    const auto close = [](std::FILE* pipe) { ::pclose(pipe); };
    const std::unique_ptr<std::FILE, decltype(close)> pipe(::popen(arguments[0].string().c_str(), "r"),
                                                           close);
    if (pipe == nullptr) {
        context.fail("Cannot run \"" + arguments[0].string() + "\".");
    }
    std::string output;
    std::array<char, 4096> buffer{};
    while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), pipe.get())) {
        output.append(buffer.data(), count);
    }
    return output;
}

/// Seconds since an instant that does not change during the session, less those given.
Value timerX(CommandContext&, const ParsedCommand& parsed)
{
    using Seconds = std::chrono::duration<double>;
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<Seconds>(now).count() - parsed.number("startTime");
}

/// Replaces each field of MEL's format ("YYYY", "MM", …) by its digits.
std::string dated(const std::string& format, const std::tm& time)
{
    const std::pair<const char*, const char*> kFields[] = {
        {"YYYY", "%Y"}, {"YY", "%y"}, {"MM", "%m"}, {"DD", "%d"}, {"hh", "%H"}, {"mm", "%M"}, {"ss", "%S"}};
    std::string text;
    for (std::size_t i = 0; i < format.size();) {
        const std::size_t before = i;
        for (const auto& [field, conversion] : kFields) {
            const std::string name = field;
            if (format.compare(i, name.size(), name) == 0) {
                char digits[8];
                text.append(digits, std::strftime(digits, sizeof digits, conversion, &time));
                i += name.size();
                break;
            }
        }
        if (i == before) {
            text += format[i++];
        }
    }
    return text;
}

Value date(CommandContext&, const ParsedCommand& parsed)
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    const std::string standard = parsed.has("date")        ? "YYYY/MM/DD"
                                 : parsed.has("time")      ? "hh:mm:ss"
                                 : parsed.has("shortDate") ? "MM/DD"
                                 : parsed.has("shortTime") ? "hh:mm"
                                                           : "YYYY/MM/DD hh:mm:ss";
    return dated(parsed.string("format", standard), local);
}

Value getpid(CommandContext&, Arguments&)
{
    return static_cast<int>(::getpid());
}

Value python(CommandContext& context, Arguments&)
{
    context.fail("python is not implemented: there is no Python here.");
}

} // namespace

void addSystemCommands(CommandTable& table)
{
    table.add({
        function("getenv", "The value of an environment variable; \"\" when there is none", {kString},
                 getenv),
        function("putenv", "Sets an environment variable", {kString, kString}, putenv),
        function("system", "Runs a shell command and gives its output; must be allowed", {kString}, system),
        function("python", "Refused: there is no Python", {kString}, python),
        function("getpid", "The number of this process", {}, getpid),
        command("timerX", "Seconds that have passed",
                {{"st", "startTime", {ArgumentType::number}, kCreate, "An earlier result to count from"}}, {},
                timerX),
        command(
            "date", "The date and the time",
            {{"f", "format", {ArgumentType::string}, kCreate, "YYYY YY MM DD hh mm ss stand for the parts"},
             {"d", "date", {}, kCreate, "The date alone"},
             {"t", "time", {}, kCreate, "The time alone"},
             {"sd", "shortDate", {}, kCreate, "Month and day"},
             {"st", "shortTime", {}, kCreate, "Hour and minute"}},
            {}, date),
    });
}

} // namespace tvxhost::mel
