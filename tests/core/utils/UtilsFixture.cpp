// A scene, what reaches the core log, and what reaches the script language.
#include "UtilsFixture.h"

namespace tarvox::crowd::test {

bool CommandRecorder::run(const std::string& script, bool display, bool undoable, Result& result)
{
    commands.push_back(std::string(display ? "display" : "") + (undoable ? "undo" : "") + "|" + script);
    if (failing.count(script) > 0)
        return false;
    const auto answered = m_answers.find(script);
    if (answered != m_answers.end())
        result = answered->second;
    return true;
}

void CommandRecorder::answer(const std::string& script, int value)
{
    Result result;
    result.kind = Result::Kind::integer;
    result.integers = {value};
    m_answers[script] = result;
}

void CommandRecorder::answer(const std::string& script, const std::string& value)
{
    Result result;
    result.kind = Result::Kind::string;
    result.strings = {value};
    m_answers[script] = result;
}

void CommandRecorder::answer(const std::string& script, const std::vector<std::string>& values)
{
    Result result;
    result.kind = Result::Kind::string;
    result.isArray = true;
    result.strings = values;
    m_answers[script] = result;
}

std::vector<std::string> UtilsFixture::takeErrors(const std::string& file)
{
    const std::string path = "core/utils/" + file;
    std::vector<std::string> errors;
    const std::vector<int> lines = recorder.lines;
    for (const std::string& event : recorder.take()) {
        const std::string begin = "1|" + path + "|tarvox::crowd::MayaUtils::";
        const std::string place =
            "|At line " + std::to_string(lines[errors.size()]) + " in file " + path + ": ";
        const std::size_t middle = event.find(place);
        if (event.compare(0, begin.size(), begin) != 0 || middle == std::string::npos)
            errors.push_back(event);
        else
            errors.push_back(event.substr(begin.size(), middle - begin.size()) + "|" +
                             event.substr(middle + place.size()));
    }
    return errors;
}

void UtilsFixture::expectFailure(const std::string& file, const std::string& call, std::size_t n,
                                 const std::string& report, const std::function<MStatus()>& member)
{
    SCOPED_TRACE(call + " " + std::to_string(n));
    const auto failOnce = [&] {
        faults::failCall(call, n, failure());
        EXPECT_EQ(member(), MStatus::kFailure);
        faults::clear();
    };
    failOnce();
    EXPECT_THAT(takeErrors(file), testing::ElementsAre(report));

    coreLog().setSeverityFilter(core::kCritical);
    failOnce();
    coreLog().setSeverityFilter(core::kWarning);
    EXPECT_THAT(recorder.take(), testing::IsEmpty());
}

} // namespace tarvox::crowd::test
