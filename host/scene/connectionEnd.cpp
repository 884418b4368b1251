// The plug that one name of a `connectAttr` means; see connectionEnd.h.
#include "connectionEnd.h"

#include "plugTarget.h"

#include "engine/instancing.h"

namespace tvxhost::scene {

using engine::Expected;
using engine::Plug;

bool isPerInstance(const engine::Attribute& attribute)
{
    const engine::Attribute& top = *attribute.topLevel();
    return top.isArray() &&
           (top.flags.worldSpace || top.longName == "instObjGroups" || top.longName == "compInstObjGroups");
}

Expected<Plug> connectionEnd(engine::Scene& scene, const std::string& name)
{
    Expected<Plug> found = scene.findPlug(name);
    if (!found || !isPerInstance(*found.value.attribute()))
        return found;
    Plug& plug = found.value;
    const bool isWholeArray = plug.isArray() && !plug.isChild();
    if (!isWholeArray && plug.indices()[0] != Plug::kNoIndex)
        return found;
    const Expected<engine::SelectionItem> item = scene.findItem(name.substr(0, name.find('.')));
    if (item && item.value.isDag())
        plug.selectIndex(*plug.attribute()->topLevel(), item.value.path.instanceNumber());
    return found;
}

std::string fileName(const engine::Node& node)
{
    engine::DagNode* dag = const_cast<engine::Node&>(node).asDag();
    const bool isUnique =
        !dag || (!engine::hasSeveralPaths(*dag) && node.scene().findNode(":" + node.name()));
    return isUnique ? node.name() : engine::DagPath::firstTo(*dag).fullName();
}

std::string referenceName(const engine::Node& node)
{
    const std::string name = fileName(node);
    return (node.isDefaultNode || node.isShared) && name[0] != '|' ? ":" + name : name;
}

std::string connectionName(const Plug& plug, bool nextAvailable)
{
    engine::Node& node = *plug.node();
    std::string path = filePath(nextAvailable ? plug.array() : plug);
    engine::DagNode* dag = node.asDag();
    if (!dag || plug.indexCount() == 0 || !isPerInstance(*plug.attribute()))
        return referenceName(node) + "." + path;
    const std::vector<engine::DagPath> paths = engine::DagPath::allTo(*dag);
    const auto instance = static_cast<std::size_t>(plug.indices()[0]);
    if (instance >= paths.size())
        return referenceName(node) + "." + path;
    // The path says which instance is meant, so the index need not.
    path.erase(path.find('['), path.find(']') + 1 - path.find('['));
    return (paths.size() == 1 ? referenceName(node) : paths[instance].fullName()) + "." + path;
}

} // namespace tvxhost::scene
