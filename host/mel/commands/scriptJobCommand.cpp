// scriptJob: scripts that run when something has happened.
#include "commandSupport.h"
#include "sceneCommands.h"

#include "../interpreter.h"

#include <algorithm>

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
    attribute ///< a node and an attribute that need not be there
};

struct Trigger
{
    const char* shortName;
    const char* longName;
    const char* help;
    Subject subject;
    std::vector<Happening> kinds;
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
        break;
    case Subject::plug:
        job.plug = plugNamed(context, name);
        job.node = job.plug.node();
        break;
    case Subject::attribute:
        takeAttribute(context, name, job);
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
        return Value(Value::Strings());
    if (call.has("listJobs"))
        return Value(Value::Strings(session.jobs.list()));
    if (call.has("exists"))
        return Value(session.jobs.exists(call.integer("exists")));
    if (call.has("killAll")) {
        session.jobs.killAll(call.has("force"));
        return {};
    }
    if (const FlagUse* use = call.use("kill")) {
        const int number = use->arguments.front().toInteger();
        if (session.jobs.exists(number) && !session.jobs.kill(number, call.has("force")))
            context.fail("scriptJob: job " + std::to_string(number) + " is protected");
        return {};
    }
    // Jobs belong to the event loop of the user interface: without one, nothing is done.
    if (session.scene().isBatch())
        return {};
    context.interpreter().idleWork = [&session](Interpreter& interpreter) {
        return session.jobs.runIdle(interpreter);
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
    const char* const noCondition = "the host has no conditions";
    const std::vector<FlagSpec> others = {
        switchFlag("ach", "allChildren", "with -attributeChange: what is below the attribute too"),
        valueFlag("ro", "runOnce", A::boolean, "is gone when it has run"),
        switchFlag("pro", "protected", "is killed by -force only"),
        switchFlag("per", "permanent", "is never killed"),
        switchFlag("kws", "killWithScene", "goes with the scene"),
        switchFlag("rp", "replacePrevious", "takes the place of a job with the same script"),
        valueFlag("ex", "exists", A::integer, "whether there is a job of this number"),
        valueFlag("k", "kill", A::integer, "ends the job of this number"),
        switchFlag("ka", "killAll", "ends all jobs"),
        switchFlag("f", "force", "protected ones too"),
        switchFlag("lj", "listJobs", "the jobs"),
        switchFlag("le", "listEvents", "the names of the events"),
        switchFlag("lc", "listConditions", "the names of the conditions"),
        refusedFlag("cc", "conditionChange", noCondition),
        refusedFlag("ct", "conditionTrue", noCondition),
        refusedFlag("cf", "conditionFalse", noCondition),
        refusedFlag("cu", "compressUndo", "what a job does is taken back by itself"),
        refusedFlag("uid", "uiDeleted", "nobody closes windows here but scripts"),
        refusedFlag("p", "parent", "jobs do not belong to elements of the user interface"),
        refusedFlag("di", "disregardIndex", "each element is an attribute of its own"),
    };
    flags.insert(flags.end(), others.begin(), others.end());
    table.add({makeCommand("scriptJob", "Runs a script when something has happened", std::move(flags),
                           noArguments(), scriptJob)});
}

} // namespace tvxhost::mel
