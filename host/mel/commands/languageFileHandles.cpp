// Open files: reading and writing through the numbers that scripts know them by.
#include "language.h"

#include <cstdio>
#include <map>
#include <memory>

namespace tvxhost::mel {

namespace {

using Arguments = std::vector<Value>;

struct CloseFile
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// The files a session has open, by the number that scripts know them by.
class OpenFiles
{
public:
    /// 0 when the file cannot be opened.
    int open(const std::string& path, const std::string& mode)
    {
        std::FILE* file = std::fopen(path.c_str(), mode.c_str());
        if (file == nullptr) {
            return 0;
        }
        m_files.emplace(++m_last, file);
        return m_last;
    }

    /// Throws ValueError when the number is no open file's.
    std::FILE* get(const Value& number) const
    {
        const auto found = m_files.find(number.integer());
        if (found == m_files.end()) {
            throw ValueError("There is no open file " + std::to_string(number.integer()) + ".");
        }
        return found->second.get();
    }

    void close(const Value& number)
    {
        get(number);
        m_files.erase(number.integer());
    }

private:
    std::map<int, std::unique_ptr<std::FILE, CloseFile>> m_files;
    int m_last = 0;
};

Value fopen(OpenFiles& files, Arguments& arguments)
{
    return files.open(arguments[0].string(), arguments.size() == 2 ? arguments[1].string() : "w");
}

Value fclose(OpenFiles& files, Arguments& arguments)
{
    files.close(arguments[0]);
    return {};
}

Value fprint(OpenFiles& files, Arguments& arguments)
{
    const std::string text = arguments[1].toString();
    std::fwrite(text.data(), 1, text.size(), files.get(arguments[0]));
    return {};
}

/// The next line with its end; "" at the end of the file.
Value fgetline(OpenFiles& files, Arguments& arguments)
{
    std::FILE* file = files.get(arguments[0]);
    std::string line;
    for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) {
        line += static_cast<char>(c);
        if (c == '\n') {
            break;
        }
    }
    return line;
}

/// The next word between white space, or between the separators given; "" at the end of the file.
Value fgetword(OpenFiles& files, Arguments& arguments)
{
    std::FILE* file = files.get(arguments[0]);
    const std::string separators = arguments.size() == 2 ? arguments[1].string() : " \t\n\r\f\v";
    const auto separates = [&](int c) { return separators.find(static_cast<char>(c)) != std::string::npos; };
    std::string word;
    for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) {
        if (!separates(c)) {
            word += static_cast<char>(c);
        } else if (!word.empty()) {
            break;
        }
    }
    return word;
}

Value feof(OpenFiles& files, Arguments& arguments)
{
    // True as soon as nothing is left to read, so that a loop of reads ends with the last line.
    std::FILE* file = files.get(arguments[0]);
    const int next = std::fgetc(file);
    if (next != EOF) {
        std::ungetc(next, file);
    }
    return next == EOF;
}

Value fflush(OpenFiles& files, Arguments& arguments)
{
    std::fflush(files.get(arguments[0]));
    return {};
}

Value frewind(OpenFiles& files, Arguments& arguments)
{
    std::rewind(files.get(arguments[0]));
    return {};
}

void writeBytes(std::FILE* file, const void* bytes, std::size_t size)
{
    std::fwrite(bytes, 1, size, file);
}

/// Binary: an int in 4 bytes, a float in 8, a vector in 24, a string with a zero byte at its end.
Value fwrite(OpenFiles& files, Arguments& arguments)
{
    std::FILE* file = files.get(arguments[0]);
    const Value& value = arguments[1];
    switch (value.type()) {
    case Type::integer: {
        const int number = value.integer();
        writeBytes(file, &number, sizeof number);
        break;
    }
    case Type::number: {
        const double number = value.number();
        writeBytes(file, &number, sizeof number);
        break;
    }
    case Type::vector: {
        const Vector& vector = value.vector();
        writeBytes(file, vector.getValue(), 3 * sizeof(double));
        break;
    }
    default: {
        const std::string text = value.to(Type::string).string();
        writeBytes(file, text.c_str(), text.size() + 1);
    }
    }
    return {};
}

std::string readText(std::FILE* file)
{
    std::string text;
    for (int c = std::fgetc(file); c != EOF && c != 0; c = std::fgetc(file)) {
        text += static_cast<char>(c);
    }
    return text;
}

/// What `fwrite` wrote, as the type of the second argument; the neutral value past the end.
Value fread(OpenFiles& files, Arguments& arguments)
{
    std::FILE* file = files.get(arguments[0]);
    const Type type = arguments[1].type();
    int integer = 0;
    double numbers[3] = {};
    switch (type) {
    case Type::integer:
        return std::fread(&integer, sizeof integer, 1, file) == 1 ? integer : 0;
    case Type::number:
        return std::fread(numbers, sizeof(double), 1, file) == 1 ? numbers[0] : 0.0;
    case Type::vector:
        return std::fread(numbers, sizeof numbers, 1, file) == 1 ? Vector(numbers[0], numbers[1], numbers[2])
                                                                 : Vector(0.0);
    default:
        return readText(file);
    }
}

} // namespace

void addFileHandleCommands(CommandTable& table)
{
    const auto files = std::make_shared<OpenFiles>();
    const auto onFiles = [files](Value (*run)(OpenFiles&, Arguments&)) {
        return [files, run](CommandContext&, Arguments& arguments) { return run(*files, arguments); };
    };
    table.add({
        function("fopen", "Opens a file and gives its number; 0 when it cannot be opened",
                 {kString, optional(kString)}, onFiles(fopen)),
        function("fclose", "Closes a file", {kInt}, onFiles(fclose)),
        function("fprint", "Writes a value's text to a file", {kInt, kAny}, onFiles(fprint)),
        function("fgetline", "The next line of a file with its end", {kInt}, onFiles(fgetline)),
        function("fgetword", "The next word of a file", {kInt, optional(kString)}, onFiles(fgetword)),
        function("fwrite", "Writes a value to a file as bytes", {kInt, kAny}, onFiles(fwrite)),
        function("fread", "Reads a value of the second argument's type from a file", {kInt, kAny},
                 onFiles(fread)),
        function("feof", "Whether a file is read to its end", {kInt}, onFiles(feof)),
        function("fflush", "Writes out what is held back of a file", {kInt}, onFiles(fflush)),
        function("frewind", "Goes back to the start of a file", {kInt}, onFiles(frewind)),
    });
}

} // namespace tvxhost::mel
