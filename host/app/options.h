// Options: what the program was asked to do on its command line.
#pragma once

#include "fault.h"

#include <optional>
#include <string>
#include <vector>

namespace tvxhost::app {

/// How a report is printed.
enum class ReportFormat
{
    text,
    json ///< one JSON object on one line
};

/// Pixels of a picture.
struct PictureSize
{
    int width = 1280;
    int height = 720;
};

struct Options
{
    std::vector<std::string> plugins;  ///< paths, or names along MAYA_PLUG_IN_PATH
    std::string preferences;           ///< folder; empty: option variables are not kept
    std::string script;                ///< MEL file
    std::vector<std::string> commands; ///< MEL texts, in order
    std::string picture;               ///< PNG file to draw; empty: none
    PictureSize size;
    std::string camera; ///< empty: persp
    std::string save;   ///< Maya ASCII file to write; empty: none
    std::string scene;  ///< Maya ASCII file to open; empty: a new scene

    std::string check; ///< MEL file to check and not to run; empty: none
    std::optional<ReportFormat> checkFormat;
    std::string describe; ///< node type to tell about; empty: none
    std::optional<ReportFormat> describeFormat;
    std::optional<ReportFormat> summary;
    bool listNodes = false;
    bool evaluate = false;

    bool interactive = false;
    bool allowSystem = false;               ///< MEL's `system` may run other programs
    bool runScriptNodes = false;            ///< those of the scenes that are opened
    bool qt = false;                        ///< with a Qt application and main window; interactive then
    std::vector<std::string> dialogAnswers; ///< what the dialogs get, in order
    std::vector<Fault> faults;
    bool listCalls = false;
    bool listFunctions = false; ///< tell what there is to fail, and do nothing else
};

/// What became of a command line: options to work with, or the program's exit code and a text that was asked
/// for (help, version: code 0) or that says what is wrong.
struct CommandLine
{
    std::optional<Options> options;
    int exitCode = 0;
    std::string output; ///< for standard output
    std::string error;  ///< for standard error
};

CommandLine parseCommandLine(int argc, const char* const* argv);

/// "1280x720"; empty for anything else. Sizes are not limited here.
std::optional<PictureSize> parseSize(const std::string& text);

} // namespace tvxhost::app
