// What the plug-in says while it is loaded and unloaded: every output whole, for every failure and every
// filter.
#include "../host/support/temporaryFolder.h"
#include "CoreLogTrap.h"
#include "PluginSession.h"
#include "api/support/faults.h"

#include <maya/MStatus.h>
#include <maya/MString.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tarvox::crowd {
namespace {

namespace faults = tvxhost::api::faults;

using test::Lines;
using test::PluginSession;
using test::Trace;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using tvxhost::engine::Message;
using tvxhost::engine::MessageKind;

constexpr char kEntryFile[] = "global/tvxCrowdRenderPlugin.cpp";
constexpr char kLoading[] = "initializePlugin";
constexpr char kUnloading[] = "uninitializePlugin";

// Texts that only the line of the statement contains.
constexpr char kLoaded[] = "\" plugin loaded.\"";
constexpr char kUnloaded[] = "\" plugin unloaded.\"";
constexpr char kNoPlugin[] = "\"registering Plugin\"";
constexpr char kNoNode[] = "\"registering \" << row.name";
constexpr char kNoInterface[] = "\"registering Crowd Render UI\"";
constexpr char kNoLongerNode[] = "\"unregistering \" << row.name";

const MStatus kRefused(MStatus::kFailure);

std::string refusal(const std::string& step)
{
    return "Problem while " + step + " - " + kRefused.errorString().asChar();
}

// "severity|file|line|function|message"
std::string textOf(const Trace& trace)
{
    return std::to_string(trace.severity) + "|" + trace.file + "|" + std::to_string(trace.line) + "|" +
           trace.function + "|" + trace.message;
}

using Shown = std::pair<MessageKind, std::string>;

// What reached each place: the script editor, the console stream, the log file, and the core log before its
// filter.
struct Said
{
    std::vector<Shown> scriptEditor;
    std::string console;
    std::string file;
    std::vector<Trace> traces;
};

// A report as every place gives it.
struct Report
{
    int severity;
    std::string function;
    std::string file;
    int line;
    std::string text;

    std::string message() const
    {
        return "At line " + std::to_string(line) + " in file " + file + ": " + text;
    }
    Trace trace() const { return {severity, file, line, function, message()}; }
    MessageKind kind() const { return severity == 1 ? MessageKind::error : MessageKind::info; }
    std::string logLine() const
    {
        return std::string("[TarvoxCrowd::") + (severity == 1 ? "ERROR" : "INFO") +
               "]\tCrowd Render: " + message();
    }
};

using Reports = std::vector<Report>;

Report entryReport(int severity, const std::string& function, const char* statement, const std::string& text)
{
    return {severity, function, kEntryFile, test::lineOf(kEntryFile, statement), function + ": " + text};
}

Report nodeRefused(const std::string& type)
{
    return entryReport(1, kLoading, kNoNode, refusal("registering " + type + " node"));
}

void expectSaid(const Said& said, const Reports& reports)
{
    std::vector<Shown> shown;
    std::string lines;
    Lines traces, expectedTraces;
    for (const Report& report : reports) {
        shown.emplace_back(report.kind(), report.logLine());
        lines += report.logLine() + "\n";
        expectedTraces.push_back(textOf(report.trace()));
    }
    for (const Trace& trace : said.traces)
        traces.push_back(textOf(trace));
    EXPECT_EQ(said.scriptEditor, shown);
    EXPECT_EQ(said.console, lines);
    EXPECT_EQ(said.file, lines);
    EXPECT_EQ(traces, expectedTraces);
}

// Takes the scripts that Maya runs, and runs none.
class ScriptNotes : public tvxhost::engine::ScriptRunner
{
public:
    bool run(const std::string& script, bool, bool, Result&) override
    {
        scripts.push_back(script);
        return true;
    }
    bool sourceFile(const std::string&) override { return true; }
    void runOnIdle(const std::string&, bool) override {}

