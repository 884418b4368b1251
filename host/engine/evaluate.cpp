// Evaluation: bringing plugs up to date by pulling along connections and asking nodes to compute.
#include "cell.h"
#include "dataBlock.h"
#include "dirtySpread.h"
#include "node.h"
#include "observers.h"
#include "scene.h"
#include "values.h"

#include <vector>

namespace tvxhost::engine {

namespace {

/// Marks cells as being evaluated for as long as it lives.
class EvaluationMark
{
public:
    EvaluationMark() = default;
    ~EvaluationMark()
    {
        for (Cell* cell : m_cells)
            cell->evaluating = false;
    }
    EvaluationMark(const EvaluationMark&) = delete;
    EvaluationMark& operator=(const EvaluationMark&) = delete;

    void add(Cell& cell)
    {
        cell.evaluating = true;
        m_cells.push_back(&cell);
    }
    const std::vector<Cell*>& cells() const { return m_cells; }

private:
    std::vector<Cell*> m_cells;
};

void tellCycle(Cell& cell)
{
    if (std::exchange(cell.cycleTold, true))
        return;
    cell.store().node().scene().scriptEditor().warning("Cycle on '" + cell.plug().name() +
                                                       "' may not evaluate as expected.");
}

void tellFailure(Cell& cell)
{
    if (std::exchange(cell.failureTold, true))
        return;
    cell.store().node().scene().scriptEditor().error("Evaluation of '" + cell.plug().name() + "' failed.");
}

/// The node's own code first; for what it does not know, the built-in types from the nearest upwards.
Computed askNode(Node& node, const Plug& plug)
{
    if (NodeBehaviour* behaviour = node.behaviour())
        if (const Computed answer = behaviour->compute(plug); answer != Computed::unknown)
            return answer;
    for (const NodeType* type = &node.type(); type; type = type->parent)
        if (type->compute)
            if (const Computed answer = type->compute(node, plug); answer != Computed::unknown)
                return answer;
    return Computed::unknown;
}

Outcome compute(const Plug& plug)
{
    Cell* cell = plug.node()->cells().make(plug);
    if (!cell)
        return {Reason::badIndex, "'" + plug.name() + "' lacks an index"};
    if (cell->evaluating) {
        tellCycle(*cell);
        return {};
    }
    const Ref<Node> keptAlive(plug.node());
    EvaluationMark mark;
    mark.add(*cell);
    switch (askNode(*plug.node(), plug)) {
    case Computed::failed:
        tellFailure(*cell);
        return {Reason::failed, "Evaluation of '" + plug.name() + "' failed."};
    case Computed::unknown:
        // Nobody computes it: what it holds counts until something it hangs on changes.
        markClean(*cell);
        break;
    case Computed::done:
        break;
    }
    cell->failureTold = false;
    plug.node()->scene().observers().tell({Happening::plugEvaluated, plug.node(), nullptr, &plug});
    return {};
}

bool needsPull(const Cell& cell)
{
    return cell.source() && isDirty(cell);
}

/// A value that only passes through: fed itself, so that what stands behind it can be asked directly.
bool isPassedOn(const Cell& cell)
{
    if (!needsPull(cell) || cell.evaluating)
        return false;
    for (const Cell* above = cell.parent(); above; above = above->parent())
        if (above->source())
            return false;
    return cell.below().empty();
}

/// Brings a value from the source of a connection. A chain of plain connections is gone along in a loop.
Outcome pull(Cell& destination)
{
    if (destination.evaluating) {
        tellCycle(destination);
        return {};
    }
    EvaluationMark chain;
    Cell* last = &destination;
    chain.add(*last);
    while (isPassedOn(*last->source())) {
        last = last->source();
        chain.add(*last);
    }
    Outcome outcome = evaluate(last->source()->plug());
    for (auto cell = chain.cells().rbegin(); cell != chain.cells().rend(); ++cell) {
        const Cell& source = *(*cell)->source();
        copyValue(source.plug(), (*cell)->plug());
        // A source that could not be brought up to date will be asked again.
        if (!isDirty(source))
            markClean(**cell);
    }
    return outcome;
}

/// Keeps the first failure.
void note(Outcome& whole, Outcome part)
{
    if (whole && !part)
        whole = std::move(part);
}

Outcome pullAbove(const Cell* nearest)
{
    std::vector<Cell*> fed;
    for (const Cell* cell = nearest; cell; cell = cell->parent())
        if (needsPull(*cell))
            fed.push_back(const_cast<Cell*>(cell));
    Outcome outcome;
    for (auto cell = fed.rbegin(); cell != fed.rend(); ++cell)
        note(outcome, pull(**cell));
    return outcome;
}

Outcome pullBelow(const Cell& cell)
{
    Outcome outcome;
    if (cell.linkedCells() == 0)
        return outcome;
    // Elements may be added while sources are evaluated, so the list is not iterated itself.
    for (std::size_t i = 0; i < cell.below().size(); ++i) {
        Cell* below = cell.below()[i].get();
        if (!below || below->linkedCells() == 0)
            continue;
        if (needsPull(*below))
            note(outcome, pull(*below));
        note(outcome, pullBelow(*below));
    }
    return outcome;
}

bool isFed(const Cell* nearest)
{
    for (const Cell* cell = nearest; cell; cell = cell->parent())
        if (cell->source())
            return true;
    return false;
}

} // namespace

Outcome evaluate(const Plug& plug)
{
    if (plug.isNull())
        return {Reason::nullArgument, "the plug is null"};
    if (!plug.isValid())
        return {Reason::doesNotExist, "the node is gone or has no such attribute"};
    Node& node = *plug.node();
    // What is computed is not edited.
    const Journal::Into nothing(node.scene().journal(), nullptr);
    Outcome outcome = pullAbove(node.cells().findNearest(plug));
    if (node.isOutput(*plug.attribute()) && !isFed(node.cells().findNearest(plug)) && isDirty(plug))
        note(outcome, compute(plug));
    if (const Cell* cell = node.cells().find(plug))
        note(outcome, pullBelow(*cell));
    return outcome;
}

namespace {

Expected<Slot> slotOf(const Plug& plug)
{
    if (plug.isNull())
        return {Reason::nullArgument, "the plug is null"};
    if (!plug.isValid())
        return {Reason::doesNotExist, "the node is gone or has no such attribute"};
    Cell* cell = plug.node()->cells().make(plug);
    if (!cell)
        return {Reason::badIndex, "'" + plug.name() + "' lacks an index"};
    Slot slot;
    slot.attribute = plug.attribute();
    if (cell->isArray())
        return slot;
    slot.bytes = cell->bytes();
    if (!slot.bytes && !plug.isCompound())
        slot.data = cell->data();
    return slot;
}

} // namespace

Expected<Slot> inputSlot(const Plug& plug)
{
    const Outcome evaluated = evaluate(plug);
    Expected<Slot> slot = slotOf(plug);
    if (slot && !evaluated)
        slot.outcome = evaluated;
    if (slot.value.data && !*slot.value.data)
        *slot.value.data = plug.attribute()->defaultData;
    return slot;
}

Expected<Slot> outputSlot(const Plug& plug)
{
    Expected<Slot> slot = slotOf(plug);
    // Whoever has the slot may write at any time.
    if (slot)
        noteEdit(plug);
    return slot;
}

} // namespace tvxhost::engine
