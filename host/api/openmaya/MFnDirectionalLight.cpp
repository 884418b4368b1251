// MFnDirectionalLight: directional lights.
#include <maya/MFnDirectionalLight.h>

#include "support/attributeMembers.h"
#include "support/shapeSet.h"

TVX_SHAPE_SET(MFnDirectionalLight, MFn::kDirectionalLight)
TVX_LIGHT_CREATION(MFnDirectionalLight, "directionalLight")

TVX_NUMBER_MEMBER(MFnDirectionalLight, float, shadowAngle, setShadowAngle, const float&, "lightAngle")
TVX_NUMBER_MEMBER(MFnDirectionalLight, bool, useLightPosition, setUseLightPosition, bool, "useLightPosition")
