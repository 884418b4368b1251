// MNamespace: the namespaces of the scene.
#include <maya/MNamespace.h>
#include <maya/MObjectArray.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>

#include "engine/scene.h"
#include "support/access.h"
#include "support/apiCall.h"

#include <cctype>

using namespace tvxhost;
using api::failure;
using api::StatusText;
using engine::Scene;

namespace {

/// A namespace or name from the root on, without a colon before it; the root is the empty text.
std::string fromRoot(const std::string& name)
{
    if (!name.empty() && name.front() == ':')
        return name.substr(1);
    const std::string current = Scene::current().currentNamespace().substr(1);
    return current.empty() ? name : current + ":" + name;
}

/// What stands before the last colon, and behind it.
std::string namespaceOf(const std::string& name)
{
    const std::size_t colon = name.rfind(':');
    return colon == std::string::npos ? std::string() : name.substr(0, colon);
}

std::string nameWithin(const std::string& name)
{
    const std::size_t colon = name.rfind(':');
    return colon == std::string::npos ? name : name.substr(colon + 1);
}

/// Whether a namespace is directly in another one, or (with `recurse`) anywhere below it.
bool isIn(const std::string& space, const std::string& outer, bool recurse)
{
    const std::string above = namespaceOf(space);
    return above == outer ||
           (recurse && (outer.empty() || above.compare(0, outer.size() + 1, outer + ":") == 0));
}

MString shown(const std::string& space)
{
    return tvxAccess::string(space.empty() ? ":" : space);
}

MStringArray namespacesIn(const std::string& outer, bool recurse)
{
    MStringArray found;
    for (const std::string& space : Scene::current().namespaces())
        if (isIn(space, outer, recurse))
            found.append(tvxAccess::string(space));
    return found;
}

bool isLegal(char c, bool isFirst)
{
    const auto byte = static_cast<unsigned char>(c);
    return c == '_' || (isFirst ? std::isalpha(byte) : std::isalnum(byte));
}

} // namespace

MStatus MNamespace::addNamespace(const MString& name, const MString* parent)
{
    TVX_API_CALL("MNamespace::addNamespace");
    const std::string above = parent ? fromRoot(tvxAccess::text(*parent)) + ":" : std::string();
    const std::string wanted = parent ? above + tvxAccess::text(name) : fromRoot(tvxAccess::text(name));
    return api::toStatus(Scene::current().addNamespace(":" + wanted));
}

MString MNamespace::validateName(const MString& name, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNamespace::validateName", ReturnStatus, MString());
    api::giveSuccess(ReturnStatus);
    std::string text = tvxAccess::text(name);
    for (std::size_t i = 0; i < text.size(); ++i)
        if (!isLegal(text[i], i == 0))
            text[i] = '_';
    return tvxAccess::string(text);
}

MString MNamespace::currentNamespace(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNamespace::currentNamespace", ReturnStatus, MString());
    api::giveSuccess(ReturnStatus);
    return tvxAccess::string(Scene::current().currentNamespace());
}

MStatus MNamespace::setCurrentNamespace(const MString& name)
{
    TVX_API_CALL("MNamespace::setCurrentNamespace");
    return api::toStatus(Scene::current().setCurrentNamespace(":" + fromRoot(tvxAccess::text(name))));
}

MStringArray MNamespace::getNamespaces(const bool recurse, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNamespace::getNamespaces", ReturnStatus, MStringArray());
    api::giveSuccess(ReturnStatus);
    return namespacesIn(fromRoot(Scene::current().currentNamespace()), recurse);
}

MStringArray MNamespace::getNamespaces(const MString& parentNamespace, const bool recurse,
                                       MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNamespace::getNamespaces", ReturnStatus, MStringArray());
    api::giveSuccess(ReturnStatus);
    return namespacesIn(fromRoot(tvxAccess::text(parentNamespace)), recurse);
}

