// The attributes of built-in types that the API's classes show as static members (MPxNode::message and
// alike).
#pragma once

#include <maya/MObject.h>
#include <maya/MTypes.h>

#include <vector>

namespace tvxhost::engine {
class TypeTable;
}

namespace tvxhost::api {

/// Static members of one class, each with the long name of its attribute. Defined at namespace scope beside
/// the members; it puts itself on the list of all.
class OPENMAYA_EXPORT BuiltInAttributes
{
public:
    struct Member
    {
        MObject* object;
        const char* attribute;
    };

    BuiltInAttributes(const char* nodeType, std::vector<Member> members);
    /// A library that came with a plug-in may go with it.
    ~BuiltInAttributes();
    BuiltInAttributes(const BuiltInAttributes&) = delete;
    BuiltInAttributes& operator=(const BuiltInAttributes&) = delete;

    /// Points all members of all classes to the attributes of a table's types. Done before plug-ins see them.
    static void bindAll(const engine::TypeTable& types);

private:
    const char* m_nodeType;
    std::vector<Member> m_members;
};

} // namespace tvxhost::api
