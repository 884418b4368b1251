// Words of text tables: see tableWords.h.
#include "tableWords.h"

#include <algorithm>
#include <cctype>

namespace tvxhost::engine {

std::vector<std::string> splitWords(std::string_view line)
{
    std::vector<std::string> words;
    std::string word;
    bool isQuoted = false;
    bool hasWord = false;
    for (const char c : line) {
        if (c == '"') {
            isQuoted = !isQuoted;
            hasWord = true;
        } else if (c == '#' && !isQuoted && !hasWord)
            break;
        else if (std::isspace(static_cast<unsigned char>(c)) && !isQuoted) {
            if (hasWord)
                words.push_back(std::move(word));
            word.clear();
            hasWord = false;
        } else {
            word += c;
            hasWord = true;
        }
    }
    if (hasWord)
        words.push_back(std::move(word));
    return words;
}

std::vector<std::string> splitAt(const std::string& text, char separator)
{
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (std::size_t end = text.find(separator); end != std::string::npos;
         end = text.find(separator, start)) {
        parts.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    parts.push_back(text.substr(start));
    return parts;
}

void forEachLine(std::string_view text, const std::function<void(int, const std::vector<std::string>&)>& line)
{
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
        const std::vector<std::string> words = splitWords(text.substr(0, length));
        if (!words.empty())
            line(number, words);
        text.remove_prefix(length);
    }
}

} // namespace tvxhost::engine
