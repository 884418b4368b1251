// The GL calls that shapes are expected to make, computed from their definition.
#include "DrawingCalls.h"

#include <math.h>

#include <utility>

namespace tarvox::crowd::test {

namespace {

constexpr float kPi = 3.1415927f;
constexpr float kTwoPi = 6.2831855f;

/// A vertex whose normal is the vector to it.
Calls pointWithNormal(float x, float y, float z)
{
    return {glCall("glNormal3f", x, y, z), glCall("glVertex3f", x, y, z)};
}

} // namespace

Calls operator+(Calls first, const Calls& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Calls callsOf(const std::function<void()>& draw)
{
    GlRecorder gl;
    draw();
    return gl.calls();
}

Calls vertices(const std::string& mode, const std::vector<Point>& points)
{
    Calls calls = {"glBegin(" + mode + ")"};
    for (const Point& point : points)
        calls.push_back(glCall("glVertex3f", point.x, point.y, point.z));
    calls.push_back("glEnd()");
    return calls;
}

std::vector<Point> circlePoints(float radius, unsigned int segments)
{
    const auto count = static_cast<float>(segments);
    std::vector<Point> points;
    for (float k = 0; k < count; ++k) {
        float angle = k * 360;
        angle /= count;
        angle *= kPi;
        angle /= 180;
        points.push_back({radius * cosf(angle), 0, radius * sinf(angle)});
    }
    return points;
}

Calls circle(const std::string& mode, float radius, unsigned int segments)
{
    return vertices(mode, circlePoints(radius, segments));
}

Calls cylinderSide(float radius, float height, int pairs, float step)
{
    std::vector<float> angles;
    for (int pair = 0; pair < pairs; ++pair)
        angles.push_back(pair == 0 ? 0 : angles.back() + step);
    std::vector<Point> points;
    for (const float angle : angles)
        for (const float y : {0.0f, height})
            points.push_back({radius * cosf(angle), y, radius * sinf(angle)});
    return vertices("GL_QUAD_STRIP", points);
}

Calls sphereBands(float radius, int stacks, int slices, int bands, int pairs)
{
    std::vector<float> latitudes, longitudes;
    for (int i = 0; i <= bands; ++i) {
        const float part = static_cast<float>(i) / static_cast<float>(stacks);
        latitudes.push_back((part - 0.5f) * kPi);
    }
    for (int j = -1; j < pairs - 1; ++j) {
        const float turn = static_cast<float>(j) * kTwoPi;
        longitudes.push_back(turn / static_cast<float>(slices));
    }
    Calls calls;
    for (std::size_t band = 0; band + 1 < latitudes.size(); ++band) {
        calls.push_back("glBegin(GL_QUAD_STRIP)");
        for (const float lng : longitudes)
            for (const float lat : {latitudes[band], latitudes[band + 1]}) {
                const float z = radius * sinf(lat);
                const float rho = radius * cosf(lat);
                calls = std::move(calls) + pointWithNormal(cosf(lng) * rho, sinf(lng) * rho, z);
            }
        calls.push_back("glEnd()");
    }
    return calls;
}

} // namespace tarvox::crowd::test
