// Camera: Maya's camera attributes turned into matrices.
#include "camera.h"

#include <Imath/ImathMatrixAlgo.h>

#include <algorithm>

namespace tvxhost::viewport {

using engine::DagNode;
using engine::DagPath;
using engine::Expected;
using engine::Matrix;
using engine::Outcome;
using engine::Reason;

namespace {

constexpr double kMillimetresPerInch = 25.4;

/// The film gate on the near plane, before it meets the shape of the picture.
struct Gate
{
    double width;
    double height;
};

Gate gateOf(const Lens& lens)
{
    const double onNearPlane = kMillimetresPerInch / lens.focalLength * lens.nearClip * lens.scale;
    return {lens.horizontalAperture * lens.squeeze * onNearPlane, lens.verticalAperture * onNearPlane};
}

bool fitsWidth(const Lens& lens, const Gate& gate, double aspect)
{
    const bool pictureIsWider = aspect > gate.width / gate.height;
    switch (lens.fit) {
    case FilmFit::horizontal:
        return true;
    case FilmFit::vertical:
        return false;
    case FilmFit::overscan:
        return !pictureIsWider;
    case FilmFit::fill:
        break;
    }
    return pictureIsWider;
}

Volume perspectiveVolume(const Lens& lens, double aspect)
{
    const Gate gate = gateOf(lens);
    const bool width = fitsWidth(lens, gate, aspect);
    const double halfWidth = (width ? gate.width : gate.height * aspect) / 2 * lens.overscan;
    const double halfHeight = (width ? gate.width / aspect : gate.height) / 2 * lens.overscan;
    const double shift = kMillimetresPerInch / lens.focalLength * lens.nearClip;
    const double x = lens.horizontalOffset * shift;
    const double y = lens.verticalOffset * shift;
    return {x - halfWidth, x + halfWidth, y - halfHeight, y + halfHeight, lens.nearClip, lens.farClip};
}

Volume orthographicVolume(const Lens& lens, double aspect)
{
    const double halfWidth = lens.orthographicWidth / 2 * lens.overscan;
    const double halfHeight = halfWidth / aspect;
    return {-halfWidth, halfWidth, -halfHeight, halfHeight, lens.nearClip, lens.farClip};
}

Matrix frustum(const Volume& v)
{
    const double depth = v.farClip - v.nearClip;
    Matrix m(0.0);
    m[0][0] = 2 * v.nearClip / (v.right - v.left);
    m[1][1] = 2 * v.nearClip / (v.top - v.bottom);
    m[2][0] = (v.right + v.left) / (v.right - v.left);
    m[2][1] = (v.top + v.bottom) / (v.top - v.bottom);
    m[2][2] = -(v.farClip + v.nearClip) / depth;
    m[2][3] = -1;
    m[3][2] = -2 * v.farClip * v.nearClip / depth;
    return m;
}

Matrix orthographic(const Volume& v)
{
    const double depth = v.farClip - v.nearClip;
    Matrix m;
    m[0][0] = 2 / (v.right - v.left);
    m[1][1] = 2 / (v.top - v.bottom);
    m[2][2] = -2 / depth;
    m[3][0] = -(v.right + v.left) / (v.right - v.left);
    m[3][1] = -(v.top + v.bottom) / (v.top - v.bottom);
    m[3][2] = -(v.farClip + v.nearClip) / depth;
    return m;
}

/// The number of an attribute; `otherwise` when the node has none of that name or it cannot be read.
double numberOf(DagNode& node, const char* attribute, double otherwise)
{
    const auto plug = node.findPlug(attribute);
    if (!plug)
        return otherwise;
    const auto number = engine::readNumber(plug.value);
    return number ? number.value.asReal() : otherwise;
}

double positiveNumberOf(DagNode& node, const char* attribute, double otherwise)
{
    const double number = numberOf(node, attribute, otherwise);
    return number > 0 ? number : otherwise;
}

bool isCamera(const DagNode& node)
{
    return node.type().isA("camera");
}

/// The camera itself, or the first one directly below a transform; an invalid path when there is none.
DagPath cameraAt(DagPath path)
{
    if (isCamera(*path.node()))
        return path;
    for (DagNode* child : path.node()->children()) {
        if (isCamera(*child) && path.push(*child))
            return path;
    }
    return {};
}

DagPath firstCamera(const engine::Scene& scene)
{
    for (engine::Node* node : scene.nodes()) {
        DagNode* dagNode = node->asDag();
        if (dagNode && isCamera(*dagNode))
            return DagPath::firstTo(*dagNode);
    }
    return {};
}

} // namespace

Volume volumeOf(const Lens& lens, double aspect)
{
    return lens.orthographic ? orthographicVolume(lens, aspect) : perspectiveVolume(lens, aspect);
}

Matrix projectionMatrix(const Lens& lens, double aspect)
{
    const Volume volume = volumeOf(lens, aspect);
    return lens.orthographic ? orthographic(volume) : frustum(volume);
}

Matrix viewMatrix(const Matrix& cameraWorld)
{
    Matrix rigid = cameraWorld;
    // A camera that is scaled to nothing has no direction; it then looks along the world's axes.
    if (!Imath::removeScalingAndShear(rigid, false))
        rigid = Matrix().setTranslation(cameraWorld.translation());
    return rigid.inverse();
}

Lens lensOf(DagNode& camera)
{
    Lens lens;
    lens.orthographic = numberOf(camera, "orthographic", 0) != 0;
    lens.orthographicWidth = positiveNumberOf(camera, "orthographicWidth", lens.orthographicWidth);
    lens.focalLength = positiveNumberOf(camera, "focalLength", lens.focalLength);
    lens.horizontalAperture = positiveNumberOf(camera, "horizontalFilmAperture", lens.horizontalAperture);
    lens.verticalAperture = positiveNumberOf(camera, "verticalFilmAperture", lens.verticalAperture);
    lens.horizontalOffset = numberOf(camera, "horizontalFilmOffset", lens.horizontalOffset);
    lens.verticalOffset = numberOf(camera, "verticalFilmOffset", lens.verticalOffset);
    lens.squeeze = positiveNumberOf(camera, "lensSqueezeRatio", lens.squeeze);
    lens.scale = positiveNumberOf(camera, "cameraScale", lens.scale);
    lens.overscan = positiveNumberOf(camera, "overscan", lens.overscan);
    lens.nearClip = positiveNumberOf(camera, "nearClipPlane", lens.nearClip);
    lens.farClip = std::max(numberOf(camera, "farClipPlane", lens.farClip), lens.nearClip * 1.001);
    const int fit = static_cast<int>(numberOf(camera, "filmFit", 0));
    lens.fit = fit >= 0 && fit <= 3 ? static_cast<FilmFit>(fit) : FilmFit::fill;
    return lens;
}

Expected<DagPath> findCamera(engine::Scene& scene, const std::string& name)
{
    if (name.empty()) {
        if (const auto item = scene.findItem("|persp|perspShape"); item && item.value.isDag())
            return item.value.path;
        const DagPath path = firstCamera(scene);
        if (path.isValid())
            return path;
        return Outcome(Reason::doesNotExist, "the scene has no camera");
    }
    const auto item = scene.findItem(name);
    if (!item)
        return Outcome(item.outcome.reason, "camera \"" + name + "\": " + item.outcome.text);
    const DagPath path = item.value.isDag() ? cameraAt(item.value.path) : DagPath();
    if (!path.isValid())
        return Outcome(Reason::wrongKind, "\"" + name + "\" is not a camera");
    return path;
}

} // namespace tvxhost::viewport