    Lines scripts;
};

// A session with the filter of the plug-in's log set and all outputs of the logger on.
class LoggingSession
{
public:
    explicit LoggingSession(int filter = 3)
    {
        auto& optionVars = m_session->scene.optionVars();
        optionVars.set("tvxPrefLogLevelForCrowd_Render", filter);
        optionVars.set("tvxPrefLogToOW", 1);
        optionVars.set("tvxPrefLogToFile", 1);
        optionVars.set("tvxPrefLogDirectory", m_folder.path().string());
        m_session->scene.scriptRunner = &m_scripts;
    }

    ~LoggingSession()
    {
        // A plug-in that could not be unloaded is unloaded again, and says again that it cannot.
        testing::internal::CaptureStdout();
        m_session.reset();
        testing::internal::GetCapturedStdout();
    }
    LoggingSession(const LoggingSession&) = delete;
    LoggingSession& operator=(const LoggingSession&) = delete;

    bool load()
    {
        return watch([this] { return m_session->load(); });
    }
    bool unload()
    {
        return watch([this] { return m_session->unload(); });
    }

    /// What the last load() or unload() said.
    const Said& said() const { return m_said; }

    /// The scripts that Maya has run.
    const Lines& scripts() const { return m_scripts.scripts; }

    /// The plug-in's registered node types in order.
    Lines nodeTypes()
    {
        Lines names;
        for (const tvxhost::engine::NodeType* type : m_session->scene.types().ofPlugin("tvxCrowdRender"))
            names.push_back(type->name);
        return names;
    }

    /// Whether this process has the log file open: the logger opens it when it is made, stop() closes it.
    bool isLogFileOpen() const
    {
        for (const auto& descriptor : std::filesystem::directory_iterator("/proc/self/fd")) {
            std::error_code gone;
            if (std::filesystem::read_symlink(descriptor, gone) == logFile())
                return true;
        }
        return false;
    }

private:
    std::string logFile() const { return m_folder.path("tvxCrowd.log"); }

    bool watch(const std::function<bool()>& step)
    {
        const auto sizeBefore =
            std::filesystem::exists(logFile()) ? std::filesystem::file_size(logFile()) : 0;
        test::takeTraces();
        m_session->scene.scriptEditor().clearHistory();
        testing::internal::CaptureStdout();
        const bool succeeded = step();
        m_said.console = testing::internal::GetCapturedStdout();
        m_said.file = m_folder.read("tvxCrowd.log").substr(sizeBefore);
        m_said.traces = test::takeTraces();
        m_said.scriptEditor.clear();
        for (const Message& message : m_session->scene.scriptEditor().history())
            m_said.scriptEditor.emplace_back(message.kind, message.text);
        return succeeded;
    }

