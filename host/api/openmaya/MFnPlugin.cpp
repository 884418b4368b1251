// MFnPlugin: what a plug-in adds to Maya. What the host leaves out is in MFnPluginUnsupported.cpp.
#define MNoVersionString
#include <maya/MArgList.h>
#include <maya/MFnPlugin.h>

#include "plugins/pluginLoader.h"
#include "support/arguments.h"
#include "support/builtInAttributes.h"
#include "support/commandState.h"
#include "support/functionSet.h"
#include "support/notImplemented.h"
#include "support/pluginSyntax.h"
#include "support/pxBehaviour.h"
#include "support/pxData.h"
#include "support/registeringType.h"

#include <algorithm>
#include <array>

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::Node;
using tvxhost::engine::NodeBehaviour;
using tvxhost::engine::NodeType;
using tvxhost::engine::PluginCommand;
using tvxhost::engine::PluginData;
using tvxhost::engine::PluginDataType;
using tvxhost::engine::Ref;
using tvxhost::engine::Scene;
using tvxhost::engine::ScriptRunner;

namespace {

Scene& sessionScene()
{
    return PluginLoader::current().scene();
}

Plugin* pluginOf(const MFnBase& set)
{
    auto* object = tvxAccess::attached(set);
    return object && object->objectClass() == tvxhost::engine::ObjectClass::plugin
               ? static_cast<Plugin*>(object)
               : nullptr;
}

MString textOf(const MFnBase& set, const char* name, std::string Plugin::*text, MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, MString());
    const Plugin* plugin = pluginOf(set);
    return requireAttached(plugin, returnStatus) ? tvxAccess::string(plugin->*text) : MString();
}

std::string orEmpty(const char* text)
{
    return text ? text : "";
}

/// The built-in type that nodes of a kind stand on; null for kinds that the host has no base for.
NodeType* baseOf(MPxNode::Type kind)
{
    static const struct
    {
        MPxNode::Type kind;
        const char* type;
    } bases[] = {{MPxNode::kDependNode, "THdependNode"}, {MPxNode::kLocatorNode, "THlocatorShape"}};
    for (const auto& base : bases)
        if (base.kind == kind)
            return sessionScene().types().find(base.type);
    return nullptr;
}

std::unique_ptr<NodeBehaviour> makeBehaviour(MCreatorFunction creator, Node& node)
{
    std::unique_ptr<MPxNode> object(static_cast<MPxNode*>(creator()));
    if (!object)
        return nullptr;
    return std::make_unique<PxBehaviour>(node, std::move(object));
}

bool isInternal(const Attribute& attribute)
{
    return attribute.flags.internal ||
           std::any_of(attribute.children.begin(), attribute.children.end(),
                       [](const Ref<Attribute>& child) { return isInternal(*child); });
}

/// The class would keep the values of internal attributes, but is never asked for them here.
void tellOfInternalAttributes(const NodeType& type)
{
    for (const Ref<Attribute>& attribute : type.attributes())
        if (attribute->owner == &type && isInternal(*attribute))
            sessionScene().scriptEditor().warning(
                "'" + type.name + "." + attribute->longName +
                "' is internal, but its value is kept as any other: MPxNode::getInternalValue and "
                "setInternalValue are not called");
}

MStatus declareAttributes(NodeType& type, MInitializeFunction initialize)
{
    if (!initialize)
        return MS::kSuccess;
    const RegisteringType registering(type);
    const MStatus declared = initialize();
    if (declared)
        tellOfInternalAttributes(type);
    return declared;
}

/// A command that ran and that can be undone. It lives as long as undo can come back to it.
class CommandEdit final : public tvxhost::engine::Edit
{
public:
    explicit CommandEdit(std::unique_ptr<MPxCommand> command, std::string name)
        : m_command(std::move(command)), m_name(std::move(name))
    {
    }
    void undo() override { call(&MPxCommand::undoIt); }
    void redo() override { call(&MPxCommand::redoIt); }
    bool isOf(const std::string& plugin) const override
    {
        const auto& all = sessionScene().pluginCommands;
        const auto found = all.find(m_name);
        return found != all.end() && found->second.plugin == plugin;
    }

private:
    void call(MStatus (MPxCommand::*member)()) const
    {
        auto& editor = sessionScene().scriptEditor();
        const RunningCommands running(m_name);
        const int errorsBefore = editor.errors();
        const MStatus status = (m_command.get()->*member)();
        if (!status && editor.errors() == errorsBefore)
            editor.error(describe(status));
    }

    std::unique_ptr<MPxCommand> m_command;
    std::string m_name;
};

/// What a plug-in gives to register a command.
struct CommandFactory
{
    std::string name;
    MCreatorFunction creator;
    MCreateSyntaxFunction createSyntax;

