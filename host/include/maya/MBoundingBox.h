// MBoundingBox: a box along the axes.
#pragma once

#include <maya/MPoint.h>
#include <maya/MTypes.h>

class MMatrix;

/// A box along the axes, given by its two extreme corners.
class OPENMAYA_EXPORT MBoundingBox
{
public:
    /// An empty box at the origin.
    MBoundingBox();
    MBoundingBox(const MBoundingBox& src);

    /// The box that has these two as opposite corners.
    MBoundingBox(const MPoint& corner1, const MPoint& corner2);
    ~MBoundingBox();

    MBoundingBox& operator=(const MBoundingBox& other);

    /// Back to the empty box.
    void clear();

    /// Becomes the box around its eight corners after the transformation.
    void transformUsing(const MMatrix& matrix);

    /// Grows to hold a point or another box.
    void expand(const MPoint& point);
    void expand(const MBoundingBox& box);

    /// Whether the point is inside or on the border.
    bool contains(const MPoint& point) const;

    /// Whether the two share a point, when each is grown by the tolerance.
    bool intersects(const MBoundingBox& box, double tol = 0.0) const;

    /// Size along x, y (height) and z (depth).
    double width() const;
    double height() const;
    double depth() const;
    MPoint center() const;
    MPoint min() const;
    MPoint max() const;

private:
    friend class tvxAccess;

    double lower[3];
    double upper[3];
};
