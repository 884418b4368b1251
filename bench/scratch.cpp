// The folder where benchmarks write.
#include "scratch.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace tvxbench {
namespace {

class Folder
{
public:
    Folder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "tvxBenchXXXXXX").string();
        if (!mkdtemp(pattern.data()))
            throw std::runtime_error("cannot make a folder like " + pattern);
        path = pattern;
    }
    ~Folder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
    std::string path;
};

} // namespace

const std::string& scratchFolder()
{
    static const Folder folder;
    return folder.path;
}

std::string scratchFile(const std::string& name)
{
    return scratchFolder() + '/' + name;
}

} // namespace tvxbench
