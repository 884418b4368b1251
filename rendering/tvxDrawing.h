// Simple shapes in immediate-mode OpenGL.
#pragma once

namespace tarvox::crowd {

/// Draws the 12 edges of a box centred on the origin, in the current colour and modelview space. Needs a
/// current GL context and changes no GL state. Sizes are full lengths; mind their order: X, Z, Y.
void drawWireBox(float sizeX, float sizeZ, float sizeY);

} // namespace tarvox::crowd
