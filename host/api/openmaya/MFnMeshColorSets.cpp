// MFnMesh: the sets of colours of a mesh. What they hold is in MFnMeshColors.cpp.
#include <maya/MFnMesh.h>

#include "support/fnMesh.h"
#include "support/meshColors.h"
#include "support/meshSets.h"
#include "support/notImplemented.h"

#include <maya/MIntArray.h>
#include <maya/MUintArray.h>

using namespace tvxhost;
using api::ColorKind;
using api::failure;
using api::MeshTarget;
using api::StatusText;
using api::targetOf;
using engine::ColorParts;
using engine::ColorSet;
using engine::MeshData;

namespace {

MStatus requireColorSet(const MFnMesh& set, const MString& name)
{
    return api::withSet<ColorKind>(targetOf(set), &name,
                                   [](const MeshData&, const ColorSet&) -> MStatus { return MS::kSuccess; });
}

/// What `read(set)` gives for a set by name; `otherwise`, and why, when there is none.
template <class Value, class Read>
Value readSet(const MFnMesh& set, const MString& name, Value otherwise, MStatus* returnStatus,
              const Read& read)
{
    Value value = otherwise;
    api::give(returnStatus, api::withSet<ColorKind>(targetOf(set), &name,
                                                    [&](const MeshData&, const ColorSet& colors) -> MStatus {
                                                        value = read(colors);
                                                        return MS::kSuccess;
                                                    }));
    return value;
}

ColorSet setLike(bool clamped, MFnMesh::MColorRepresentation representation)
{
    ColorSet set;
    set.isClamped = clamped;
    set.parts = api::toEngine(representation);
    return set;
}

/// Sets of single instances are more than the host does.
MStatus createSet(const MFnMesh& set, const char* function, MString& name, const ColorSet& like,
                  MDGModifier* modifier, const MUintArray* instances)
{
    if (instances && instances->length() > 0)
        return api::notImplemented(function);
    std::string called = tvxAccess::text(name);
    const MStatus status = api::addSet<ColorKind>(targetOf(set), called, like, modifier);
    if (status)
        name = tvxAccess::string(called);
    return status;
}

/// A set of mesh data; those of shapes are made by other members.
MStatus createDataSet(const MFnMesh& set, MString& name, const ColorSet& like)
{
    return targetOf(set).shape() ? failure(StatusText::objectIsIncompatible)
                                 : createSet(set, "", name, like, nullptr, nullptr);
}

MString currentName(const MFnMesh& set, MStatus* returnStatus)
{
    const MeshTarget target = targetOf(set);
    const MeshData* mesh = target.mesh();
    api::give(returnStatus, target.status());
    return mesh ? tvxAccess::string(api::currentSetName<ColorKind>(target, *mesh)) : MString();
}

/// The name of a set that was made; empty when it was not.
MString made(const MString& name, const MStatus& status, MStatus* returnStatus)
{
    api::give(returnStatus, status);
    return status ? name : MString();
}

} // namespace

int MFnMesh::numColorSets(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::numColorSets", ReturnStatus, 0);
    return api::readMesh(*this, ReturnStatus, [](const MeshData& mesh) { return mesh.colorSets.size(); });
}

MStatus MFnMesh::createColorSet(MString& colorSetName, MDGModifier* modifier, const MUintArray* instances)
{
    TVX_API_CALL("MFnMesh::createColorSet");
    return createSet(*this, "MFnMesh::createColorSet for single instances", colorSetName, ColorSet(),
                     modifier, instances);
}

MStatus MFnMesh::createColorSet(MString& colorSetName, MDGModifier* modifier, bool clamped,
                                MColorRepresentation rep, const MUintArray* instances)
{
    TVX_API_CALL("MFnMesh::createColorSet");
    return createSet(*this, "MFnMesh::createColorSet for single instances", colorSetName,
                     setLike(clamped, rep), modifier, instances);
}

MString MFnMesh::createColorSetWithName(const MString& colorSetName, MDGModifier* modifier,
                                        const MUintArray* instances, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::createColorSetWithName", ReturnStatus, MString());
    MString name = colorSetName;
    const MStatus status = createSet(*this, "MFnMesh::createColorSetWithName for single instances", name,
                                     ColorSet(), modifier, instances);
    return made(name, status, ReturnStatus);
}

MString MFnMesh::createColorSetWithName(const MString& colorSetName, MDGModifier* modifier,
                                        MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::createColorSetWithName", ReturnStatus, MString());
    MString name = colorSetName;
    const MStatus status = createSet(*this, "", name, ColorSet(), modifier, nullptr);
    return made(name, status, ReturnStatus);
}

MStatus MFnMesh::createColorSetDataMesh(MString& colorSetName, bool clamped, MColorRepresentation rep)
{
    TVX_API_CALL("MFnMesh::createColorSetDataMesh");
    return createDataSet(*this, colorSetName, setLike(clamped, rep));
}