    bool run(const std::vector<ScriptRunner::Result>& arguments, ScriptRunner::Result& result) const;
};

/// Runs a new instance. A command that fails without saying why is reported by its status.
bool CommandFactory::run(const std::vector<ScriptRunner::Result>& arguments,
                         ScriptRunner::Result& result) const
{
    auto& editor = sessionScene().scriptEditor();
    std::unique_ptr<MPxCommand> command(static_cast<MPxCommand*>(creator()));
    if (!command) {
        editor.error("Cannot make the command " + name);
        return false;
    }
    CommandState& state = *tvxAccess::commandState(*command);
    state.text = name;
    if (createSyntax)
        state.syntax = createSyntax();
    MArgList list;
    tvxAccess::arguments(list) = argumentsOf(arguments);
    const RunningCommands running(name);
    const int errorsBefore = editor.errors();
    const MStatus status = [&] {
        // What it edits itself it takes back itself.
        const tvxhost::engine::Journal::Into nothing(sessionScene().journal(), nullptr);
        return command->doIt(list);
    }();
    if (!status && editor.errors() == errorsBefore)
        editor.error(describe(status));
    result = RunningCommands::current();
    if (status && command->isUndoable())
        sessionScene().journal().record(std::make_unique<CommandEdit>(std::move(command), name));
    return status;
}

} // namespace

const MString MFnPlugin::kDefaultDataLocation("data");

MFnPlugin::MFnPlugin() = default;

MFnPlugin::MFnPlugin(MObject& object, const char* vendor, const char* version, const char* requiredApiVersion,
                     MStatus* ReturnStatus)
{
    TVX_CONSTRUCT_ON(MFnPlugin, object, ReturnStatus);
    Plugin* plugin = pluginOf(*this);
    if (!plugin || plugin->isDescribed)
        return;
    plugin->vendor = orEmpty(vendor);
    plugin->version = orEmpty(version);
    plugin->requiredApiVersion = orEmpty(requiredApiVersion);
    plugin->isDescribed = true;
}

TVX_FUNCTION_SET_IDENTITY(MFnPlugin, MFn::kPlugin)

// The plug-in

MString MFnPlugin::vendor(MStatus* ReturnStatus) const
{
    return textOf(*this, "MFnPlugin::vendor", &Plugin::vendor, ReturnStatus);
}

MString MFnPlugin::version(MStatus* ReturnStatus) const
{
    return textOf(*this, "MFnPlugin::version", &Plugin::version, ReturnStatus);
}

MString MFnPlugin::apiVersion(MStatus* ReturnStatus) const
{
    return textOf(*this, "MFnPlugin::apiVersion", &Plugin::requiredApiVersion, ReturnStatus);
}

MString MFnPlugin::name(MStatus* ReturnStatus) const
{
    return textOf(*this, "MFnPlugin::name", &Plugin::name, ReturnStatus);
}

MString MFnPlugin::loadPath(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnPlugin::loadPath", ReturnStatus, MString());
    const Plugin* plugin = pluginOf(*this);
    return requireAttached(plugin, ReturnStatus) ? tvxAccess::string(plugin->file.parent_path().string())
                                                 : MString();
}

MStatus MFnPlugin::setName(const MString& newName, bool allowRename)
{
    TVX_API_CALL("MFnPlugin::setName");
    Plugin* plugin = pluginOf(*this);
    if (!plugin)
        return notAttached();
    return toStatus(PluginLoader::current().rename(*plugin, tvxAccess::text(newName), allowRename));
}

MStatus MFnPlugin::setVersion(const MString& newVersion)
{
    TVX_API_CALL("MFnPlugin::setVersion");
    Plugin* plugin = pluginOf(*this);
    if (!plugin)
        return notAttached();
    plugin->version = tvxAccess::text(newVersion);
    return MS::kSuccess;
}

MObject MFnPlugin::findPlugin(const MString& pluginName)
{
    return tvxAccess::handle(PluginLoader::current().findLoaded(tvxAccess::text(pluginName)));
}

// Node types

MStatus MFnPlugin::registerNode(const MString& typeName, const MTypeId& typeId,
                                MCreatorFunction creatorFunction, MInitializeFunction initFunction,
                                MPxNode::Type type, const MString* classification)
{
    TVX_API_CALL("MFnPlugin::registerNode");
    const Plugin* plugin = pluginOf(*this);
    if (!plugin)
        return notAttached();
    if (!creatorFunction)
        return failure(StatusText::nullArgument);
    NodeType* base = baseOf(type);
    if (!base)
        return notImplemented("MFnPlugin::registerNode of this kind of node");
    auto& types = sessionScene().types();
    const auto made = types.add(tvxAccess::text(typeName), typeId.id(), *base);
    if (!made)
        return failure(StatusText::unexpectedFailure);
    NodeType& nodeType = *made.value;
    nodeType.plugin = plugin->name;
    nodeType.classification = classification ? tvxAccess::text(*classification) : std::string();
    nodeType.behaviour = [creatorFunction](Node& node) { return makeBehaviour(creatorFunction, node); };
    const MStatus declared = declareAttributes(nodeType, initFunction);
    if (!declared)
        (void)types.remove(nodeType);
    return declared;
}

