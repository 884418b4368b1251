// MSelectionMask: which kinds of things can be selected.
#include <maya/MSelectionMask.h>
#include <maya/MString.h>

#include "support/access.h"
#include "support/apiCall.h"

#include <algorithm>
#include <array>

using namespace tvxhost::api;

namespace {

constexpr int kBitsPerWord = 64;
constexpr int kWords = 2;
constexpr int kFirstFreeBit = MSelectionMask::kSelectNParticles + 1;
using Bits = std::array<unsigned long, kWords>;

/// A kind that stands for all those from the first to the last.
struct Group
{
    MSelectionMask::SelectionType group;
    MSelectionMask::SelectionType first;
    MSelectionMask::SelectionType last;
};

constexpr Group kGroups[] = {
    {MSelectionMask::kSelectLocators, MSelectionMask::kSelectXYZLocators, MSelectionMask::kSelectUVLocators},
    {MSelectionMask::kSelectObjectsMask, MSelectionMask::kSelectHandles, MSelectionMask::kSelectSurfaces},
    {MSelectionMask::kSelectObjectsMask, MSelectionMask::kSelectFluids, MSelectionMask::kSelectNParticles},
    {MSelectionMask::kSelectVertices, MSelectionMask::kSelectMeshVerts, MSelectionMask::kSelectMeshVerts},
    {MSelectionMask::kSelectVertices, MSelectionMask::kSelectSubdivMeshPoints,
     MSelectionMask::kSelectSubdivMeshPoints},
    {MSelectionMask::kSelectEdges, MSelectionMask::kSelectMeshEdges, MSelectionMask::kSelectMeshEdges},
    {MSelectionMask::kSelectEdges, MSelectionMask::kSelectSubdivMeshEdges,
     MSelectionMask::kSelectSubdivMeshEdges},
    {MSelectionMask::kSelectFacets, MSelectionMask::kSelectMeshFaces, MSelectionMask::kSelectMeshFaces},
    {MSelectionMask::kSelectFacets, MSelectionMask::kSelectSubdivMeshFaces,
     MSelectionMask::kSelectSubdivMeshFaces},
    {MSelectionMask::kSelectMeshLines, MSelectionMask::kSelectMeshEdges,
     MSelectionMask::kSelectMeshFreeEdges},
    {MSelectionMask::kSelectMeshComponents, MSelectionMask::kSelectMeshVerts,
     MSelectionMask::kSelectMeshFaces},
    {MSelectionMask::kSelectMeshComponents, MSelectionMask::kSelectMeshUVs, MSelectionMask::kSelectMeshUVs},
    {MSelectionMask::kSelectPivots, MSelectionMask::kSelectJointPivots, MSelectionMask::kSelectRotatePivots},
    {MSelectionMask::kSelectComponentsMask, MSelectionMask::kSelectCVs, MSelectionMask::kSelectMeshUVs},
    {MSelectionMask::kSelectComponentsMask, MSelectionMask::kSelectCurveParmPoints,
     MSelectionMask::kSelectRotatePivots},
    {MSelectionMask::kSelectComponentsMask, MSelectionMask::kSelectSelectHandles,
     MSelectionMask::kSelectSelectHandles},
    {MSelectionMask::kSelectComponentsMask, MSelectionMask::kSelectSubdivMeshMaps,
     MSelectionMask::kSelectSubdivMeshMaps},
    {MSelectionMask::kSelectAnimMask, MSelectionMask::kSelectAnimCurves,
     MSelectionMask::kSelectAnimOutTangents},
    {MSelectionMask::kSelectAnimAny, MSelectionMask::kSelectAnimCurves,
     MSelectionMask::kSelectAnimOutTangents},
};

void addBit(Bits& bits, int bit)
{
    bits[static_cast<std::size_t>(bit / kBitsPerWord)] |= 1ul << (bit % kBitsPerWord);
}

Bits bitsOf(MSelectionMask::SelectionType type)
{
    Bits bits{};
    for (const Group& row : kGroups)
        if (row.group == type)
            for (int bit = row.first; bit <= row.last; ++bit)
                addBit(bits, bit);
    if (bits == Bits{})
        addBit(bits, type);
    return bits;
}

bool isType(MSelectionMask::SelectionType type)
{
    return type >= MSelectionMask::kSelectHandles && type <= MSelectionMask::kSelectNParticles;
}

MStatus noSuchType()
{
    return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
}

/// A kind that a plug-in added; a place without a name is free.
struct AddedType
{
    std::string name;
    int priority = 0;
};

constexpr std::size_t kPlaces = kWords * kBitsPerWord - kFirstFreeBit;

/// What plug-ins added in this session.
std::array<AddedType, kPlaces>& addedTypes()
{
    static std::array<AddedType, kPlaces> types;
    return types;
}

/// Null when there is none of that name; the first free place for the empty name.
AddedType* addedTypeNamed(const std::string& name)
{
    auto& types = addedTypes();
    const auto found = std::find_if(types.begin(), types.end(),
                                    [&name](const AddedType& type) { return type.name == name; });
    return found == types.end() ? nullptr : &*found;
}

} // namespace

