// Transformation: the parts of a transform's matrix, and the arithmetic on them.
#pragma once

#include <maya/MEulerRotation.h>
#include <maya/MMatrix.h>
#include <maya/MPoint.h>
#include <maya/MQuaternion.h>
#include <maya/MSpace.h>
#include <maya/MVector.h>

namespace tvxhost::api {

/// The parts of a transformation for row vectors; lengths in centimetres, angles in radians.
struct Transformation
{
    MVector scale{1.0, 1.0, 1.0};
    MVector shear; ///< x by y, x by z, y by z
    MEulerRotation rotation;
    MQuaternion orientation; ///< of the axes in which the rotation is made
    MVector translation;
    MVector scalePivot;
    MVector scalePivotTranslation;
    MVector rotatePivot;
    MVector rotatePivotTranslation;

    /// scale pivot inverse, scale, shear, scale pivot, its translation, rotate pivot inverse, orientation,
    /// rotation, rotate pivot, its translation, translation.
    MMatrix matrix() const;
    MMatrix scaleMatrix() const;    ///< scale and shear
    MMatrix rotationMatrix() const; ///< orientation and rotation

    /// The part `share` (0 to 1) of the way from no transformation to this one; the pivots stay.
    Transformation partial(double share) const;

    /// Turns further: about the own axes in the spaces before the transformation, about those of the parent
    /// behind it.
    void rotateBy(const MQuaternion& turn, MSpace::Space space);
    /// Moves along the own axes in object space, along those of the parent in the others.
    void translateBy(const MVector& offset, MSpace::Space space);

    /// With `balance` the whole stays as it is, by way of the pivot's translation.
    void setScalePivot(const MVector& pivot, bool balance);
    void setRotatePivot(const MVector& pivot, bool balance);

    /// Takes a matrix apart; the order of the angles is kept. An axis without length gets scale 0.
    void decompose(const MMatrix& matrix);
};

/// Whether a transformation can be asked about a space.
inline bool isSpace(MSpace::Space space)
{
    return space > MSpace::kInvalid && space < MSpace::kLast;
}

/// The spaces behind the transformation. Parents are not known here, so the world is that of the parent.
inline bool isBehind(MSpace::Space space)
{
    return space == MSpace::kPostTransform || space == MSpace::kWorld;
}

MMatrix translationMatrix(const MVector& offset);

} // namespace tvxhost::api
