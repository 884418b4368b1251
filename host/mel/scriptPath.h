// ScriptPath: the folders scripts are looked up in.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tvxhost::mel {

class ScriptPath
{
public:
    /// The folders of the environment variable MAYA_SCRIPT_PATH, in order.
    static ScriptPath fromEnvironment();

    void append(std::filesystem::path folder) { m_folders.push_back(std::move(folder)); }
    const std::vector<std::filesystem::path>& folders() const { return m_folders; }

    /// The file that `source NAME` means: NAME itself when it is a path to a file, else the first folder that
    /// has it; ".mel" may be left out.
    std::optional<std::filesystem::path> find(const std::string& name) const;
    /// The file that would define the procedure: NAME.mel in one of the folders.
    std::optional<std::filesystem::path> findProcedure(const std::string& name) const;

private:
    std::vector<std::filesystem::path> m_folders;
};

} // namespace tvxhost::mel
