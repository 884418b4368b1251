// The two-component vector.
#pragma once

namespace tarvox::core {

/// A point or direction of the plane. Zero unless told otherwise.
template <class T>
struct Vector2
{
    T x{};
    T y{};
};

/// Equal when both components compare equal: -0 equals 0, and NaN equals nothing.
template <class T>
constexpr bool operator==(const Vector2<T>& a, const Vector2<T>& b)
{
    return a.x == b.x && a.y == b.y;
}

template <class T>
constexpr bool operator!=(const Vector2<T>& a, const Vector2<T>& b)
{
    return !(a == b);
}

} // namespace tarvox::core
