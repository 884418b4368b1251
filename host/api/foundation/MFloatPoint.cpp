// MFloatPoint: a place in space, single precision.
#include <maya/MFloatMatrix.h>
#include <maya/MFloatPoint.h>

#include <ostream>

const MFloatPoint MFloatPoint::origin;

MFloatPoint MFloatPoint::operator*(const MFloatMatrix& matrix) const
{
    const auto column = [&](int c) {
        const auto& m = matrix.matrix;
        return x * m[0][c] + y * m[1][c] + z * m[2][c] + w * m[3][c];
    };
    return MFloatPoint(column(0), column(1), column(2), column(3));
}

MFloatPoint& MFloatPoint::operator*=(const MFloatMatrix& matrix)
{
    return *this = *this * matrix;
}

MFloatPoint& MFloatPoint::cartesianize()
{
    if (w != 0.0f)
        *this = MFloatPoint(x / w, y / w, z / w, 1.0f);
    return *this;
}

MFloatPoint& MFloatPoint::rationalize()
{
    if (w != 0.0f)
        *this = MFloatPoint(x / w, y / w, z / w, w);
    return *this;
}

MFloatPoint& MFloatPoint::homogenize()
{
    return *this = MFloatPoint(x * w, y * w, z * w, w);
}

const char* MFloatPoint::className()
{
    return "MFloatPoint";
}

std::ostream& operator<<(std::ostream& out, const MFloatPoint& point)
{
    return out << '[' << point.x << ", " << point.y << ", " << point.z << ", " << point.w << ']';
}
