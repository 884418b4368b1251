// MFnAmbientLight: ambient lights.
#include <maya/MFnAmbientLight.h>

#include "support/attributeMembers.h"
#include "support/shapeSet.h"

TVX_SHAPE_SET(MFnAmbientLight, MFn::kAmbientLight)
TVX_LIGHT_CREATION(MFnAmbientLight, "ambientLight")

TVX_NUMBER_MEMBER(MFnAmbientLight, float, ambientShade, setAmbientShade, const float&, "ambientShade")
TVX_NUMBER_MEMBER(MFnAmbientLight, float, shadowRadius, setShadowRadius, const float&, "shadowRadius")
TVX_NUMBER_MEMBER(MFnAmbientLight, bool, castSoftShadows, setCastSoftShadows, const bool&, "castSoftShadows")
