// Numbers in memory: see number.h.
#include "number.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

namespace tvxhost::engine {

namespace {

template <class T>
T clampedTo(double x)
{
    if (std::isnan(x))
        return 0;
    // The limits of 64 bits are not exact in a double: compare with the next one outside.
    if (x >= static_cast<double>(std::numeric_limits<T>::max()))
        return std::numeric_limits<T>::max();
    if (x <= static_cast<double>(std::numeric_limits<T>::min()))
        return std::numeric_limits<T>::min();
    return static_cast<T>(x);
}

template <class T>
Number load(const void* bytes)
{
    T value;
    std::memcpy(&value, bytes, sizeof value);
    if constexpr (std::is_floating_point_v<T>)
        return Number(static_cast<double>(value));
    else
        return Number(static_cast<std::int64_t>(value));
}

template <class T>
void store(void* bytes, const Number& number)
{
    T value;
    if constexpr (std::is_floating_point_v<T>)
        value = static_cast<T>(number.asReal());
    else
        value = number.isWhole ? static_cast<T>(number.whole) : clampedTo<T>(number.real);
    std::memcpy(bytes, &value, sizeof value);
}

} // namespace

std::int64_t Number::asWhole() const
{
    return isWhole ? whole : clampedTo<std::int64_t>(real);
}

Number loadNumber(NumberKind kind, const void* bytes)
{
    switch (kind) {
    case NumberKind::boolean:
    case NumberKind::byte:
        return load<std::uint8_t>(bytes);
    case NumberKind::character:
        return load<signed char>(bytes);
    case NumberKind::shortInteger:
        return load<short>(bytes);
    case NumberKind::integer:
        return load<int>(bytes);
    case NumberKind::int64:
        return load<std::int64_t>(bytes);
    case NumberKind::single:
        return load<float>(bytes);
    case NumberKind::real:
        return load<double>(bytes);
    case NumberKind::none:
        break;
    }
    return {};
}

void storeNumber(NumberKind kind, void* bytes, const Number& value)
{
    switch (kind) {
    case NumberKind::boolean:
        store<std::uint8_t>(bytes, Number(static_cast<std::int64_t>(value.asReal() != 0.0)));
        break;
    case NumberKind::byte:
        store<std::uint8_t>(bytes, value);
        break;
    case NumberKind::character:
        store<signed char>(bytes, value);
        break;
    case NumberKind::shortInteger:
        store<short>(bytes, value);
        break;
    case NumberKind::integer:
        store<int>(bytes, value);
        break;
    case NumberKind::int64:
        store<std::int64_t>(bytes, value);
        break;
    case NumberKind::single:
        store<float>(bytes, value);
        break;
    case NumberKind::real:
        store<double>(bytes, value);
        break;
    case NumberKind::none:
        break;
    }
}

bool isNumberLeaf(const Attribute& attribute)
{
    switch (attribute.kind) {
    case AttributeKind::numeric:
        return attribute.children.empty();
    case AttributeKind::unit:
    case AttributeKind::enumeration:
        return true;
    default:
        return false;
    }
}

std::size_t numberBytes(const Attribute& attribute)
{
    if (isNumberLeaf(attribute))
        return sizeOf(attribute.number);
    return attribute.isNumberGroup() ? attribute.children.size() * sizeOf(attribute.number) : 0;
}

void storeDefault(const Attribute& attribute, void* bytes)
{
    if (isNumberLeaf(attribute)) {
        storeNumber(attribute.number, bytes, Number(attribute.defaultNumber));
        return;
    }
    auto* place = static_cast<std::uint8_t*>(bytes);
    for (const Ref<Attribute>& child : attribute.children) {
        storeNumber(child->number, place, Number(child->defaultNumber));
        place += sizeOf(child->number);
    }
}

} // namespace tvxhost::engine
