// MFnStringArrayData: an array of texts as an object.
#include <maya/MFnStringArrayData.h>
#include <maya/MStringArray.h>

#include "support/dataSet.h"

TVX_ARRAY_DATA_SET(MFnStringArrayData, MFn::kStringArrayData, StringArrayData, MStringArray, MString,
                   const MString&, const MString&)
