// Numbers in memory: loading and storing one number of a kind.
#pragma once

#include "attribute.h"
#include "plug.h"

namespace tvxhost::engine {

/// The number at `bytes`, stored as `kind` says.
Number loadNumber(NumberKind kind, const void* bytes);

/// Stores by C's rules: whole numbers wrap, real ones are cut towards zero and clamped to what fits.
void storeNumber(NumberKind kind, void* bytes, const Number& value);

/// Whether an attribute is a single number: numeric without children, unit, enumeration.
bool isNumberLeaf(const Attribute& attribute);

/// Bytes of all numbers of a leaf or number group side by side; 0 for anything else.
std::size_t numberBytes(const Attribute& attribute);

/// Writes the default of a leaf or number group to `bytes`.
void storeDefault(const Attribute& attribute, void* bytes);

} // namespace tvxhost::engine
