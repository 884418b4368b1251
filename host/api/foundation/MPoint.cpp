// MPoint: a place in space, double precision.
#include <maya/MMatrix.h>
#include <maya/MPoint.h>

#include <ostream>

const MPoint MPoint::origin;

MPoint MPoint::operator*(const MMatrix& matrix) const
{
    const auto column = [&](int c) {
        const auto& m = matrix.matrix;
        return x * m[0][c] + y * m[1][c] + z * m[2][c] + w * m[3][c];
    };
    return MPoint(column(0), column(1), column(2), column(3));
}

MPoint& MPoint::operator*=(const MMatrix& matrix)
{
    return *this = *this * matrix;
}

MPoint& MPoint::cartesianize()
{
    if (w != 0.0)
        *this = MPoint(x / w, y / w, z / w, 1.0);
    return *this;
}

MPoint& MPoint::rationalize()
{
    if (w != 0.0)
        *this = MPoint(x / w, y / w, z / w, w);
    return *this;
}

MPoint& MPoint::homogenize()
{
    return *this = MPoint(x * w, y * w, z * w, w);
}

const char* MPoint::className()
{
    return "MPoint";
}

std::ostream& operator<<(std::ostream& out, const MPoint& point)
{
    return out << '[' << point.x << ", " << point.y << ", " << point.z << ", " << point.w << ']';
}
