// Painter: draws a scene with the GL context that is current.
#pragma once

#include "camera.h"
#include "drawList.h"
#include "engine/geometry/meshData.h"
#include "engine/scene.h"

#include <set>
#include <string>
#include <unordered_map>
#include <vector>

namespace tvxhost::viewport {

/// For one picture. The caller has bound the place to draw to and told the API of the view.
class Painter
{
public:
    /// `view` and `projection` are the camera's matrices; width and height in pixels.
    Painter(engine::Scene& scene, const engine::Matrix& view, const engine::Matrix& projection, int width,
            int height);

    /// Draws everything.
    void paint();

private:
    void prepare();
    void place(const engine::Matrix& world);
    void paint(const DrawItem& item);
    void paintWire(const DrawItem& item);
    void paintCross(const DrawItem& item);
    void paintPlugin(const DrawItem& item);
    void blame(const engine::Node& node, const std::string& complaints);
    const std::vector<unsigned>& wireOf(const engine::MeshData& mesh);

    engine::Scene& m_scene;
    engine::Matrix m_view;
    engine::Matrix m_projection;
    int m_width;
    int m_height;
    std::unordered_map<const engine::MeshData*, std::vector<unsigned>> m_wires; ///< instances share a mesh
    std::set<std::string> m_blamed; ///< node types whose drawing code was reported
};

} // namespace tvxhost::viewport
