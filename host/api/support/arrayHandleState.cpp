// What an array data handle and a builder remember.
#include "arrayHandleState.h"

namespace tvxhost::api {

MArrayDataHandle ArrayHandleState::handleOn(const HandleState& array)
{
    ArrayHandleState state;
    state.array = array;
    if (!array.isNull())
        state.index = elementAfter(array.plug(), kNone).value_or(kNone);
    // A handle is its bytes, and only has constructors that are calls of the API.
    alignas(MArrayDataHandle) char bytes[sizeof(MArrayDataHandle)] = {};
    std::memcpy(bytes, static_cast<const void*>(&state), sizeof state);
    return MArrayDataHandle(*reinterpret_cast<const MArrayDataHandle*>(bytes));
}

} // namespace tvxhost::api
