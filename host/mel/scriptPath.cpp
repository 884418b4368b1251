// Looking scripts up.
#include "scriptPath.h"

#include <cstdlib>
#include <string_view>
#include <system_error>

namespace tvxhost::mel {

namespace fs = std::filesystem;

namespace {

#ifdef _WIN32
constexpr char kSeparator = ';';
#else
constexpr char kSeparator = ':';
#endif

/// The file itself, or with ".mel" behind it.
std::optional<fs::path> fileNamed(const fs::path& path)
{
    std::error_code ignored;
    for (const fs::path& candidate : {path, fs::path(path.string() + ".mel")}) {
        if (fs::is_regular_file(candidate, ignored)) {
            return candidate;
        }
    }
    return std::nullopt;
}

} // namespace

ScriptPath ScriptPath::fromEnvironment()
{
    ScriptPath path;
    const char* variable = std::getenv("MAYA_SCRIPT_PATH");
    std::string_view rest = variable == nullptr ? "" : variable;
    while (!rest.empty()) {
        const std::string_view folder = rest.substr(0, rest.find(kSeparator));
        if (!folder.empty()) {
            path.append(fs::path(folder));
        }
        rest.remove_prefix(std::min(rest.size(), folder.size() + 1));
    }
    return path;
}

std::optional<fs::path> ScriptPath::find(const std::string& name) const
{
    const fs::path path(name);
    if (auto file = fileNamed(path)) {
        return file;
    }
    if (path.is_absolute()) {
        return std::nullopt;
    }
    for (const fs::path& folder : m_folders) {
        if (auto file = fileNamed(folder / path)) {
            return file;
        }
    }
    return std::nullopt;
}

std::optional<fs::path> ScriptPath::findProcedure(const std::string& name) const
{
    std::error_code ignored;
    for (const fs::path& folder : m_folders) {
        fs::path file = folder / (name + ".mel");
        if (fs::is_regular_file(file, ignored)) {
            return file;
        }
    }
    return std::nullopt;
}

} // namespace tvxhost::mel
