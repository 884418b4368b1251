// The GL calls that shapes are expected to make, computed from their definition.
#include "DrawingCalls.h"

#include <math.h>

namespace tarvox::crowd::test {

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
        // One operation at a time, each rounded to single precision.
        volatile float angle = k * 360;
        angle = angle / count;
        angle = angle * 3.1415927f;
        angle = angle / 180;
        points.push_back({radius * cosf(angle), 0, radius * sinf(angle)});
    }
    return points;
}

Calls circle(const std::string& mode, float radius, unsigned int segments)
{
    return vertices(mode, circlePoints(radius, segments));
}

} // namespace tarvox::crowd::test
