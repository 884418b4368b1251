// SettingsChange: remembers a change of units and of what is played, and tells the observers of it.
#pragma once

#include "playback.h"
#include "units.h"

namespace tvxhost::engine {

class Scene;

/// Stands for one change of a scene's settings: when it ends it is remembered for undo, and the scene's
/// observers are told what is otherwise than when it began. They are told again when it is taken back or done
/// again.
class SettingsChange
{
public:
    explicit SettingsChange(Scene& scene);
    ~SettingsChange();
    SettingsChange(const SettingsChange&) = delete;
    SettingsChange& operator=(const SettingsChange&) = delete;

private:
    Scene& m_scene;
    Units m_units;
    Playback m_playback;
};

} // namespace tvxhost::engine
