// Slot: direct access to where a plug's value lives, for data handles; no evaluation unless asked.
#pragma once

#include "plug.h"

namespace tvxhost::engine {

/// The value storage of one plug. Valid while the node lives and the plug's element exists. Numbers are
/// stored as their NumberKind's C type; a number group's values lie side by side, so `number` of the group is
/// that of its first child; angles, distances (double) and times (double, seconds) in internal units; typed
/// values as a counted Data object.
struct Slot
{
    void* bytes = nullptr;     ///< numbers; null when the plug holds no plain numbers
    Ref<Data>* data = nullptr; ///< typed and matrix values; the Ref may be null while there is no data object
    Attribute* attribute = nullptr;

    bool isNull() const { return !bytes && !data && !attribute; }
};

/// The slot of a plug for reading: evaluated first, as a node's compute may ask for it.
Expected<Slot> inputSlot(const Plug& plug);
/// The slot for writing: not evaluated. An element that does not exist yet is made.
Expected<Slot> outputSlot(const Plug& plug);

} // namespace tvxhost::engine
