// MItMeshVertex: what the host cannot do; each answers kNotImplemented and says so once.
#include <maya/MItMeshVertex.h>

#include "support/apiCall.h"
#include "support/notImplemented.h"

using tvxhost::api::notImplemented;

bool MItMeshVertex::updateColorSet(const MString*, int&) const
{
    notImplemented("MItMeshVertex::updateColorSet");
    return false;
}

void MItMeshVertex::resetColorSetToPrevious(const MString*, int) const
{
    notImplemented("MItMeshVertex::resetColorSetToPrevious");
}
