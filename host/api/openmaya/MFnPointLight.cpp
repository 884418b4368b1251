// MFnPointLight: point lights.
#include <maya/MFnPointLight.h>

#include "support/shapeSet.h"

TVX_SHAPE_SET(MFnPointLight, MFn::kPointLight)
TVX_LIGHT_CREATION(MFnPointLight, "pointLight")
