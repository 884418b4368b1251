// A run of an example: its plug-in loaded, its script run, its scene saved and read again.
#pragma once

#include "../end_to_end/program.h"
#include "../host/support/temporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tvxhost::test {

class ExampleRun : public testing::Test
{
protected:
    /// Runs the program with the plug-in loaded, the date of files fixed.
    static ProgramResult run(std::vector<std::string> arguments);

    /// The example's script, as an argument for the program.
    static std::string script(const std::string& name);

    /// Expects a script of the examples to print a text, and nothing to go wrong.
    static void expectPrinted(const std::string& scriptName, const std::string& output);

    /// Runs a script of the examples and saves the scene; the file, which is to be called `name`.
    std::string sceneMadeBy(const std::string& scriptName, const std::string& name) const;

    /// Reads a scene that finds its plug-in by itself, and expects it to be saved as it was.
    void expectReadingAndSavingChangesNothing(const std::string& scene);

    /// Expects each of the calls, failing, to make the loading of the plug-in fail with one error.
    static void expectLoadingFailsWith(const std::vector<std::string>& calls);

    /// A name among the files of the test.
    std::string file(const std::string& name) const { return m_folder / name; }

private:
    const TemporaryFolder m_folder;
};

/// The lines of a saved scene from the making of a node to the last line about it, identities left out.
std::string nodeText(const std::string& scene, const std::string& node);

} // namespace tvxhost::test
