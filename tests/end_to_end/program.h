// Running tvxhost as a user would, and looking at what it printed.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace tvxhost::test {

/// What a program did.
struct ProgramResult
{
    int exitCode = -1;  ///< 128 + the signal when one ended it
    std::string output; ///< standard output
    std::string errors; ///< standard error
};

/// Extra environment variables.
using Environment = std::map<std::string, std::string>;

/// Runs a program to its end, standard input empty.
ProgramResult runProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                         const Environment& environment = {});

/// Runs tvxhost without any display, the plug-in's scripts on the script path.
ProgramResult runHost(const std::vector<std::string>& arguments, const Environment& environment = {});

/// The built plug-in, the example scene, and the root of the sources.
std::filesystem::path pluginFile();
std::filesystem::path exampleScene();
std::filesystem::path sourceRoot();

/// A whole file; empty when it cannot be read.
std::string contentsOf(const std::filesystem::path& file);
void writeFile(const std::filesystem::path& file, const std::string& contents);
std::vector<std::string> linesOf(const std::string& text);
/// The lines that hold a piece of text.
std::vector<std::string> linesWith(const std::string& text, const std::string& piece);

/// The number, from 1, of the only line of a source file that holds a piece of text; 0 when it is not the
/// only one.
/// @param file  from the root of the sources
int lineOfStatement(const std::string& file, const std::string& piece);

} // namespace tvxhost::test
