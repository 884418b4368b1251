// GlBalance: holds foreign drawing code to leaving GL as it found it.
#pragma once

#include <array>
#include <string>

namespace tvxhost::viewport {

/// Looks at the stacks of GL and at its projection before somebody else draws; afterwards says what was left
/// behind and repairs it.
class GlBalance
{
public:
    /// Remembers the depths of the stacks, and the projection. Errors that are pending are forgotten, they
    /// are not the other's.
    GlBalance();
    /// What is wrong now, as a list for people ("model-view stack 1 too deep, GL_INVALID_ENUM"); empty when
    /// all is well. Afterwards glBegin is closed, the stacks have their old depths, the projection is the old
    /// one, errors are gone and the matrix mode is the model-view one.
    std::string checkAndRepair() const;

private:
    int m_modelView;
    int m_projection;
    int m_attributes;
    int m_clientAttributes;
    std::array<double, 16> m_projectionMatrix;
};

} // namespace tvxhost::viewport
