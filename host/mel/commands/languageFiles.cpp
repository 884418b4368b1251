// Files: tests, listings, moving and copying, parts of paths.
#include "language.h"

#include <algorithm>
#include <filesystem>
#include <fnmatch.h>
#include <system_error>
#include <unistd.h>

namespace tvxhost::mel {

namespace fs = std::filesystem;

namespace {

using Arguments = std::vector<Value>;

bool isAllowed(const std::string& path, int mode)
{
    return ::access(path.c_str(), mode) == 0;
}

struct FileTest
{
    const char* flag;
    const char* help;
    bool (*test)(const std::string& path);
};

const FileTest kFileTests[] = {
    {"d", "Is a folder",
     [](const std::string& path) {
         std::error_code e;
         return fs::is_directory(path, e);
     }},
    {"f", "Is a file",
     [](const std::string& path) {
         std::error_code e;
         return fs::is_regular_file(path, e);
     }},
    {"L", "Is a symbolic link",
     [](const std::string& path) {
         std::error_code e;
         return fs::is_symlink(path, e);
     }},
    {"r", "Can be read", [](const std::string& path) { return isAllowed(path, R_OK); }},
    {"w", "Can be written", [](const std::string& path) { return isAllowed(path, W_OK); }},
    {"x", "Can be run", [](const std::string& path) { return isAllowed(path, X_OK); }},
    {"s", "Is not empty",
     [](const std::string& path) {
         std::error_code e;
         const auto size = fs::file_size(path, e);
         return !e && size > 0;
     }},
};

/// True when every test asked for holds.
Value filetest(CommandContext& context, const ParsedCommand& parsed)
{
    if (parsed.flags.empty()) {
        context.fail("filetest needs a flag that says what to test.");
    }
    const std::string path = parsed.positional[0].toString();
    return std::all_of(std::begin(kFileTests), std::end(kFileTests),
                       [&](const FileTest& row) { return !parsed.has(row.flag) || row.test(path); });
}

/// `getFileList -folder F -filespec "*.ma"`: the names, sorted.
Value getFileList(CommandContext&, const ParsedCommand& parsed)
{
    const std::string folder = parsed.string("folder", ".");
    const std::string pattern = parsed.string("filespec", "*");
    Value::Strings names;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (fnmatch(pattern.c_str(), name.c_str(), 0) == 0) {
            names.push_back(name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

bool makeFolder(const fs::path& path)
{
    std::error_code error;
    fs::create_directories(path, error);
    return fs::is_directory(path, error);
}

bool moveFile(const fs::path& from, const fs::path& to)
{
    std::error_code error;
    fs::rename(from, to, error);
    return !error;
}

bool copyFile(const fs::path& from, const fs::path& to)
{
    std::error_code error;
    return fs::copy_file(from, to, fs::copy_options::overwrite_existing, error);
}

bool deleteFile(const fs::path& path)
{
    std::error_code error;
    return !fs::is_directory(path, error) && fs::remove(path, error);
}

bool removeEmptyFolder(const fs::path& path)
{
    std::error_code error;
    return fs::is_directory(path, error) && fs::remove(path, error);
}

/// `sysFile -makeDir PATH` and alike: whether it was done.
Value sysFile(CommandContext& context, const ParsedCommand& parsed)
{
    const fs::path path = parsed.positional[0].toString();
    if (parsed.has("makeDir")) {
        return makeFolder(path);
    }
    if (parsed.has("delete")) {
        return deleteFile(path);
    }
    if (parsed.has("removeEmptyDir")) {
        return removeEmptyFolder(path);
    }
    for (const char* flag : {"rename", "move"}) {
        if (parsed.has(flag)) {
            return moveFile(path, parsed.string(flag));
        }
    }
    if (parsed.has("copy")) {
        return copyFile(path, parsed.string("copy"));
    }
    context.fail("sysFile needs a flag that says what to do.");
}

Value basename(CommandContext&, Arguments& arguments)
{
    std::string name = fs::path(arguments[0].string()).filename().string();
    const std::string& suffix = arguments[1].string();
    const bool ends =
        name.size() >= suffix.size() && name.compare(name.size() - suffix.size(), suffix.size(), suffix) == 0;
    return ends ? name.substr(0, name.size() - suffix.size()) : name;
}

Value basenameEx(CommandContext&, Arguments& arguments)
{
    return fs::path(arguments[0].string()).stem().string();
}

Value dirname(CommandContext&, Arguments& arguments)
{
    const std::string& path = arguments[0].string();
    const std::size_t slash = path.find_last_of('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash == 0 ? 1 : slash);
}

Value fileExtension(CommandContext&, Arguments& arguments)
{
    const std::string extension = fs::path(arguments[0].string()).extension().string();
    return extension.empty() ? extension : extension.substr(1);
}

/// The current folder with a slash at its end.
Value pwd(CommandContext&, Arguments&)
{
    std::error_code error;
    return fs::current_path(error).string() + '/';
}

Value chdir(CommandContext&, Arguments& arguments)
{
    std::error_code error;
    fs::current_path(arguments[0].string(), error);
    return error ? -1 : 0;
}

Value unchangedPath(CommandContext&, Arguments& arguments)
{
    return arguments[0];
}

std::vector<FlagSpec> fileTestFlags()
{
    std::vector<FlagSpec> flags;
    for (const FileTest& row : kFileTests) {
        flags.push_back({row.flag, row.flag, {}, kCreate, row.help});
    }
    return flags;
}

} // namespace

void addFileCommands(CommandTable& table)
{
    const PositionalRule onePath{ArgumentType::string, 1, 1};
    const std::vector<ArgumentType> path{ArgumentType::string};
    table.add({
        command("filetest", "Tests a file or folder", fileTestFlags(), onePath, filetest),
        command("getFileList", "The names in a folder",
                {{"fld", "folder", path, kCreate, "The folder; the current one when left out"},
                 {"fs", "filespec", path, kCreate, "A pattern the names match"}},
                {}, getFileList),
        command("sysFile", "Does something to a file or folder and tells whether it was done",
                {{"md", "makeDir", {}, kCreate, "Makes the folder and those above it"},
                 {"del", "delete", {}, kCreate, "Deletes the file"},
                 {"red", "removeEmptyDir", {}, kCreate, "Deletes the folder when it is empty"},
                 {"ren", "rename", path, kCreate, "Gives the file this path"},
                 {"mov", "move", path, kCreate, "Gives the file this path"},
                 {"cp", "copy", path, kCreate, "Copies the file to this path"}},
                onePath, sysFile),
        function("basename", "The last part of a path without the ending given", {kString, kString},
                 basename),
        function("basenameEx", "The last part of a path without its extension", {kString}, basenameEx),
        function("dirname", "A path without its last part", {kString}, dirname),
        function("fileExtension", "What follows the last dot of a file's name", {kString}, fileExtension),
        function("pwd", "The current folder", {}, pwd),
        function("chdir", "Changes the current folder; 0 when it was changed", {kString}, chdir),
        function("toNativePath", "The path as this system writes it", {kString}, unchangedPath),
        function("fromNativePath", "The path with forward slashes", {kString}, unchangedPath),
    });
}

} // namespace tvxhost::mel
