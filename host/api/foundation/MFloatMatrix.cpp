// MFloatMatrix: 4 x 4 floats for row vectors.
#include <maya/MFloatMatrix.h>

#include "support/matrixMembers.h"

TVX_MATRIX_MEMBERS(MFloatMatrix, float)
