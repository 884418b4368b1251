// Edits of values, states and array elements, for the journal.
#pragma once

#include "cell.h"
#include "journal.h"
#include "values.h"

#include <memory>
#include <vector>

namespace tvxhost::engine {

// Each remembers something right before it changes, unless nothing is recorded or the node is itself made in
// the step that records.
void rememberValue(const Plug& leaf);
void rememberState(const Plug& plug);
/// The packed elements of an array, all at once.
void rememberPacked(const Plug& arrayPlug);

/// The values of a plug and all below it, to be put back.
class HeldValue
{
public:
    explicit HeldValue(const Plug& plug);
    /// Elements that have come since go, unless they are connected.
    void putBack(const Plug& plug) const;

private:
    HeldLeaf m_leaf;
    std::vector<int> m_indices;
    std::vector<HeldValue> m_below;
};

/// An element of an array that comes and goes with an edit. While it is out, it is kept here as it was.
class ElementLife
{
public:
    ElementLife() = default;
    /// The outermost element on the way to a plug that does not exist yet; none when all do.
    static ElementLife missingFor(const Plug& plug);
    /// An element that exists.
    static ElementLife of(const Plug& element) { return ElementLife(element); }

    /// Stays in when something is connected to it.
    void takeOut();
    void putBack();

private:
    explicit ElementLife(Plug element) : m_element(std::move(element)) {}

    Plug m_element;
    std::unique_ptr<Cell> m_cell;
};

/// That an element was removed that is not connected to anything. The removal itself is the first redo().
class ElementRemoval final : public Edit
{
public:
    explicit ElementRemoval(const Plug& element) : m_element(element), m_life(ElementLife::of(element)) {}
    void undo() override;
    void redo() override;

private:
    Plug m_element;
    ElementLife m_life;
};

} // namespace tvxhost::engine
