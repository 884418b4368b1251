// tvxhost: opens, evaluates, draws and saves Maya scenes without Maya.
#include "program.h"

#include <iostream>

#include <unistd.h>

int main(int argc, char** argv)
{
    using namespace tvxhost::app;
    const CommandLine commandLine = parseCommandLine(argc, argv);
    std::cout << commandLine.output;
    std::cerr << commandLine.error;
    if (!commandLine.options)
        return commandLine.exitCode;
    return runProgram(*commandLine.options, {std::cout, std::cerr, isatty(STDERR_FILENO) != 0});
}
