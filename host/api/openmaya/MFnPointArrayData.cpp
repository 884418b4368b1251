// MFnPointArrayData: an array of points as an object.
#include <maya/MFnPointArrayData.h>
#include <maya/MPointArray.h>

#include "support/dataSet.h"

TVX_ARRAY_DATA_SET(MFnPointArrayData, MFn::kPointArrayData, PointArrayData, MPointArray, MPoint, MPoint&,
                   const MPoint&)
