// Faces as words: see faceText.h.
#include "faceText.h"

#include <cctype>
#include <charconv>
#include <optional>

namespace tvxhost::engine {

namespace {

/// Words and whole numbers one after the other.
class FaceWords
{
public:
    explicit FaceWords(std::string_view text) : m_rest(text) {}

    std::string_view word()
    {
        skipBlanks();
        std::size_t end = 0;
        while (end < m_rest.size() && !isBlank(m_rest[end]))
            ++end;
        const std::string_view result = m_rest.substr(0, end);
        m_rest.remove_prefix(end);
        return result;
    }
    std::optional<int> number()
    {
        skipBlanks();
        int value = 0;
        const auto [end, error] = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), value);
        if (error != std::errc())
            return std::nullopt;
        m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.data()));
        return value;
    }
    /// A count and that many numbers.
    bool numbers(std::vector<std::int32_t>& values)
    {
        const std::optional<int> count = number();
        if (!count || *count < 0)
            return false;
        for (int i = 0; i < *count; ++i) {
            const std::optional<int> value = number();
            if (!value)
                return false;
            values.push_back(*value);
        }
        return true;
    }

private:
    static bool isBlank(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }
    void skipBlanks()
    {
        while (!m_rest.empty() && isBlank(m_rest[0]))
            m_rest.remove_prefix(1);
    }

    std::string_view m_rest;
};

/// Parts of a face beside its loops: faces by vertices, texture coordinates and colours.
constexpr std::string_view kOtherParts[] = {"mf", "mh", "mu", "mc", "fc"};

bool isOtherPart(std::string_view word)
{
    for (const std::string_view part : kOtherParts)
        if (word == part)
            return true;
    return false;
}

/// Some parts give the number of a set before their list.
bool hasSet(std::string_view part)
{
    return part == "mu" || part == "mc";
}

} // namespace

bool readFace(std::string_view text, MeshFace& face)
{
    FaceWords words(text);
    if (words.word() != "f" || !words.numbers(face.edges))
        return false;
    for (std::string_view word = words.word(); !word.empty(); word = words.word()) {
        std::vector<std::int32_t> values;
        if (hasSet(word) && !words.number())
            return false;
        if ((word != "h" && !isOtherPart(word)) || !words.numbers(values))
            return false;
        if (word == "h")
            face.holes.push_back(std::move(values));
    }
    return true;
}

std::string faceText(const FaceTable& faces, std::size_t face)
{
    if (faces.loopCount(face) == 0)
        return "f 0";
    std::string text;
    for (std::size_t i = 0; i < faces.loopCount(face); ++i) {
        const IndexSpan loop = faces.loop(face, i);
        text += (i == 0 ? "f " : "\n\t\th ") + std::to_string(loop.size());
        for (const std::int32_t corner : loop)
            text += ' ' + std::to_string(corner);
    }
    return text;
}

} // namespace tvxhost::engine
