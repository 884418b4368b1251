// camera, listCameras and lookThru: cameras, and which of them the view shows.
#include "attributeFlags.h"
#include "sceneCommands.h"

#include "engine/deletion.h"

#include <algorithm>
#include <cmath>

namespace tvxhost::mel {

using engine::DagNode;
using engine::Node;

namespace {

using A = ArgumentType;

const AttributeFlags& cameraFlags()
{
    static const AttributeFlags flags = {
        {"cs", "cameraScale", A::number, "cameraScale", "its scale, with its view's"},
        {"coi", "centerOfInterest", A::linear, "centerOfInterest", "distance to what it looks at"},
        {"dof", "depthOfField", A::boolean, "depthOfField", "whether distance blurs"},
        {"dfc", "displayFieldChart", A::boolean, "displayFieldChart", "shows the field chart"},
        {"dfg", "displayFilmGate", A::boolean, "displayFilmGate", "shows the film gate"},
        {"dfo", "displayFilmOrigin", A::boolean, "displayFilmOrigin", "shows the film's origin"},
        {"dfp", "displayFilmPivot", A::boolean, "displayFilmPivot", "shows the film's pivot"},
        {"dgm", "displayGateMask", A::boolean, "displayGateMask", "shades what is outside the gate"},
        {"dr", "displayResolution", A::boolean, "displayResolution", "shows the resolution gate"},
        {"dsa", "displaySafeAction", A::boolean, "displaySafeAction", "shows where action is safe"},
        {"dst", "displaySafeTitle", A::boolean, "displaySafeTitle", "shows where titles are safe"},
        {"fs", "fStop", A::number, "fStop", "opening of the lens"},
        {"fcp", "farClipPlane", A::linear, "farClipPlane", "distance of the far clipping plane"},
        {"ncp", "nearClipPlane", A::linear, "nearClipPlane", "distance of the near clipping plane"},
        {"ff", "filmFit", A::string, "filmFit", "fill, horizontal, vertical or overscan"},
        {"ffo", "filmFitOffset", A::number, "filmFitOffset", "of the film in its gate, in inches"},
        {"frv", "filmRollValue", A::angle, "filmRollValue", "turn of the film about its pivot"},
        {"fro", "filmRollOrder", A::string, "filmRollOrder", "rotate-translate or translate-rotate"},
        {"fth", "filmTranslateH", A::number, "filmTranslateH", "of the film, horizontal"},
        {"ftv", "filmTranslateV", A::number, "filmTranslateV", "of the film, vertical"},
        {"fl", "focalLength", A::number, "focalLength", "in millimetres"},
        {"fd", "focusDistance", A::linear, "focusDistance", "distance that is sharp"},
        {"hc", "homeCommand", A::string, "homeCommand", "what viewSet -home runs"},
        {"hfa", "horizontalFilmAperture", A::number, "horizontalFilmAperture", "in inches"},
        {"vfa", "verticalFilmAperture", A::number, "verticalFilmAperture", "in inches"},
        {"hfo", "horizontalFilmOffset", A::number, "horizontalFilmOffset", "in inches"},
        {"vfo", "verticalFilmOffset", A::number, "verticalFilmOffset", "in inches"},
        {"hpn", "horizontalPan", A::number, "horizontalPan", "of the picture"},
        {"vpn", "verticalPan", A::number, "verticalPan", "of the picture"},
        {"hrp", "horizontalRollPivot", A::number, "horizontalRollPivot", "of the film's roll"},
        {"vrp", "verticalRollPivot", A::number, "verticalRollPivot", "of the film's roll"},
        {"hs", "horizontalShake", A::number, "horizontalShake", "in inches"},
        {"vs", "verticalShake", A::number, "verticalShake", "in inches"},
        {"lsr", "lensSqueezeRatio", A::number, "lensSqueezeRatio", "of an anamorphic lens"},
        {"o", "orthographic", A::boolean, "orthographic", "without perspective"},
        {"ow", "orthographicWidth", A::linear, "orthographicWidth", "width of an orthographic view"},
        {"ovr", "overscan", A::number, "overscan", "of the view about the film"},
        {"pze", "panZoomEnabled", A::boolean, "panZoomEnabled", "uses pan and zoom"},
        {"pts", "postScale", A::number, "postScale", "scale after the roll"},
        {"prs", "preScale", A::number, "preScale", "scale before the roll"},
        {"rpz", "renderPanZoom", A::boolean, "renderPanZoom", "pan and zoom in renderings too"},
        {"se", "shakeEnabled", A::boolean, "shakeEnabled", "uses the shake"},
        {"so", "shakeOverscan", A::number, "shakeOverscan", "more film for the shake"},
        {"soe", "shakeOverscanEnabled", A::boolean, "shakeOverscanEnabled", "uses the shake's overscan"},
        {"sa", "shutterAngle", A::angle, "shutterAngle", "how long the shutter is open"},
        {"zom", "zoom", A::number, "zoom", "part of the film that is seen"},
    };
    return flags;
}

/// What is set and told of the transform above a camera.
const AttributeFlags& placeFlags()
{
    static const AttributeFlags flags = {
        {"p", "position", A::linear, "translate", "where it stands", 3},
        {"rot", "rotation", A::angle, "rotate", "how it is turned", 3},
    };
    return flags;
}

/// An angle of view, which a camera holds as an aperture and a focal length.
struct FieldOfView
{
    const char* shortName;
    const char* longName;
    const char* aperture;
    const char* help;
};

constexpr FieldOfView kFieldsOfView[] = {
    {"hfv", "horizontalFieldOfView", "horizontalFilmAperture", "angle that is seen across"},
    {"vfv", "verticalFieldOfView", "verticalFilmAperture", "angle that is seen upright"},
};

constexpr double kMillimetresPerInch = 25.4;

double numberOf(const CommandContext& context, Node& camera, const char* attribute)
{
    return valueOf(context, readNumber(plugOf(context, camera, attribute))).asReal();
}

double halfFilm(const CommandContext& context, Node& camera, const FieldOfView& field)
{
    return 0.5 * kMillimetresPerInch * numberOf(context, camera, field.aperture);
}

void setFieldsOfView(const CommandContext& context, const ParsedCommand& call, Node& camera)
{
    for (const FieldOfView& field : kFieldsOfView)
        if (const FlagUse* use = call.use(field.longName)) {
            const double angle = toInternal(context, use->arguments.front(), A::angle);
            const double length = halfFilm(context, camera, field) / std::tan(0.5 * angle);
            require(context, writeNumber(plugOf(context, camera, "focalLength"), length));
        }
}

std::optional<Value> queriedFieldOfView(const CommandContext& context, const ParsedCommand& call,
                                        Node& camera)
{
    for (const FieldOfView& field : kFieldsOfView)
        if (call.has(field.longName)) {
            const double length = numberOf(context, camera, "focalLength");
            const double angle = 2.0 * std::atan(halfFilm(context, camera, field) / length);
            return Value(angle / toInternal(context, Value(1.0), A::angle));
        }
    return std::nullopt;
}

/// Width of the film to its height; setting it keeps the width.
std::optional<Value> queriedShape(const CommandContext& context, const ParsedCommand& call, Node& camera)
{
    if (call.has("aspectRatio"))
        return Value(numberOf(context, camera, "horizontalFilmAperture") /
                     numberOf(context, camera, "verticalFilmAperture"));
    if (call.has("clippingPlanes"))
        return Value(numberOf(context, camera, "bestFitClippingPlanes") == 0.0);
    return std::nullopt;
}

void setShape(const CommandContext& context, const ParsedCommand& call, Node& camera)
{
    if (call.has("aspectRatio")) {
        const double ratio = call.number("aspectRatio");
        if (ratio <= 0.0)
            context.fail("camera: an aspect ratio is more than 0");
        require(context, writeNumber(plugOf(context, camera, "verticalFilmAperture"),
                                     numberOf(context, camera, "horizontalFilmAperture") / ratio));
    }
    if (call.has("clippingPlanes"))
        require(context, writeNumber(plugOf(context, camera, "bestFitClippingPlanes"),
                                     call.boolean("clippingPlanes") ? 0 : 1));
}

DagNode& transformAbove(Node& camera)
{
    return *camera.asDag()->parents().front();
}

void setCamera(const CommandContext& context, const ParsedCommand& call, Node& camera)
{
    if (call.has("startupCamera"))
        engine::setStartupCamera(*camera.asDag(), call.boolean("startupCamera"));
    setAttributes(context, call, cameraFlags(), camera);
    setAttributes(context, call, placeFlags(), transformAbove(camera));
    setShape(context, call, camera);
    setFieldsOfView(context, call, camera);
}

Node& cameraOf(const CommandContext& context, const engine::SelectionItem& item)
{
    Node* camera = nodeOfType(item, "camera");
    if (!camera)
        context.fail("'" + item.name() + "' is not a camera");
    return *camera;
}

Value query(const CommandContext& context, const ParsedCommand& call, Node& camera)
{
    if (call.has("startupCamera"))
        return Value(engine::isStartupCamera(camera));
    for (const std::optional<Value>& value :
         {queriedAttribute(context, call, cameraFlags(), camera),
          queriedAttribute(context, call, placeFlags(), transformAbove(camera)),
          queriedShape(context, call, camera), queriedFieldOfView(context, call, camera)})
        if (value)
            return *value;
    context.fail("camera: nothing was asked");
}

Value create(const CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    Node& transform = *valueOf(context, scene.createNode("transform", call.string("name", "camera1")));
    const std::string shapeName = shapeNameFor(transform.name());
    Node& camera = *valueOf(context, scene.createNode("camera", shapeName, transform.asDag()));
    setCamera(context, call, camera);
    selectOnly(scene, transform);
    return Value(Value::Strings{scene.shortestName(transform), scene.shortestName(camera)});
}

Value camera(CommandContext& context, const ParsedCommand& call)
{
    if (!call.queries() && !call.edits())
        return create(context, call);
    Node& node = cameraOf(context, onlyItem(context, call));
    if (call.queries())
        return query(context, call, node);
    setCamera(context, call, node);
    return {};
}

CommandSpec cameraCommand()
{
    std::vector<FlagSpec> flags = specsOf(cameraFlags());
    const std::vector<FlagSpec> place = specsOf(placeFlags());
    flags.insert(flags.end(), place.begin(), place.end());
    for (const FieldOfView& field : kFieldsOfView)
        flags.push_back(valueFlag(field.shortName, field.longName, A::angle, field.help, kAllModes));
    const char* const noStage = "the host draws no such thing";
    const std::vector<FlagSpec> others = {
        valueFlag("ar", "aspectRatio", A::number, "width of the film to its height", kAllModes),
        valueFlag("cp", "clippingPlanes", A::boolean, "clips at the planes that are set", kAllModes),
        valueFlag("n", "name", A::string, "the transform's name"),
        valueFlag("sc", "startupCamera", A::boolean, "is of every scene and cannot be deleted", kAllModes),
        refusedFlag("ffd", "farFocusDistance", noStage),
        refusedFlag("nfd", "nearFocusDistance", noStage),
        refusedFlag("mb", "motionBlur", noStage),
        refusedFlag("hit", "stereoHorizontalImageTranslate", noStage),
        refusedFlag("hite", "stereoHorizontalImageTranslateEnabled", noStage),
        refusedFlag("jc", "journalCommand", "nobody moves cameras with a mouse here"),
        refusedFlag("lt", "lockTransform", "nobody moves cameras with a mouse here"),
        refusedFlag("vl", "verticalLock", "nobody moves cameras with a mouse here"),
        refusedFlag("wci", "worldCenterOfInterest", "use -rotation and -centerOfInterest"),
        refusedFlag("wup", "worldUp", "use -rotation"),
    };
    flags.insert(flags.end(), others.begin(), others.end());
    return makeCommand("camera", "Makes a camera, changes it or tells about it", std::move(flags),
                       names(0, 1), camera, kAllModes);
}

/// Which camera the one view shows, where `tvxhost --render` is not told another.
Value lookThru(CommandContext& context, const ParsedCommand& call)
{
    InterfaceTree& interface = sessionOf(context).interface();
    if (call.queries())
        return Value(interface.viewCamera.empty() ? "persp" : interface.viewCamera);
    const std::vector<std::string> words = call.names();
    if (words.empty())
        context.fail("lookThru: which camera?");
    engine::SelectionItem item = itemNamed(context, words.back());
    Node& node = cameraOf(context, item);
    if (node.asDag() == item.path.node())
        require(context, item.path.pop());
    const std::pair<const char*, const char*> planes[] = {{"nearClip", "nearClipPlane"},
                                                          {"farClip", "farClipPlane"}};
    for (const auto& [flag, attribute] : planes)
        if (const FlagUse* use = call.use(flag))
            require(context, writeNumber(plugOf(context, node, attribute),
                                         toInternal(context, use->arguments.front(), A::linear)));
    interface.viewCamera = item.path.partialName();
    return Value(interface.viewCamera);
}

/// A camera goes by the name of its transform where that has no other one.
std::string listedName(const engine::DagPath& shape)
{
    engine::DagPath transform = shape;
    if (!transform.pop())
        return shape.partialName();
    const auto& children = transform.node()->children();
    const auto cameras = std::count_if(children.begin(), children.end(),
                                       [](const DagNode* child) { return child->type().isA("camera"); });
    return cameras == 1 ? transform.partialName() : shape.partialName();
}

Value listCameras(CommandContext& context, const ParsedCommand& call)
{
    const bool listsAll = call.has("orthographic") == call.has("perspective");
    Value::Strings cameras;
    for (Node* node : sceneOf(context).nodes()) {
        if (!node->type().isA("camera"))
            continue;
        const bool isOrthographic = numberOf(context, *node, "orthographic") != 0.0;
        if (listsAll || isOrthographic == call.has("orthographic"))
            cameras.push_back(listedName(engine::DagPath::firstTo(*node->asDag())));
    }
    std::sort(cameras.begin(), cameras.end());
    return Value(std::move(cameras));
}

} // namespace

void registerCameraCommands(CommandTable& table)
{
    table.add({
        cameraCommand(),
        makeCommand("listCameras", "Lists the cameras by name",
                    {switchFlag("o", "orthographic", "those without perspective"),
                     switchFlag("p", "perspective", "those with perspective")},
                    noArguments(), listCameras),
        makeCommand("lookThru", "Has the view, which may be named first, show what a camera sees",
                    {valueFlag("nc", "nearClip", A::linear, "the camera's near clipping plane"),
                     valueFlag("fc", "farClip", A::linear, "the camera's far clipping plane")},
                    names(0, 2), lookThru, kQuery),
    });
}

} // namespace tvxhost::mel
