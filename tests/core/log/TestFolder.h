// A folder for one test's files.
#pragma once

#include <string>

namespace tarvox::crowd::test {

/// An empty folder that is removed with everything in it when this ends.
class TestFolder
{
public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    const std::string& path() const { return m_path; }
    std::string path(const std::string& name) const { return m_path + "/" + name; }

    /// The whole of a file, or "(no such file)".
    std::string read(const std::string& name) const;
    void write(const std::string& name, const std::string& text) const;

private:
    std::string m_path;
};

} // namespace tarvox::crowd::test
