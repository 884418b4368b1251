// MFnMesh: the sets of texture coordinates of a mesh. What they hold is in MFnMeshUvs.cpp.
#include <maya/MFnMesh.h>

#include "support/fnMesh.h"
#include "support/meshSets.h"
#include "support/notImplemented.h"

#include <maya/MIntArray.h>
#include <maya/MUintArray.h>

using namespace tvxhost;
using api::failure;
using api::MeshTarget;
using api::StatusText;
using api::targetOf;
using api::UvKind;
using engine::MeshData;
using engine::UvSet;

namespace {

MStatus requireUvSet(const MFnMesh& set, const MString& name)
{
    return api::withSet<UvKind>(targetOf(set), &name,
                                [](const MeshData&, const UvSet&) -> MStatus { return MS::kSuccess; });
}

/// Sets of single instances are more than the host does.
MStatus refuseInstances(const char* function, const MUintArray* instances)
{
    return instances && instances->length() > 0 ? api::notImplemented(function) : MStatus();
}

MStatus createSet(const MFnMesh& set, const char* function, std::string& name, MDGModifier* modifier,
                  const MUintArray* instances)
{
    const MStatus status = refuseInstances(function, instances);
    return status ? api::addSet<UvKind>(targetOf(set), name, UvSet(), modifier) : status;
}

/// A set of mesh data; those of shapes are made by other members.
MStatus createDataSet(const MFnMesh& set, std::string& name)
{
    const MeshTarget target = targetOf(set);
    return target.shape() ? failure(StatusText::objectIsIncompatible)
                          : api::addSet<UvKind>(target, name, UvSet(), nullptr);
}

/// Into a set that is there, or into a new one when there is none of that name.
MStatus copySet(const MFnMesh& set, const std::string& from, std::string& to, MDGModifier* modifier)
{
    const MeshTarget target = targetOf(set);
    const MeshData* mesh = target.mesh();
    if (!mesh)
        return target.status();
    const UvSet* source = engine::findSet(mesh->uvSets, from);
    if (!source || from == to)
        return failure(StatusText::itemNotFound);
    const UvSet* old = engine::findSet(mesh->uvSets, to);
    if (!old)
        return api::addSet<UvKind>(target, to, *source, modifier);
    const auto place = static_cast<std::size_t>(old - mesh->uvSets.data());
    return api::makeChange(modifier, [&, copy = *source] {
        return target.editSets([&](MeshData& changed) {
            changed.uvSets[place].values = copy.values;
            changed.uvSets[place].used = copy.used;
        });
    });
}

MStatus renameSet(const MeshTarget& target, const std::string& from, const std::string& to,
                  MDGModifier* modifier)
{
    if (to.empty() || engine::findSet(target.mesh()->uvSets, to))
        return failure(StatusText::unexpectedFailure);
    const bool wasCurrent = api::currentSetName<UvKind>(target, *target.mesh()) == from;
    return api::makeChange(modifier, [&] {
        const MStatus status = target.editSets([&](MeshData& changed) {
            for (UvSet& uvs : changed.uvSets)
                if (uvs.name == from)
                    uvs.name = to;
        });
        return status && wasCurrent ? api::makeCurrent<UvKind>(target, to) : status;
    });
}

MString currentName(const MFnMesh& set, MStatus* returnStatus)
{
    const MeshTarget target = targetOf(set);
    const MeshData* mesh = target.mesh();
    api::give(returnStatus, target.status());
    return mesh ? tvxAccess::string(api::currentSetName<UvKind>(target, *mesh)) : MString();
}

/// The name of a set that was made; empty when it was not.
MString made(const std::string& name, const MStatus& status, MStatus* returnStatus)
{
    api::give(returnStatus, status);
    return status ? tvxAccess::string(name) : MString();
}

} // namespace

int MFnMesh::numUVSets(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::numUVSets", ReturnStatus, 0);
    return api::readMesh(*this, ReturnStatus, [](const MeshData& mesh) { return mesh.uvSets.size(); });
}

MStatus MFnMesh::createUVSet(MString& uvSetName, MDGModifier* modifier, const MUintArray* instances)
{
    TVX_API_CALL("MFnMesh::createUVSet");
    std::string name = tvxAccess::text(uvSetName);
    const MStatus status =
        createSet(*this, "MFnMesh::createUVSet for single instances", name, modifier, instances);
    if (status)
        uvSetName = tvxAccess::string(name);
    return status;
}

MString MFnMesh::createUVSetWithName(const MString& uvSetName, MDGModifier* modifier, MStatus* ReturnStatus,
                                     const MUintArray* instances)
{
    TVX_API_CALL_OR("MFnMesh::createUVSetWithName", ReturnStatus, MString());
    std::string name = tvxAccess::text(uvSetName);
    const MStatus status =
        createSet(*this, "MFnMesh::createUVSetWithName for single instances", name, modifier, instances);
    return made(name, status, ReturnStatus);
}

