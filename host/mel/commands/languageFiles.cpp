// Files: reading and writing through handles, tests, listings, paths.
#include "language.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <fnmatch.h>
#include <map>
#include <memory>
#include <system_error>
#include <unistd.h>

namespace tvxhost::mel {

namespace fs = std::filesystem;

namespace {

using Arguments = std::vector<Value>;

struct CloseFile
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// The files a session has open, by the number that scripts know them by.
class OpenFiles
{
public:
    /// 0 when the file cannot be opened.
    int open(const std::string& path, const std::string& mode)
    {
        std::FILE* file = std::fopen(path.c_str(), mode.c_str());
        if (file == nullptr) {
            return 0;
        }
        m_files.emplace(++m_last, file);
        return m_last;
    }

    /// Throws ValueError when the number is no open file's.
    std::FILE* get(const Value& number) const
    {
        const auto found = m_files.find(number.integer());
        if (found == m_files.end()) {
            throw ValueError("There is no open file " + std::to_string(number.integer()) + ".");
        }
        return found->second.get();
    }

    void close(const Value& number)
    {
        get(number);
        m_files.erase(number.integer());
    }

private:
    std::map<int, std::unique_ptr<std::FILE, CloseFile>> m_files;
    int m_last = 0;
};

Value fopen(OpenFiles& files, Arguments& arguments)
{
    return files.open(arguments[0].string(), arguments.size() == 2 ? arguments[1].string() : "w");
}

Value fclose(OpenFiles& files, Arguments& arguments)
{
    files.close(arguments[0]);
    return {};
}

Value fprint(OpenFiles& files, Arguments& arguments)
{
    const std::string text = arguments[1].toString();
    std::fwrite(text.data(), 1, text.size(), files.get(arguments[0]));
    return {};
}

/// The next line with its end; "" at the end of the file.
Value fgetline(OpenFiles& files, Arguments& arguments)
{
    std::FILE* file = files.get(arguments[0]);
    std::string line;
    for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) {
        line += static_cast<char>(c);
        if (c == '\n') {
            break;
        }
    }
    return line;
}

/// The next word between white space, or between the separators given; "" at the end of the file.
Value fgetword(OpenFiles& files, Arguments& arguments)
{
    std::FILE* file = files.get(arguments[0]);
    const std::string separators = arguments.size() == 2 ? arguments[1].string() : " \t\n\r\f\v";
    const auto separates = [&](int c) { return separators.find(static_cast<char>(c)) != std::string::npos; };
    std::string word;
    for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) {
        if (!separates(c)) {
            word += static_cast<char>(c);
        } else if (!word.empty()) {
            break;
        }
    }
    return word;
}

Value feof(OpenFiles& files, Arguments& arguments)
{
    // True as soon as nothing is left to read, so that a loop of reads ends with the last line.
    std::FILE* file = files.get(arguments[0]);
    const int next = std::fgetc(file);
    if (next != EOF) {
        std::ungetc(next, file);
    }
    return next == EOF;
}

Value fflush(OpenFiles& files, Arguments& arguments)
{
    std::fflush(files.get(arguments[0]));
    return {};
}

Value frewind(OpenFiles& files, Arguments& arguments)
{
    std::rewind(files.get(arguments[0]));
    return {};
}

void writeBytes(std::FILE* file, const void* bytes, std::size_t size)
{
    std::fwrite(bytes, 1, size, file);
}

/// Binary: an int in 4 bytes, a float in 8, a vector in 24, a string with a zero byte at its end.
Value fwrite(OpenFiles& files, Arguments& arguments)
{
    std::FILE* file = files.get(arguments[0]);
    const Value& value = arguments[1];
    switch (value.type()) {
    case Type::integer: {
        const int number = value.integer();
        writeBytes(file, &number, sizeof number);
        break;
    }
    case Type::number: {
        const double number = value.number();
        writeBytes(file, &number, sizeof number);
        break;
    }
    case Type::vector: {
        const Vector& vector = value.vector();
        writeBytes(file, vector.getValue(), 3 * sizeof(double));
        break;
    }
    default: {
        const std::string text = value.to(Type::string).string();
        writeBytes(file, text.c_str(), text.size() + 1);
    }
    }
    return {};
}

std::string readText(std::FILE* file)
{
    std::string text;
    for (int c = std::fgetc(file); c != EOF && c != 0; c = std::fgetc(file)) {
        text += static_cast<char>(c);
    }
    return text;
}

/// What `fwrite` wrote, as the type of the second argument; the neutral value past the end.
Value fread(OpenFiles& files, Arguments& arguments)
{
    std::FILE* file = files.get(arguments[0]);
    const Type type = arguments[1].type();
    int integer = 0;
    double numbers[3] = {};
    switch (type) {
    case Type::integer:
        return std::fread(&integer, sizeof integer, 1, file) == 1 ? integer : 0;
    case Type::number:
        return std::fread(numbers, sizeof(double), 1, file) == 1 ? numbers[0] : 0.0;
    case Type::vector:
        return std::fread(numbers, sizeof numbers, 1, file) == 1 ? Vector(numbers[0], numbers[1], numbers[2])
                                                                 : Vector(0.0);
    default:
        return readText(file);
    }
}

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

void addHandleCommands(CommandTable& table)
{
    const auto files = std::make_shared<OpenFiles>();
    const auto onFiles = [files](Value (*run)(OpenFiles&, Arguments&)) {
        return [files, run](CommandContext&, Arguments& arguments) { return run(*files, arguments); };
    };
    table.add({
        function("fopen", "Opens a file and gives its number; 0 when it cannot be opened",
                 {kString, optional(kString)}, onFiles(fopen)),
        function("fclose", "Closes a file", {kInt}, onFiles(fclose)),
        function("fprint", "Writes a value's text to a file", {kInt, kAny}, onFiles(fprint)),
        function("fgetline", "The next line of a file with its end", {kInt}, onFiles(fgetline)),
        function("fgetword", "The next word of a file", {kInt, optional(kString)}, onFiles(fgetword)),
        function("fwrite", "Writes a value to a file as bytes", {kInt, kAny}, onFiles(fwrite)),
        function("fread", "Reads a value of the second argument's type from a file", {kInt, kAny},
                 onFiles(fread)),
        function("feof", "Whether a file is read to its end", {kInt}, onFiles(feof)),
        function("fflush", "Writes out what is held back of a file", {kInt}, onFiles(fflush)),
        function("frewind", "Goes back to the start of a file", {kInt}, onFiles(frewind)),
    });
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
    addHandleCommands(table);
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
