// Undo of what brings files into a scene: an import is one step, references forget all steps.
#include "../host/support/temporaryFolder.h"
#include "program.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace tvxhost::test;

constexpr const char* kFile =
    "//Maya ASCII 2016 scene\ncreateNode transform -n \"box\";\n"
    "\tsetAttr \".t\" -type \"double3\" 7 0 0 ;\n"
    "createNode transform -n \"lid\" -p \"box\";\nconnectAttr \"box.tx\" \"lid.ty\";\n";
constexpr const char* kTellNodes =
    "print (`objExists own` + \" \" + `objExists box` + \" \" + `objExists lid` + \"\\n\")";

TEST(FileUndo, AnImportIsOneStep)
{
    const TemporaryFolder folder;
    const std::string file = folder / "box.ma";
    writeFile(file, kFile);
    const ProgramResult result = runHost(
        {"-e", "undoInfo -state on", "-e", "createNode transform -n own; print \"\"", "-e",
         "string $f = `file -i \"" + file + "\"`", "-e", kTellNodes, "-e", "undo; print \"\"", "-e",
         kTellNodes, "-e", "redo; print \"\"", "-e", kTellNodes, "-e", "print (`getAttr lid.ty` + \"\\n\")"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    std::string told;
    for (const std::string& line : linesOf(result.output))
        if (!line.empty() && std::string("017").find(line[0]) != std::string::npos)
            told += line + "\n";
    EXPECT_EQ(told, "1 1 1\n1 0 0\n1 1 1\n7\n") << result.output;
}

TEST(FileUndo, AReferenceForgetsTheSteps)
{
    const TemporaryFolder folder;
    const std::string file = folder / "box.ma";
    writeFile(file, kFile);
    const ProgramResult result =
        runHost({"-e", "undoInfo -state on", "-e", "createNode transform -n own; print \"\"", "-e",
                 "string $f = `file -r -ns r \"" + file + "\"`", "-e",
                 "print (\"steps: \" + `undoInfo -q -undoQueueEmpty` + \" \" + `objExists own` + `objExists "
                 "r:lid`)"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_NE(result.output.find("steps: 1 11"), std::string::npos) << result.output;
}

} // namespace
