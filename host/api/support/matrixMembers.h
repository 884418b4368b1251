// The members that MMatrix and MFloatMatrix share, written once.
#pragma once

#include "support/matrix4.h"

#include <ostream>

/// The members of a matrix class whose only state is `Number matrix[4][4]`.
#define TVX_MATRIX_MEMBERS(Class, Number)                                                                    \
    Class::Class()                                                                                           \
    {                                                                                                        \
        setToIdentity();                                                                                     \
    }                                                                                                        \
    Class::Class(const Class& src)                                                                           \
    {                                                                                                        \
        tvxhost::api::copyElements(matrix, src.matrix);                                                      \
    }                                                                                                        \
    Class::Class(const double m[4][4])                                                                       \
    {                                                                                                        \
        tvxhost::api::copyElements(matrix, m);                                                               \
    }                                                                                                        \
    Class::Class(const float m[4][4])                                                                        \
    {                                                                                                        \
        tvxhost::api::copyElements(matrix, m);                                                               \
    }                                                                                                        \
    Class::~Class() {}                                                                                       \
    Class& Class::operator=(const Class& src)                                                                \
    {                                                                                                        \
        tvxhost::api::copyElements(matrix, src.matrix);                                                      \
        return *this;                                                                                        \
    }                                                                                                        \
    MStatus Class::get(double dest[4][4]) const                                                              \
    {                                                                                                        \
        tvxhost::api::copyElements(dest, matrix);                                                            \
        return MS::kSuccess;                                                                                 \
    }                                                                                                        \
    MStatus Class::get(float dest[4][4]) const                                                               \
    {                                                                                                        \
        tvxhost::api::copyElements(dest, matrix);                                                            \
        return MS::kSuccess;                                                                                 \
    }                                                                                                        \
    Class Class::transpose() const                                                                           \
    {                                                                                                        \
        return tvxhost::api::fromImath<Class>(tvxhost::api::imathOf(*this).transposed());                    \
    }                                                                                                        \
    Class& Class::setToIdentity()                                                                            \
    {                                                                                                        \
        return *this = tvxhost::api::fromImath<Class>(Imath::Matrix44<Number>());                            \
    }                                                                                                        \
    Class& Class::setToProduct(const Class& left, const Class& right)                                        \
    {                                                                                                        \
        return *this = tvxhost::api::fromImath<Class>(tvxhost::api::imathOf(left) *                          \
                                                      tvxhost::api::imathOf(right));                         \
    }                                                                                                        \
    Class& Class::operator+=(const Class& right)                                                             \
    {                                                                                                        \
        return *this = *this + right;                                                                        \
    }                                                                                                        \
    Class Class::operator+(const Class& right) const                                                         \
    {                                                                                                        \
        return tvxhost::api::fromImath<Class>(tvxhost::api::imathOf(*this) + tvxhost::api::imathOf(right));  \
    }                                                                                                        \
    Class& Class::operator-=(const Class& right)                                                             \
    {                                                                                                        \
        return *this = *this - right;                                                                        \
    }                                                                                                        \
    Class Class::operator-(const Class& right) const                                                         \
    {                                                                                                        \
        return tvxhost::api::fromImath<Class>(tvxhost::api::imathOf(*this) - tvxhost::api::imathOf(right));  \
    }                                                                                                        \
    Class& Class::operator*=(const Class& right)                                                             \
    {                                                                                                        \
        return setToProduct(*this, right);                                                                   \
    }                                                                                                        \
    Class Class::operator*(const Class& right) const                                                         \
    {                                                                                                        \
        return tvxhost::api::fromImath<Class>(tvxhost::api::imathOf(*this) * tvxhost::api::imathOf(right));  \
    }                                                                                                        \
    Class& Class::operator*=(Number scale)                                                                   \
    {                                                                                                        \
        return *this = *this * scale;                                                                        \
    }                                                                                                        \
    Class Class::operator*(Number scale) const                                                               \
    {                                                                                                        \
        return tvxhost::api::fromImath<Class>(tvxhost::api::imathOf(*this) * scale);                         \
    }                                                                                                        \
    bool Class::operator==(const Class& other) const                                                         \
    {                                                                                                        \
        return tvxhost::api::areEqual(matrix, other.matrix);                                                 \
    }                                                                                                        \
    bool Class::operator!=(const Class& other) const                                                         \
    {                                                                                                        \
        return !(*this == other);                                                                            \
    }                                                                                                        \
    Class Class::inverse() const                                                                             \
    {                                                                                                        \
        return tvxhost::api::fromImath<Class>(tvxhost::api::imathOf(*this).inverse());                       \
    }                                                                                                        \
    Class Class::adjoint() const                                                                             \
    {                                                                                                        \
        return tvxhost::api::adjointOf(*this);                                                               \
    }                                                                                                        \
    Class Class::homogenize() const                                                                          \
    {                                                                                                        \
        return tvxhost::api::homogenized(*this);                                                             \
    }                                                                                                        \
    Number Class::det4x4() const                                                                             \
    {                                                                                                        \
        return tvxhost::api::imathOf(*this).determinant();                                                   \
    }                                                                                                        \
    Number Class::det3x3() const                                                                             \
    {                                                                                                        \
        return tvxhost::api::determinant3(matrix);                                                           \
    }                                                                                                        \
    bool Class::isEquivalent(const Class& other, Number tolerance) const                                     \
    {                                                                                                        \
        return tvxhost::api::areEquivalent(matrix, other.matrix, tolerance);                                 \
    }                                                                                                        \
    const char* Class::className()                                                                           \
    {                                                                                                        \
        return #Class;                                                                                       \
    }                                                                                                        \
    Class operator*(Number scalar, const Class& matrix)                                                      \
    {                                                                                                        \
        return matrix * scalar;                                                                              \
    }                                                                                                        \
    std::ostream& operator<<(std::ostream& out, const Class& matrix)                                         \
    {                                                                                                        \
        return tvxhost::api::writeMatrix(out, matrix.matrix);                                                \
    }
