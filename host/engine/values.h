// Values: reading and storing them in cells, without evaluation and without any refusal.
#pragma once

#include "cell.h"
#include "plug.h"

namespace tvxhost::engine {

/// The number that a leaf holds now, or its default.
Number storedNumber(const Plug& leaf);
/// The data object that a plug holds now, or its default; may be null.
Ref<Data> storedData(const Plug& plug);

/// Remembers that a value of the node is about to change, whoever stores it.
void noteEdit(const Plug& plug);

/// The outermost array element that storing at a plug would add, when anybody wants to be told; null when it
/// adds none. To be asked before, and told after.
Plug missingElement(const Plug& plug);
void tellIfAdded(const Plug& element);

/// Stores and remembers that the plug was set, also for undo; nothing is marked or spread. False when an
/// index is undetermined.
bool keepNumber(const Plug& leaf, const Number& value);
bool keepData(const Plug& plug, Ref<Data> data);

/// What a leaf holds: a number or data, and whether it was ever set.
struct HeldLeaf
{
    Number number;
    Ref<Data> data;
    bool wasSet = false;
    bool isDefault = true; ///< nothing was stored
};
HeldLeaf holdLeaf(const Plug& leaf);
/// Nothing is marked or spread, nor remembered by the journal.
void putLeaf(const Plug& leaf, const HeldLeaf& held);

/// Gives every leaf below a plug its default again; nothing is marked or spread.
void resetToDefault(const Plug& plug);

/// Brings a source's value to a destination, converting numbers as C does.
void copyValue(const Plug& source, const Plug& destination);

/// Whether an index of an array above the plug is undetermined.
bool lacksIndex(const Plug& plug);

/// The leaves below a plug, depth first: single numbers, typed, matrix, message … Elements of arrays below
/// are not gone into.
std::vector<Plug> leavesOf(const Plug& plug);

} // namespace tvxhost::engine