    tvxhost::test::TemporaryFolder m_folder;
    ScriptNotes m_scripts;
    std::unique_ptr<PluginSession> m_session = std::make_unique<PluginSession>();
    Said m_said;
};

// All of the plug-in's node types in order.
const Lines& nodeTypes()
{
    static const Lines types = [] {
        LoggingSession session;
        EXPECT_TRUE(session.load());
        return session.nodeTypes();
    }();
    return types;
}

Lines nodeTypes(std::size_t first, std::size_t end)
{
    const auto at = [](std::size_t place) {
        return nodeTypes().begin() + static_cast<std::ptrdiff_t>(place);
    };
    return {at(first), at(end)};
}

constexpr int kFilters[] = {0, 1, 2, 3, 4};

// Runs a step that fails, with every filter, and expects its report wherever the filter admits it.
void expectReportWithEveryFilter(const Report& report, const std::function<bool(LoggingSession&)>& step)
{
    for (const int filter : kFilters) {
        SCOPED_TRACE("filter " + std::to_string(filter));
        LoggingSession session(filter);
        EXPECT_FALSE(step(session));
        expectSaid(session.said(), filter < report.severity ? Reports{} : Reports{report});
        EXPECT_TRUE(session.isLogFileOpen()) << "the logger is not stopped";
    }
}

TEST(PluginReports, OfALoadAreOneLineWhereTheFilterAdmitsIt)
{
    const Report loaded = entryReport(3, kLoading, kLoaded, "tvxCrowdRender plugin loaded.");
    for (const int filter : kFilters) {
        SCOPED_TRACE("filter " + std::to_string(filter));
        LoggingSession session(filter);
        EXPECT_TRUE(session.load());
        expectSaid(session.said(), filter < 3 ? Reports{} : Reports{loaded});
        EXPECT_EQ(session.nodeTypes(), nodeTypes());
        EXPECT_THAT(session.scripts(), ElementsAre("tvxCrowdRenderBatchMode()"));
        EXPECT_TRUE(session.isLogFileOpen());
    }
}

TEST(PluginReports, OfAnUnloadReachNoOutputBecauseTheLoggerIsStoppedBefore)
{
    LoggingSession session;
    ASSERT_TRUE(session.load());
    EXPECT_TRUE(session.unload());
    const Said& said = session.said();
    EXPECT_THAT(said.scriptEditor, IsEmpty());
    EXPECT_EQ(said.console, "");
    EXPECT_EQ(said.file, "");
    ASSERT_THAT(said.traces, SizeIs(1));
    EXPECT_EQ(textOf(said.traces[0]),
              textOf(entryReport(3, kUnloading, kUnloaded, "tvxCrowdRender plugin unloaded.").trace()));
    EXPECT_THAT(session.nodeTypes(), IsEmpty());
    EXPECT_FALSE(session.isLogFileOpen());
}

// Failures of the entry points

TEST(PluginReports, TellThatMayaDoesNotAcceptThePlugin)
{
    expectReportWithEveryFilter(entryReport(1, kLoading, kNoPlugin, refusal("registering Plugin")),
                                [](LoggingSession& session) {
                                    faults::failCall("MFnPlugin::MFnPlugin", 1, kRefused);
                                    const bool loaded = session.load();
                                    EXPECT_THAT(session.nodeTypes(), IsEmpty());
                                    return loaded;
                                });
}

TEST(PluginReports, TellTheFirstNodeTypeThatIsRefusedAndThoseBeforeItStayAndNoOtherIsTried)
{
    ASSERT_EQ(nodeTypes().size(), 8u);
    for (std::size_t i = 0; i < nodeTypes().size(); ++i)
        expectReportWithEveryFilter(nodeRefused(nodeTypes()[i]), [i](LoggingSession& session) {
            faults::record(true);
            faults::failCall("MFnPlugin::registerNode", i + 1, kRefused);
            const bool loaded = session.load();
            EXPECT_EQ(session.nodeTypes(), nodeTypes(0, i));
            EXPECT_EQ(faults::countOf("MFnPlugin::registerNode"), i + 1);
            EXPECT_EQ(faults::countOf("MFnPlugin::registerUI"), 0u);
            return loaded;
        });
}

TEST(PluginReports, TellThatTheInterfaceIsRefusedAndAllNodeTypesStay)
{
    expectReportWithEveryFilter(
        entryReport(1, kLoading, kNoInterface, refusal("registering Crowd Render UI")),
        [](LoggingSession& session) {
            faults::failCall("MFnPlugin::registerUI", 1, kRefused);
            const bool loaded = session.load();
            EXPECT_EQ(session.nodeTypes(), nodeTypes());
            return loaded;
        });
}

TEST(PluginReports, TellTheFirstNodeTypeThatCannotBeTakenBackAndItAndThoseAfterItStayAndNoOtherIsTried)
{
    for (std::size_t i = 0; i < nodeTypes().size(); ++i)
        expectReportWithEveryFilter(
            entryReport(1, kUnloading, kNoLongerNode, refusal("unregistering " + nodeTypes()[i] + " node")),
            [i](LoggingSession& session) {
                EXPECT_TRUE(session.load());
                faults::record(true);
                faults::failCall("MFnPlugin::deregisterNode", i + 1, kRefused);
                const bool unloaded = session.unload();
                EXPECT_EQ(session.nodeTypes(), nodeTypes(i, nodeTypes().size()));
                EXPECT_EQ(faults::countOf("MFnPlugin::deregisterNode"), i + 1);
                return unloaded;
            });
}

TEST(PluginReports, GiveTheReasonThatMayaGives)
{
    const MStatus reason(MStatus::kInsufficientMemory);
    ASSERT_NE(reason.errorString(), kRefused.errorString());
    LoggingSession session;
    faults::failCall("MFnPlugin::registerUI", 1, reason);
    EXPECT_FALSE(session.load());
    expectSaid(session.said(), {entryReport(1, kLoading, kNoInterface,
                                            std::string("Problem while registering Crowd Render UI - ") +
                                                reason.errorString().asChar())});
}

TEST(PluginReports, OfAFailureAreReplacedByTheTextOfACoreExceptionOnEveryOutput)
{
    LoggingSession session;
    faults::failCall("MFnPlugin::registerUI", 1, kRefused);
    test::breakCoreLog(1);
    EXPECT_FALSE(session.load());
    const Report report = entryReport(1, kLoading, kNoInterface, refusal("registering Crowd Render UI"));
    const std::string line = "[TarvoxCrowd::ERROR]\tCrowd Render: the log is broken";
    const Said& said = session.said();
    EXPECT_THAT(said.scriptEditor, ElementsAre(Shown{MessageKind::error, line}));
    EXPECT_EQ(said.console, line + "\n");
    EXPECT_EQ(said.file, line + "\n");
    ASSERT_THAT(said.traces, SizeIs(2));
    EXPECT_EQ(textOf(said.traces[0]), textOf(report.trace()));
    EXPECT_EQ(textOf(said.traces[1]),
              textOf({report.severity, report.file, report.line, report.function, "the log is broken"}));
}

// Failures of the nodes' initializers

// A call that an initializer makes, and the report when it fails.
struct AttributeCall
{
    const char* function;
    const char* problem;
};

constexpr AttributeCall kAttributeCalls[] = {
    {"MFnNumericAttribute::createColor", "Color attribute create error"},
    {"MFnNumericAttribute::create", "Numeric attribute create error"},
    {"MFnEnumAttribute::create", "Enum attribute create error"},
    {"MFnTypedAttribute::create", "Typed attribute create error"},
    {"MPxNode::addAttribute", "Add attribute error"}};

// Fails the n-th call of a function while the plug-in is loaded, for every n. `check` gets the session, and
// the type whose initializer made the call: the one whose registration was not followed by another.
void forEachFailingCall(const std::string& function,
                        const std::function<void(const LoggingSession&, const std::string&)>& check)
{
    const Lines& types = nodeTypes(); // made by a load of its own, before the calls are counted
    for (std::size_t n = 1;; ++n) {
        LoggingSession session;
        faults::record(true);
        faults::failCall(function, n, kRefused);
        const bool loaded = session.load();
        if (faults::countOf(function) < n)
            return;
        SCOPED_TRACE(function + " " + std::to_string(n));
        EXPECT_FALSE(loaded);
        EXPECT_EQ(faults::countOf(function), n) << "the initializer ends";
        check(session, types.at(faults::countOf("MFnPlugin::registerNode") - 1));
    }
}

TEST(PluginReports, TellEveryAttributeThatCannotBeMadeInTheNameOfItsNodesInitializer)
{
    for (const AttributeCall& call : kAttributeCalls)
        forEachFailingCall(call.function, [&](const LoggingSession& session, const std::string& type) {
            ASSERT_THAT(session.said().traces, SizeIs(2));
            const Report report{1, "tarvox::crowd::" + type + "::initialize", "rendering/tvx" + type + ".cpp",
                                session.said().traces[0].line, call.problem};
            expectSaid(session.said(), {report, nodeRefused(type)});
        });
}

TEST(PluginReports, OfAnInitializerAreReplacedByTheTextOfACoreExceptionAndItsNodeTypeIsRefusedAllTheSame)
{
    LoggingSession session;
    faults::record(true);
    faults::failCall("MPxNode::addAttribute", 1, kRefused);
    test::breakCoreLog(1);
    EXPECT_FALSE(session.load());
    const std::size_t refused = faults::countOf("MFnPlugin::registerNode") - 1;
    EXPECT_THAT(
        session.said().scriptEditor,
        ElementsAre(Shown{MessageKind::error, "[TarvoxCrowd::ERROR]\tCrowd Render: the log is broken"},
                    Shown{MessageKind::error, nodeRefused(nodeTypes()[refused]).logLine()}));
    EXPECT_EQ(session.nodeTypes(), nodeTypes(0, refused));
}

} // namespace
} // namespace tarvox::crowd
