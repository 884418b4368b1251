// Writes the table of the interface's functions: tvxListInterface OUTPUT.cpp REASONS.txt HEADER.h…
#include "headerReader.h"

#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

namespace {

std::string contentsOf(const std::string& path)
{
    std::ifstream file(path);
    if (!file)
        throw std::runtime_error("cannot read " + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

const char* wordOf(bool value)
{
    return value ? "true" : "false";
}

void writeFunctions(std::ostream& out, const std::string& header)
{
    for (const auto& function : tvxhost::api::functionsIn(contentsOf(header)))
        out << "    {\"" << function.name << "\", " << function.parameters << ", "
            << wordOf(function.returnsStatus) << ", " << wordOf(function.takesStatus) << ", "
            << wordOf(function.isInline) << "},\n";
}

/// Lines "NAME reason …"; '#' begins a comment.
void writeReasons(std::ostream& out, const std::string& path)
{
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        const std::size_t blank = line.find(' ');
        if (!line.empty() && line.front() != '#' && blank != std::string::npos)
            out << "    {\"" << line.substr(0, blank) << "\", \"" << line.substr(blank + 1) << "\"},\n";
    }
}

void writeTable(int argc, char** argv)
{
    std::ofstream out(argv[1]);
    out << "// The functions of the interface, as host/include declares them.\n"
           "#include \"api/listing/interfaceTable.h\"\n\n"
           "namespace tvxhost::api {\n\n"
           "const FunctionRow kFunctionRows[] = {\n";
    for (int i = 3; i < argc; ++i)
        writeFunctions(out, argv[i]);
    out << "    {},\n};\n\nconst ReasonRow kReasonRows[] = {\n";
    writeReasons(out, argv[2]);
    out << "    {},\n};\n\n} // namespace tvxhost::api\n";
    if (!out.flush())
        throw std::runtime_error(std::string("cannot write ") + argv[1]);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 4) {
        std::cerr << "usage: tvxListInterface OUTPUT.cpp REASONS.txt HEADER.h…\n";
        return 2;
    }
    try {
        writeTable(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "tvxListInterface: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
