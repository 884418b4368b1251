// Edits of values: see valueEdits.h.
#include "valueEdits.h"

#include "dirtySpread.h"
#include "observers.h"
#include "scene.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

bool isToBeRemembered(const Plug& plug)
{
    const Node& node = *plug.node();
    const Journal& journal = node.scene().journal();
    return journal.isRecording() && node.madeInStep() != journal.currentStep();
}

/// A change that is taken back by exchanging what is held for what is there.
class PlugEdit : public Edit
{
public:
    explicit PlugEdit(const Plug& plug) : m_plug(plug), m_element(ElementLife::missingFor(plug)) {}
    void undo() final
    {
        if (!m_plug.isValid())
            return;
        exchange(m_plug);
        m_element.takeOut();
    }
    void redo() final
    {
        if (!m_plug.isValid())
            return;
        m_element.putBack();
        exchange(m_plug);
    }

private:
    virtual void exchange(const Plug& plug) = 0;

    Plug m_plug;
    ElementLife m_element;
};

/// Everything that hangs on a value has to look again.
void tellChanged(const Plug& plug)
{
    if (Cell* cell = plug.node()->cells().find(plug))
        markClean(*cell);
    spreadDirty(plug);
    plug.node()->scene().isModified = true;
    plug.node()->scene().observers().tell({Happening::valueSet, plug.node(), nullptr, &plug});
}

class ValueEdit final : public PlugEdit
{
public:
    explicit ValueEdit(const Plug& leaf) : PlugEdit(leaf), m_held(holdLeaf(leaf)) {}

private:
    void exchange(const Plug& leaf) override
    {
        HeldLeaf now = holdLeaf(leaf);
        putLeaf(leaf, m_held);
        m_held = std::move(now);
        tellChanged(leaf);
    }

    HeldLeaf m_held;
};

class StateEdit final : public PlugEdit
{
public:
    explicit StateEdit(const Plug& plug) : PlugEdit(plug), m_held(stateOf(plug)) {}

private:
    void exchange(const Plug& plug) override
    {
        if (Cell* cell = plug.node()->cells().make(plug))
            std::swap(cell->state, m_held);
    }

    PlugState m_held;
};

class PackedEdit final : public PlugEdit
{
public:
    explicit PackedEdit(const Plug& arrayPlug) : PlugEdit(arrayPlug)
    {
        const Cell* array = arrayPlug.node()->cells().find(arrayPlug);
        if (array && array->packed())
            m_held = std::make_unique<PackedElements>(*array->packed());
    }

private:
    void exchange(const Plug& arrayPlug) override
    {
        if (Cell* array = arrayPlug.node()->cells().make(arrayPlug))
            array->swapPacked(m_held);
        noteEdit(arrayPlug);
        tellChanged(arrayPlug);
    }

    std::unique_ptr<PackedElements> m_held;
};

template <class E>
void remember(const Plug& plug)
{
    if (isToBeRemembered(plug))
        plug.node()->scene().journal().record(std::make_unique<E>(plug));
}

} // namespace

void rememberValue(const Plug& leaf)
{
    remember<ValueEdit>(leaf);
}

void rememberState(const Plug& plug)
{
    remember<StateEdit>(plug);
}

void rememberPacked(const Plug& arrayPlug)
{
    remember<PackedEdit>(arrayPlug);
}

HeldValue::HeldValue(const Plug& plug)
{
    if (plug.isArray()) {
        m_indices = existingElements(plug);
        for (const int index : m_indices)
            m_below.emplace_back(plug.element(index));
        return;
    }
    for (std::size_t i = 0; i < plug.childCount(); ++i)
        m_below.emplace_back(plug.child(i));
    if (!plug.isCompound())
        m_leaf = holdLeaf(plug);
}

void HeldValue::putBack(const Plug& plug) const
{
    if (plug.isArray()) {
        for (const int index : existingElements(plug))
            if (!std::binary_search(m_indices.begin(), m_indices.end(), index))
                ElementLife::of(plug.element(index)).takeOut();
        for (std::size_t i = 0; i < m_indices.size(); ++i)
            m_below[i].putBack(plug.element(m_indices[i]));
        return;
    }
    for (std::size_t i = 0; i < m_below.size(); ++i)
        m_below[i].putBack(plug.child(i));
    if (!plug.isCompound())
        putLeaf(plug, m_leaf);
}

ElementLife ElementLife::missingFor(const Plug& plug)
{
    return ElementLife(plug.node()->cells().firstMissingElement(plug));
}

void ElementLife::takeOut()
{
    if (!m_element.isValid())
        return;
    Cell* array = m_element.node()->cells().find(m_element.array());
    const Cell* element = array ? array->findElement(m_element.logicalIndex()) : nullptr;
    if (array && (!element || element->linkedCells() == 0))
        m_cell = array->takeElement(m_element.logicalIndex());
}

void ElementLife::putBack()
{
    if (!m_cell || !m_element.isValid())
        return;
    // Its array may be another one by now, if someone else removed and remade it.
    Cell* array = m_element.node()->cells().make(m_element.array());
    if (array && array == m_cell->parent())
        array->putElement(std::move(m_cell));
    m_cell.reset();
}

void ElementRemoval::undo()
{
    if (!m_element.isValid())
        return;
    m_life.putBack();
    noteEdit(m_element);
    tellChanged(m_element);
    tellIfAdded(m_element);
}

void ElementRemoval::redo()
{
    if (!m_element.isValid())
        return;
    // Told from the element: what else is in the array has not changed.
    noteEdit(m_element);
    spreadDirty(m_element);
    m_element.node()->scene().isModified = true;
    m_life.takeOut();
    m_element.node()->scene().observers().tell(
        {Happening::elementRemoved, m_element.node(), nullptr, &m_element});
}

} // namespace tvxhost::engine
