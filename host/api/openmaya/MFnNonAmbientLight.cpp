// MFnNonAmbientLight: lights that come from somewhere.
#include <maya/MFnNonAmbientLight.h>

#include "support/attributeMembers.h"
#include "support/shapeSet.h"

TVX_SHAPE_SET(MFnNonAmbientLight, MFn::kNonAmbientLight)

TVX_NUMBER_MEMBER(MFnNonAmbientLight, short, decayRate, setDecayRate, const short&, "decayRate")
