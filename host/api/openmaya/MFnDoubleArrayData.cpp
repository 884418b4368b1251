// MFnDoubleArrayData: an array of numbers as an object.
#include <maya/MDoubleArray.h>
#include <maya/MFnDoubleArrayData.h>

#include "support/dataSet.h"

TVX_ARRAY_DATA_SET(MFnDoubleArrayData, MFn::kDoubleArrayData, DoubleArrayData, MDoubleArray, double, double,
                   double)
