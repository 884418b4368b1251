// SettingsChange; see settingsChange.h.
#include "settingsChange.h"

#include "observers.h"
#include "scene.h"

#include <utility>

namespace tvxhost::engine {

namespace {

/// Tells what is otherwise than it was.
void tellChanges(Scene& scene, const Units& units, const Playback& playback)
{
    const auto tell = [&](bool isChanged, Happening what) {
        if (isChanged)
            scene.observers().tell({what});
    };
    const Units unitsNow = scene.units();
    const Playback playbackNow = scene.playback();
    tell(unitsNow.linear != units.linear, Happening::linearUnitChanged);
    tell(unitsNow.angle != units.angle, Happening::angularUnitChanged);
    tell(unitsNow.time != units.time, Happening::timeUnitChanged);
    tell(playbackNow.minimum() != playback.minimum() || playbackNow.maximum() != playback.maximum(),
         Happening::playbackRangeChanged);
}

/// Holds the settings that the scene has not.
class SettingsEdit final : public Edit
{
public:
    SettingsEdit(Scene& scene, const Units& units, const Playback& playback)
        : m_scene(scene), m_units(units), m_playback(playback)
    {
    }
    void undo() override { exchange(); }
    void redo() override { exchange(); }

private:
    void exchange()
    {
        std::swap(m_scene.units(), m_units);
        std::swap(m_scene.playback(), m_playback);
        tellChanges(m_scene, m_units, m_playback);
    }

    Scene& m_scene;
    Units m_units;
    Playback m_playback;
};

} // namespace

SettingsChange::SettingsChange(Scene& scene)
    : m_scene(scene), m_units(scene.units()), m_playback(scene.playback())
{
}

SettingsChange::~SettingsChange()
{
    if (m_scene.journal().isRecording())
        m_scene.journal().record(std::make_unique<SettingsEdit>(m_scene, m_units, m_playback));
    tellChanges(m_scene, m_units, m_playback);
}

} // namespace tvxhost::engine
