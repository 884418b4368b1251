// tvxhost: opens, evaluates, draws and saves Maya scenes without Maya.
#include "program.h"

#include <csignal>
#include <iostream>

#include <fcntl.h>
#include <unistd.h>

namespace {

/// Otherwise a scene that is opened or saved could get the number of an output that the caller has closed,
/// and what is printed would land in it.
void occupyStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(stream, F_GETFD) == -1 && open("/dev/null", O_RDWR) != stream)
            return;
}

/// What did not reach standard output is an error like any other.
int withOutputWritten(int exitCode)
{
    std::cout.flush();
    if (std::cout)
        return exitCode;
    std::cerr << "Error: cannot write standard output: some of it is lost; is there room where it goes?\n";
    return exitCode == 0 ? 1 : exitCode;
}

} // namespace

int main(int argc, char** argv)
{
    using namespace tvxhost::app;
    // A file that may not grow any more is an error to tell like a full disk, and no reason to die.
    std::signal(SIGXFSZ, SIG_IGN);
    occupyStandardStreams();
    const CommandLine commandLine = parseCommandLine(argc, argv);
    std::cout << commandLine.output;
    std::cerr << commandLine.error;
    if (!commandLine.options)
        return withOutputWritten(commandLine.exitCode);
    return withOutputWritten(
        runProgram(*commandLine.options, {std::cout, std::cerr, isatty(STDERR_FILENO) != 0}));
}
