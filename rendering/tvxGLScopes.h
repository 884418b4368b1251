// What GL opens and closes in pairs, closed at the end of a scope.
#pragma once

#include "rendering/tvxGL.h"

namespace tarvox::crowd {

/// The vertices of one primitive: glBegin, and glEnd at the end.
class PrimitiveScope
{
public:
    explicit PrimitiveScope(GLenum mode) { glBegin(mode); }
    ~PrimitiveScope() { glEnd(); }
    PrimitiveScope(const PrimitiveScope&) = delete;
    PrimitiveScope& operator=(const PrimitiveScope&) = delete;
};

/// One level of the current matrix stack.
class MatrixScope
{
public:
    MatrixScope() { glPushMatrix(); }
    ~MatrixScope() { glPopMatrix(); }
    MatrixScope(const MatrixScope&) = delete;
    MatrixScope& operator=(const MatrixScope&) = delete;
};

/// One level of the attribute stack, with the groups of `bits`.
class AttributeScope
{
public:
    explicit AttributeScope(GLbitfield bits) { glPushAttrib(bits); }
    ~AttributeScope() { glPopAttrib(); }
    AttributeScope(const AttributeScope&) = delete;
    AttributeScope& operator=(const AttributeScope&) = delete;
};

} // namespace tarvox::crowd
