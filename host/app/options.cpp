// Options: the command line, declared with CLI11.
#include "options.h"

#include <CLI/CLI.hpp>

#include <charconv>
#include <filesystem>
#include <sstream>
#include <string_view>

namespace tvxhost::app {

namespace {

constexpr const char* kDescription =
    "Opens a Maya ASCII scene without Maya: loads plug-ins, runs MEL, draws the viewport, saves the scene.\n"
    "Work is done in this order: preferences, plug-ins, scene, script, -e texts, reports, picture, save.\n"
    "Results go to standard output, warnings and errors to standard error; the exit code is 0 only when\n"
    "there was no error.";

constexpr const char* kExamples = R"(Examples:
  tvxhost --plugin tvxCrowdRender.so --render shot.png --size 1920x1080 shot.ma
  tvxhost -e 'createNode "locator"' --script setup.mel --save out.ma in.ma
  tvxhost --summary=json shot.ma
  tvxhost --check setup.mel
  tvxhost --plugin tvxCrowdRender.so --describe CrowdHSLShaderVRay
  tvxhost --plugin tvxCrowdRender.so --fail MFnPlugin::registerNode:2:kFailure --list-calls

Environment:
  MAYA_PLUG_IN_PATH   folders in which plug-ins are looked for by name
  MAYA_SCRIPT_PATH    folders in which MEL procedures are looked for)";

/// What the options' own types cannot hold while parsing.
struct Words
{
    std::string file;
    std::string size;
    std::string check;
    std::string describe;
    std::string summary;
    std::vector<std::string> faults;
};

/// A name that is given but empty is a mistake, such as a shell variable that is not set, and no wish for
/// nothing.
CLI::Validator named()
{
    return CLI::Validator(
        [](const std::string& word) {
            return word.empty() ? std::string("no name is given") : std::string();
        },
        "", "named");
}

void declareWork(CLI::App& app, Options& options, Words& words)
{
    app.add_option("--plugin", options.plugins, "Load a plug-in, a file or a name; may be repeated")
        ->type_name("P")
        ->check(named())
        ->allow_extra_args(false);
    app.add_option("--prefs", options.preferences, "Read and keep option variables in this folder")
        ->type_name("DIR")
        ->check(named());
    app.add_option("--script", options.script, "Run a MEL file")->type_name("F.mel")->check(named());
    app.add_option("-e,--execute", options.commands, "Run MEL text; may be repeated")
        ->type_name("'MEL'")
        ->allow_extra_args(false);
    app.add_option("--render", options.picture, "Draw the viewport into a PNG file")
        ->type_name("OUT.png")
        ->check(named());
    app.add_option("--size", words.size, "Pixels of the picture; 1280x720 when not given")->type_name("WxH");
    app.add_option("--camera", options.camera, "Look through this camera; persp when not given")
        ->type_name("NAME")
        ->check(named());
    app.add_option("--save", options.save, "Write the scene as Maya ASCII")
        ->type_name("OUT.ma")
        ->check(named());
}

void declareReports(CLI::App& app, Options& options, Words& words)
{
    const CLI::IsMember format({"text", "json"});
    app.add_flag("--summary{text}", words.summary, "Tell what the scene holds, as text or with =json")
        ->check(format);
    app.add_flag("--list-nodes", options.listNodes, "Tell every node's type and name");
    app.add_flag("--evaluate", options.evaluate, "Tell what the nodes of the plug-ins evaluate to");
    CLI::Option* check =
        app.add_flag("--check{text}", words.check,
                     "Parse FILE as MEL and run nothing: the verdict, procedures, statements; text or =json")
            ->check(format);
    app.add_flag("--describe{text}", words.describe,
                 "Tell what the node type FILE is and which attributes it has; text or =json")
        ->check(format)
        ->excludes(check);
}

void declareMode(CLI::App& app, Options& options, Words& words)
{
    app.add_flag("--interactive", options.interactive,
                 "Run as with a user interface: windows and menus are recorded, plug-ins make theirs");
    app.add_flag("--qt", options.qt, "The same with a Qt application and a main window");
    app.add_flag("--allow-system", options.allowSystem, "Let MEL's system command run other programs");
    app.add_flag(
        "--run-script-nodes", options.runScriptNodes,
        "Run the scripts of script nodes when their scene opens and closes; they are only kept otherwise");
    app.add_option("--dialog-answer", options.dialogAnswers,
                   "What the next file dialog is answered; may be repeated, one for each dialog")
        ->type_name("ANSWER")
        ->allow_extra_args(false);
    app.add_option("--fail", words.faults, "Make the N-th call of an API function fail; may be repeated")
        ->type_name("F[:N[:CODE]]")
        ->allow_extra_args(false);
    app.add_flag("--list-calls", options.listCalls, "Tell the API calls that were made, in order");
    app.add_flag(
        "--list-functions", options.listFunctions,
        "Tell the functions of the API, and why those cannot be made to fail that cannot; nothing is run");
}

std::optional<ReportFormat> formatNamed(const std::string& word)
{
    if (word.empty())
        return std::nullopt;
    return word == "json" ? ReportFormat::json : ReportFormat::text;
}

void takeSize(const std::string& word, Options& options)
{
    if (word.empty())
        return;
    const auto size = parseSize(word);
    if (!size)
        throw CLI::ValidationError("--size", "\"" + word + "\" is not a size such as 1280x720");
    options.size = *size;
}

void takeFaults(const std::vector<std::string>& words, Options& options)
{
    for (const std::string& word : words) {
        const auto fault = parseFault(word);
        if (!fault)
            throw CLI::ValidationError("--fail",
                                       "\"" + word + "\" is not of the form Class::function:N:kCode");
        options.faults.push_back(*fault);
    }
}

/// Maya's other format has an ending of its own.
void checkSave(const Options& options)
{
    if (std::filesystem::path(options.save).extension() == ".mb")
        throw CLI::ValidationError(
            "--save", "\"" + options.save + "\" would be Maya Binary; only Maya ASCII (.ma) can be written");
}

/// What the lone word is depends on what is asked for.
void takeFile(const Words& words, Options& options)
{
    options.checkFormat = formatNamed(words.check);
    options.describeFormat = formatNamed(words.describe);
    if (options.checkFormat && words.file.empty())
        throw CLI::ValidationError("--check", "no MEL file is named");
    if (options.describeFormat && words.file.empty())
        throw CLI::ValidationError("--describe", "no node type is named");
    if (options.checkFormat)
        options.check = words.file;
    else if (options.describeFormat)
        options.describe = words.file;
    else
        options.scene = words.file;
}

void take(const Words& words, Options& options)
{
    takeSize(words.size, options);
    takeFaults(words.faults, options);
    takeFile(words, options);
    checkSave(options);
    options.summary = formatNamed(words.summary);
    options.interactive = options.interactive || options.qt;
}

bool isPixels(std::string_view text, int& number)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() && number > 0;
}

} // namespace

