// Light links; see lightLinks.h.
#include "lightLinks.h"

#include "connectionEnd.h"

#include "mel/arguments.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tvxhost::scene {

using engine::Node;
using engine::Outcome;
using engine::Plug;
using engine::Reason;
using engine::Scene;

namespace {

constexpr std::string_view kLinkerType = "lightLinker";

/// Arrays of a light linker, each of pairs of a light and an object.
constexpr std::array<std::string_view, 4> kKinds = {"link", "ignore", "shadowLink", "shadowIgnore"};
constexpr std::size_t kLightChild = 0;
constexpr std::size_t kObjectChild = 1;

bool isLinkArray(const engine::Attribute& attribute)
{
    return attribute.owner && attribute.owner->name == kLinkerType &&
           std::find(kKinds.begin(), kKinds.end(), attribute.longName) != kKinds.end();
}

LightLink linkIn(const Plug& element)
{
    return {element.attribute()->longName, element, engine::sourceOf(element.child(kLightChild)),
            engine::sourceOf(element.child(kObjectChild))};
}

bool isLinked(const Plug& array, const Plug& light, const Plug& object)
{
    const std::vector<Plug> linked = engine::destinationsOf(object);
    return std::any_of(linked.begin(), linked.end(), [&](const Plug& end) {
        const LightLink link = lightLinkAt(end);
        return !link.kind.empty() && link.element.array() == array && link.light == light;
    });
}

std::string plugName(const Plug& plug)
{
    engine::PlugNameStyle style;
    style.withNode = false;
    return mel::quoted(referenceName(*plug.node()) + "." + plug.name(style));
}

} // namespace

LightLink lightLinkAt(const Plug& plug)
{
    if (!plug.isChild() || !plug.parent().isElement() || !isLinkArray(*plug.parent().attribute()))
        return {};
    return linkIn(plug.parent());
}

std::vector<LightLink> lightLinksOf(Node& node)
{
    std::vector<LightLink> links;
    if (node.type().name != kLinkerType)
        return links;
    for (const std::string_view kind : kKinds)
        if (const auto array = node.findPlug(std::string(kind)))
            for (const int index : engine::existingElements(array.value))
                links.push_back(linkIn(array.value.element(index)));
    return links;
}

std::vector<Plug> lightLinkElementsOf(const std::vector<Node*>& nodes)
{
    std::vector<Plug> elements;
    for (Node* node : nodes)
        for (const Plug& plug : engine::connectedPlugs(*node))
            for (const Plug& destination : engine::destinationsOf(plug))
                if (const LightLink link = lightLinkAt(destination); !link.kind.empty())
                    elements.push_back(link.element);
    return elements;
}

Outcome makeLightLink(Scene& scene, const LightLinkNames& names)
{
    const auto linker = scene.findNode(names.linker);
    if (!linker)
        return linker.outcome;
    const auto array = linker.value->findPlug(names.kind);
    if (!array)
        return array.outcome;
    if (!array.value.isArray() || !isLinkArray(*array.value.attribute()))
        return {Reason::wrongKind, "'" + names.kind + "' is no kind of light link"};
    const auto object = connectionEnd(scene, names.object);
    const auto light = connectionEnd(scene, names.light);
    if (!object || !light)
        return object ? light.outcome : object.outcome;
    if (isLinked(array.value, light.value, object.value))
        return {Reason::sameConnection, names.object + " is linked with " + names.light + " already"};
    const Plug element = scene.nextAvailable(array.value);
    if (Outcome joined = scene.connect(light.value, element.child(kLightChild)); !joined)
        return joined;
    Outcome joined = scene.connect(object.value, element.child(kObjectChild));
    if (!joined)
        scene.breakConnection(light.value, element.child(kLightChild));
    return joined;
}

std::string lightLinkStatements(Node& node)
{
    std::string text;
    for (const LightLink& link : lightLinksOf(node))
        if (link.isWhole() && !link.object.node()->isReferenced && !link.light.node()->isReferenced)
            text += "relationship " + mel::quoted(link.kind) + ' ' + mel::quoted(referenceName(node)) + ' ' +
                    plugName(link.object) + ' ' + plugName(link.light) + ";\n";
    return text;
}

} // namespace tvxhost::scene
