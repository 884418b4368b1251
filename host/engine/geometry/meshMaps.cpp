// Which texture coordinates and colours faces use: see meshMaps.h.
#include "meshMaps.h"

namespace tvxhost::engine {

namespace {

template <class Set>
void give(std::vector<Set>& sets, std::size_t firstCorner, std::size_t corners, const LoopMap& map)
{
    for (Set& set : sets)
        if (set.slot == map.slot)
            for (std::size_t i = 0; i < map.used.size() && map.firstCorner + i < corners; ++i)
                set.assign(firstCorner + map.firstCorner + i, map.used[i]);
}

/// The loops of a face that use a value, set by set.
template <class Set>
std::vector<LoopMap> loopMaps(const FaceTable& faces, std::size_t face, const std::vector<Set>& sets)
{
    std::vector<LoopMap> maps;
    std::size_t first = 0;
    for (std::size_t i = 0; i < faces.loopCount(face); ++i) {
        const std::size_t corners = faces.loop(face, i).size();
        const std::size_t begin = faces.firstCorner(face) + first;
        for (const Set& set : sets) {
            if (!set.isUsed(begin, corners))
                continue;
            LoopMap map{first, set.slot, {}};
            for (std::size_t corner = 0; corner < corners; ++corner)
                map.used.push_back(set.at(begin + corner));
            maps.push_back(std::move(map));
        }
        first += corners;
    }
    return maps;
}

template <class Set>
void dropUnknown(std::vector<Set>& sets)
{
    for (Set& set : sets)
        for (std::int32_t& number : set.used)
            if (!set.hasValue(number))
                number = kUnmapped;
}

} // namespace

void giveMaps(MeshData& mesh, std::size_t face, const FaceMaps& maps)
{
    const std::size_t first = mesh.faces.firstCorner(face);
    const std::size_t corners = mesh.faces.corners(face).size();
    for (const LoopMap& map : maps.uvs)
        give(mesh.uvSets, first, corners, map);
    for (const LoopMap& map : maps.colors)
        give(mesh.colorSets, first, corners, map);
}

FaceMaps mapsOf(const MeshData& mesh, std::size_t face)
{
    return {loopMaps(mesh.faces, face, mesh.uvSets), loopMaps(mesh.faces, face, mesh.colorSets)};
}

void dropUnknownValues(MeshData& mesh)
{
    dropUnknown(mesh.uvSets);
    dropUnknown(mesh.colorSets);
}

} // namespace tvxhost::engine