MStatus MFnMesh::createUVSetDataMesh(MString& uvSetName)
{
    TVX_API_CALL("MFnMesh::createUVSetDataMesh");
    std::string name = tvxAccess::text(uvSetName);
    const MStatus status = createDataSet(*this, name);
    if (status)
        uvSetName = tvxAccess::string(name);
    return status;
}

MString MFnMesh::createUVSetDataMeshWithName(const MString& uvSetName, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::createUVSetDataMeshWithName", ReturnStatus, MString());
    std::string name = tvxAccess::text(uvSetName);
    const MStatus status = createDataSet(*this, name);
    return made(name, status, ReturnStatus);
}

MStatus MFnMesh::copyUVSet(const MString& fromName, MString& toName, MDGModifier* modifier)
{
    TVX_API_CALL("MFnMesh::copyUVSet");
    std::string name = tvxAccess::text(toName);
    const MStatus status = copySet(*this, tvxAccess::text(fromName), name, modifier);
    if (status)
        toName = tvxAccess::string(name);
    return status;
}

MString MFnMesh::copyUVSetWithName(const MString& fromName, const MString& toName, MDGModifier* modifier,
                                   MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::copyUVSetWithName", ReturnStatus, MString());
    std::string name = tvxAccess::text(toName);
    const MStatus status = copySet(*this, tvxAccess::text(fromName), name, modifier);
    return made(name, status, ReturnStatus);
}

MStatus MFnMesh::renameUVSet(const MString& origName, const MString& newName, MDGModifier* modifier)
{
    TVX_API_CALL("MFnMesh::renameUVSet");
    const MStatus status = requireUvSet(*this, origName);
    return status ? renameSet(targetOf(*this), tvxAccess::text(origName), tvxAccess::text(newName), modifier)
                  : status;
}

MStatus MFnMesh::deleteUVSet(const MString& setName, MDGModifier* modifier, MSelectionList*)
{
    TVX_API_CALL("MFnMesh::deleteUVSet");
    return api::withSet<UvKind>(targetOf(*this), &setName, [&](const MeshData& mesh, const UvSet& set) {
        return &set == &mesh.uvSets.front()
                   ? failure(StatusText::unexpectedFailure)
                   : api::removeSet<UvKind>(targetOf(*this), tvxAccess::text(setName), modifier);
    });
}

MStatus MFnMesh::setCurrentUVSetName(const MString& setName, MDGModifier* modifier, MSelectionList*)
{
    TVX_API_CALL("MFnMesh::setCurrentUVSetName");
    const MStatus status = requireUvSet(*this, setName);
    return status ? api::makeChange(
                        modifier,
                        [&] { return api::makeCurrent<UvKind>(targetOf(*this), tvxAccess::text(setName)); })
                  : status;
}

MString MFnMesh::currentUVSetName(MStatus* ReturnStatus, int) const
{
    TVX_API_CALL_OR("MFnMesh::currentUVSetName", ReturnStatus, MString());
    return currentName(*this, ReturnStatus);
}

MStatus MFnMesh::getCurrentUVSetName(MString& setName, int) const
{
    TVX_API_CALL("MFnMesh::getCurrentUVSetName");
    MStatus status;
    const MString name = currentName(*this, &status);
    if (status)
        setName = name;
    return status;
}

MStatus MFnMesh::getUVSetNames(MStringArray& setNames) const
{
    TVX_API_CALL("MFnMesh::getUVSetNames");
    return api::giveSetNames<UvKind>(targetOf(*this), setNames);
}

MStatus MFnMesh::getUVSetFamilyNames(MStringArray& familyNames) const
{
    TVX_API_CALL("MFnMesh::getUVSetFamilyNames");
    return api::giveSetNames<UvKind>(targetOf(*this), familyNames);
}

MStatus MFnMesh::getUVSetsInFamily(const MString& familyName, MStringArray& setNames) const
{
    TVX_API_CALL("MFnMesh::getUVSetsInFamily");
    const MStatus status = requireUvSet(*this, familyName);
    if (!status)
        return status;
    setNames.clear();
    setNames.append(familyName);
    return status;
}

bool MFnMesh::isUVSetPerInstance(const MString& name, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::isUVSetPerInstance", ReturnStatus, false);
    api::give(ReturnStatus, requireUvSet(*this, name));
    return false;
}

MStatus MFnMesh::getAssociatedUVSetInstances(const MString& uvSetName, MIntArray& instances) const
{
    TVX_API_CALL("MFnMesh::getAssociatedUVSetInstances");
    const MStatus status = requireUvSet(*this, uvSetName);
    if (status)
        instances.clear();
    return status;
}

MStatus MFnMesh::getFaceUVSetNames(int polygonId, MStringArray& setNames) const
{
    TVX_API_CALL("MFnMesh::getFaceUVSetNames");
    return api::withFace(*this, polygonId, [&](const MeshData& mesh, std::size_t face) -> MStatus {
        api::giveFaceSetNames(mesh, static_cast<std::int32_t>(face), setNames);
        return MS::kSuccess;
    });
}

bool MFnMesh::getUVSetIndex(const MString* uvSetName, int& uvSet) const
{
    return api::findSetNumber<UvKind>(targetOf(*this), uvSetName, uvSet);
}
