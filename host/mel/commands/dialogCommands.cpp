// fileDialog2 and fileDialog: the answer is one that the user gave in advance; without one they are
// cancelled.
#include "commandSupport.h"
#include "sceneCommands.h"

#include "engine/fileTests.h"

#include <optional>

namespace tvxhost::mel {

namespace fs = std::filesystem;

namespace {

/// What fileDialog2 lets the user choose, by its number.
enum class FileMode
{
    anyFile,
    existingFile,
    folder,
    folderOnly,
    existingFiles
};

constexpr int kFileModes = 5;

FileMode modeOf(const CommandContext& context, const ParsedCommand& call)
{
    const int mode = call.integer("fileMode");
    if (mode < 0 || mode >= kFileModes)
        context.fail("fileDialog2: there is no file mode " + std::to_string(mode));
    return static_cast<FileMode>(mode);
}

/// The next answer; empty when the dialog is cancelled.
std::optional<std::string> nextAnswer(SceneSession& session)
{
    if (session.dialogAnswers.empty())
        return std::nullopt;
    std::string answer = std::move(session.dialogAnswers.front());
    session.dialogAnswers.pop_front();
    return answer;
}

Value::Strings split(const std::string& text, const std::string& separator)
{
    Value::Strings parts;
    std::size_t begin = 0;
    for (std::size_t end = text.find(separator); end != std::string::npos;
         end = text.find(separator, begin)) {
        parts.push_back(text.substr(begin, end - begin));
        begin = end + separator.size();
    }
    parts.push_back(text.substr(begin));
    return parts;
}

/// A path that the user typed: a relative one starts at the folder that the dialog shows.
std::string chosenPath(const CommandContext& context, const std::string& answer, const fs::path& start,
                       FileMode mode)
{
    const fs::path path = fs::path(answer).is_absolute() ? fs::path(answer) : start / answer;
    const std::string text = withoutSlash(path);
    const bool wantsFolder = mode == FileMode::folder || mode == FileMode::folderOnly;
    if (wantsFolder && !engine::isFolder(path))
        context.fail(context.command() + ": there is no folder \"" + text + "\"");
    if (mode != FileMode::anyFile && !wantsFolder && !engine::isFile(path))
        context.fail(context.command() + ": there is no file \"" + text + "\"");
    return text;
}

/// The filter that the dialog shows: the one that was asked for, else the first.
std::string filterOf(const ParsedCommand& call)
{
    const Value::Strings filters = split(call.string("fileFilter", "All Files (*.*)"), ";;");
    const std::string wish = call.string("selectFileFilter");
    for (const std::string& filter : filters)
        if (!wish.empty() && (filter == wish || filter.rfind(wish + " (", 0) == 0))
            return filter;
    return filters.front();
}

Value fileDialog2(CommandContext& context, const ParsedCommand& call)
{
    SceneSession& session = sessionOf(context);
    const FileMode mode = modeOf(context, call);
    const std::optional<std::string> answer = nextAnswer(session);
    if (!answer)
        return Value(Value::Strings());
    const fs::path start = session.workspace.resolved(call.string("startingDirectory"));
    Value::Strings chosen;
    // Several files are answered in one, separated as folders of a search path are.
    const bool takesSeveral = mode == FileMode::existingFiles;
    for (const std::string& part : takesSeveral ? split(*answer, ":") : Value::Strings{*answer})
        chosen.push_back(chosenPath(context, part, start, mode));
    if (call.boolean("returnFilter"))
        chosen.push_back(filterOf(call));
    return Value(std::move(chosen));
}

/// The older dialog: -mode 0 reads a file, 1 writes one.
Value fileDialog(CommandContext& context, const ParsedCommand& call)
{
    SceneSession& session = sessionOf(context);
    const std::optional<std::string> answer = nextAnswer(session);
    if (!answer)
        return Value("");
    const fs::path mask(call.string("directoryMask"));
    const fs::path start = session.workspace.resolved(mask.parent_path().string());
    return Value(chosenPath(context, *answer, start,
                            call.integer("mode") == 0 ? FileMode::existingFile : FileMode::anyFile));
}

} // namespace

void registerDialogCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        makeCommand(
            "fileDialog2", "Asks for files or a folder",
            {valueFlag("cap", "caption", A::string, "the dialog's title"),
             valueFlag("ds", "dialogStyle", A::integer, "1 the system's, 2 the program's own"),
             valueFlag("ff", "fileFilter", A::string, "what is shown: \"Maya Files (*.ma *.mb);;All (*.*)\""),
             valueFlag("sff", "selectFileFilter", A::string, "the filter that it begins with"),
             valueFlag("fm", "fileMode", A::integer,
                       "0 any file, 1 an existing file, 2 a folder (files are shown), 3 a folder, 4 existing "
                       "files"),
             valueFlag("dir", "startingDirectory", A::string, "the folder that it begins in"),
             valueFlag("okc", "okCaption", A::string, "the label of the button that accepts"),
             valueFlag("cc", "cancelCaption", A::string, "the label of the button that cancels"),
             valueFlag("rf", "returnFilter", A::boolean, "adds the filter to the result"),
             valueFlag("hne", "hideNameEdit", A::boolean, "no field for the name"),
             valueFlag("spe", "setProjectBtnEnabled", A::boolean, "a button that sets the project"),
             valueFlag("bbo", "buttonBoxOrientation", A::integer, "1 buttons below, 2 beside")},
            noArguments(), fileDialog2),
        makeCommand("fileDialog", "Asks for one file",
                    {valueFlag("m", "mode", A::integer, "0 reads, 1 writes"),
                     valueFlag("dm", "directoryMask", A::string, "the folder and a pattern"),
                     valueFlag("dfn", "defaultFileName", A::string, "the name that it begins with"),
                     valueFlag("t", "title", A::string, "the dialog's title")},
                    noArguments(), fileDialog),
    });
}

} // namespace tvxhost::mel
