// WindowPreferences: where the user left the windows.
#pragma once

#include "engine/outcome.h"

#include <filesystem>
#include <map>
#include <string>

namespace tvxhost::mel {

/// Pixels of the screen; top and left from its corner.
struct WindowPlace
{
    int top = 0;
    int left = 0;
    int width = 0;
    int height = 0;
    bool isMaximized = false;
};

class WindowPreferences
{
public:
    static constexpr const char* kFileName = "windowPrefs.mel";

    /// Null when there is none of that window.
    const WindowPlace* find(const std::string& window) const;
    void set(const std::string& window, const WindowPlace& place);
    void remove(const std::string& window);
    void clear();

    /// Whether something was set or removed since the last save or `markSaved`.
    bool isChanged() const { return m_changed; }
    void markSaved() { m_changed = false; }
    /// Whether windows come back to their places at all.
    bool isEnabled = true;

    /// Writes the file of a folder, which is made: one windowPref statement per window.
    engine::Outcome save(const std::filesystem::path& folder);

private:
    std::map<std::string, WindowPlace> m_places;
    bool m_changed = false;
};

} // namespace tvxhost::mel
