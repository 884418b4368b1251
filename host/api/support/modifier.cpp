// What stands behind a MDGModifier: see modifier.h.
#include "modifier.h"

#include "engine/scene.h"

#include <atomic>
#include <utility>

namespace tvxhost::api {

namespace {

std::atomic<bool> strictDisconnect{false};

/// Moves through edits without anyone remembering it as another edit.
void travel(engine::Step& edits, void (engine::Step::*direction)())
{
    const engine::Journal::Into nothing(engine::Scene::current().journal(), nullptr);
    (edits.*direction)();
}

} // namespace

void setStrictDisconnect(bool strict)
{
    strictDisconnect = strict;
}

bool isDisconnectStrict()
{
    return strictDisconnect;
}

Modifier::Modifier() : m_done(std::make_shared<Done>()) {}

Modifier::~Modifier()
{
    forgetQueue();
}

void Modifier::queue(Change change)
{
    m_queue.push_back({std::move(change), nullptr});
}

MStatus Modifier::queueMade(const Change& change)
{
    auto edits = std::make_shared<engine::Step>();
    const MStatus status = perform(change, *edits);
    if (status)
        m_queue.push_back({nullptr, std::move(edits)});
    return status;
}

MStatus Modifier::doIt()
{
    if (std::exchange(m_done->isTakenBack, false))
        travel(m_done->edits, &engine::Step::redo);
    std::vector<Queued> queue = std::exchange(m_queue, {});
    for (auto queued = queue.begin(); queued != queue.end(); ++queued) {
        engine::Step edits;
        const MStatus status = queued->made ? MStatus() : perform(queued->change, edits);
        if (!status) {
            m_queue.assign(std::make_move_iterator(queued), std::make_move_iterator(queue.end()));
            forgetQueue();
            return status;
        }
        m_done->edits.append(std::move(queued->made ? *queued->made : edits));
    }
    return MS::kSuccess;
}

MStatus Modifier::undoIt()
{
    if (!std::exchange(m_done->isTakenBack, true))
        travel(m_done->edits, &engine::Step::undo);
    return MS::kSuccess;
}

/// What a failing change did until it failed is taken back.
MStatus Modifier::perform(const Change& change, engine::Step& edits)
{
    const engine::Journal::Into step(engine::Scene::current().journal(), &edits);
    const MStatus status = change();
    if (!status) {
        travel(edits, &engine::Step::undo);
        edits.clear();
    }
    return status;
}

void Modifier::forgetQueue()
{
    // Copies may still count on what is made.
    for (auto queued = m_queue.rbegin(); queued != m_queue.rend(); ++queued)
        if (queued->made && queued->made.use_count() == 1)
            travel(*queued->made, &engine::Step::undo);
    m_queue.clear();
}

} // namespace tvxhost::api
