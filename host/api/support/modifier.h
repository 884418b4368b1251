// What stands behind a MDGModifier: changes in a queue, and the edits of those that were made.
#pragma once

#include "status.h"

#include "engine/journal.h"

#include <maya/MTypes.h>

#include <functional>
#include <memory>
#include <vector>

namespace tvxhost::api {

/// Whether MDGModifier::disconnect insists on the source coming first. By default a connected pair is
/// disconnected in either order.
OPENMAYA_EXPORT void setStrictDisconnect(bool strict);
OPENMAYA_EXPORT bool isDisconnectStrict();

/// Copies share what was done: taking it back with one takes it back for all.
struct Modifier
{
    /// Makes a change of the current scene.
    using Change = std::function<MStatus()>;

    Modifier();
    Modifier(const Modifier&) = default;
    Modifier& operator=(const Modifier&) = default;
    ~Modifier();

    /// Does nothing yet.
    void queue(Change change);
    /// Makes a change now that counts as queued: doIt keeps it, and forgetting it takes it back.
    MStatus queueMade(const Change& change);

    /// Does again what undoIt took back, then what is queued. When a change fails, those before it stay, and
    /// it is forgotten with all that follow.
    MStatus doIt();
    /// Takes back what was done.
    MStatus undoIt();

private:
    struct Queued
    {
        Change change;                      ///< empty for what is made already
        std::shared_ptr<engine::Step> made; ///< its edits
    };
    struct Done
    {
        engine::Step edits;
        bool isTakenBack = false;
    };
    static MStatus perform(const Change& change, engine::Step& edits);
    void forgetQueue();

    std::vector<Queued> m_queue;
    std::shared_ptr<Done> m_done;
};

} // namespace tvxhost::api
