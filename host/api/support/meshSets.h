// What the members about sets of texture coordinates and those about sets of colours share.
#pragma once

#include "access.h"
#include "meshTarget.h"
#include "modifier.h"

#include "engine/geometry/triangleTree.h"
#include "engine/nameTable.h"
#include "engine/plug.h"

#include <maya/MStringArray.h>

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class MDGModifier;
class MFloatArray;

namespace tvxhost::api {

/// A kind of sets: where a mesh has them, what says which is the current one, and how new ones are called.
struct UvKind
{
    using Set = engine::UvSet;
    static constexpr auto sets = &engine::MeshData::uvSets;
    static constexpr auto current = &engine::MeshData::currentUvSet;
    static constexpr auto currentOfShape = &engine::currentUvSet;
    static constexpr const char* currentAttribute = engine::kCurrentUvSet;
    static constexpr const char* newName = "uvSet1";
};

struct ColorKind
{
    using Set = engine::ColorSet;
    static constexpr auto sets = &engine::MeshData::colorSets;
    static constexpr auto current = &engine::MeshData::currentColorSet;
    static constexpr auto currentOfShape = &engine::currentColorSet;
    static constexpr const char* currentAttribute = engine::kCurrentColorSet;
    static constexpr const char* newName = "colorSet1";
};

// Finding sets

/// Empty when the mesh has no sets of the kind.
template <class Kind>
std::string currentSetName(const MeshTarget& target, const engine::MeshData& mesh)
{
    if (engine::DagNode* shape = target.shape())
        return Kind::currentOfShape(*shape);
    const auto& sets = mesh.*Kind::sets;
    const std::string& named = mesh.*Kind::current;
    if (engine::findSet(sets, named))
        return named;
    return sets.empty() ? std::string() : sets.front().name;
}

/// The set of a name, null: the current one. Null when there is none.
template <class Kind>
const typename Kind::Set* findSet(const MeshTarget& target, const engine::MeshData& mesh, const MString* name)
{
    const std::string wanted = name ? tvxAccess::text(*name) : currentSetName<Kind>(target, mesh);
    return engine::findSet(mesh.*Kind::sets, wanted);
}

/// Runs `use(mesh, set)`, which returns a status, for a set of a mesh by name (null: the current one);
/// kInvalidParameter when there is none.
template <class Kind, class Use>
MStatus withSet(const MeshTarget& target, const engine::MeshData& mesh, const MString* name, const Use& use)
{
    const auto* set = findSet<Kind>(target, mesh, name);
    return set ? use(mesh, *set) : failure(StatusText::itemNotFound);
}

/// The same for the mesh as it is now.
template <class Kind, class Use>
MStatus withSet(const MeshTarget& target, const MString* name, const Use& use)
{
    const engine::MeshData* mesh = target.mesh();
    return mesh ? withSet<Kind>(target, *mesh, name, use) : target.status();
}

/// For reading: where a mesh has no sets, the current one is one without values.
template <class Kind, class Use>
MStatus readSet(const MeshTarget& target, const engine::MeshData& mesh, const MString* name, const Use& use)
{
    return !name && (mesh.*Kind::sets).empty() ? use(mesh, typename Kind::Set())
                                               : withSet<Kind>(target, mesh, name, use);
}

/// Changes a set by `change(mesh, set)` unless `check(mesh, set)` returns a failure.
template <class Kind, class Check, class Change>
MStatus changeSet(const MeshTarget& target, const MString* name, const Check& check, const Change& change)
{
    return withSet<Kind>(target, name, [&](const engine::MeshData& mesh, const typename Kind::Set& set) {
        if (const MStatus status = check(mesh, set); !status)
            return status;
        const auto place = static_cast<std::size_t>(&set - (mesh.*Kind::sets).data());
        return target.editSets(
            [&](engine::MeshData& changed) { change(changed, (changed.*Kind::sets)[place]); });
    });
}

/// kInvalidParameter unless it holds.
inline MStatus requireFit(bool fits)
{
    return fits ? MStatus() : failure(StatusText::noElementAtIndex);
}

/// A number further behind the last value is a slip: what is between would be made up.
inline constexpr std::int64_t kWidestGap = 1 << 24;

/// Whether a list of values may grow to hold these numbers.
template <class Set>
bool isWithinReach(const Set& set, const std::vector<int>& numbers)
{
    const auto end = static_cast<std::int64_t>(set.values.size()) + kWidestGap;
    return std::all_of(numbers.begin(), numbers.end(),
                       [end](int number) { return number >= 0 && number < end; });
}

/// Makes a change at once; with a modifier it is the modifier's to take back.
inline MStatus makeChange(MDGModifier* modifier, const Modifier::Change& change)
{
    return modifier ? tvxAccess::modifier(*modifier).queueMade(change) : change();
}

// The sets as a list

/// The wish when it is free; else its stem with a higher number.
template <class Set>
std::string freeSetName(const std::vector<Set>& sets, const std::string& wish)
{
    const engine::NumberedName split = engine::splitNumber(wish);
    std::string name = wish;
    for (int number = split.number < 0 ? 1 : split.number + 1; engine::findSet(sets, name); ++number)
        name = split.stem + std::to_string(number);
    return name;
}

/// Makes a set current that exists.
template <class Kind>
MStatus makeCurrent(const MeshTarget& target, const std::string& name)
{
    if (engine::DagNode* shape = target.shape())
        return toStatus(
            engine::writeString(engine::Plug(*shape, *shape->findAttribute(Kind::currentAttribute)), name));
    target.mesh()->*Kind::current = name;
    return MS::kSuccess;
}

/// Adds a set like a model under a name that is free; `name` becomes what it is called.
template <class Kind>
MStatus addSet(const MeshTarget& target, std::string& name, typename Kind::Set model, MDGModifier* modifier)
{
    const engine::MeshData* mesh = target.mesh();
    if (!mesh)
        return target.status();
    name = freeSetName(mesh->*Kind::sets, name.empty() ? Kind::newName : name);
    model.name = name;
    model.slot = engine::freeSlot(mesh->*Kind::sets);
    return makeChange(modifier, [&] {
        return target.editSets([&](engine::MeshData& changed) { (changed.*Kind::sets).push_back(model); });
    });
}

/// Takes a set away; the first one is current then, if this one was.
template <class Kind>
MStatus removeSet(const MeshTarget& target, const std::string& name, MDGModifier* modifier)
{
    const bool wasCurrent = currentSetName<Kind>(target, *target.mesh()) == name;
    return makeChange(modifier, [&] {
        const MStatus status = target.editSets([&](engine::MeshData& changed) {
            auto& sets = changed.*Kind::sets;
            sets.erase(sets.begin() + (engine::findSet(sets, name) - sets.data()));
        });
        return status && wasCurrent ? makeCurrent<Kind>(target, currentSetName<Kind>(target, *target.mesh()))
                                    : status;
    });
}

template <class Kind>
MStatus giveSetNames(const MeshTarget& target, MStringArray& names)
{
    const engine::MeshData* mesh = target.mesh();
    if (!mesh)
        return target.status();
    names.clear();
    for (const auto& set : mesh->*Kind::sets)
        names.append(tvxAccess::string(set.name));
    return MS::kSuccess;
}

/// Texture coordinates of two lists, as many as the first one has.
std::vector<engine::Vec2f> uvPairs(const MFloatArray& u, const MFloatArray& v);
/// Whether all corners of a face have a texture coordinate.
bool isMapped(const engine::MeshData& mesh, const engine::UvSet& set, std::int32_t face);
/// A corner and the texture coordinate that it shall have.
using CornerUv = std::pair<std::size_t, engine::Vec2f>;
/// Changes the texture coordinates that corners have in a set, for all corners that share them. Corners
/// without any stay so.
MStatus changeUvs(const MeshTarget& target, const std::string& set, const std::vector<CornerUv>& changes);

/// Tells the point of a face, moved by a matrix, that has a texture coordinate; see engine::placeAt. kFailure
/// when the face has none.
MStatus tellPointAtUv(const MeshTarget& target, const engine::MeshData& mesh, std::int32_t face,
                      MPoint& point, const float2& uv, const engine::Matrix& matrix, const MString* set,
                      double tolerance);
/// Tells the texture coordinate at a place. kFailure where there is none, and without a place.
MStatus tellUvAt(const MeshTarget& target, const engine::MeshData& mesh,
                 const std::optional<engine::SurfacePoint>& place, float2& uv, const MString* set);

/// The sets that map a face.
void giveFaceSetNames(const engine::MeshData& mesh, std::int32_t face, MStringArray& names);

/// Whether there is a set of a name, and which one by number.
template <class Kind>
bool findSetNumber(const MeshTarget& target, const MString* name, int& number)
{
    const MStatus status = withSet<Kind>(
        target, name, [&](const engine::MeshData& mesh, const typename Kind::Set& set) -> MStatus {
            number = static_cast<int>(&set - (mesh.*Kind::sets).data());
            return MS::kSuccess;
        });
    return status == MS::kSuccess;
}

} // namespace tvxhost::api
