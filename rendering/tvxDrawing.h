// Simple shapes in immediate-mode OpenGL.
//
// Every function draws in the current modelview space and the current colour, and needs a current GL context:
// a locator calls them from its draw, between beginGL and endGL, on the drawing thread. Lengths are in units
// of that space; Y is up and the ground is the plane y = 0. A primitive changes no GL state and leaves the
// matrix stack as it was, unless it says otherwise. A circle of 0 segments is an empty glBegin and glEnd.
#pragma once

namespace tarvox::crowd {

/// Draws the outline of a circle on the ground about the origin: a line loop of `segments` vertices, of which
/// the first is at (radius, 0, 0) and the following ones go towards +Z.
void drawCircle(float radius, unsigned int segments);

/// Draws the circle of drawCircle as one filled polygon.
void drawDisc(float radius, unsigned int segments);

/// Draws the 12 edges of a box centred on the origin. Sizes are full lengths; mind their order: X, Z, Y.
void drawWireBox(float sizeX, float sizeZ, float sizeY);

/// Draws a line along each axis, centred on the origin. Sizes are full lengths in the order X, Z, Y.
void drawCross(float sizeX, float sizeZ, float sizeY);

/// Draws the 6 faces of a box that stands on the ground, centred on the Y axis and `height` tall. Sizes are
/// full lengths.
void drawSolidBox(float sizeX, float height, float sizeZ);

/// Draws three circles about the origin, one in the plane of each pair of axes.
void drawWireSphere(float radius, unsigned int segments);

/// Draws the axes from the origin: X red, Y green and Z blue. The current colour is given back.
void drawAxes(float length);

/// Draws the four sloping faces of a pyramid along +Z: its base, which has no face, is a square of half side
/// `halfBase` in the plane z = 0, its apex at (0, 0, height). Without `filled` only the edges are drawn. The
/// polygon mode is given back.
void drawPyramid(float halfBase, float height, bool filled);

/// Draws a horizontal rectangle centred on the Y axis at height `y`; `halfX` and `halfZ` are half its sizes.
/// Without `filled` only its edges are drawn. The polygon mode is given back.
void drawRectangle(float halfX, float y, float halfZ, bool filled);

/// Draws the side of a cylinder that stands on the ground about the Y axis; with `capped` also a disc at each
/// end. The side has `segments` quads, a single edge when there are none, and nothing when the count is above
/// 2147483647.
void drawCylinder(float radius, float height, unsigned int segments, bool capped);

/// Draws an arrow head on the ground that points along +X, its tip at `radius` from the origin and its back a
/// quarter of that circle on the side of -X, and on it a disc blended by the current colour's alpha. The back
/// has a quarter of `segments`, rounded down; counts below 0 draw as 0 does.
///
/// Takes a level off the matrix stack that it did not put there: push the matrix before the call, and do not
/// pop it afterwards. Leaves GL_BLEND disabled, depth writes enabled and the blend function at GL_SRC_ALPHA,
/// GL_ONE_MINUS_SRC_ALPHA, whatever they were before.
void drawHeadingMarker(float radius, int segments);

/// Draws the lower part of a sphere about the origin, its poles on the Z axis: the lowest `fraction` of
/// `stacks` bands of equal latitude, counted from the pole at z = -radius and rounded as roundHalfDown does,
/// of `slices` quads each. Thus 0.5 is the half sphere below z = 0, and 1 the whole. Normals have the length
/// `radius`, and the last one stays current. No bands are drawn when `stacks * fraction` is negative; bands
/// of negative `slices` are empty.
void drawSphere(float radius, int stacks, int slices, float fraction);

/// Draws the side of drawCylinder and half a sphere of `segments` stacks and slices at each end, the lower
/// one bulging below y = 0, the upper one above y = height. What drawSphere leaves of normals stays current.
void drawCapsule(float radius, float height, unsigned int segments);

} // namespace tarvox::crowd
