// scriptJob: scripts that run when something has happened.
#include "commandSupport.h"
#include "interfaceAccess.h"
#include "sceneCommands.h"

#include "../interpreter.h"

#include <algorithm>
#include <optional>

namespace tvxhost::mel {

using engine::Happening;

namespace {

using A = ArgumentType;

/// What a trigger's first argument names.
enum class Subject
{
    nothing, ///< there is only the script
    event,
    node,
    plug,
    attribute, ///< a node and an attribute that need not be there
    condition,
    element ///< of the user interface
};

struct Trigger
{
    const char* shortName;
    const char* longName;
    const char* help;
    Subject subject;
    std::vector<Happening> kinds;
    std::optional<bool> state = std::nullopt; ///< of a condition; none: either
};

const std::vector<Trigger>& triggers()
{
    static const std::vector<Trigger> all = {
        {"e", "event", "an event of the list", Subject::event, {}},
        {"ie", "idleEvent", "whenever there is nothing else to do", Subject::nothing, {}},
        {"tc", "timeChange", "another time", Subject::nothing, {Happening::timeChanged}},
        {"ac",
         "attributeChange",
         "another value of an attribute",
         Subject::plug,
         {Happening::valueSet, Happening::plugOutdated}},
        {"aa",
         "attributeAdded",
         "an attribute of a node that comes",
         Subject::attribute,
         {Happening::attributeAdded}},
        {"ad",
         "attributeDeleted",
         "an attribute of a node that goes",
         Subject::attribute,
         {Happening::attributeRemoved}},
        {"con",
         "connectionChange",
         "a connection of an attribute that comes or goes",
         Subject::plug,
         {Happening::connectionMade, Happening::connectionBroken}},
        {"nd", "nodeDeleted", "a node that goes", Subject::node, {Happening::nodeAboutToBeDeleted}},
        {"nnc", "nodeNameChanged", "a node that gets another name", Subject::node, {Happening::nodeRenamed}},
        {"cc", "conditionChange", "a condition that changes", Subject::condition, {}},
        {"ct", "conditionTrue", "a condition that becomes true", Subject::condition, {}, true},
        {"cf", "conditionFalse", "a condition that becomes false", Subject::condition, {}, false},
        {"uid", "uiDeleted", "an element of the user interface that goes", Subject::element, {}},
    };
    return all;
}

/// An event that never happens here is known, and triggers nothing.
void takeEvent(const CommandContext& context, const std::string& name, ScriptJob& job)
{
    if (!engine::isHappeningName(name))
        context.fail("scriptJob: there is no event '" + name + "'");
    const std::optional<Happening> what = engine::happeningNamed(name);
    job.atEveryIdle = what == Happening::idle;
    if (what && !job.atEveryIdle)
        job.triggers = {*what};
}

/// "node.attribute" of an attribute that may be about to come.
void takeAttribute(const CommandContext& context, const std::string& name, ScriptJob& job)
{
    const std::size_t dot = name.find('.');
    if (dot == std::string::npos)
        context.fail("scriptJob: '" + name + "' names no attribute");
    job.node = &nodeNamed(context, name.substr(0, dot));
    const engine::Attribute* known = job.node->findAttribute(name.substr(dot + 1));
    job.attribute = known ? known->longName : name.substr(dot + 1);
}

void takeCondition(const CommandContext& context, const Trigger& trigger, const std::string& name,
                   ScriptJob& job)
{
    Conditions& conditions = sessionOf(context).conditions;
    if (!conditions.exists(name))
        context.fail("scriptJob: there is no condition '" + name + "'");
    job.condition = {name, trigger.state, conditions.isTrue(name, context.interpreter())};
}

void takeSubject(const CommandContext& context, const Trigger& trigger, const std::string& name,
                 ScriptJob& job)
{
    job.triggers = trigger.kinds;
    switch (trigger.subject) {
    case Subject::nothing:
        job.atEveryIdle = trigger.kinds.empty();
        break;
    case Subject::event:
        takeEvent(context, name, job);
        break;
    case Subject::node:
        job.node = &nodeNamed(context, name);
        job.outlivesNode = trigger.kinds.front() == Happening::nodeAboutToBeDeleted;
        break;
    case Subject::plug:
        job.plug = plugNamed(context, name);
        job.node = job.plug.node();
        break;
    case Subject::attribute:
        takeAttribute(context, name, job);
        break;
    case Subject::condition:
        takeCondition(context, trigger, name, job);
        break;
    case Subject::element:
        job.awaitedEnd = elementNamed(context, name).path();
        break;
    }
}

ScriptJob jobFrom(const CommandContext& context, const ParsedCommand& call, const Trigger& trigger)
{
    const std::vector<Value>& arguments = call.use(trigger.longName)->arguments;
    ScriptJob job;
    job.script = arguments.back().toString();
    takeSubject(context, trigger, arguments.front().toString(), job);
    job.withChildren = call.has("allChildren");
    job.withElements = call.has("disregardIndex") && !job.plug.isNull() && job.plug.isElement();
    if (call.has("parent"))
        job.parent = elementNamed(context, call.string("parent")).path();
    job.isProtected = call.has("protected");
    job.isPermanent = call.has("permanent");
    job.isOnce = call.boolean("runOnce");
    job.endsWithScene = call.has("killWithScene");
    for (const char* flag : {"protected", "permanent", "killWithScene"})
        if (call.has(flag))
            job.words += "\"-" + std::string(flag) + "\" ";
    job.words += "\"-" + std::string(trigger.longName) + '"';
    if (arguments.size() > 1)
        job.words += ' ' + mel::quoted(arguments.front().toString());
    return job;
}

Value addJob(const CommandContext& context, const ParsedCommand& call)
{
    const auto isGiven = [&](const Trigger& trigger) { return call.has(trigger.longName); };
    const auto& all = triggers();
    const auto found = std::find_if(all.begin(), all.end(), isGiven);
    if (found == all.end())
        context.fail("scriptJob: nothing says what the script waits for");
    ScriptJobs& jobs = sessionOf(context).jobs;
    ScriptJob job = jobFrom(context, call, *found);
    if (call.has("replacePrevious"))
        jobs.killLike(job.script);
    return Value(jobs.add(std::move(job)));
}

Value scriptJob(CommandContext& context, const ParsedCommand& call)
{
    SceneSession& session = sessionOf(context);
    if (call.has("listEvents"))
        return Value(Value::Strings(engine::happeningNames()));
    if (call.has("listConditions"))
        return Value(session.conditions.names());
    if (call.has("listJobs"))
        return Value(Value::Strings(session.jobs.list()));
    if (call.has("exists"))
        return Value(session.jobs.exists(call.integer("exists")));
    if (call.has("killAll")) {
        session.jobs.killAll(call.has("force"));
        return {};
    }
    if (call.has("kill")) {
        for (const FlagUse* use : call.uses("kill")) {
            const int number = use->arguments.front().toInteger();
            if (session.jobs.exists(number) && !session.jobs.kill(number, call.has("force")))
                context.fail("scriptJob: job " + std::to_string(number) + " is protected");
        }
        return {};
    }
    // Jobs belong to the event loop of the user interface: without one, nothing is done.
    if (session.scene().isBatch())
        return {};
    context.interpreter().idleWork = [&session](Interpreter& interpreter) {
        return session.jobs.runIdle(interpreter, session.conditions, session.interface());
    };
    return addJob(context, call);
}

} // namespace

void registerScriptJobCommands(CommandTable& table)
{
    std::vector<FlagSpec> flags;
    for (const Trigger& trigger : triggers()) {
        std::vector<A> arguments = {A::script};
        if (trigger.subject != Subject::nothing)
            arguments.insert(arguments.begin(), A::string);
        flags.push_back({trigger.shortName, trigger.longName, std::move(arguments), kCreate, trigger.help});
    }
    const std::vector<FlagSpec> others = {
        switchFlag("ach", "allChildren", "with -attributeChange: what is below the attribute too"),
        valueFlag("ro", "runOnce", A::boolean, "is gone when it has run"),
        switchFlag("pro", "protected", "is killed by -force only"),
        switchFlag("per", "permanent", "is never killed"),
        switchFlag("kws", "killWithScene", "goes with the scene"),
        switchFlag("rp", "replacePrevious", "takes the place of a job with the same script"),
        valueFlag("ex", "exists", A::integer, "whether there is a job of this number"),
        valueFlag("k", "kill", A::integer, "ends the job of this number", kCreate | kMultiUse),
        switchFlag("ka", "killAll", "ends all jobs"),
        switchFlag("f", "force", "protected ones too"),
        switchFlag("lj", "listJobs", "the jobs"),
        switchFlag("le", "listEvents", "the names of the events"),
        switchFlag("lc", "listConditions", "the names of the conditions"),
        valueFlag("p", "parent", A::string, "goes with this element of the user interface"),
        switchFlag("di", "disregardIndex", "with -attributeChange of an element: all elements count"),
        refusedFlag("cu", "compressUndo", "what a job does is taken back by itself"),
    };
    flags.insert(flags.end(), others.begin(), others.end());
    table.add({makeCommand("scriptJob", "Runs a script when something has happened", std::move(flags),
                           noArguments(), scriptJob)});
}

} // namespace tvxhost::mel
