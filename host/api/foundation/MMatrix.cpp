// MMatrix: 4 x 4 doubles for row vectors.
#include <maya/MMatrix.h>

#include "support/matrixMembers.h"

const MMatrix MMatrix::identity;

TVX_MATRIX_MEMBERS(MMatrix, double)

// The determinant is measured against the largest one that rows of these lengths can have, so that a small
// scale alone does not make a matrix singular.
bool MMatrix::isSingular() const
{
    double largest = 1.0;
    for (const auto& row : matrix)
        largest *= std::sqrt(row[0] * row[0] + row[1] * row[1] + row[2] * row[2] + row[3] * row[3]);
    return std::fabs(det4x4()) <= MMatrix_kTol * largest;
}
