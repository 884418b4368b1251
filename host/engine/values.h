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

/// Stores and remembers that the plug was set; nothing is marked or spread. False when an index is
/// undetermined.
bool keepNumber(const Plug& leaf, const Number& value);
bool keepData(const Plug& plug, Ref<Data> data);

/// Gives every leaf below a plug its default again; nothing is marked or spread.
void resetToDefault(const Plug& plug);

/// Brings a source's value to a destination, converting numbers as C does.
void copyValue(const Plug& source, const Plug& destination);

/// The leaves below a plug, depth first: single numbers, typed, matrix, message … Elements of arrays below
/// are not gone into.
std::vector<Plug> leavesOf(const Plug& plug);

} // namespace tvxhost::engine
