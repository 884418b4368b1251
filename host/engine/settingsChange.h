// SettingsChange: tells the observers which units and which played range have changed.
#pragma once

#include "units.h"

namespace tvxhost::engine {

class Scene;

/// Stands for one change of a scene's settings: when it ends it tells the scene's observers what is otherwise
/// than when it began.
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
    double m_minimum;
    double m_maximum;
};

} // namespace tvxhost::engine
