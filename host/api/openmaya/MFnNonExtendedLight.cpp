// MFnNonExtendedLight: lights without an extent.
#include <maya/MFnNonExtendedLight.h>

#include "support/attributeMembers.h"
#include "support/shapeSet.h"

TVX_SHAPE_SET(MFnNonExtendedLight, MFn::kNonExtendedLight)

TVX_NUMBER_MEMBER(MFnNonExtendedLight, float, shadowRadius, setShadowRadius, const float&, "lightRadius")
TVX_NUMBER_MEMBER(MFnNonExtendedLight, bool, useDepthMapShadows, setUseDepthMapShadows, const bool&,
                  "useDepthMapShadows")
TVX_NUMBER_MEMBER(MFnNonExtendedLight, short, depthMapFilterSize, setDepthMapFilterSize, const short&,
                  "dmapFilterSize")
TVX_NUMBER_MEMBER(MFnNonExtendedLight, short, depthMapResolution, setDepthMapResolution, const short&,
                  "dmapResolution")
TVX_NUMBER_MEMBER(MFnNonExtendedLight, float, depthMapBias, setDepthMapBias, const float&, "dmapBias")
TVX_NUMBER_MEMBER(MFnNonExtendedLight, bool, useDepthMapAutoFocus, setUseDepthMapAutoFocus, bool,
                  "useDmapAutoFocus")
TVX_NUMBER_MEMBER(MFnNonExtendedLight, float, depthMapWidthFocus, setDepthMapWidthFocus, float,
                  "dmapWidthFocus")
TVX_NUMBER_MEMBER(MFnNonExtendedLight, float, depthMapFocus, setDepthMapFocus, float, "dmapFocus")
TVX_NUMBER_MEMBER(MFnNonExtendedLight, bool, castSoftShadows, setCastSoftShadows, const bool&,
                  "castSoftShadows")