MStatus MFnPlugin::deregisterNode(const MTypeId& typeId)
{
    TVX_API_CALL("MFnPlugin::deregisterNode");
    const Plugin* plugin = pluginOf(*this);
    if (!plugin)
        return notAttached();
    NodeType* type = sessionScene().types().find(typeId.id());
    if (!type || type->plugin != plugin->name)
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    sessionScene().makeUnknown(*type);
    return toStatus(sessionScene().types().remove(*type));
}

bool MFnPlugin::isNodeRegistered(const MString& typeName)
{
    return sessionScene().types().find(tvxAccess::text(typeName)) != nullptr;
}

// Types of data

MStatus MFnPlugin::registerData(const MString& typeName, const MTypeId& typeId,
                                MCreatorFunction creatorFunction, MPxData::Type type)
{
    TVX_API_CALL("MFnPlugin::registerData");
    const Plugin* plugin = pluginOf(*this);
    if (!plugin)
        return notAttached();
    if (!creatorFunction)
        return failure(StatusText::nullArgument);
    if (type != MPxData::kData)
        return notImplemented("MFnPlugin::registerData of geometry");
    PluginDataType added{tvxAccess::text(typeName), typeId.id(), plugin->name};
    added.make = [creatorFunction](const auto& dataType) {
        std::unique_ptr<MPxData> object(static_cast<MPxData*>(creatorFunction()));
        return object ? Ref<PluginData>(new PxData(dataType, std::move(object))) : Ref<PluginData>();
    };
    return toStatus(sessionScene().dataTypes().add(std::move(added)));
}

MStatus MFnPlugin::deregisterData(const MTypeId& typeId)
{
    TVX_API_CALL("MFnPlugin::deregisterData");
    const Plugin* plugin = pluginOf(*this);
    if (!plugin)
        return notAttached();
    const auto type = sessionScene().dataTypes().find(typeId.id());
    if (!type || type->plugin != plugin->name)
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    sessionScene().dataTypes().remove(*type);
    return MS::kSuccess;
}

// Commands

MStatus MFnPlugin::registerCommand(const MString& commandName, MCreatorFunction creatorFunction,
                                   MCreateSyntaxFunction createSyntaxFunction)
{
    TVX_API_CALL("MFnPlugin::registerCommand");
    Plugin* plugin = pluginOf(*this);
    if (!plugin)
        return notAttached();
    if (!creatorFunction)
        return failure(StatusText::nullArgument);
    const CommandFactory factory{tvxAccess::text(commandName), creatorFunction, createSyntaxFunction};
    PluginCommand command{factory.name, plugin->name, [factory](const auto& arguments, auto& result) {
                              return factory.run(arguments, result);
                          }};
    if (createSyntaxFunction)
        command.syntax = [createSyntaxFunction] {
            return tvxhost::api::describeSyntax(createSyntaxFunction());
        };
    if (factory.name.empty() || !sessionScene().pluginCommands.emplace(factory.name, command).second)
        return failure(StatusText::unexpectedFailure);
    plugin->commands.push_back(factory.name);
    return MS::kSuccess;
}

MStatus MFnPlugin::deregisterCommand(const MString& commandName)
{
    TVX_API_CALL("MFnPlugin::deregisterCommand");
    Plugin* plugin = pluginOf(*this);
    if (!plugin)
        return notAttached();
    auto& commands = plugin->commands;
    const auto place = std::find(commands.begin(), commands.end(), tvxAccess::text(commandName));
    if (place == commands.end())
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    sessionScene().pluginCommands.erase(*place);
    commands.erase(place);
    return MS::kSuccess;
}

// User interface

MStatus MFnPlugin::registerUI(const MString& creationProc, const MString& deletionProc,
                              const MString& creationBatchProc, const MString& deletionBatchProc)
{
    TVX_API_CALL("MFnPlugin::registerUI");
    Plugin* plugin = pluginOf(*this);
    if (!plugin)
        return notAttached();
    plugin->interfaceProcedures = {tvxAccess::text(creationProc), tvxAccess::text(deletionProc),
                                   tvxAccess::text(creationBatchProc), tvxAccess::text(deletionBatchProc)};
    return MS::kSuccess;
}
