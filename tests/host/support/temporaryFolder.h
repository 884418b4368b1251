// TemporaryFolder: a folder for one test, gone with it.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

namespace tvxhost::test {

class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "tvx-test-XXXXXX").string();
        if (!mkdtemp(name.data()))
            throw std::runtime_error("cannot make the folder " + name);
        m_path = name;
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::permissions(m_path, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    std::filesystem::path operator/(const std::string& name) const { return m_path / name; }
    /// The path of something in the folder as text.
    std::string path(const std::string& name) const { return (m_path / name).string(); }

    /// The whole of a file, or "(no such file)".
    std::string read(const std::string& name) const
    {
        std::ifstream file(m_path / name, std::ios::binary);
        if (!file)
            return "(no such file)";
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void write(const std::string& name, const std::string& text) const
    {
        std::ofstream file(m_path / name, std::ios::binary);
        if (!(file << text).flush())
            throw std::runtime_error("cannot write " + path(name));
    }
    /// The names of all that is in the folder, sorted.
    std::vector<std::string> names() const
    {
        std::vector<std::string> all;
        for (const auto& entry : std::filesystem::directory_iterator(m_path))
            all.push_back(entry.path().filename().string());
        std::sort(all.begin(), all.end());
        return all;
    }

private:
    std::filesystem::path m_path;
};

} // namespace tvxhost::test
