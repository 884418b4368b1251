// Other names for attributes; see renameAttribute.h.
#include "renameAttribute.h"

#include "observers.h"
#include "scene.h"

#include <algorithm>
#include <cctype>

namespace tvxhost::engine {

namespace {

bool isAttributeName(const std::string& name)
{
    const auto isWord = [](unsigned char c) { return std::isalnum(c) || c == '_'; };
    return !name.empty() && !std::isdigit(static_cast<unsigned char>(name.front())) &&
           std::all_of(name.begin(), name.end(), isWord);
}

} // namespace

Outcome renameAttribute(Node& node, Attribute& attribute, const std::string& name, AttributeName which)
{
    if (!attribute.topLevel()->flags.dynamic)
        return {Reason::readOnly, "'" + attribute.longName + "' was not added to '" + node.name() + "'"};
    if (!isAttributeName(name))
        return {Reason::invalidName, "'" + name + "' is not a legal name"};
    const Attribute* taken = node.findAttribute(name);
    if (taken && taken != &attribute)
        return {Reason::nameTaken, "'" + node.name() + "' has an attribute named '" + name + "'"};
    Scene& scene = node.scene();
    std::string& own = which == AttributeName::longName ? attribute.longName : attribute.shortName;
    if (own == name)
        return {};
    scene.journal().keep(own, Ref<Attribute>(&attribute));
    const Plug plug(node, attribute);
    Event renamed{Happening::attributeRenamed, &node, nullptr, &plug};
    renamed.text = own;
    if (which == AttributeName::longName)
        node.renameInAliases(own, name);
    own = name;
    scene.isModified = true;
    scene.observers().tell(renamed);
    return {};
}

} // namespace tvxhost::engine
