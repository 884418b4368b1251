// Members of MFnMesh that are the same for sets of texture coordinates and of colours.
#pragma once

#include "fnMesh.h"
#include "meshSets.h"
#include "notImplemented.h"

#include <maya/MIntArray.h>
#include <maya/MString.h>
#include <maya/MUintArray.h>

namespace tvxhost::api {

/// kInvalidParameter when there is no set of that name.
template <class Kind>
MStatus requireSet(const MFnMesh& fn, const MString& name)
{
    return withSet<Kind>(
        targetOf(fn), &name,
        [](const engine::MeshData&, const typename Kind::Set&) -> MStatus { return MS::kSuccess; });
}

/// Adds a set like a model and tells what it is called. Sets of single instances are more than the host does:
/// `function` says so.
template <class Kind>
MStatus createSet(const MFnMesh& fn, const char* function, MString& name, const typename Kind::Set& model,
                  MDGModifier* modifier, const MUintArray* instances)
{
    if (instances && instances->length() > 0)
        return notImplemented(function);
    std::string called = tvxAccess::text(name);
    const MStatus status = addSet<Kind>(targetOf(fn), called, model, modifier);
    if (status)
        name = tvxAccess::string(called);
    return status;
}

/// A set of mesh data; those of shapes are made by other members.
template <class Kind>
MStatus createDataSet(const MFnMesh& fn, MString& name, const typename Kind::Set& model)
{
    return targetOf(fn).shape() ? failure(StatusText::objectIsIncompatible)
                                : createSet<Kind>(fn, "", name, model, nullptr, nullptr);
}

/// The name of a set that was made; empty when it was not.
inline MString madeName(const MString& name, const MStatus& status, MStatus* returnStatus)
{
    give(returnStatus, status);
    return status ? name : MString();
}

template <class Kind>
MStatus makeNamedCurrent(const MFnMesh& fn, const MString& name, MDGModifier* modifier)
{
    const MStatus status = requireSet<Kind>(fn, name);
    if (!status)
        return status;
    return makeChange(modifier, [&] { return makeCurrent<Kind>(targetOf(fn), tvxAccess::text(name)); });
}

template <class Kind>
MStatus giveCurrentName(const MFnMesh& fn, MString& name)
{
    return withMesh(fn, [&](const engine::MeshData& mesh) -> MStatus {
        name = tvxAccess::string(currentSetName<Kind>(targetOf(fn), mesh));
        return MS::kSuccess;
    });
}

template <class Kind>
MString currentName(const MFnMesh& fn, MStatus* returnStatus)
{
    MString name;
    give(returnStatus, giveCurrentName<Kind>(fn, name));
    return name;
}

// Families are sets that instances have under one name; here each set is one.

template <class Kind>
MStatus giveFamily(const MFnMesh& fn, const MString& family, MStringArray& names)
{
    const MStatus status = requireSet<Kind>(fn, family);
    if (!status)
        return status;
    names.clear();
    names.append(family);
    return status;
}

template <class Kind>
MStatus giveInstances(const MFnMesh& fn, const MString& name, MIntArray& instances)
{
    const MStatus status = requireSet<Kind>(fn, name);
    if (status)
        instances.clear();
    return status;
}

} // namespace tvxhost::api
