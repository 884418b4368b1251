// MFnMesh: the sets of texture coordinates of a mesh. What they hold is in MFnMeshUvs.cpp.
#include <maya/MFnMesh.h>

#include "support/setMembers.h"

using namespace tvxhost;
using api::failure;
using api::MeshTarget;
using api::StatusText;
using api::targetOf;
using api::UvKind;
using engine::MeshData;
using engine::UvSet;

namespace {

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

} // namespace

int MFnMesh::numUVSets(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::numUVSets", ReturnStatus, 0);
    return api::readMesh(*this, ReturnStatus, [](const MeshData& mesh) { return mesh.uvSets.size(); });
}

MStatus MFnMesh::createUVSet(MString& uvSetName, MDGModifier* modifier, const MUintArray* instances)
{
    TVX_API_CALL("MFnMesh::createUVSet");
    return api::createSet<UvKind>(*this, "MFnMesh::createUVSet for single instances", uvSetName, UvSet(),
                                  modifier, instances);
}

MString MFnMesh::createUVSetWithName(const MString& uvSetName, MDGModifier* modifier, MStatus* ReturnStatus,
                                     const MUintArray* instances)
{
    TVX_API_CALL_OR("MFnMesh::createUVSetWithName", ReturnStatus, MString());
    MString name = uvSetName;
    const MStatus status = api::createSet<UvKind>(*this, "MFnMesh::createUVSetWithName for single instances",
                                                  name, UvSet(), modifier, instances);
    return api::madeName(name, status, ReturnStatus);
}

MStatus MFnMesh::createUVSetDataMesh(MString& uvSetName)
{
    TVX_API_CALL("MFnMesh::createUVSetDataMesh");
    return api::createDataSet<UvKind>(*this, uvSetName, UvSet());
}

MString MFnMesh::createUVSetDataMeshWithName(const MString& uvSetName, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::createUVSetDataMeshWithName", ReturnStatus, MString());
    MString name = uvSetName;
    const MStatus status = api::createDataSet<UvKind>(*this, name, UvSet());
    return api::madeName(name, status, ReturnStatus);
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
    return api::madeName(tvxAccess::string(name), status, ReturnStatus);
}

MStatus MFnMesh::renameUVSet(const MString& origName, const MString& newName, MDGModifier* modifier)
{
    TVX_API_CALL("MFnMesh::renameUVSet");
    const MStatus status = api::requireSet<UvKind>(*this, origName);
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
    return api::makeNamedCurrent<UvKind>(*this, setName, modifier);
}

MString MFnMesh::currentUVSetName(MStatus* ReturnStatus, int) const
{
    TVX_API_CALL_OR("MFnMesh::currentUVSetName", ReturnStatus, MString());
    return api::currentName<UvKind>(*this, ReturnStatus);
}

MStatus MFnMesh::getCurrentUVSetName(MString& setName, int) const
{
    TVX_API_CALL("MFnMesh::getCurrentUVSetName");
    return api::giveCurrentName<UvKind>(*this, setName);
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
    return api::giveFamily<UvKind>(*this, familyName, setNames);
}

bool MFnMesh::isUVSetPerInstance(const MString& name, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::isUVSetPerInstance", ReturnStatus, false);
    api::give(ReturnStatus, api::requireSet<UvKind>(*this, name));
    return false;
}

MStatus MFnMesh::getAssociatedUVSetInstances(const MString& uvSetName, MIntArray& instances) const
{
    TVX_API_CALL("MFnMesh::getAssociatedUVSetInstances");
    return api::giveInstances<UvKind>(*this, uvSetName, instances);
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
