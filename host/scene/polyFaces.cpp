// Faces of a mesh in scene files; see polyFaces.h.
#include "polyFaces.h"

#include "engine/data.h"

#include <string>

namespace tvxhost::scene {

using engine::Outcome;
using engine::Reason;

namespace {

/// Numbers in front of the count of a part's list: the set's index of UVs and colours.
int indicesBefore(std::string_view part)
{
    return part == "mu" || part == "mc" ? 1 : 0;
}

bool isPart(std::string_view word)
{
    return word == "f" || word == "h" || word == "mf" || word == "mh" || word == "mu" || word == "mc" ||
           word == "fc";
}

/// Takes one part (`f 4 0 1 2 3`) and appends it on a line of its own.
bool takePart(Words& words, std::string& text)
{
    const std::string_view part = words.peek();
    if (!isPart(part))
        return false;
    if (!text.empty())
        text += "\n\t\t";
    text += part;
    words.skip();
    for (int i = indicesBefore(part); i > 0; --i)
        text += ' ' + std::to_string(words.integer());
    const std::size_t count = words.count();
    text += ' ' + std::to_string(count);
    for (std::size_t i = 0; i < count; ++i)
        text += ' ' + std::to_string(words.integer());
    return !words.failed();
}

/// Takes one face: from its `f` up to the next one.
bool takeFace(Words& words, std::string& text)
{
    text.clear();
    if (words.peek() != "f")
        return false;
    do {
        if (!takePart(words, text))
            return false;
    } while (!words.atEnd() && words.peek() != "f");
    return true;
}

} // namespace

Outcome storePolyFaces(const PlugTarget& target, Words words)
{
    const std::size_t count = target.isRange ? target.count() : 1;
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        const auto plug = target.isRange ? target.nth(i) : engine::Expected<engine::Plug>(target.plug);
        if (!plug)
            return plug.outcome;
        if (!takeFace(words, text))
            return {Reason::typeMismatch, "Error reading face " +
                                              std::to_string(static_cast<std::size_t>(target.first) + i) +
                                              " of '" + target.plug.name() + "'"};
        engine::Ref<engine::Data> face(new engine::KeptData(std::string(kPolyFacesType), text));
        if (const Outcome stored = engine::giveData(plug.value, std::move(face)); !stored)
            return stored;
    }
    if (!words.atEnd())
        return {Reason::typeMismatch, "There are more faces than elements in '" + target.plug.name() + "'"};
    return {};
}

} // namespace tvxhost::scene
