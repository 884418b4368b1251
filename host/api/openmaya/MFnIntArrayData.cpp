// MFnIntArrayData: an array of integers as an object.
#include <maya/MFnIntArrayData.h>
#include <maya/MIntArray.h>

#include "support/dataSet.h"

TVX_ARRAY_DATA_SET(MFnIntArrayData, MFn::kIntArrayData, IntArrayData, MIntArray, int, int, int)
