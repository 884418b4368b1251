// namespace: makes, fills, moves, renames and takes away the parts of names before the colon.
#include "commandSupport.h"
#include "namespaceNames.h"
#include "sceneCommands.h"

#include <cctype>

namespace tvxhost::mel {

namespace {

using engine::Scene;

/// A part of a name without what no name may hold: what it must not begin with goes, the rest becomes "_".
std::string validPart(const std::string& part)
{
    const auto isDigit = [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; };
    const auto isLegal = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; };
    const std::string trimmed = part.substr(0, part.find_last_not_of(' ') + 1);
    std::string valid;
    for (const char c : trimmed)
        if (!valid.empty() || (isLegal(c) && !isDigit(c)))
            valid += isLegal(c) ? c : '_';
    return valid;
}

/// Each part made valid; parts of which nothing is left go.
std::string validName(const std::string& name)
{
    std::string valid = isAbsolute(name) ? ":" : "";
    for (std::size_t start = 0; start <= name.size();) {
        const std::size_t colon = std::min(name.find(':', start), name.size());
        if (const std::string part = validPart(name.substr(start, colon - start)); !part.empty())
            valid += (valid.empty() || valid == ":" ? "" : ":") + part;
        start = colon + 1;
    }
    return valid;
}

std::string legalOr(const CommandContext& context, const std::string& name)
{
    const std::string valid = validName(name);
    if (plainName(valid).empty())
        context.fail("namespace: '" + name + "' is not a legal namespace name");
    return valid;
}

/// A name that is to come: below the namespace that -parent names, else the current one.
std::string newNamespace(const CommandContext& context, const ParsedCommand& call, const std::string& wish)
{
    Scene& scene = sceneOf(context);
    const std::string name = legalOr(context, wish);
    if (isAbsolute(name)) {
        if (call.has("parent"))
            context.warn("namespace: the name '" + name + "' is absolute: its parent is ignored");
        return plainName(name);
    }
    const std::string parent = call.has("parent") ? existingNamespace(context, call.string("parent"))
                                                  : plainName(scene.currentNamespace());
    return parent.empty() ? name : parent + ":" + name;
}

Value addNamespace(CommandContext& context, const ParsedCommand& call)
{
    const std::string name = newNamespace(context, call, call.string("addNamespace"));
    require(context, sceneOf(context).addNamespace(":" + name));
    return Value(name);
}

Value renameNamespace(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<Value>& names = call.use("rename")->arguments;
    const std::string from = existingNamespace(context, names[0].toString());
    const std::string to = newNamespace(context, call, names[1].toString());
    require(context, sceneOf(context).renameNamespace(from, to));
    return Value(to);
}

Value moveNamespace(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<Value>& names = call.use("moveNamespace")->arguments;
    require(context, sceneOf(context).moveNamespace(existingNamespace(context, names[0].toString()),
                                                    existingNamespace(context, names[1].toString()),
                                                    call.has("force")));
    return {};
}

// Taking away

Value removeNamespace(CommandContext& context, const ParsedCommand& call)
{
    Scene& scene = sceneOf(context);
    const std::string space = existingNamespace(context, call.string("removeNamespace"));
    const bool mergesUp = call.has("mergeNamespaceWithParent");
    const bool mergesToRoot = call.has("mergeNamespaceWithRoot");
    const bool deletes = call.has("deleteNamespaceContent");
    if (mergesUp + mergesToRoot + deletes > 1)
        context.fail("namespace: only one flag may say what becomes of the content");
    if (deletes) {
        require(context, scene.deleteNamespace(space));
        return {};
    }
    if (mergesUp || mergesToRoot)
        require(context, scene.moveNamespace(space, mergesUp ? parentNamespace(space) : ":", true));
    require(context, scene.removeNamespace(space));
    return {};
}

/// Takes away the namespaces around one, which may be gone already, as long as they hold nothing.
Value collapseAncestors(CommandContext& context, const ParsedCommand& call)
{
    Scene& scene = sceneOf(context);
    std::string space = parentNamespace(plainName(call.string("collapseAncestors")));
    while (!space.empty() && scene.removeNamespace(space))
        space = parentNamespace(space);
    return {};
}

// Asking

bool existsAnywhere(const Scene& scene, const std::string& name)
{
    for (const std::string& space : scene.namespaces())
        if (space == name ||
            (space.size() > name.size() &&
             space.compare(space.size() - name.size() - 1, std::string::npos, ":" + name) == 0))
            return true;
    return false;
}

Value namespaceExists(CommandContext& context, const ParsedCommand& call)
{
    const std::string name = call.string("exists");
    return Value(findNamespace(sceneOf(context), name).has_value() ||
                 (call.has("recurse") && existsAnywhere(sceneOf(context), plainName(name))));
}

/// The name made valid, without a namespace that there is not.
Value validateName(CommandContext& context, const ParsedCommand& call)
{
    const std::string valid = validName(call.string("validateName"));
    const std::string space = parentNamespace(plainName(valid));
    const bool isKept =
        space.empty() || findNamespace(sceneOf(context), (isAbsolute(valid) ? ":" : "") + space);
    return Value(isKept ? valid : baseName(valid));
}

Value queryNamespace(CommandContext& context, const ParsedCommand& call)
{
    Scene& scene = sceneOf(context);
    if (call.has("relativeNames"))
        return Value(scene.hasRelativeNames());
    if (call.has("isRootNamespace"))
        return Value(existingNamespace(context, call.string("isRootNamespace")).empty());
    if (call.has("exists"))
        return namespaceExists(context, call);
    const std::vector<std::string> names = call.names();
    const std::string space =
        names.empty() ? plainName(scene.currentNamespace()) : existingNamespace(context, names.front());
    return Value(space.empty() || call.has("absoluteName") ? ":" + space : space);
}

Value setNamespace(CommandContext& context, const ParsedCommand& call)
{
    const std::string space = existingNamespace(context, call.string("setNamespace"));
    require(context, sceneOf(context).setCurrentNamespace(":" + space));
    return Value(space.empty() ? ":" : space);
}

Value setRelativeNames(CommandContext& context, const ParsedCommand& call)
{
    sceneOf(context).setRelativeNames(call.boolean("relativeNames"));
    return {};
}

struct Action
{
    const char* flag;
    Value (*run)(CommandContext&, const ParsedCommand&);
};

constexpr Action kActions[] = {
    {"addNamespace", addNamespace},       {"setNamespace", setNamespace},
    {"removeNamespace", removeNamespace}, {"moveNamespace", moveNamespace},
    {"rename", renameNamespace},          {"collapseAncestors", collapseAncestors},
    {"exists", namespaceExists},          {"validateName", validateName},
    {"relativeNames", setRelativeNames},
};

Value runNamespace(CommandContext& context, const ParsedCommand& call)
{
    if (!call.queries())
        for (const Action& action : kActions)
            if (call.has(action.flag))
                return action.run(context, call);
    return queryNamespace(context, call);
}

} // namespace

void registerNamespaceCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        makeCommand(
            "namespace", "Makes, moves and takes away namespaces and sets the current one",
            {valueFlag("add", "addNamespace", A::string, "makes one below the current one"),
             valueFlag("p", "parent", A::string, "with -addNamespace and -rename: below this one instead"),
             valueFlag("set", "setNamespace", A::string, "makes it the current one"),
             valueFlag("rm", "removeNamespace", A::string, "takes it away; it must be empty"),
             switchFlag("mnp", "mergeNamespaceWithParent", "with -removeNamespace: its content moves up"),
             switchFlag("mnr", "mergeNamespaceWithRoot",
                        "with -removeNamespace: its content moves to the root"),
             switchFlag("dnc", "deleteNamespaceContent", "with -removeNamespace: its content is deleted"),
             {"mv", "moveNamespace", {A::string, A::string}, kCreate, "moves its content into the other one"},
             switchFlag("f", "force", "with -moveNamespace: names that are taken there are changed"),
             {"ren", "rename", {A::string, A::string}, kCreate, "gives it the other name"},
             valueFlag("ch", "collapseAncestors", A::string, "takes away the empty ones around it"),
             valueFlag("ex", "exists", A::string, "whether it exists", kCreateQuery | kQueryWithArguments),
             switchFlag("r", "recurse", "with -exists: in any other one", kCreateQuery),
             valueFlag("ir", "isRootNamespace", A::string, "whether it is the root",
                       kQuery | kQueryWithArguments),
             valueFlag("vn", "validateName", A::string, "the name without characters that none may hold"),
             valueFlag("rel", "relativeNames", A::boolean,
                       "names are looked up in the current one before the root", kCreateQuery),
             switchFlag("an", "absoluteName", "the name with a leading colon", kCreateQuery)},
            {A::string, 0, 1}, runNamespace, kQuery),
    });
    registerNamespaceInfoCommands(table);
}

} // namespace tvxhost::mel
