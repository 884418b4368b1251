// What the function sets of nodes share: queries of the node that a set is attached to.
#include "nodeSet.h"

#include <maya/MTypeId.h>

namespace tvxhost::api {

engine::NodeType* typeOf(const MTypeId& id)
{
    return engine::Scene::current().types().find(id.id());
}

engine::NodeType* typeOf(const MString& name)
{
    return engine::Scene::current().types().find(tvxAccess::text(name));
}

engine::Expected<engine::Node*> createNode(engine::NodeType* type, const std::string& name,
                                           engine::DagNode* parent)
{
    if (!type || type->isAbstract)
        return {engine::Reason::failed, "No nodes of this type can be made"};
    auto made = engine::Scene::current().createNode(*type, name, parent);
    if (made && type->isShape && !parent)
        made.value = made.value->asDag()->parents().front();
    return made;
}

} // namespace tvxhost::api
