// Viewport: draws a scene through a camera into a picture.
#pragma once

#include "engine/outcome.h"
#include "engine/scene.h"
#include "picture.h"

#include <string>

namespace tvxhost::viewport {

/// What a picture is to show.
struct View
{
    int width = 1280; ///< pixels
    int height = 720;
    std::string camera; ///< a camera or its transform; empty: the scene's persp
};

/// Draws what a viewport of Maya shows in wireframe: the ground grid, meshes, locators with the drawing code
/// of plug-ins, the view's axes. Needs no display. A plug-in's draw that leaves GL unbalanced is told once
/// per node type, as a warning in the script editor. Fails, with a sentence, when there is no OpenGL, no such
/// camera, or the size cannot be done.
engine::Expected<Picture> drawPicture(engine::Scene& scene, const View& view);

} // namespace tvxhost::viewport
