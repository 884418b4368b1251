// SettingsChange; see settingsChange.h.
#include "settingsChange.h"

#include "observers.h"
#include "scene.h"

namespace tvxhost::engine {

SettingsChange::SettingsChange(Scene& scene)
    : m_scene(scene), m_units(scene.units()), m_minimum(scene.playback().minimum()),
      m_maximum(scene.playback().maximum())
{
}

SettingsChange::~SettingsChange()
{
    const auto tell = [this](bool isChanged, Happening what) {
        if (isChanged)
            m_scene.observers().tell({what});
    };
    const Units units = m_scene.units();
    const Playback playback = m_scene.playback();
    tell(units.linear != m_units.linear, Happening::linearUnitChanged);
    tell(units.angle != m_units.angle, Happening::angularUnitChanged);
    tell(units.time != m_units.time, Happening::timeUnitChanged);
    tell(playback.minimum() != m_minimum || playback.maximum() != m_maximum, Happening::playbackRangeChanged);
}

} // namespace tvxhost::engine
