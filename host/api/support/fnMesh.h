// What the files of MFnMesh share.
#pragma once

#include "dagSet.h"
#include "meshTarget.h"

class MFnMesh;

namespace tvxhost::api {

/// What a set is attached to, and its path when the set was built on one.
MeshTarget targetOf(const MFnMesh& set);

} // namespace tvxhost::api
