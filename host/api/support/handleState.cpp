// What a data handle remembers: 32 bytes that are copied freely and never cleaned up.
#include "handleState.h"

#include <type_traits>

namespace tvxhost::api {

static_assert(sizeof(HandleState) == sizeof(MDataHandle));
static_assert(std::is_trivially_copyable_v<HandleState>);

namespace {

/// Selects one index after another, the outermost array first.
class IndexSelector
{
public:
    IndexSelector(engine::Plug& plug, std::uint64_t word, int bits) : m_plug(plug), m_word(word), m_bits(bits)
    {
    }

    void select(const engine::Attribute* attribute, int& left)
    {
        if (!attribute || left == 0)
            return;
        select(attribute->parent, left);
        if (!attribute->isArray() || left == 0)
            return;
        m_plug.selectIndex(*attribute, static_cast<int>(m_word & ((std::uint64_t{1} << m_bits) - 1)));
        m_word >>= m_bits;
        --left;
    }

private:
    engine::Plug& m_plug;
    std::uint64_t m_word;
    int m_bits;
};

} // namespace

std::optional<PackedIndices> PackedIndices::of(const engine::Plug& plug)
{
    PackedIndices packed;
    const int depth = plug.indexCount();
    const int bits = bitsFor(depth);
    packed.m_word = static_cast<std::uint64_t>(depth);
    for (int i = 0; i < depth; ++i) {
        const int index = plug.indices()[static_cast<std::size_t>(i)];
        if (index < 0 || index >= (1 << bits))
            return std::nullopt;
        packed.m_word |= static_cast<std::uint64_t>(index) << (3 + i * bits);
    }
    return packed;
}

void PackedIndices::selectIn(engine::Plug& plug) const
{
    int left = depth();
    if (left > 0)
        IndexSelector(plug, m_word >> 3, bitsFor(left)).select(plug.attribute(), left);
}

std::optional<HandleState> HandleState::of(const engine::Plug& plug, const engine::Slot& slot,
                                           bool forWriting)
{
    std::optional<HandleState> state = ofArray(plug, forWriting);
    if (!state)
        return state;
    state->m_value = slot.bytes ? slot.bytes : slot.data;
    if (!slot.bytes && slot.data)
        state->m_owner |= kHoldsData;
    return state;
}

std::optional<HandleState> HandleState::ofArray(const engine::Plug& array, bool forWriting)
{
    const auto indices = PackedIndices::of(array);
    if (!indices)
        return std::nullopt;
    HandleState state;
    state.m_attribute = array.attribute();
    state.m_owner = reinterpret_cast<std::uintptr_t>(array.node()) | (forWriting ? kForWriting : 0);
    state.m_indices = *indices;
    return state;
}

HandleState HandleState::of(DetachedValue& value)
{
    HandleState state;
    const engine::Attribute* attribute = value.plug.attribute();
    state.m_attribute = value.plug.attribute();
    state.m_owner = reinterpret_cast<std::uintptr_t>(&value) | kDetached | kForWriting;
    if (attribute->number != engine::NumberKind::none) {
        state.m_value = value.bytes;
    } else {
        state.m_value = &value.data;
        state.m_owner |= kHoldsData;
    }
    return state;
}

engine::Plug HandleState::plug() const
{
    if (const DetachedValue* value = detached())
        return value->plug;
    auto* node = reinterpret_cast<engine::Node*>(m_owner & ~kFlags);
    if (!node || !m_attribute)
        return {};
    engine::Plug plug(*node, *m_attribute);
    m_indices.selectIn(plug);
    return plug;
}

} // namespace tvxhost::api
