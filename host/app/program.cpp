// Program: the options' work, each in a function of its own.
#include "program.h"

#include "nodeReport.h"
#include "progress.h"
#include "scriptNodes.h"
#include "typeReport.h"
#include "userInterface.h"

#include "api/listing/interfaceFunctions.h"
#include "api/support/faults.h"
#include "engine/atomicFile.h"
#include "engine/observers.h"
#include "mel/checker.h"
#include "scene/sceneText.h"
#include "viewport/png.h"
#include "viewport/viewport.h"

#include <filesystem>
#include <optional>
#include <ostream>

namespace tvxhost::app {

namespace {

using engine::Outcome;

/// A plug-in as the command line names it: a file that is there, or a name to look for.
std::string pluginName(const std::string& word)
{
    std::error_code ignored;
    return std::filesystem::is_regular_file(word, ignored) ? std::filesystem::absolute(word).string() : word;
}

/// A report on lines of its own.
std::string asLines(const std::string& text)
{
    return text.empty() || text.back() == '\n' ? text : text + "\n";
}

class Program
{
public:
    Program(const Options& options, const Streams& streams)
        : m_options(options), m_streams(streams),
          m_session(options.interactive ? Session::Mode::interactive : Session::Mode::batch, streams.out,
                    streams.err)
    {
    }

    int run()
    {
        armFaults();
        m_session.interpreter().allowSystem(m_options.allowSystem);
        if (m_options.runScriptNodes)
            m_scriptNodes.emplace(m_session.scene(), m_session.interpreter());
        openWindows();
        loadPreferences();
        loadPlugins();
        m_session.scene().observers().tell({engine::Happening::started});
        if (openScene()) {
            runScripts();
            report();
            renderPicture();
            saveScene();
        }
        savePreferences();
        finishWindows();
        m_session.scene().observers().tell({engine::Happening::quitting});
        listCalls();
        return m_session.editor().errors() == 0 ? 0 : 1;
    }

private:
    void armFaults();
    void openWindows();
    void loadPreferences();
    void loadPlugins();
    bool openScene();
    void runScripts();
    bool runScript();
    bool runText(const std::string& text);
    void report();
    void describeType();
    bool mayWrite(const std::string& file);
    std::string viewCamera();
    void renderPicture();
    void saveScene();
    void savePreferences();
    void finishWindows();
    void listCalls();

    /// Shows what went wrong, if anything did.
    bool check(const Outcome& outcome, const std::string& before = {}, const engine::ScriptPlace& place = {})
    {
        if (!outcome)
            m_session.editor().error(before + outcome.text, place);
        return static_cast<bool>(outcome);
    }
    void print(const std::string& text) { m_session.editor().print(text); }
    void printLines(const std::vector<std::string>& lines)
    {
        for (const std::string& line : lines)
            print(line + "\n");
    }

