// Reading a header of the API: which public functions its classes declare.
#include "headerReader.h"

#include <algorithm>
#include <cctype>
#include <regex>
#include <sstream>
#include <utility>

namespace tvxhost::api {

namespace {

/// Without comments and lines of the preprocessor.
std::string codeOf(std::string_view header)
{
    std::istringstream lines{std::string(header)};
    std::string code;
    bool isContinued = false;
    for (std::string line; std::getline(lines, line);) {
        const std::size_t first = line.find_first_not_of(' ');
        const bool isDirective = isContinued || (first != std::string::npos && line[first] == '#');
        isContinued = isDirective && line.back() == '\\';
        if (!isDirective)
            code += line.substr(0, line.find("//")) + "\n";
    }
    return code;
}

/// Behind the bracket that closes the one at `open`.
std::size_t behindBracket(std::string_view code, std::size_t open)
{
    const char opening = code[open];
    const char closing = opening == '{' ? '}' : ')';
    int depth = 0;
    for (std::size_t i = open; i < code.size(); ++i) {
        depth += code[i] == opening ? 1 : code[i] == closing ? -1 : 0;
        if (depth == 0)
            return i + 1;
    }
    return code.size();
}

std::string trimmed(std::string_view text)
{
    const auto isSpace = [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; };
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return std::string(text);
}

bool beginsWithWord(const std::string& text, std::initializer_list<const char*> words)
{
    const std::string first = text.substr(0, text.find_first_of(" \n<("));
    return std::find(words.begin(), words.end(), first) != words.end();
}

unsigned int parametersIn(std::string_view list)
{
    if (trimmed(list).empty())
        return 0;
    unsigned int count = 1;
    int depth = 0;
    for (const char c : list) {
        depth += c == '(' || c == '<' ? 1 : c == ')' || c == '>' ? -1 : 0;
        count += c == ',' && depth == 0 ? 1 : 0;
    }
    return count;
}

/// Where the name of the function that a declaration declares begins, and where its parameters do.
struct NamePlace
{
    std::size_t begin = 0;
    std::size_t end = 0;
};

NamePlace nameIn(const std::string& declaration)
{
    NamePlace place;
    const std::size_t asOperator = declaration.find("operator");
    const std::size_t firstBracket = declaration.find('(');
    if (asOperator != std::string::npos && asOperator < firstBracket) {
        const bool isCall = declaration.compare(asOperator, 10, "operator()") == 0;
        place.begin = asOperator;
        place.end = declaration.find('(', asOperator + (isCall ? 10 : 0));
        return place;
    }
    place.end = firstBracket;
    place.begin = firstBracket;
    while (place.begin > 0 && (std::isalnum(static_cast<unsigned char>(declaration[place.begin - 1])) ||
                               declaration[place.begin - 1] == '_' || declaration[place.begin - 1] == '~'))
        --place.begin;
    return place;
}

DeclaredFunction functionOf(const std::string& className, const std::string& declaration, bool isInline)
{
    static const std::regex specifiers("\\b(static|virtual|inline|explicit|const)\\b");
    const NamePlace place = nameIn(declaration);
    const std::size_t behind = behindBracket(declaration, place.end);
    const std::string parameters = declaration.substr(place.end + 1, behind - place.end - 2);
    DeclaredFunction function;
    function.name = className + "::" + trimmed(declaration.substr(place.begin, place.end - place.begin));
    function.parameters = parametersIn(parameters);
    function.returnsStatus =
        trimmed(std::regex_replace(declaration.substr(0, place.begin), specifiers, "")) == "MStatus";
    function.takesStatus = parameters.find("MStatus*") != std::string::npos;
    // Pure virtual functions are in no library either.
    const std::string_view specifier = std::string_view(declaration).substr(behind);
    function.isInline = isInline || declaration.find("= default") != std::string::npos ||
                        specifier.find("= 0") != std::string_view::npos;
    return function;
}

/// Goes through the body of a class, declaration by declaration.
class BodyReader
{
public:
    BodyReader(std::string className, std::string_view body) : m_class(std::move(className)), m_body(body) {}

    std::vector<DeclaredFunction> read()
    {
        while (m_at < m_body.size())
            step();
        return std::move(m_functions);
    }

private:
    void step()
    {
        const char c = m_body[m_at];
        if (c == '(') {
            const std::size_t behind = behindBracket(m_body, m_at);
            m_declaration += m_body.substr(m_at, behind - m_at);
            m_at = behind;
        } else if (c == '{') {
            m_at = behindBracket(m_body, m_at);
            // Of a class or an enumeration the rest follows.
            if (m_declaration.find('(') != std::string::npos)
                finish(true);
        } else if (c == ';') {
            ++m_at;
            finish(false);
        } else {
            m_declaration += c;
            ++m_at;
            noteAccess();
        }
    }

    void noteAccess()
    {
        const std::string text = m_declaration.back() == ':' ? trimmed(m_declaration) : std::string();
        if (text != "public:" && text != "protected:" && text != "private:")
            return;
        m_isPublic = text == "public:";
        m_declaration.clear();
    }

    void finish(bool isInline)
    {
        const std::string declaration = trimmed(std::exchange(m_declaration, {}));
        const bool isFunction =
            declaration.find('(') != std::string::npos &&
            !beginsWithWord(declaration, {"typedef", "using", "friend", "enum", "class"}) &&
            declaration.find("= delete") == std::string::npos;
        if (m_isPublic && isFunction)
            m_functions.push_back(functionOf(m_class, declaration, isInline));
    }

    std::string m_class;
    std::string_view m_body;
    std::size_t m_at = 0;
    std::string m_declaration;
    bool m_isPublic = false;
    std::vector<DeclaredFunction> m_functions;
};

} // namespace

std::vector<DeclaredFunction> functionsIn(std::string_view header)
{
    static const std::regex heading("\\nclass [A-Z]+_EXPORT (\\w+)[^;{]*\\{");
    const std::string code = codeOf(header);
    std::vector<DeclaredFunction> functions;
    for (std::sregex_iterator each(code.begin(), code.end(), heading), end; each != end; ++each) {
        const auto open = static_cast<std::size_t>(each->position() + each->length() - 1);
        const std::string_view body(code.data() + open + 1, behindBracket(code, open) - open - 2);
        for (DeclaredFunction& function : BodyReader((*each)[1], body).read()) {
            // Defined behind the class.
            function.isInline = function.isInline || code.find(function.name + "(") != std::string::npos;
            functions.push_back(std::move(function));
        }
    }
    return functions;
}

} // namespace tvxhost::api
