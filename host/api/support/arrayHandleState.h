// What an array data handle and a builder remember.
#pragma once

#include "elementCursor.h"
#include "handleState.h"

#include <set>

namespace tvxhost::api {

/// An array in a data block and the element that its handle stands on.
struct ArrayHandleState
{
    static constexpr int kNone = -1;

    HandleState array;
    std::int32_t index = kNone; ///< logical; kNone when there is no element (any more)

    static ArrayHandleState read(const MArrayDataHandle& handle)
    {
        ArrayHandleState state;
        std::memcpy(static_cast<void*>(&state), tvxAccess::storage(handle), sizeof state);
        return state;
    }
    void write(MArrayDataHandle& handle) const
    {
        std::memcpy(tvxAccess::storage(handle), static_cast<const void*>(this), sizeof *this);
    }
    /// A handle that stands on the first element.
    static MArrayDataHandle handleOn(const HandleState& array);
};
static_assert(sizeof(ArrayHandleState) <= sizeof(MArrayDataHandle));

/// The elements that an array will have once its builder is set.
struct ArrayBuilding
{
    engine::Plug array;
    std::set<int> indices;
};

} // namespace tvxhost::api
