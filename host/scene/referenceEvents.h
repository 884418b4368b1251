// What the scene's observers are told of references.
#pragma once

#include "engine/observers.h"
#include "engine/scene.h"

namespace tvxhost::scene {

/// The reference node, where there is one, and where the file is.
inline engine::Event referenceEvent(engine::Scene& scene, engine::Happening what,
                                    const engine::Reference& reference)
{
    engine::Event event{what};
    event.node = scene.findNode(":" + reference.nodeName).value;
    event.text = reference.path.empty() ? reference.file : reference.path;
    return event;
}

inline void tellOfReference(engine::Scene& scene, engine::Happening what, const engine::Reference& reference)
{
    if (scene.observers().want(what))
        scene.observers().tell(referenceEvent(scene, what, reference));
}

/// Asks those who may forbid it.
inline bool mayDo(engine::Scene& scene, engine::Happening check, const engine::Reference& reference)
{
    bool isAllowed = true;
    if (scene.observers().want(check)) {
        engine::Event event = referenceEvent(scene, check, reference);
        event.isAllowed = &isAllowed;
        scene.observers().tell(event);
    }
    return isAllowed;
}

} // namespace tvxhost::scene
