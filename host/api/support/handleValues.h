// Numbers and data behind a data handle: by reference where the kinds fit, else by conversion.
#pragma once

#include "handleState.h"

#include "engine/number.h"
#include "engine/pluginData.h"

#include <cstddef>

namespace tvxhost::api {

/// Whether values of an attribute are data of a type.
inline bool holds(const engine::Attribute& attribute, engine::DataType type)
{
    using engine::AttributeKind;
    if (attribute.kind == AttributeKind::matrix)
        return type == engine::DataType::matrix;
    return attribute.kind == AttributeKind::generic || attribute.dataType == type;
}

/// Bytes and chars are the same to a reader.
inline bool isStoredAs(engine::NumberKind stored, engine::NumberKind kind)
{
    using engine::NumberKind;
    const auto plain = [](NumberKind k) { return k == NumberKind::character ? NumberKind::byte : k; };
    return plain(stored) == plain(kind);
}

/// Converts the numbers of a handle one by one; those that it has not are 0.
template <class T, std::size_t kCount>
void convertNumbers(const HandleState& state, engine::NumberKind kind, T (&converted)[kCount])
{
    const auto* bytes = static_cast<const std::uint8_t*>(state.bytes());
    const std::size_t available = bytes && !state.isNull() ? state.numberCount() : 0;
    for (std::size_t i = 0; i < kCount; ++i) {
        const engine::NumberKind stored = available > 0 ? state.attribute()->number : kind;
        const engine::Number number =
            i < available ? engine::loadNumber(stored, bytes + i * engine::sizeOf(stored)) : engine::Number();
        engine::storeNumber(kind, &converted[i], number);
    }
}

/// The first of the numbers of a handle, which lie side by side: the stored ones when they are of the kind,
/// else converted copies that the next call on this thread overwrites.
template <class T, std::size_t kCount>
T* numbersAt(const MDataHandle& handle, engine::NumberKind kind)
{
    const HandleState state = HandleState::read(handle);
    if (state.bytes() && isStoredAs(state.attribute()->number, kind) && state.numberCount() >= kCount)
        return static_cast<T*>(state.bytes());
    static thread_local T converted[kCount];
    convertNumbers(state, kind, converted);
    return converted;
}

inline engine::Number numberFrom(std::int64_t value)
{
    return engine::Number(value);
}
inline engine::Number numberFrom(double value)
{
    return engine::Number(value);
}
inline engine::Number numberFrom(float value)
{
    return engine::Number(static_cast<double>(value));
}
template <class T>
engine::Number numberFrom(T value)
{
    return engine::Number(static_cast<std::int64_t>(value));
}

/// Stores numbers, converted to the kind that the value has. Nothing happens when it holds fewer, or none.
template <std::size_t kCount, class T>
void setNumbers(MDataHandle& handle, const T (&values)[kCount])
{
    const HandleState state = HandleState::read(handle);
    auto* bytes = static_cast<std::uint8_t*>(state.bytes());
    if (!bytes || state.numberCount() < kCount)
        return;
    const engine::NumberKind kind = state.attribute()->number;
    for (std::size_t i = 0; i < kCount; ++i)
        engine::storeNumber(kind, bytes + i * engine::sizeOf(kind), numberFrom(values[i]));
}

/// Whether data belongs into an attribute.
inline bool fits(const engine::Attribute& attribute, const engine::Data& data)
{
    return data.type() == engine::DataType::registered
               ? engine::takesPluginData(attribute,
                                         static_cast<const engine::PluginData&>(data).dataType().name)
               : holds(attribute, data.type());
}

/// Puts a data object in the place of the one that is there. Nothing happens for a value of another type.
inline bool setData(MDataHandle& handle, const engine::Ref<engine::Data>& data)
{
    const HandleState state = HandleState::read(handle);
    if (!state.data() || (data && !fits(*state.attribute(), *data)))
        return false;
    *state.data() = data;
    return true;
}

} // namespace tvxhost::api
