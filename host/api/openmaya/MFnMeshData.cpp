// MFnMeshData: mesh data as an object.
#include <maya/MFnMeshData.h>

#include "engine/geometry/meshData.h"
#include "support/dataSet.h"

TVX_FUNCTION_SET(MFnMeshData, MFn::kMeshData)

MObject MFnMeshData::create(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMeshData::create", ReturnStatus, MObject());
    const tvxhost::engine::Ref<tvxhost::engine::MeshData> data(new tvxhost::engine::MeshData);
    return tvxhost::api::createData(*this, data, ReturnStatus);
}
