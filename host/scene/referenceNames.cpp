// Names in the edits of references; see referenceNames.h.
#include "referenceNames.h"

#include "connectionEnd.h"
#include "plugTarget.h"

namespace tvxhost::scene {

using engine::DagNode;
using engine::Node;
using engine::Plug;

std::string editName(Node& node)
{
    DagNode* dag = node.asDag();
    return dag ? engine::DagPath::firstTo(*dag).fullName() : referenceName(node);
}

std::string editName(const Plug& plug)
{
    engine::PlugNameStyle style;
    style.withNode = false;
    std::string path = plug.name(style);
    if (isPerInstance(*plug.attribute()) && path.find('[') != std::string::npos)
        path.erase(path.find('['), path.find(']') + 1 - path.find('['));
    return editName(*plug.node()) + "." + path;
}

std::string connectionKey(const Plug& source, const Plug& destination)
{
    const auto key = [](const Plug& plug) {
        return std::to_string(plug.node()->serial()) + "." + filePath(plug);
    };
    return key(source) + ">" + key(destination);
}

std::string fosterName(const engine::Reference& reference)
{
    return reference.nodeName + "fosterParent1";
}

} // namespace tvxhost::scene
