// MFnMesh: the shading groups of faces.
#include <maya/MFnMesh.h>

#include "engine/faceShading.h"
#include "support/fnMesh.h"
#include "support/meshIteration.h"

#include <maya/MIntArray.h>
#include <maya/MObjectArray.h>

using namespace tvxhost;

MStatus MFnMesh::getConnectedShaders(unsigned int instanceNumber, MObjectArray& shaders,
                                     MIntArray& indices) const
{
    TVX_API_CALL("MFnMesh::getConnectedShaders");
    return api::withMesh(*this, [&](const engine::MeshData& mesh) {
        engine::DagNode* shape = api::dagNodeOf(*this);
        if (!shape)
            return api::failure(api::StatusText::objectIsIncompatible);
        const MStatus status = api::requireThere(instanceNumber < engine::DagPath::allTo(*shape).size());
        if (!status)
            return status;
        const engine::FaceShading shading =
            engine::shadingOf(*shape, static_cast<int>(instanceNumber), mesh.faces.size());
        shaders.clear();
        for (engine::Node* group : shading.groups)
            shaders.append(tvxAccess::handle(group));
        api::giveAll(indices, shading.byFace);
        return status;
    });
}
