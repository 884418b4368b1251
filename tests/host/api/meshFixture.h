// A scene with meshes, and short ways to what iterators and MFnMesh say of them.
#pragma once

#include "sceneFixture.h"

#include "engine/geometry/primitives.h"
#include "engine/mesh.h"

#include <maya/MIntArray.h>
#include <maya/MPoint.h>
#include <maya/MVector.h>

#include <gmock/gmock.h>

namespace tvxhost::api::test {

inline std::vector<int> numbers(const MIntArray& array)
{
    std::vector<int> all;
    for (unsigned int i = 0; i < array.length(); ++i)
        all.push_back(array[i]);
    return all;
}

inline std::vector<double> xyz(const MPoint& p)
{
    return {p.x, p.y, p.z};
}
inline std::vector<double> xyz(const MVector& v)
{
    return {v.x, v.y, v.z};
}

class MeshFixture : public SceneFixture
{
protected:
    /// A shape NAMEShape below a transform NAME.
    engine::DagNode& addMesh(const std::string& name, const engine::Ref<engine::MeshData>& mesh)
    {
        make("transform", name);
        engine::DagNode& shape = *make("mesh", name + "Shape", name).asDag();
        engine::storeMesh(shape, mesh);
        return shape;
    }
    /// One quad, two units wide: vertices (-1, 1) (1, 1) (-1, -1) (1, -1) in x and z, edges 01 02 13 23.
    engine::DagNode& addQuad() { return addMesh("quad", engine::makePlane({2, 2, 1, 1})); }
    /// Three by two quads of one unit; vertices 0 to 3 in front, 4 to 7, 8 to 11 at the back.
    engine::DagNode& addGrid() { return addMesh("grid", engine::makePlane({3, 2, 3, 2})); }
};

} // namespace tvxhost::api::test
