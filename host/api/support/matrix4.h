// The arithmetic that MMatrix and MFloatMatrix share: row vectors, translation in row 3.
#pragma once

#include <Imath/ImathMatrix.h>

#include <algorithm>
#include <cmath>
#include <ostream>

namespace tvxhost::api {

/// The engine's matrix with the same elements.
template <class Matrix>
auto imathOf(const Matrix& m)
{
    return Imath::Matrix44(m.matrix);
}

/// An API matrix with the elements of an engine matrix of the same precision.
template <class Matrix, class T>
Matrix fromImath(const Imath::Matrix44<T>& m)
{
    return Matrix(m.x);
}

template <class To, class From>
void copyElements(To (*to)[4], const From (*from)[4])
{
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column)
            to[row][column] = static_cast<To>(from[row][column]);
}

template <class T>
T determinant3(const T (&m)[4][4])
{
    return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) -
           m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
           m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
}

/// The transpose of the cofactors; the inverse times the determinant.
template <class Matrix>
Matrix adjointOf(const Matrix& m)
{
    const auto source = imathOf(m);
    Matrix result;
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column) {
            const auto minor = source.minorOf(column, row);
            result.matrix[row][column] = (row + column) % 2 == 0 ? minor : -minor;
        }
    return result;
}

/// The matrix with its axes brought to length 1 and the last column to (0, 0, 0, 1); an axis without length
/// stays.
template <class Matrix>
Matrix homogenized(const Matrix& m)
{
    auto result = imathOf(m);
    for (int row = 0; row < 3; ++row) {
        auto* axis = result.x[row];
        const auto length = std::sqrt(axis[0] * axis[0] + axis[1] * axis[1] + axis[2] * axis[2]);
        if (length > 0)
            std::transform(axis, axis + 3, axis, [length](auto component) { return component / length; });
        axis[3] = 0;
    }
    result.x[3][3] = 1;
    return fromImath<Matrix>(result);
}

/// Whether no element differs by more than the tolerance.
template <class T>
bool areEquivalent(const T (&a)[4][4], const T (&b)[4][4], T tolerance)
{
    return std::equal(&a[0][0], &a[0][0] + 16, &b[0][0],
                      [tolerance](T left, T right) { return std::fabs(left - right) <= tolerance; });
}

template <class T>
bool areEqual(const T (&a)[4][4], const T (&b)[4][4])
{
    return std::equal(&a[0][0], &a[0][0] + 16, &b[0][0]);
}

/// Writes "[[a, b, c, d], [...], [...], [...]]".
template <class T>
std::ostream& writeMatrix(std::ostream& out, const T (&m)[4][4])
{
    out << '[';
    for (int row = 0; row < 4; ++row) {
        out << (row == 0 ? "[" : ", [");
        for (int column = 0; column < 4; ++column)
            out << (column == 0 ? "" : ", ") << m[row][column];
        out << ']';
    }
    return out << ']';
}

} // namespace tvxhost::api
