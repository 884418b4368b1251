// hide, showHidden: which objects are seen.
#include "commandSupport.h"
#include "sceneCommands.h"

#include <algorithm>
#include <memory>

namespace tvxhost::mel {

using engine::DagNode;
using engine::SelectionItem;

namespace {

/// What the last hide hid, which showHidden can bring back.
using LastHidden = std::vector<engine::Ref<engine::Node>>;

engine::Plug visibilityOf(const CommandContext& context, DagNode& node)
{
    return valueOf(context, node.findPlug("visibility"));
}

bool isVisibleItself(const CommandContext& context, DagNode& node)
{
    return valueOf(context, engine::readNumber(visibilityOf(context, node))).asReal() != 0.0;
}

/// True when that was a change.
bool setVisible(const CommandContext& context, DagNode& node, bool isVisible)
{
    if (isVisibleItself(context, node) == isVisible)
        return false;
    require(context, engine::writeNumber(visibilityOf(context, node), isVisible));
    return true;
}

std::vector<DagNode*> allDagNodes(engine::Scene& scene)
{
    std::vector<DagNode*> nodes;
    for (engine::Node* node : scene.nodes())
        if (DagNode* dag = node->asDag(); dag && !dag->isWorld())
            nodes.push_back(dag);
    return nodes;
}

/// The objects that a call names or that are selected.
std::vector<DagNode*> objectsOf(const CommandContext& context, const ParsedCommand& call)
{
    std::vector<DagNode*> nodes;
    for (const SelectionItem& item : itemsOrSelection(context, call.names())) {
        if (!item.components.empty())
            context.fail("'" + context.command() + "' of components is not implemented: " + item.name());
        if (item.isDag())
            nodes.push_back(item.path.node());
    }
    return nodes;
}

/// Top-level objects that can be hidden by everybody: not the cameras of every scene.
std::vector<DagNode*> topObjects(engine::Scene& scene)
{
    std::vector<DagNode*> nodes;
    for (DagNode* child : scene.world().children())
        if (!child->isShared)
            nodes.push_back(child);
    return nodes;
}

/// 1 for objects none of which is seen, 2 when all are, 3 for some.
int visibilityState(const CommandContext& context, const ParsedCommand& call)
{
    constexpr int kInvisible = 1;
    constexpr int kVisible = 2;
    int state = 0;
    for (const SelectionItem& item : itemsOrSelection(context, call.names()))
        if (item.isDag())
            state |= item.path.isVisible() ? kVisible : kInvisible;
    return state;
}

Value hide(const CommandContext& context, const ParsedCommand& call, LastHidden& last)
{
    if (call.has("testVisibility"))
        return Value(visibilityState(context, call));
    engine::Scene& scene = sceneOf(context);
    const std::vector<DagNode*> objects =
        call.has("allObjects") ? topObjects(scene) : objectsOf(context, call);
    if (objects.empty() && !call.has("allObjects"))
        context.fail("Nothing is selected to hide.");
    Value::Strings names;
    last.clear();
    for (DagNode* node : objects) {
        if (!setVisible(context, *node, false))
            continue;
        last.emplace_back(node);
        names.push_back(scene.shortestName(*node));
    }
    if (call.has("clearSelection"))
        scene.setSelection({});
    return call.has("returnHidden") ? Value(std::move(names)) : Value();
}

void showAbove(const CommandContext& context, DagNode& node)
{
    for (DagNode* parent : node.parents())
        if (!parent->isWorld()) {
            setVisible(context, *parent, true);
            showAbove(context, *parent);
        }
}

void showBelow(const CommandContext& context, DagNode& node)
{
    for (DagNode* child : node.children()) {
        setVisible(context, *child, true);
        showBelow(context, *child);
    }
}

Value showHidden(const CommandContext& context, const ParsedCommand& call, const LastHidden& last)
{
    std::vector<DagNode*> objects;
    if (call.has("allObjects"))
        objects = allDagNodes(sceneOf(context));
    else if (!call.has("lastHidden") || !call.names().empty())
        objects = objectsOf(context, call);
    if (call.has("lastHidden"))
        for (const engine::Ref<engine::Node>& node : last)
            if (node->isAlive())
                objects.push_back(node->asDag());
    for (DagNode* node : objects) {
        setVisible(context, *node, true);
        if (call.has("above"))
            showAbove(context, *node);
        if (call.has("below"))
            showBelow(context, *node);
    }
    return {};
}

} // namespace

void registerVisibilityCommands(CommandTable& table)
{
    const auto last = std::make_shared<LastHidden>();
    table.add({
        makeCommand("hide", "Makes objects invisible",
                    {switchFlag("all", "allObjects", "all top-level objects"),
                     switchFlag("cs", "clearSelection", "nothing is selected afterwards"),
                     switchFlag("rh", "returnHidden", "tells what was hidden"),
                     switchFlag("tv", "testVisibility", "only tells: 1 invisible, 2 visible, 3 some of them"),
                     refusedFlag("ic", "invertComponents", "components cannot be hidden here")},
                    names(),
                    [last](CommandContext& context, const ParsedCommand& call) {
                        return hide(context, call, *last);
                    }),
        makeCommand("showHidden", "Makes invisible objects visible",
                    {switchFlag("a", "above", "with all that is above them"),
                     switchFlag("b", "below", "with all that is below them"),
                     switchFlag("all", "allObjects", "all objects"),
                     switchFlag("lh", "lastHidden", "what the last hide hid")},
                    names(),
                    [last](CommandContext& context, const ParsedCommand& call) {
                        return showHidden(context, call, *last);
                    }),
    });
}

} // namespace tvxhost::mel
