// The plug that one name of a `connectAttr` means; see connectionEnd.h.
#include "connectionEnd.h"

#include "plugTarget.h"

namespace tvxhost::scene {

using engine::Expected;
using engine::Plug;

bool isPerInstance(const engine::Attribute& attribute)
{
    const engine::Attribute& top = *attribute.topLevel();
    return top.isArray() && (top.flags.worldSpace || top.longName == "instObjGroups");
}

Expected<Plug> connectionEnd(engine::Scene& scene, const std::string& name)
{
    Expected<Plug> found = scene.findPlug(name);
    if (!found || !found.value.isArray() || found.value.isChild() || !isPerInstance(*found.value.attribute()))
        return found;
    const Expected<engine::SelectionItem> item = scene.findItem(name.substr(0, name.find('.')));
    if (!item || !item.value.isDag())
        return found;
    return found.value.element(item.value.path.instanceNumber());
}

std::string referenceName(const engine::Node& node)
{
    const std::string name = node.scene().shortestName(node);
    const bool isOfEveryScene = node.isDefaultNode || (node.isShared && node.asDag());
    return isOfEveryScene && name.find('|') == std::string::npos ? ":" + name : name;
}

std::string connectionName(const Plug& plug, bool nextAvailable)
{
    engine::Node& node = *plug.node();
    const engine::Attribute& attribute = *plug.attribute();
    if (plug.isElement() && plug.indexCount() == 1 && isPerInstance(attribute)) {
        engine::DagNode* dag = node.asDag();
        const auto paths = dag ? engine::DagPath::allTo(*dag) : std::vector<engine::DagPath>();
        const auto instance = static_cast<std::size_t>(plug.logicalIndex());
        if (instance < paths.size())
            return (paths.size() == 1 ? referenceName(node) : paths[instance].fullName()) + "." +
                   attribute.shortName;
    }
    return referenceName(node) + "." + filePath(nextAvailable ? plug.array() : plug);
}

} // namespace tvxhost::scene
