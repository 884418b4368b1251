// Names of namespaces; see namespaceNames.h.
#include "namespaceNames.h"

#include "commandSupport.h"

#include "engine/glob.h"

namespace tvxhost::mel {

bool isAbsolute(const std::string& name)
{
    return !name.empty() && name.front() == ':';
}

std::string plainName(const std::string& name)
{
    const std::string bare = engine::withoutColon(name);
    return !bare.empty() && bare.back() == ':' ? bare.substr(0, bare.size() - 1) : bare;
}

std::string parentNamespace(const std::string& plain)
{
    const std::size_t colon = plain.rfind(':');
    return colon == std::string::npos ? std::string() : plain.substr(0, colon);
}

std::string baseName(const std::string& plain)
{
    return plain.substr(plain.rfind(':') + 1);
}

bool isIn(const std::string& name, const std::string& space, bool isDeep)
{
    const std::string begin = space.empty() ? space : space + ":";
    return name.size() > begin.size() && name.compare(0, begin.size(), begin) == 0 &&
           (isDeep || name.find(':', begin.size()) == std::string::npos);
}

std::optional<std::string> findNamespace(const engine::Scene& scene, const std::string& name)
{
    const std::string plain = plainName(name);
    const std::string current = plainName(scene.currentNamespace());
    if (!isAbsolute(name) && !current.empty() && !plain.empty() && scene.hasNamespace(current + ":" + plain))
        return current + ":" + plain;
    if (scene.hasNamespace(plain))
        return plain;
    return std::nullopt;
}

std::string existingNamespace(const CommandContext& context, const std::string& name)
{
    const std::optional<std::string> found = findNamespace(sceneOf(context), name);
    if (!found)
        context.fail(context.command() + ": there is no namespace '" + name + "'");
    return *found;
}

} // namespace tvxhost::mel
