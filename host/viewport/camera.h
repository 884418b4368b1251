// Camera: what a camera node sees, as matrices.
#pragma once

#include "engine/dagPath.h"
#include "engine/outcome.h"
#include "engine/scene.h"

#include <string>

namespace tvxhost::viewport {

/// How the film gate meets a picture of another shape.
enum class FilmFit
{
    fill,       ///< the picture shows no more than the gate
    horizontal, ///< the gate's width fills the picture's
    vertical,   ///< the gate's height fills the picture's
    overscan,   ///< the picture shows all of the gate
};

/// The settings of a camera node that shape its picture.
struct Lens
{
    bool orthographic = false;
    double orthographicWidth = 10.0;     ///< centimetres across the picture
    double focalLength = 35.0;           ///< millimetres
    double horizontalAperture = 1.41732; ///< inches
    double verticalAperture = 0.94488;   ///< inches
    double horizontalOffset = 0.0;       ///< inches, of the film's centre
    double verticalOffset = 0.0;         ///< inches
    double squeeze = 1.0;                ///< of an anamorphic lens, widens the film
    double scale = 1.0;                  ///< of the camera: above 1 sees more
    double overscan = 1.0;               ///< of the view: above 1 shows more than the camera sees
    double nearClip = 0.1;               ///< centimetres
    double farClip = 10000.0;            ///< centimetres
    FilmFit fit = FilmFit::fill;
};

/// The planes of a view volume, as glFrustum and glOrtho take them.
struct Volume
{
    double left = 0, right = 0, bottom = 0, top = 0, nearClip = 0, farClip = 0;
};

/// The volume that a lens sees in a picture of an aspect (width / height). A perspective one is measured on
/// the near plane.
Volume volumeOf(const Lens& lens, double aspect);

/// Eye space to clip space, for row vectors (in memory what glLoadMatrixd takes).
engine::Matrix projectionMatrix(const Lens& lens, double aspect);

/// World space to eye space of a camera with this world matrix; a scale of the camera does not count.
engine::Matrix viewMatrix(const engine::Matrix& cameraWorld);

/// The settings of a camera shape; attributes that it lacks stay at their defaults.
Lens lensOf(engine::DagNode& camera);

/// The path of the camera shape that `name` (a camera or its transform) means; empty: perspShape, or else the
/// first camera of the scene. Fails with a sentence when there is none.
engine::Expected<engine::DagPath> findCamera(engine::Scene& scene, const std::string& name);

} // namespace tvxhost::viewport
