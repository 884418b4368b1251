// WindowPreferences: see windowPreferences.h.
#include "windowPreferences.h"

#include "engine/atomicFile.h"

namespace tvxhost::mel {

using engine::Outcome;

namespace {

std::string statementOf(const std::string& window, const WindowPlace& place)
{
    return "windowPref -topLeftCorner " + std::to_string(place.top) + " " + std::to_string(place.left) +
           " -widthHeight " + std::to_string(place.width) + " " + std::to_string(place.height) +
           " -maximized " + (place.isMaximized ? "true " : "false ") + window + ";\n";
}

} // namespace

const WindowPlace* WindowPreferences::find(const std::string& window) const
{
    const auto found = m_places.find(window);
    return found == m_places.end() ? nullptr : &found->second;
}

void WindowPreferences::set(const std::string& window, const WindowPlace& place)
{
    m_places[window] = place;
    m_changed = true;
}

void WindowPreferences::remove(const std::string& window)
{
    m_changed = m_places.erase(window) > 0 || m_changed;
}

void WindowPreferences::clear()
{
    m_changed = m_changed || !m_places.empty();
    m_places.clear();
}

Outcome WindowPreferences::save(const std::filesystem::path& folder)
{
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error)
        return {engine::Reason::failed,
                "cannot make the folder '" + folder.string() + "': " + error.message()};
    std::string text = "//Maya Preference file\n//\n//\n\n";
    for (const auto& [window, place] : m_places)
        text += statementOf(window, place);
    Outcome outcome = engine::writeFileAtomically(folder / kFileName, text);
    m_changed = m_changed && !outcome;
    return outcome;
}

} // namespace tvxhost::mel
