// The GL calls that shapes are expected to make, computed from their definition.
#pragma once

#include "GlRecorder.h"

#include <functional>
#include <string>
#include <vector>

namespace tarvox::crowd::test {

using Calls = std::vector<std::string>;

Calls operator+(Calls first, const Calls& second);

/// What a recorder writes down while `draw` runs.
Calls callsOf(const std::function<void()>& draw);

struct Point
{
    float x, y, z;
};

/// One glBegin and glEnd with these vertices, given as floats.
Calls vertices(const std::string& mode, const std::vector<Point>& points);

/// The points of a circle on the ground.
std::vector<Point> circlePoints(float radius, unsigned int segments);

/// An outline (GL_LINE_LOOP) or disc (GL_POLYGON) of those points.
Calls circle(const std::string& mode, float radius, unsigned int segments);

/// The side of a cylinder of so many pairs of vertices, `step` apart.
Calls cylinderSide(float radius, float height, int pairs, float step);

/// The lowest so many bands of a sphere, each of so many pairs of vertices.
Calls sphereBands(float radius, int stacks, int slices, int bands, int pairs);

} // namespace tarvox::crowd::test
