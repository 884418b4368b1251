// Running programs with their outputs caught in files.
#include "program.h"

#include "../host/support/temporaryFolder.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace tvxhost::test {

namespace {

void redirect(int descriptor, const std::filesystem::path& file, int flags)
{
    const int opened = open(file.c_str(), flags, 0600);
    if (opened < 0 || dup2(opened, descriptor) < 0)
        _exit(127);
    close(opened);
}

[[noreturn]] void become(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                         const Environment& environment)
{
    unsetenv("DISPLAY");
    unsetenv("WAYLAND_DISPLAY");
    for (const auto& [name, value] : environment)
        setenv(name.c_str(), value.c_str(), 1);
    std::vector<char*> words{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments)
        words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    execv(program.c_str(), words.data());
    _exit(127);
}

int waitFor(pid_t child)
{
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR)
            return -1;
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

} // namespace

ProgramResult runProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                         const Environment& environment)
{
    const TemporaryFolder folder;
    const pid_t child = fork();
    if (child < 0)
        throw std::runtime_error("cannot start a process");
    if (child == 0) {
        redirect(STDIN_FILENO, "/dev/null", O_RDONLY);
        redirect(STDOUT_FILENO, folder / "out", O_WRONLY | O_CREAT);
        redirect(STDERR_FILENO, folder / "err", O_WRONLY | O_CREAT);
        become(program, arguments, environment);
    }
    ProgramResult result;
    result.exitCode = waitFor(child);
    result.output = contentsOf(folder / "out");
    result.errors = contentsOf(folder / "err");
    return result;
}

ProgramResult runHost(const std::vector<std::string>& arguments, const Environment& environment)
{
    Environment all{{"MAYA_SCRIPT_PATH", sourceRoot() / "scripts"}};
    for (const auto& [name, value] : environment)
        all[name] = value;
    return runProgram(TVX_HOST_PROGRAM, arguments, all);
}

std::filesystem::path pluginFile()
{
    return TVX_PLUGIN_FILE;
}

std::filesystem::path sourceRoot()
{
    return TVX_SOURCE_DIR;
}

std::filesystem::path exampleScene()
{
    return sourceRoot() / "examples" / "crowd_shot.ma";
}

std::string contentsOf(const std::filesystem::path& file)
{
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void writeFile(const std::filesystem::path& file, const std::string& contents)
{
    std::ofstream out(file, std::ios::binary);
    out << contents;
    if (!out.flush())
        throw std::runtime_error("cannot write " + file.string());
}

std::vector<std::string> linesOf(const std::string& text)
{
    std::istringstream in(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

std::vector<std::string> linesWith(const std::string& text, const std::string& piece)
{
    std::vector<std::string> found;
    for (const std::string& line : linesOf(text)) {
        if (line.find(piece) != std::string::npos)
            found.push_back(line);
    }
    return found;
}

int lineOfStatement(const std::string& file, const std::string& piece)
{
    const std::vector<std::string> lines = linesOf(contentsOf(sourceRoot() / file));
    const auto holdsPiece = [&](const std::string& line) { return line.find(piece) != std::string::npos; };
    const auto found = std::find_if(lines.begin(), lines.end(), holdsPiece);
    if (found == lines.end() || std::find_if(found + 1, lines.end(), holdsPiece) != lines.end())
        return 0;
    return static_cast<int>(found - lines.begin()) + 1;
}

} // namespace tvxhost::test
