// Simple shapes in immediate-mode OpenGL.
//
// Every function draws in the current modelview space and the current colour, and needs a current GL context:
// a locator calls them from its draw, between beginGL and endGL, on the drawing thread. Lengths are in units
// of that space; Y is up and the ground is the plane y = 0. A primitive changes no GL state and leaves the
// matrix stack as it was, unless it says otherwise. A shape of 0 segments is an empty glBegin and glEnd.
#pragma once

namespace tarvox::crowd {

/// Draws the outline of a circle on the ground about the origin: a line loop of `segments` vertices, of which
/// the first is at (radius, 0, 0) and the following ones go towards +Z.
void drawCircle(float radius, unsigned int segments);

/// Draws the circle of drawCircle as one filled polygon.
void drawDisc(float radius, unsigned int segments);

/// Draws the 12 edges of a box centred on the origin. Sizes are full lengths; mind their order: X, Z, Y.
void drawWireBox(float sizeX, float sizeZ, float sizeY);

} // namespace tarvox::crowd
