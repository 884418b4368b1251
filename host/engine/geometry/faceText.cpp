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

/// Parts of a face beside its loops. Those about sets belong to the loop before them and begin with the
/// number of their set; the others are from before there were sets.
struct Part
{
    std::string_view word;
    std::vector<LoopMap> FaceMaps::*maps; ///< null: skipped
};

constexpr Part kParts[] = {
    {"mu", &FaceMaps::uvs}, {"mc", &FaceMaps::colors}, {"mf", nullptr}, {"mh", nullptr}, {"fc", nullptr}};

const Part* findPart(std::string_view word)
{
    for (const Part& part : kParts)
        if (part.word == word)
            return &part;
    return nullptr;
}

bool readPart(FaceWords& words, const Part& part, std::size_t firstCorner, FaceMaps* maps)
{
    const std::optional<int> slot = part.maps ? words.number() : 0;
    LoopMap map{firstCorner, slot.value_or(0), {}};
    if (!slot || !words.numbers(map.used))
        return false;
    if (maps && part.maps)
        (maps->*part.maps).push_back(std::move(map));
    return true;
}

std::string listText(const std::vector<std::int32_t>& numbers)
{
    std::string text = std::to_string(numbers.size());
    for (const std::int32_t number : numbers)
        text += ' ' + std::to_string(number);
    return text;
}

/// What a loop has in sets of one kind.
std::string mapLines(const char* word, const std::vector<LoopMap>& maps, std::size_t firstCorner)
{
    std::string text;
    for (const LoopMap& map : maps)
        if (map.firstCorner == firstCorner)
            text += "\n\t\t" + std::string(word) + ' ' + std::to_string(map.slot) + ' ' + listText(map.used);
    return text;
}

} // namespace

bool readFace(std::string_view text, MeshFace& face, FaceMaps* maps)
{
    FaceWords words(text);
    if (words.word() != "f" || !words.numbers(face.edges))
        return false;
    std::size_t firstCorner = 0, corners = face.edges.size();
    for (std::string_view word = words.word(); !word.empty(); word = words.word()) {
        if (word == "h") {
            if (!words.numbers(face.holes.emplace_back()))
                return false;
            firstCorner = corners;
            corners += face.holes.back().size();
            continue;
        }
        const Part* part = findPart(word);
        if (!part || !readPart(words, *part, firstCorner, maps))
            return false;
    }
    return true;
}

std::string faceText(const FaceTable& faces, std::size_t face, const FaceMaps& maps)
{
    if (faces.loopCount(face) == 0)
        return "f 0";
    std::string text;
    std::size_t firstCorner = 0;
    for (std::size_t i = 0; i < faces.loopCount(face); ++i) {
        const IndexSpan loop = faces.loop(face, i);
        text += (i == 0 ? "f " : "\n\t\th ") + listText({loop.begin(), loop.end()}) +
                mapLines("mu", maps.uvs, firstCorner) + mapLines("mc", maps.colors, firstCorner);
        firstCorner += loop.size();
    }
    return text;
}

} // namespace tvxhost::engine
