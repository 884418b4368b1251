// tvxhost: opens, evaluates, draws and saves Maya scenes without Maya.
#include "program.h"

#include <csignal>
#include <iostream>

#include <unistd.h>

int main(int argc, char** argv)
{
    using namespace tvxhost::app;
    // A file that may not grow any more is an error to tell like a full disk, and no reason to die.
    std::signal(SIGXFSZ, SIG_IGN);
    const CommandLine commandLine = parseCommandLine(argc, argv);
    std::cout << commandLine.output;
    std::cerr << commandLine.error;
    if (!commandLine.options)
        return commandLine.exitCode;
    return runProgram(*commandLine.options, {std::cout, std::cerr, isatty(STDERR_FILENO) != 0});
}
