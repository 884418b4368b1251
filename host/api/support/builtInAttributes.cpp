// The attributes of built-in types that the API's classes show as static members.
#include "builtInAttributes.h"

#include "access.h"

#include "engine/nodeType.h"

namespace tvxhost::api {

namespace {

std::vector<const BuiltInAttributes*>& allBuiltIn()
{
    static std::vector<const BuiltInAttributes*> all;
    return all;
}

} // namespace

BuiltInAttributes::BuiltInAttributes(const char* nodeType, std::vector<Member> members)
    : m_nodeType(nodeType), m_members(std::move(members))
{
    allBuiltIn().push_back(this);
}

void BuiltInAttributes::bindAll(const engine::TypeTable& types)
{
    for (const BuiltInAttributes* builtIn : allBuiltIn()) {
        const engine::NodeType* type = types.find(builtIn->m_nodeType);
        for (const Member& member : builtIn->m_members)
            tvxAccess::setObject(*member.object, type ? type->find(member.attribute) : nullptr);
    }
}

} // namespace tvxhost::api
