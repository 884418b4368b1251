// MFnVectorArrayData: an array of vectors as an object.
#include <maya/MFnVectorArrayData.h>
#include <maya/MVectorArray.h>

#include "support/dataSet.h"

TVX_ARRAY_DATA_SET(MFnVectorArrayData, MFn::kVectorArrayData, VectorArrayData, MVectorArray, MVector,
                   MVector&, const MVector&)