bool MNamespace::namespaceExists(const MString& name, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNamespace::namespaceExists", ReturnStatus, false);
    api::giveSuccess(ReturnStatus);
    const std::string space = fromRoot(tvxAccess::text(name));
    return space.empty() || Scene::current().hasNamespace(":" + space);
}

MString MNamespace::parentNamespace(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNamespace::parentNamespace", ReturnStatus, MString());
    const std::string current = fromRoot(Scene::current().currentNamespace());
    if (current.empty()) {
        api::give(ReturnStatus, failure(StatusText::unexpectedFailure));
        return MString();
    }
    api::giveSuccess(ReturnStatus);
    return shown(namespaceOf(current));
}

MStatus MNamespace::removeNamespace(const MString& name, bool removeContents)
{
    TVX_API_CALL("MNamespace::removeNamespace");
    const std::string space = fromRoot(tvxAccess::text(name));
    Scene& scene = Scene::current();
    return api::toStatus(removeContents ? scene.deleteNamespace(space) : scene.removeNamespace(space));
}

MStatus MNamespace::renameNamespace(const MString& oldName, const MString& newName, const MString* parent)
{
    TVX_API_CALL("MNamespace::renameNamespace");
    const std::string from = fromRoot(tvxAccess::text(oldName));
    const std::string above = parent ? fromRoot(tvxAccess::text(*parent)) : namespaceOf(from);
    const std::string name = tvxAccess::text(newName);
    return api::toStatus(Scene::current().renameNamespace(from, above.empty() ? name : above + ":" + name));
}

MObjectArray MNamespace::getNamespaceObjects(const MString& parentNamespace, const bool recurse,
                                             MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNamespace::getNamespaceObjects", ReturnStatus, MObjectArray());
    api::giveSuccess(ReturnStatus);
    const std::string outer = fromRoot(tvxAccess::text(parentNamespace));
    MObjectArray found;
    for (const engine::Node* node : Scene::current().nodes())
        if (node != &Scene::current().world() && isIn(node->name(), outer, recurse))
            found.append(tvxAccess::handle(node));
    return found;
}

MStatus MNamespace::moveNamespace(const MString& src, const MString& dst, const bool force)
{
    TVX_API_CALL("MNamespace::moveNamespace");
    return api::toStatus(Scene::current().moveNamespace(fromRoot(tvxAccess::text(src)),
                                                        fromRoot(tvxAccess::text(dst)), force));
}

MString MNamespace::rootNamespace(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNamespace::rootNamespace", ReturnStatus, MString());
    api::giveSuccess(ReturnStatus);
    return MString(":");
}

bool MNamespace::relativeNames(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNamespace::relativeNames", ReturnStatus, false);
    api::giveSuccess(ReturnStatus);
    return Scene::current().hasRelativeNames();
}

MStatus MNamespace::setRelativeNames(bool newState)
{
    TVX_API_CALL("MNamespace::setRelativeNames");
    Scene::current().setRelativeNames(newState);
    return MS::kSuccess;
}

MString MNamespace::getNamespaceFromName(const MString& fullName, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNamespace::getNamespaceFromName", ReturnStatus, MString());
    api::giveSuccess(ReturnStatus);
    return tvxAccess::string(namespaceOf(tvxAccess::text(fullName)));
}

MString MNamespace::stripNamespaceFromName(const MString& fullName, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNamespace::stripNamespaceFromName", ReturnStatus, MString());
    api::giveSuccess(ReturnStatus);
    return tvxAccess::string(nameWithin(tvxAccess::text(fullName)));
}

MString MNamespace::makeNamepathAbsolute(const MString& name, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNamespace::makeNamepathAbsolute", ReturnStatus, MString());
    api::giveSuccess(ReturnStatus);
    return tvxAccess::string(":" + fromRoot(tvxAccess::text(name)));
}

const char* MNamespace::className()
{
    return "MNamespace";
}
