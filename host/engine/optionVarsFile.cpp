// OptionVars: reading and writing userPrefs.mel.
#include "optionVars.h"

#include "atomicFile.h"
#include "mayaString.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <system_error>

namespace tvxhost::engine {

namespace {

namespace fs = std::filesystem;

constexpr const char* kFileName = "userPrefs.mel";

/// A word or a string of the file, with the line it began in.
struct Token
{
    enum class Kind
    {
        word,
        string,
        semicolon,
        end,
        broken
    } kind = Kind::end;
    std::string text;
};

/// The little of the language that preference files need: words, strings, semicolons, comments.
class Scanner
{
public:
    explicit Scanner(std::string_view text) : m_text(text) {}

    int line() const { return m_line; }

    Token next()
    {
        skipBlanks();
        if (m_at == m_text.size())
            return {Token::Kind::end, {}};
        if (m_text[m_at] == '\0')
            return {Token::Kind::broken, {}};
        if (m_text[m_at] == ';') {
            ++m_at;
            return {Token::Kind::semicolon, ";"};
        }
        return m_text[m_at] == '"' ? string() : word();
    }

private:
    bool startsWith(std::string_view what) const { return m_text.compare(m_at, what.size(), what) == 0; }
    void step() { m_line += m_text[m_at++] == '\n'; }
    void skipTo(std::string_view end)
    {
        while (m_at < m_text.size() && !startsWith(end))
            step();
    }
    void skipBlanks()
    {
        while (m_at < m_text.size()) {
            if (std::isspace(static_cast<unsigned char>(m_text[m_at])))
                step();
            else if (startsWith("//"))
                skipTo("\n");
            else if (startsWith("/*")) {
                skipTo("*/");
                m_at = std::min(m_at + 2, m_text.size());
            } else
                break;
        }
    }
    Token string()
    {
        const std::size_t start = ++m_at;
        while (m_at < m_text.size() && m_text[m_at] != '"' && m_text[m_at] != '\n')
            m_at += m_text[m_at] == '\\' ? 2 : 1;
        if (m_at >= m_text.size() || m_text[m_at] != '"')
            return {Token::Kind::broken, {}};
        const std::string_view inside = m_text.substr(start, m_at - start);
        ++m_at;
        return {Token::Kind::string, unescapedString(inside)};
    }
    Token word()
    {
        const std::size_t start = m_at;
        while (m_at < m_text.size() && !std::isspace(static_cast<unsigned char>(m_text[m_at])) &&
               m_text[m_at] != ';' && m_text[m_at] != '"')
            ++m_at;
        return {Token::Kind::word, std::string(m_text.substr(start, m_at - start))};
    }

    std::string_view m_text;
    std::size_t m_at = 0;
    int m_line = 1;
};

template <class T>
bool parseNumber(const std::string& text, T& value)
{
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    return result.ec == std::errc() && result.ptr == end;
}

bool parseValue(const std::string& text, int& value)
{
    return parseNumber(text, value);
}

bool parseValue(const std::string& text, double& value)
{
    return parseNumber(text, value);
}

bool parseValue(const std::string& text, std::string& value)
{
    value = text;
    return true;
}

/// Reads `optionVar` commands; every other command is skipped whole.
class Reader
{
public:
    Reader(std::string_view text, std::map<std::string, OptionValue>& values)
        : m_scanner(text), m_values(values)
    {
    }

    bool read()
    {
        for (Token token = m_scanner.next(); token.kind != Token::Kind::end; token = m_scanner.next()) {
            if (token.kind == Token::Kind::semicolon)
                continue;
            const bool isOurs = token.kind == Token::Kind::word && token.text == "optionVar";
            if (token.kind == Token::Kind::broken || !(isOurs ? readFlags() : skipCommand()))
                return false;
        }
        return true;
    }
    int line() const { return m_scanner.line(); }

private:
    bool skipCommand()
    {
        Token token;
        do
            token = m_scanner.next();
        while (token.kind == Token::Kind::word || token.kind == Token::Kind::string);
        return token.kind != Token::Kind::broken;
    }

    bool readFlags()
    {
        for (Token flag = m_scanner.next(); flag.kind != Token::Kind::semicolon; flag = m_scanner.next()) {
            const Token name = m_scanner.next();
            if (flag.kind != Token::Kind::word || !isText(name) || !readFlag(flag.text, name.text))
                return false;
        }
        return true;
    }