MSelectionMask::MSelectionMask() : bits{} {}

MSelectionMask::MSelectionMask(SelectionType selType) : bits{}
{
    addMask(selType);
}

MSelectionMask::MSelectionMask(const MString& selTypeName) : bits{}
{
    const std::string& name = tvxAccess::text(selTypeName);
    const AddedType* type = name.empty() ? nullptr : addedTypeNamed(name);
    if (!type)
        return;
    const auto bit = kFirstFreeBit + static_cast<int>(type - addedTypes().data());
    bits[bit / kBitsPerWord] |= 1ul << (bit % kBitsPerWord);
}

MSelectionMask::MSelectionMask(const MSelectionMask& in) : bits{in.bits[0], in.bits[1]} {}

MSelectionMask::~MSelectionMask() = default;

MStatus MSelectionMask::setMask(SelectionType selType)
{
    TVX_API_CALL("MSelectionMask::setMask");
    if (!isType(selType))
        return noSuchType();
    *this = MSelectionMask(selType);
    return MS::kSuccess;
}

MStatus MSelectionMask::setMask(MSelectionMask& mask)
{
    TVX_API_CALL("MSelectionMask::setMask");
    *this = mask;
    return MS::kSuccess;
}

MStatus MSelectionMask::addMask(SelectionType selType)
{
    TVX_API_CALL("MSelectionMask::addMask");
    if (!isType(selType))
        return noSuchType();
    const Bits added = bitsOf(selType);
    for (std::size_t i = 0; i < kWords; ++i)
        bits[i] |= added[i];
    return MS::kSuccess;
}

bool MSelectionMask::intersects(SelectionType selType, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MSelectionMask::intersects", ReturnStatus, false);
    give(ReturnStatus, isType(selType) ? MStatus() : noSuchType());
    const MSelectionMask other = isType(selType) ? MSelectionMask(selType) : MSelectionMask();
    return ((bits[0] & other.bits[0]) | (bits[1] & other.bits[1])) != 0;
}

bool MSelectionMask::intersects(MSelectionMask& mask, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MSelectionMask::intersects", ReturnStatus, false);
    giveSuccess(ReturnStatus);
    return ((bits[0] & mask.bits[0]) | (bits[1] & mask.bits[1])) != 0;
}

MSelectionMask MSelectionMask::operator|(SelectionType selType)
{
    MSelectionMask both(*this);
    both.addMask(selType);
    return both;
}

MSelectionMask MSelectionMask::operator|(MSelectionMask& mask)
{
    MSelectionMask both(*this);
    both.bits[0] |= mask.bits[0];
    both.bits[1] |= mask.bits[1];
    return both;
}

MSelectionMask& MSelectionMask::operator=(const MSelectionMask& other)
{
    bits[0] = other.bits[0];
    bits[1] = other.bits[1];
    return *this;
}

bool MSelectionMask::registerSelectionType(const MString& selTypeName, int priority)
{
    const std::string& name = tvxAccess::text(selTypeName);
    AddedType* place = name.empty() || addedTypeNamed(name) ? nullptr : addedTypeNamed({});
    if (place)
        *place = {name, priority};
    return place != nullptr;
}

bool MSelectionMask::deregisterSelectionType(const MString& selTypeName)
{
    const std::string& name = tvxAccess::text(selTypeName);
    AddedType* place = name.empty() ? nullptr : addedTypeNamed(name);
    if (place)
        *place = AddedType();
    return place != nullptr;
}

int MSelectionMask::getSelectionTypePriority(const MString& selTypeName)
{
    const AddedType* type = addedTypeNamed(tvxAccess::text(selTypeName));
    return type ? type->priority : 0;
}
