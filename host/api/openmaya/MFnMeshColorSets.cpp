// MFnMesh: the sets of colours of a mesh. What they hold is in MFnMeshColors.cpp.
#include <maya/MFnMesh.h>

#include "support/meshColors.h"
#include "support/setMembers.h"

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

} // namespace

int MFnMesh::numColorSets(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::numColorSets", ReturnStatus, 0);
    return api::readMesh(*this, ReturnStatus, [](const MeshData& mesh) { return mesh.colorSets.size(); });
}

MStatus MFnMesh::createColorSet(MString& colorSetName, MDGModifier* modifier, const MUintArray* instances)
{
    TVX_API_CALL("MFnMesh::createColorSet");
    return api::createSet<ColorKind>(*this, "MFnMesh::createColorSet for single instances", colorSetName,
                                     ColorSet(), modifier, instances);
}

MStatus MFnMesh::createColorSet(MString& colorSetName, MDGModifier* modifier, bool clamped,
                                MColorRepresentation rep, const MUintArray* instances)
{
    TVX_API_CALL("MFnMesh::createColorSet");
    return api::createSet<ColorKind>(*this, "MFnMesh::createColorSet for single instances", colorSetName,
                                     setLike(clamped, rep), modifier, instances);
}

MString MFnMesh::createColorSetWithName(const MString& colorSetName, MDGModifier* modifier,
                                        const MUintArray* instances, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::createColorSetWithName", ReturnStatus, MString());
    MString name = colorSetName;
    const MStatus status = api::createSet<ColorKind>(
        *this, "MFnMesh::createColorSetWithName for single instances", name, ColorSet(), modifier, instances);
    return api::madeName(name, status, ReturnStatus);
}

MString MFnMesh::createColorSetWithName(const MString& colorSetName, MDGModifier* modifier,
                                        MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::createColorSetWithName", ReturnStatus, MString());
    MString name = colorSetName;
    const MStatus status = api::createSet<ColorKind>(*this, "", name, ColorSet(), modifier, nullptr);
    return api::madeName(name, status, ReturnStatus);
}

MStatus MFnMesh::createColorSetDataMesh(MString& colorSetName, bool clamped, MColorRepresentation rep)
{
    TVX_API_CALL("MFnMesh::createColorSetDataMesh");
    return api::createDataSet<ColorKind>(*this, colorSetName, setLike(clamped, rep));
}

MString MFnMesh::createColorSetWithNameDataMesh(const MString& colorSetName, bool clamped,
                                                MColorRepresentation rep, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::createColorSetWithNameDataMesh", ReturnStatus, MString());
    MString name = colorSetName;
    const MStatus status = api::createDataSet<ColorKind>(*this, name, setLike(clamped, rep));
    return api::madeName(name, status, ReturnStatus);
}

MStatus MFnMesh::deleteColorSet(const MString& colorSetName, MDGModifier* modifier, MSelectionList*)
{
    TVX_API_CALL("MFnMesh::deleteColorSet");
    const MStatus status = api::requireSet<ColorKind>(*this, colorSetName);
    return status ? api::removeSet<ColorKind>(targetOf(*this), tvxAccess::text(colorSetName), modifier)
                  : status;
}

MStatus MFnMesh::setCurrentColorSetName(const MString& setName, MDGModifier* modifier, MSelectionList*)
{
    TVX_API_CALL("MFnMesh::setCurrentColorSetName");
    return api::makeNamedCurrent<ColorKind>(*this, setName, modifier);
}

MString MFnMesh::currentColorSetName(int, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::currentColorSetName", ReturnStatus, MString());
    return api::currentName<ColorKind>(*this, ReturnStatus);
}

MString MFnMesh::currentColorSetName(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::currentColorSetName", ReturnStatus, MString());
    return api::currentName<ColorKind>(*this, ReturnStatus);
}

MStatus MFnMesh::getCurrentColorSetName(MString& setName, int) const
{
    TVX_API_CALL("MFnMesh::getCurrentColorSetName");
    return api::giveCurrentName<ColorKind>(*this, setName);
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
    return api::giveFamily<ColorKind>(*this, familyName, setNames);
}

bool MFnMesh::isColorSetPerInstance(const MString& name, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::isColorSetPerInstance", ReturnStatus, false);
    api::give(ReturnStatus, api::requireSet<ColorKind>(*this, name));
    return false;
}

MStatus MFnMesh::getAssociatedColorSetInstances(const MString& setName, MIntArray& instances) const
{
    TVX_API_CALL("MFnMesh::getAssociatedColorSetInstances");
    return api::giveInstances<ColorKind>(*this, setName, instances);
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
