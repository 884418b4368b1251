// Preferences and the session itself: savePrefs, about, internalVar.
#include "commandSupport.h"
#include "optionVarCommand.h"
#include "sceneCommands.h"

#include <ctime>
#include <filesystem>
#include <sys/utsname.h>

namespace tvxhost::mel {

namespace {

Value savePrefs(CommandContext& context, const ParsedCommand&)
{
    SceneSession& session = sessionOf(context);
    if (session.preferencesFolder.empty())
        return Value(0);
    require(context, session.savePreferences(false));
    return Value(1);
}

// about, internalVar

std::string systemVersion()
{
    utsname names{};
    return ::uname(&names) == 0 ? std::string(names.sysname) + " " + names.release : std::string();
}

std::string dateText(const char* format)
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    char text[64];
    return std::string(text, std::strftime(text, sizeof text, format, &local));
}

struct Fact
{
    const char* shortName;
    const char* longName;
    const char* help;
    Value (*tell)(const CommandContext& context);
};

const Fact kFacts[] = {
    {"b", "batch", "whether there is no user interface",
     [](const CommandContext& context) { return Value(sceneOf(context).isBatch()); }},
    {"v", "version", "the version", [](const CommandContext&) { return Value("2016"); }},
    {"api", "apiVersion", "the version of the programming interface",
     [](const CommandContext&) { return Value(201602); }},
    {"p", "product", "the product", [](const CommandContext&) { return Value("Maya 2016"); }},
    {"a", "application", "the application", [](const CommandContext&) { return Value("maya"); }},
    {"c", "cutIdentifier", "the build", [](const CommandContext&) { return Value("201610262200-1005964"); }},
    {"f", "file", "the version in scene files", [](const CommandContext&) { return Value("2016"); }},
    {"os", "operatingSystem", "the system", [](const CommandContext&) { return Value("linux64"); }},
    {"linux", "linux", "whether the system is Linux", [](const CommandContext&) { return Value(1); }},
    {"nt", "ntOS", "whether the system is Windows", [](const CommandContext&) { return Value(0); }},
    {"mac", "macOS", "whether the system is macOS", [](const CommandContext&) { return Value(0); }},
    {"uil", "uiLanguage", "the language", [](const CommandContext&) { return Value("en_US"); }},
    {"uii", "uiLanguageIsLocalized", "whether that is another than English",
     [](const CommandContext&) { return Value(0); }},
    {"cs", "codeset", "the encoding of texts", [](const CommandContext&) { return Value("UTF-8"); }},
    {"iv", "installedVersion", "the version that is installed",
     [](const CommandContext&) { return Value("Maya 2016"); }},
    {"cv", "customVersion", "whether this is a custom build", [](const CommandContext&) { return Value(0); }},
    {"cvc", "customVersionClient", "whom a custom build is for",
     [](const CommandContext&) { return Value(""); }},
    {"cvs", "customVersionString", "the version of a custom build",
     [](const CommandContext&) { return Value(""); }},
    {"d", "date", "when it was built", [](const CommandContext&) { return Value("10/26/2016"); }},
    {"pd", "preferences", "the folder of the user's preferences",
     [](const CommandContext& context) { return Value(sessionOf(context).preferencesFolder.string()); }},
    {"tab", "tablet", "whether the machine is a tablet", [](const CommandContext&) { return Value(0); }},
    {"bv", "buildVariant", "the kind of build", [](const CommandContext&) { return Value(""); }},
    {"lt", "ltVersion", "whether this is the small edition", [](const CommandContext&) { return Value(0); }},
    {"ev", "evalVersion", "whether it is for evaluation only",
     [](const CommandContext&) { return Value(0); }},
    {"x64", "is64", "whether the program has 64 bits", [](const CommandContext&) { return Value(1); }},
    {"l64", "linux64", "whether the system is Linux with 64 bits",
     [](const CommandContext&) { return Value(1); }},
    {"win", "windows", "whether the system is Windows", [](const CommandContext&) { return Value(0); }},
    {"w64", "win64", "whether the system is Windows with 64 bits",
     [](const CommandContext&) { return Value(0); }},
    {"ir", "irix", "whether the system is IRIX", [](const CommandContext&) { return Value(0); }},
    {"osv", "operatingSystemVersion", "the system's version",
     [](const CommandContext&) { return Value(systemVersion()); }},
    {"cd", "currentDate", "the date", [](const CommandContext&) { return Value(dateText("%Y/%m/%d")); }},
    {"ct", "currentTime", "the time", [](const CommandContext&) { return Value(dateText("%H:%M:%S")); }},
    {"cti", "ctime", "both, as C writes them",
     [](const CommandContext&) { return Value(dateText("%a %b %e %H:%M:%S %Y")); }},
};

Value about(CommandContext& context, const ParsedCommand& call)
{
    for (const Fact& fact : kFacts)
        if (call.has(fact.longName))
            return fact.tell(context);
    return Value("Maya 2016");
}

CommandSpec aboutCommand()
{
    std::vector<FlagSpec> flags;
    for (const Fact& fact : kFacts)
        flags.push_back(switchFlag(fact.shortName, fact.longName, fact.help, kCreateQuery));
    return makeCommand("about", "Tells about the program", std::move(flags), noArguments(), about, kQuery);
}

/// A folder of the user's, below that of the preferences.
struct FolderRow
{
    const char* shortName;
    const char* longName;
    const char* help;
    const char* below; ///< "" for the folder itself
};

constexpr FolderRow kFolders[] = {
    {"upd", "userPrefDir", "preferences", ""},
    {"uad", "userAppDir", "everything of the user", ""},
    {"usd", "userScriptDir", "scripts", "scripts"},
    {"ubd", "userBitmapsDir", "pictures", "icons"},
    {"uhk", "userHotkeyDir", "keys", "hotkeys"},
    {"umm", "userMarkingMenuDir", "marking menus", "markingMenus"},
    {"ups", "userPresetsDir", "presets", "presets"},
    {"ush", "userShelfDir", "shelves", "shelves"},
    {"uwd", "userWorkspaceDir", "projects", "projects"},
};

Value internalVar(CommandContext& context, const ParsedCommand& call)
{
    if (call.has("userTmpDir"))
        return Value((std::filesystem::temp_directory_path() / "").string());
    const std::filesystem::path& preferences = sessionOf(context).preferencesFolder;
    for (const FolderRow& row : kFolders)
        if (call.has(row.longName))
            return Value((preferences / row.below / "").string());
    context.fail("internalVar: nothing was asked");
}

CommandSpec internalVarCommand()
{
    std::vector<FlagSpec> flags = {switchFlag("utd", "userTmpDir", "temporary files")};
    for (const FolderRow& row : kFolders)
        flags.push_back(switchFlag(row.shortName, row.longName, row.help));
    flags.push_back(refusedFlag("mid", "mayaInstallDir", "there is no installation"));
    return makeCommand("internalVar", "Tells the folders of the user", std::move(flags), noArguments(),
                       internalVar);
}

} // namespace

void registerPreferenceCommands(CommandTable& table)
{
    table.add({
        optionVarCommand(),
        makeCommand("savePrefs", "Writes the preferences", {switchFlag("g", "general", "everything")},
                    noArguments(), savePrefs),
        aboutCommand(),
        internalVarCommand(),
    });
}

} // namespace tvxhost::mel
