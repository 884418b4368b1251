// Commands about connections.
#include "commandSupport.h"
#include "sceneCommands.h"

#include "scene/connectionEnd.h"
#include "scene/messages.h"

namespace tvxhost::mel {

using engine::Node;
using engine::Outcome;
using engine::Plug;
using engine::Reason;

namespace {

Plug endNamed(const CommandContext& context, const std::string& name)
{
    return valueOf(context, scene::connectionEnd(sceneOf(context), name));
}

/// Goes past unit conversions: from a plug to what really feeds or is fed.
Plug pastConversion(const Plug& plug, bool towardsSource)
{
    if (!plug.node()->type().isA("unitConversion"))
        return plug;
    const auto other = plug.node()->findPlug(towardsSource ? "input" : "output");
    if (!other)
        return plug;
    if (towardsSource) {
        const Plug source = engine::sourceOf(other.value);
        return source.isNull() ? plug : source;
    }
    const std::vector<Plug> fed = engine::destinationsOf(other.value);
    return fed.empty() ? plug : fed.front();
}

void setLocked(const Plug& plug, bool isLocked)
{
    engine::PlugState state = engine::stateOf(plug);
    state.locked = isLocked;
    engine::setState(plug, state);
}

Value connectAttr(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    const std::vector<std::string> names = call.names();
    const Plug source = endNamed(context, names[0]);
    Plug destination = endNamed(context, names[1]);
    if (call.has("nextAvailable")) {
        if (!destination.isArray())
            context.fail("'" + destination.name() + "' is not an array: -nextAvailable has no meaning");
        destination = scene.nextAvailable(destination);
    }
    // What is to be unlocked is so before, what is to be locked afterwards.
    if (call.has("lock") && !call.boolean("lock"))
        setLocked(destination, false);
    const Outcome connected = scene.connect(source, destination, call.has("force"));
    if (connected.reason == Reason::sameConnection) {
        context.warn(scene::connectMessage(connected, source, destination));
        return {};
    }
    if (!connected)
        context.fail(scene::connectMessage(connected, source, destination));
    if (call.boolean("lock"))
        setLocked(destination, true);
    return Value("Connected " + source.name() + " to " + destination.name() + ".");
}

Value disconnectAttr(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<std::string> names = call.names();
    const Plug source = endNamed(context, names[0]);
    Plug destination = endNamed(context, names[1]);
    if (call.has("nextAvailable"))
        for (const Plug& fed : engine::destinationsOf(source))
            if (fed.isAtOrBelow(destination))
                destination = fed;
    const Outcome cut = sceneOf(context).disconnect(source, destination);
    if (!cut)
        context.fail(scene::disconnectMessage(cut, source, destination));
    return Value("Disconnect " + source.name() + " from " + destination.name() + ".");
}

Value isConnected(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<std::string> names = call.names();
    const Plug source = endNamed(context, names[0]);
    Plug feeding = engine::sourceOf(endNamed(context, names[1]));
    if (!feeding.isNull() && call.has("ignoreUnitConversion"))
        feeding = pastConversion(feeding, true);
    return Value(feeding == source);
}

// connectionInfo

/// The plug or the nearest one above it that has a connection of the kind; null when there is none.
template <class Has>
Plug nearestAbove(Plug plug, const Has& has)
{
    while (!plug.isNull() && !has(plug))
        plug = plug.isElement() ? plug.array() : plug.isChild() ? plug.parent() : Plug();
    return plug;
}

bool isFed(const Plug& plug)
{
    return !engine::sourceOf(plug).isNull();
}

bool feeds(const Plug& plug)
{
    return !engine::destinationsOf(plug).empty();
}

Value nameOf(const Plug& plug)
{
    return Value(plug.isNull() ? std::string() : plug.name());
}

struct ConnectionQuestion
{
    const char* shortName;
    const char* longName;
    const char* help;
    Value (*answer)(const Plug& plug);
};

constexpr ConnectionQuestion kQuestions[] = {
    {"sfd", "sourceFromDestination", "what feeds it",
     [](const Plug& plug) {
         const Plug fed = nearestAbove(plug, isFed);
         return nameOf(fed.isNull() ? fed : engine::sourceOf(fed));
     }},
    {"dfs", "destinationFromSource", "what it feeds",
     [](const Plug& plug) {
         Value::Strings list;
         for (const Plug& destination : engine::destinationsOf(plug))
             list.push_back(destination.name());
         return Value(std::move(list));
     }},
    {"id", "isDestination", "whether something feeds it or what it is part of",
     [](const Plug& plug) { return Value(!nearestAbove(plug, isFed).isNull()); }},
    {"is", "isSource", "whether it, or what it is part of, feeds something",
     [](const Plug& plug) { return Value(!nearestAbove(plug, feeds).isNull()); }},
    {"ied", "isExactDestination", "whether something feeds it itself",
     [](const Plug& plug) { return Value(isFed(plug)); }},
    {"ies", "isExactSource", "whether it feeds something itself",
     [](const Plug& plug) { return Value(feeds(plug)); }},
    {"ged", "getExactDestination", "it or what it is part of: what is fed",
     [](const Plug& plug) { return nameOf(nearestAbove(plug, isFed)); }},
    {"ges", "getExactSource", "it or what it is part of: what feeds something",
     [](const Plug& plug) { return nameOf(nearestAbove(plug, feeds)); }},
    {"il", "isLocked", "whether it is locked",
     [](const Plug& plug) { return Value(engine::isLocked(plug)); }},
    {"gla", "getLockedAncestor", "it or what it is part of: what is locked",
     [](const Plug& plug) {
         return nameOf(nearestAbove(plug, [](const Plug& above) { return engine::stateOf(above).locked; }));
     }},
};

Value connectionInfo(CommandContext& context, const ParsedCommand& call)
{
    const Plug plug = endNamed(context, call.names().front());
    for (const ConnectionQuestion& question : kQuestions)
        if (call.has(question.longName))
            return question.answer(plug);
    context.fail("connectionInfo: nothing was asked");
}

CommandSpec connectionInfoCommand()
{
    std::vector<FlagSpec> flags;
    for (const ConnectionQuestion& question : kQuestions)
        flags.push_back(switchFlag(question.shortName, question.longName, question.help));
    return makeCommand("connectionInfo", "Tells about the connections of an attribute", std::move(flags),
                       names(1, 1), connectionInfo);
}

// listConnections

bool isOfType(const Node& node, const ParsedCommand& call)
{
    if (!call.has("type"))
        return true;
    const std::string type = call.string("type");
    return call.boolean("exactType") ? node.type().name == type : node.type().isA(type);
}

std::string otherName(const Plug& other, const ParsedCommand& call)
{
    if (call.boolean("plugs"))
        return other.name();
    Node& node = *other.node();
    engine::DagNode* dag = node.asDag();
    // A shape is told by its transform unless shapes are asked for.
    if (dag && dag->isShape() && !call.boolean("shapes")) {
        engine::DagPath path = engine::DagPath::firstTo(*dag);
        if (path.pop() && path.length() > 0)
            return path.partialName();
    }
    return node.scene().shortestName(node);
}

void addConnection(const Plug& own, const Plug& direct, bool isSource, const ParsedCommand& call,
                   Value::Strings& list)
{
    const Plug other = call.boolean("skipConversionNodes") ? pastConversion(direct, isSource) : direct;
    if (!isOfType(*other.node(), call))
        return;
    if (call.boolean("connections"))
        list.push_back(own.name());
    list.push_back(otherName(other, call));
}

Value listConnections(CommandContext& context, const ParsedCommand& call)
{
    const bool sources = call.boolean("source", true);
    const bool destinations = call.boolean("destination", true);
    Value::Strings list;
    for (const engine::SelectionItem& item : itemsOrSelection(context, call.names())) {
        const std::vector<Plug> plugs = engine::connectedPlugs(*item.node);
        const auto isAsked = [&](const Plug& plug) {
            return item.plug.isNull() || plug.isAtOrBelow(item.plug);
        };
        for (const Plug& plug : plugs) {
            const Plug source = engine::sourceOf(plug);
            if (sources && isAsked(plug) && !source.isNull())
                addConnection(plug, source, true, call, list);
        }
        for (const Plug& plug : plugs)
            if (destinations && isAsked(plug))
                for (const Plug& destination : engine::destinationsOf(plug))
                    addConnection(plug, destination, false, call, list);
    }
    return Value(std::move(list));
}

} // namespace

void registerConnectionCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        makeCommand("connectAttr", "Connects two attributes",
                    {switchFlag("f", "force", "breaks an existing connection"),
                     switchFlag("na", "nextAvailable", "the first free element of an array"),
                     valueFlag("l", "lock", A::boolean, "locks the destination"),
                     valueFlag("rd", "referenceDest", A::string, "for files with references")},
                    names(2, 2), connectAttr),
        makeCommand("disconnectAttr", "Breaks a connection",
                    {switchFlag("na", "nextAvailable", "whichever element is fed by the source")},
                    names(2, 2), disconnectAttr),
        makeCommand("isConnected", "Tells whether one attribute feeds another",
                    {switchFlag("iuc", "ignoreUnitConversion", "looks past conversion nodes")}, names(2, 2),
                    isConnected),
        connectionInfoCommand(),
        makeCommand("listConnections", "Lists what nodes or attributes are connected to",
                    {valueFlag("s", "source", A::boolean, "what feeds them"),
                     valueFlag("d", "destination", A::boolean, "what they feed"),
                     valueFlag("p", "plugs", A::boolean, "attributes, not nodes"),
                     valueFlag("c", "connections", A::boolean, "with the own attribute before each"),
                     valueFlag("t", "type", A::string, "nodes of this type only"),
                     valueFlag("et", "exactType", A::boolean, "of exactly this type"),
                     valueFlag("sh", "shapes", A::boolean, "shapes, not their transforms"),
                     valueFlag("scn", "skipConversionNodes", A::boolean, "looks past conversion nodes")},
                    names(), listConnections),
    });
}

} // namespace tvxhost::mel
