// What a data handle remembers: 32 bytes that are copied freely and never cleaned up.
#pragma once

#include "access.h"
#include "engine/dataBlock.h"

#include <maya/MArrayDataHandle.h>
#include <maya/MDataHandle.h>

#include <cstdint>
#include <cstring>
#include <optional>

namespace tvxhost::api {

/// The element indices that lead to a plug, in one word: the depth, then the indices from the outermost. One
/// or two indices may be up to 2^30 - 1, three or four up to 2^15 - 1.
class PackedIndices
{
public:
    PackedIndices() = default;
    /// Nothing when an index is undetermined or too large.
    static std::optional<PackedIndices> of(const engine::Plug& plug);

    /// Selects the indices in a plug of the attribute that they were packed for.
    void selectIn(engine::Plug& plug) const;

private:
    int depth() const { return static_cast<int>(m_word & 7u); }
    static int bitsFor(int depth) { return depth <= 2 ? 30 : 15; }

    std::uint64_t m_word = 0;
};

/// A value outside any data block, for handles that were asked of a plug. Owned by the handle that
/// MPlug::destructHandle is given.
struct DetachedValue
{
    engine::Plug plug; ///< where the value was taken from
    engine::Ref<engine::Data> data;
    alignas(8) std::uint8_t bytes[32] = {};
};

/// Where the value of a handle is, and what it is the value of.
class HandleState
{
public:
    HandleState() = default;
    /// A handle on a plug's slot. Nothing when the indices of the plug cannot be remembered.
    static std::optional<HandleState> of(const engine::Plug& plug, const engine::Slot& slot, bool forWriting);
    /// A handle on an array as a whole; its slot is of no use.
    static std::optional<HandleState> ofArray(const engine::Plug& array, bool forWriting);
    static HandleState of(DetachedValue& value);

    static HandleState read(const MDataHandle& handle) { return readFrom(tvxAccess::storage(handle)); }
    static HandleState read(const MArrayDataHandle& handle) { return readFrom(tvxAccess::storage(handle)); }
    void write(MDataHandle& handle) const { std::memcpy(tvxAccess::storage(handle), this, sizeof *this); }
    void write(MArrayDataHandle& handle) const
    {
        std::memcpy(tvxAccess::storage(handle), this, sizeof *this);
    }
    MDataHandle handle() const
    {
        MDataHandle made;
        write(made);
        return made;
    }

    bool isNull() const { return !m_attribute; }
    engine::Attribute* attribute() const { return m_attribute; }
    bool isForWriting() const { return (m_owner & kForWriting) != 0; }
    /// Null for a handle in a data block.
    DetachedValue* detached() const
    {
        return (m_owner & kDetached) != 0 ? reinterpret_cast<DetachedValue*>(m_owner & ~kFlags) : nullptr;
    }
    engine::Plug plug() const;

    /// The numbers, when the value is some; else null.
    void* bytes() const { return (m_owner & kHoldsData) != 0 ? nullptr : m_value; }
    /// The data object's place, when the value is one; else null. It may be empty.
    engine::Ref<engine::Data>* data() const
    {
        return (m_owner & kHoldsData) != 0 ? static_cast<engine::Ref<engine::Data>*>(m_value) : nullptr;
    }
    /// How many numbers lie side by side.
    std::size_t numberCount() const
    {
        return m_attribute && !m_attribute->children.empty() ? m_attribute->children.size() : 1;
    }

private:
    static constexpr std::uintptr_t kDetached = 1, kForWriting = 2, kHoldsData = 4, kFlags = 7;

    static HandleState readFrom(const char* storage)
    {
        HandleState state;
        std::memcpy(static_cast<void*>(&state), storage, sizeof state);
        return state;
    }

    void* m_value = nullptr;
    engine::Attribute* m_attribute = nullptr;
    std::uintptr_t m_owner = 0; ///< a node or a DetachedValue, and flags in the low bits
    PackedIndices m_indices;
};

} // namespace tvxhost::api