MString MFnMesh::createColorSetWithNameDataMesh(const MString& colorSetName, bool clamped,
                                                MColorRepresentation rep, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::createColorSetWithNameDataMesh", ReturnStatus, MString());
    MString name = colorSetName;
    const MStatus status = createDataSet(*this, name, setLike(clamped, rep));
    return made(name, status, ReturnStatus);
}

MStatus MFnMesh::deleteColorSet(const MString& colorSetName, MDGModifier* modifier, MSelectionList*)
{
    TVX_API_CALL("MFnMesh::deleteColorSet");
    const MStatus status = requireColorSet(*this, colorSetName);
    return status ? api::removeSet<ColorKind>(targetOf(*this), tvxAccess::text(colorSetName), modifier)
                  : status;
}

MStatus MFnMesh::setCurrentColorSetName(const MString& setName, MDGModifier* modifier, MSelectionList*)
{
    TVX_API_CALL("MFnMesh::setCurrentColorSetName");
    const MStatus status = requireColorSet(*this, setName);
    return status
               ? api::makeChange(
                     modifier,
                     [&] { return api::makeCurrent<ColorKind>(targetOf(*this), tvxAccess::text(setName)); })
               : status;
}

MString MFnMesh::currentColorSetName(int, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::currentColorSetName", ReturnStatus, MString());
    return currentName(*this, ReturnStatus);
}

MString MFnMesh::currentColorSetName(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::currentColorSetName", ReturnStatus, MString());
    return currentName(*this, ReturnStatus);
}

MStatus MFnMesh::getCurrentColorSetName(MString& setName, int) const
{
    TVX_API_CALL("MFnMesh::getCurrentColorSetName");
    MStatus status;
    const MString name = currentName(*this, &status);
    if (status)
        setName = name;
    return status;
}

MStatus MFnMesh::getColorSetNames(MStringArray& setNames) const
{
    TVX_API_CALL("MFnMesh::getColorSetNames");
    return api::giveSetNames<ColorKind>(targetOf(*this), setNames);
}

MStatus MFnMesh::getColorSetFamilyNames(MStringArray& familyNames) const
{
    TVX_API_CALL("MFnMesh::getColorSetFamilyNames");
    return api::giveSetNames<ColorKind>(targetOf(*this), familyNames);
}

MStatus MFnMesh::getColorSetsInFamily(const MString& familyName, MStringArray& setNames) const
{
    TVX_API_CALL("MFnMesh::getColorSetsInFamily");
    const MStatus status = requireColorSet(*this, familyName);
    if (!status)
        return status;
    setNames.clear();
    setNames.append(familyName);
    return status;
}

bool MFnMesh::isColorSetPerInstance(const MString& name, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::isColorSetPerInstance", ReturnStatus, false);
    api::give(ReturnStatus, requireColorSet(*this, name));
    return false;
}

MStatus MFnMesh::getAssociatedColorSetInstances(const MString& setName, MIntArray& instances) const
{
    TVX_API_CALL("MFnMesh::getAssociatedColorSetInstances");
    const MStatus status = requireColorSet(*this, setName);
    if (status)
        instances.clear();
    return status;
}

bool MFnMesh::hasColorChannels(const MString& colorSet, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::hasColorChannels", ReturnStatus, false);
    return readSet(*this, colorSet, false, ReturnStatus,
                   [](const ColorSet& set) { return set.parts != ColorParts::alpha; });
}

bool MFnMesh::hasAlphaChannels(const MString& colorSet, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::hasAlphaChannels", ReturnStatus, false);
    return readSet(*this, colorSet, false, ReturnStatus,
                   [](const ColorSet& set) { return set.parts != ColorParts::rgb; });
}

MFnMesh::MColorRepresentation MFnMesh::getColorRepresentation(const MString& colorSet,
                                                              MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::getColorRepresentation", ReturnStatus, kAlpha);
    return readSet(*this, colorSet, kAlpha, ReturnStatus,
                   [](const ColorSet& set) { return static_cast<MColorRepresentation>(set.parts); });
}

bool MFnMesh::isColorClamped(const MString& colorSet, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::isColorClamped", ReturnStatus, false);
    return readSet(*this, colorSet, false, ReturnStatus, [](const ColorSet& set) { return set.isClamped; });
}

MStatus MFnMesh::setIsColorClamped(const MString& colorSet, bool clamped)
{
    TVX_API_CALL("MFnMesh::setIsColorClamped");
    return api::changeSet<ColorKind>(
        targetOf(*this), &colorSet, [](const MeshData&, const ColorSet&) -> MStatus { return MS::kSuccess; },
        [&](MeshData&, ColorSet& set) { set.isClamped = clamped; });
}

bool MFnMesh::getColorSetIndex(const MString* colorSetName, int& colorSet) const
{
    return api::findSetNumber<ColorKind>(targetOf(*this), colorSetName, colorSet);
}