    static bool isText(const Token& token)
    {
        return token.kind == Token::Kind::word || token.kind == Token::Kind::string;
    }

    bool readFlag(const std::string& flag, const std::string& name)
    {
        if (flag == "-iv" || flag == "-intValue")
            return setValue<int>(name);
        if (flag == "-fv" || flag == "-floatValue")
            return setValue<double>(name);
        if (flag == "-sv" || flag == "-stringValue")
            return setValue<std::string>(name);
        if (flag == "-iva" || flag == "-intValueAppend")
            return append<int>(name);
        if (flag == "-fva" || flag == "-floatValueAppend")
            return append<double>(name);
        if (flag == "-sva" || flag == "-stringValueAppend")
            return append<std::string>(name);
        if (flag != "-ca" && flag != "-clearArray")
            return false;
        m_values.erase(name);
        return true;
    }

    template <class T>
    bool nextValue(T& value)
    {
        const Token token = m_scanner.next();
        return isText(token) && parseValue(token.text, value);
    }

    template <class T>
    bool setValue(const std::string& name)
    {
        T value{};
        if (!nextValue(value))
            return false;
        m_values[name] = std::move(value);
        return true;
    }

    template <class T>
    bool append(const std::string& name)
    {
        T value{};
        if (!nextValue(value))
            return false;
        OptionValue& holder = m_values[name];
        if (!std::holds_alternative<std::vector<T>>(holder))
            holder = std::vector<T>();
        std::get<std::vector<T>>(holder).push_back(std::move(value));
        return true;
    }

    Scanner m_scanner;
    std::map<std::string, OptionValue>& m_values;
};

/// The shortest text that reads back as the same number.
std::string numberText(double value)
{
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, value);
    return {text, end.ptr};
}

/// Writes the entries of one variable.
class Writer
{
public:
    Writer(std::string& out, const std::string& name) : m_out(out), m_name(quotedString(name)) {}

    void operator()(int value) { entry("-iv", std::to_string(value)); }
    void operator()(double value) { entry("-fv", numberText(value)); }
    void operator()(const std::string& value) { entry("-sv", quotedString(value)); }
    void operator()(const std::vector<int>& values)
    {
        array("-iva", values, [](int value) { return std::to_string(value); });
    }
    void operator()(const std::vector<double>& values) { array("-fva", values, numberText); }
    void operator()(const std::vector<std::string>& values)
    {
        array("-sva", values, [](const std::string& value) { return quotedString(value); });
    }

private:
    void entry(const char* flag, const std::string& text)
    {
        m_out += std::string("\n ") + flag + " " + m_name + (text.empty() ? "" : " " + text);
    }
    template <class Values, class ToText>
    void array(const char* flag, const Values& values, ToText toText)
    {
        entry("-ca", {});
        for (const auto& value : values)
            entry(flag, toText(value));
    }

    std::string& m_out;
    std::string m_name;
};

} // namespace

Outcome OptionVars::load(const fs::path& folder)
{
    m_values.clear();
    m_changed = false;
    const fs::path file = folder / kFileName;
    const Expected<std::string> text = readFile(file);
    if (!text)
        return text.outcome.reason == Reason::doesNotExist ? Outcome() : text.outcome;

    std::map<std::string, OptionValue> values;
    Reader reader(text.value, values);
    if (reader.read()) {
        m_values = std::move(values);
        return {};
    }
    const std::string place =
        "'" + file.string() + "' cannot be understood in line " + std::to_string(reader.line());
    const fs::path aside = setAside(file);
    if (aside.empty())
        return {Reason::failed, place + " and could not be set aside"};
    return {Reason::failed, place + "; it was set aside as '" + aside.string() + "'"};
}

Outcome OptionVars::save(const fs::path& folder) const
{
    std::error_code error;
    fs::create_directories(folder, error);
    if (error)
        return {Reason::failed, "cannot make the folder '" + folder.string() + "': " + error.message()};
    std::string text = "//Maya Preference file\n//\n//\n\n";
    if (!m_values.empty()) {
        text += "optionVar";
        for (const auto& [name, value] : m_values)
            std::visit(Writer(text, name), value);
        text += ";\n";
    }
    Outcome outcome = writeFileAtomically(folder / kFileName, text);
    if (outcome)
        m_changed = false;
    return outcome;
}

} // namespace tvxhost::engine