    const Options& m_options;
    const Streams& m_streams;
    std::unique_ptr<UserInterface> m_windows; ///< outlives the session, whose plug-ins may have windows in it
    Session m_session;
    std::optional<ScriptNodes> m_scriptNodes;
    std::string m_obstacle; ///< why no scene and no picture is written; empty: nothing stands in the way
};

void Program::armFaults()
{
    for (const Fault& fault : m_options.faults)
        api::faults::failCall(fault.function, fault.call, MStatus(fault.code));
    if (m_options.listCalls)
        api::faults::record(true);
}

void Program::openWindows()
{
    m_session.commands().dialogAnswers.assign(m_options.dialogAnswers.begin(), m_options.dialogAnswers.end());
    if (!m_options.qt)
        return;
    auto windows = loadUserInterface();
    check(windows.outcome);
    m_windows = std::move(windows.value);
}

void Program::loadPreferences()
{
    if (m_options.preferences.empty())
        return;
    m_session.commands().preferencesFolder = m_options.preferences;
    check(m_session.commands().loadPreferences(m_session.interpreter()));
}

void Program::loadPlugins()
{
    for (const std::string& plugin : m_options.plugins)
        if (!check(m_session.commands().loadPlugin(pluginName(plugin), {})))
            m_obstacle = "a plug-in was not loaded";
}

bool Program::openScene()
{
    if (m_options.scene.empty())
        return true;
    Progress progress(m_streams.err, m_streams.errIsTerminal,
                      "reading " + std::filesystem::path(m_options.scene).filename().string());
    m_session.commands().progress = [&progress](std::size_t done, std::size_t total) {
        progress.update(done, total);
    };
    const scene::ReadResult result = m_session.commands().open(m_session.interpreter(), m_options.scene);
    m_session.commands().progress = nullptr;
    return check(result.outcome, {}, result.place);
}

void Program::runScripts()
{
    bool worked = runScript();
    for (const std::string& text : m_options.commands)
        worked = runText(text) && worked;
    if (m_session.interpreter().runDeferred() != 0 || !worked)
        m_obstacle = "a script failed";
}

bool Program::runScript()
{
    if (m_options.script.empty())
        return true;
    try {
        m_session.interpreter().sourceFile(m_options.script);
        return true;
    } catch (const mel::ScriptError& error) {
        m_session.interpreter().report(error);
        return false;
    }
}

bool Program::runText(const std::string& text)
{
    const auto value = m_session.interpreter().run(text);
    if (value && !value->isNone())
        m_session.editor().result(mel::resultText(*value));
    return value.has_value();
}

void Program::report()
{
    if (m_options.summary) {
        scene::SceneSummary summary = m_session.commands().lastSummary;
        summary.meshes = scene::summarizeMeshes(m_session.scene());
        summary.peakMemory = scene::peakMemory();
        print(asLines(*m_options.summary == ReportFormat::json ? scene::toJson(summary)
                                                               : scene::toText(summary)));
    }
    if (m_options.listNodes)
        printLines(listNodes(m_session.scene()));
    if (m_options.evaluate) {
        const Evaluation evaluation = evaluatePluginNodes(m_session.scene());
        printLines(evaluation.lines);
        for (const std::string& failure : evaluation.failures)
            m_session.editor().error("cannot evaluate " + failure);
    }
    if (m_options.describeFormat)
        describeType();
}

void Program::describeType()
{
    const engine::NodeType* type = m_session.scene().types().find(m_options.describe);
    if (!type) {
        m_session.editor().error("Unknown object type: " + m_options.describe +
                                 " (the types of a plug-in are there once it is loaded)");
        return;
    }
    const engine::Units& units = m_session.scene().units();
    print(m_options.describeFormat == ReportFormat::json ? describeAsJson(*type, units)
                                                         : describeAsText(*type, units));
}

/// What came of a scene that is half changed, or lacks a plug-in's part, must not replace a whole file.
bool Program::mayWrite(const std::string& file)
{
    if (!m_obstacle.empty())
        m_session.editor().warning("\"" + file + "\" is not written, because " + m_obstacle);
    return m_obstacle.empty();
}

/// The camera that was asked for, else the one that scripts look through.
std::string Program::viewCamera()
{
    return m_options.camera.empty() ? m_session.commands().interface().viewCamera : m_options.camera;
}

void Program::renderPicture()
{
    if (m_options.picture.empty() || !mayWrite(m_options.picture))
        return;
    const auto picture =
        viewport::drawPicture(m_session.scene(), {m_options.size.width, m_options.size.height, viewCamera()});
    if (!check(picture.outcome, "cannot draw the viewport: "))
        return;
    const auto bytes = viewport::encodePng(picture.value);
    if (check(bytes.outcome, "cannot draw the viewport: "))
        check(engine::writeFileAtomically(m_options.picture, bytes.value));
}

void Program::saveScene()
{
    if (!m_options.save.empty() && mayWrite(m_options.save))
        check(m_session.commands().saveAs(m_options.save));
}

void Program::savePreferences()
{
    check(m_session.commands().savePreferences(true));
}

/// What was put off until there is nothing else to do.
void Program::finishWindows()
{
    if (m_windows)
        m_windows->processEvents();
}

void Program::listCalls()
{
    if (m_options.listCalls)
        printLines(api::faults::calls());
}

int listFunctions(const Streams& streams)
{
    for (const api::InterfaceFunction& function : api::interfaceFunctions())
        streams.out << function.name << (function.whyNot ? ": " + *function.whyNot : std::string()) << "\n";
    return 0;
}

int checkScript(const Options& options, const Streams& streams)
{
    const auto text = scene::readFile(options.check);
    if (!text) {
        streams.err << "Error: " << text.outcome.text << "\n";
        return 1;
    }
    const mel::CheckReport report = mel::checkScript(text.value, options.check);
    streams.out << asLines(options.checkFormat == ReportFormat::json ? mel::toJson(report)
                                                                     : mel::toText(report));
    return report.ok() ? 0 : 1;
}

} // namespace

int runProgram(const Options& options, const Streams& streams)
{
    if (options.listFunctions)
        return listFunctions(streams);
    return options.checkFormat ? checkScript(options, streams) : Program(options, streams).run();
}

} // namespace tvxhost::app
