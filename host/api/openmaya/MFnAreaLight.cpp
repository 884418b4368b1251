// MFnAreaLight: area lights.
#include <maya/MFnAreaLight.h>

#include "support/shapeSet.h"

TVX_SHAPE_SET(MFnAreaLight, MFn::kAreaLight)
TVX_LIGHT_CREATION(MFnAreaLight, "areaLight")
