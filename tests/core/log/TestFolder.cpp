// A folder for one test's files.
#include "TestFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tarvox::crowd::test {

namespace fs = std::filesystem;

TestFolder::TestFolder() : m_path((fs::temp_directory_path() / "tvx-test-XXXXXX").string())
{
    if (!mkdtemp(m_path.data()))
        throw std::runtime_error("cannot create " + m_path);
}

TestFolder::~TestFolder()
{
    std::error_code ignored;
    fs::permissions(m_path, fs::perms::owner_all, ignored);
    fs::remove_all(m_path, ignored);
}

std::string TestFolder::read(const std::string& name) const
{
    std::ifstream file(path(name), std::ios::binary);
    if (!file)
        return "(no such file)";
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void TestFolder::write(const std::string& name, const std::string& text) const
{
    std::ofstream(path(name), std::ios::binary) << text;
}

} // namespace tarvox::crowd::test
