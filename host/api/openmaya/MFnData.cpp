// MFnData: what all data objects have.
#include <maya/MFnData.h>

#include "support/dataSet.h"

MFnData::MFnData() {}

TVX_FUNCTION_SET(MFnData, MFn::kData)
