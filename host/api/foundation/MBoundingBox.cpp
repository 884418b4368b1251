// MBoundingBox: a box along the axes.
#include <maya/MBoundingBox.h>
#include <maya/MMatrix.h>

#include <algorithm>
#include <limits>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

} // namespace

// The empty box is kept inside out, so that growing it needs no special case.
MBoundingBox::MBoundingBox()
{
    clear();
}

MBoundingBox::MBoundingBox(const MBoundingBox& src)
{
    *this = src;
}

MBoundingBox::MBoundingBox(const MPoint& corner1, const MPoint& corner2)
{
    clear();
    expand(corner1);
    expand(corner2);
}

MBoundingBox::~MBoundingBox() {}

MBoundingBox& MBoundingBox::operator=(const MBoundingBox& other)
{
    std::copy_n(other.lower, 3, lower);
    std::copy_n(other.upper, 3, upper);
    return *this;
}

void MBoundingBox::clear()
{
    std::fill_n(lower, 3, kInfinity);
    std::fill_n(upper, 3, -kInfinity);
}

void MBoundingBox::transformUsing(const MMatrix& matrix)
{
    const MBoundingBox box(*this);
    if (box.lower[0] > box.upper[0])
        return;
    clear();
    for (int corner = 0; corner < 8; ++corner)
        expand(MPoint(corner & 1 ? box.upper[0] : box.lower[0], corner & 2 ? box.upper[1] : box.lower[1],
                      corner & 4 ? box.upper[2] : box.lower[2]) *
               matrix);
}

void MBoundingBox::expand(const MPoint& point)
{
    for (unsigned int axis = 0; axis < 3; ++axis) {
        lower[axis] = std::min(lower[axis], point[axis]);
        upper[axis] = std::max(upper[axis], point[axis]);
    }
}

void MBoundingBox::expand(const MBoundingBox& box)
{
    for (int axis = 0; axis < 3; ++axis) {
        lower[axis] = std::min(lower[axis], box.lower[axis]);
        upper[axis] = std::max(upper[axis], box.upper[axis]);
    }
}

bool MBoundingBox::contains(const MPoint& point) const
{
    for (unsigned int axis = 0; axis < 3; ++axis)
        if (point[axis] < lower[axis] || point[axis] > upper[axis])
            return false;
    return true;
}

bool MBoundingBox::intersects(const MBoundingBox& box, double tol) const
{
    for (int axis = 0; axis < 3; ++axis)
        if (lower[axis] - tol > box.upper[axis] + tol || box.lower[axis] - tol > upper[axis] + tol)
            return false;
    return true;
}

double MBoundingBox::width() const
{
    return std::max(upper[0] - lower[0], 0.0);
}

double MBoundingBox::height() const
{
    return std::max(upper[1] - lower[1], 0.0);
}

double MBoundingBox::depth() const
{
    return std::max(upper[2] - lower[2], 0.0);
}

MPoint MBoundingBox::center() const
{
    const MPoint low = min();
    const MPoint high = max();
    return MPoint((low.x + high.x) / 2.0, (low.y + high.y) / 2.0, (low.z + high.z) / 2.0);
}

MPoint MBoundingBox::min() const
{
    return lower[0] > upper[0] ? MPoint::origin : MPoint(lower[0], lower[1], lower[2]);
}

MPoint MBoundingBox::max() const
{
    return lower[0] > upper[0] ? MPoint::origin : MPoint(upper[0], upper[1], upper[2]);
}