std::optional<PictureSize> parseSize(const std::string& text)
{
    const std::size_t cross = text.find('x');
    if (cross == std::string::npos)
        return std::nullopt;
    const std::string_view words = text;
    PictureSize size;
    if (!isPixels(words.substr(0, cross), size.width) || !isPixels(words.substr(cross + 1), size.height))
        return std::nullopt;
    return size;
}

CommandLine parseCommandLine(int argc, const char* const* argv)
{
    CLI::App app(kDescription, "tvxhost");
    app.footer(kExamples);
    app.get_formatter()->column_width(34);
    app.set_version_flag("--version", "tvxhost " TVX_VERSION);

    Options options;
    Words words;
    declareWork(app, options, words);
    declareReports(app, options, words);
    declareMode(app, options, words);
    app.add_option("FILE", words.file,
                   "The scene to open; a new scene when not given. The script of --check, the node type of "
                   "--describe")
        ->check(named());

    CommandLine result;
    try {
        app.parse(argc, argv);
        take(words, options);
        result.options = std::move(options);
    } catch (const CLI::ParseError& error) {
        std::ostringstream out;
        std::ostringstream err;
        result.exitCode = app.exit(error, out, err) == 0 ? 0 : 2;
        result.output = out.str();
        result.error = err.str();
    }
    return result;
}

} // namespace tvxhost::app
