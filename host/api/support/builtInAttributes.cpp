// The attributes of built-in types that the API's classes show as static members.
#include "builtInAttributes.h"

#include "access.h"

#include "engine/nodeType.h"

#include <algorithm>

namespace tvxhost::api {

namespace {

std::vector<const BuiltInAttributes*>& allBuiltIn()
{
    // Never destroyed: libraries that end later take themselves off the list.
    static auto* const all = new std::vector<const BuiltInAttributes*>;
    return *all;
}

} // namespace

BuiltInAttributes::BuiltInAttributes(const char* nodeType, std::vector<Member> members)
    : m_nodeType(nodeType), m_members(std::move(members))
{
    allBuiltIn().push_back(this);
}

BuiltInAttributes::~BuiltInAttributes()
{
    auto& all = allBuiltIn();
    all.erase(std::find(all.begin(), all.end(), this));
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
