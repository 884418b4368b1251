// References within references: loaded and unloaded alone, and made the scene's own.
#include "references.h"

#include "referenceEditApplier.h"
#include "referenceEdits.h"
#include "referenceEvents.h"
#include "referenceFiles.h"

#include <algorithm>
#include <filesystem>

namespace tvxhost::scene {

using engine::Node;
using engine::Outcome;
using engine::Plug;
using engine::Reason;
using engine::Reference;
using engine::Scene;

namespace {

ReferenceStates statesBelow(Scene& scene, const Reference& top)
{
    ReferenceStates states;
    for (const auto& part : scene.references)
        if (part->parent && &topReference(*part) == &top)
            states[part->nodeName].isLoaded = part->isLoaded;
    return states;
}

Outcome cannotBeReadAgain(const Reference& top)
{
    return {Reason::failed, "The edits of reference '" + top.nodeName +
                                "' are not understood: it cannot be read again without losing them"};
}

/// Reads a reference of the scene itself again.
Outcome readAgain(Scene& scene, Reference& top, ReferenceStates states, const ReadOptions& options,
                  SceneSummary& summary)
{
    if (top.keepsEdits)
        return cannotBeReadAgain(top);
    if (Outcome unloaded = unloadReference(scene, top); !unloaded)
        return unloaded;
    loadReference(scene, top, options, states, summary);
    return top.isLoaded ? Outcome()
                        : Outcome(Reason::failed, "The reference '" + top.nodeName + "' could not be loaded");
}

/// A reference that a reference's file makes, while that becomes the scene's own.
struct Child
{
    Reference* reference = nullptr;
    bool wasLoaded = false;
};

/// The edits that wait for nodes of references in a reference, with placeholders of it.
EditList takeWaitingEdits(Scene& scene, Reference& reference)
{
    EditList edits;
    for (const auto& part : scene.references) {
        if (&topReference(*part) != &reference)
            continue;
        for (engine::ReferenceEdit& edit : part->otherEdits)
            edits.push_back({part->nodeName, std::move(edit), false, {}});
        part->otherEdits.clear();
    }
    return edits;
}

/// A name of a file's own as it is within a namespace: "|a|b.c" gives "|space:a|space:b.c".
std::string within(const std::string& space, const std::string& name)
{
    std::string result;
    bool begins = true;
    for (const char c : name) {
        if (begins && c != '|' && c != ':')
            result += space + ':';
        begins = c == '|';
        result += c;
    }
    return result;
}

/// What its reference node keeps names nodes as their file did.
void putEditsWithin(Scene& scene, const Reference& child, const std::string& space)
{
    std::optional<EditList> edits = keptEdits(scene, child);
    if (!edits || space.empty())
        return;
    for (OwnedEdit& each : *edits) {
        each.owner = within(space, each.owner);
        if (each.edit.kind == engine::ReferenceEdit::connect)
            each.edit.words[0] = within(space, each.edit.words[0]);
        renameIn(each, [&](const std::string& name) { return within(space, name); });
    }
    keepEdits(scene, child, *edits);
}

/// Its name in the file that names it now, and its place among the names.
void makeTheScenesOwn(Scene& scene, Reference& child)
{
    namespace fs = std::filesystem;
    const bool isInProject = child.file.find("//") != std::string::npos || child.file.find('$') == 0;
    if (fs::path(child.file).is_relative() && !isInProject && child.parent)
        child.file = (fs::path(child.parent->path).parent_path() / child.file).lexically_normal().string();
    const std::string above = namespaceOf(*child.parent);
    if (!above.empty())
        child.space = child.space.empty() ? above : above + ":" + child.space;
    putEditsWithin(scene, child, above);
    child.from = scene.fileName;
    child.parent = nullptr;
}

/// Moves what is connected to a placeholder to a new one of another reference node; gives its name.
std::string movePlaceholder(Scene& scene, const std::string& name, const Reference& to)
{
    const auto from = scene.findPlug(name);
    const auto array = scene.findPlug(":" + to.nodeName + ".placeHolderList");
    if (!from || !array)
        return name;
    const std::vector<int> taken = engine::existingElements(array.value);
    const int index = taken.empty() ? 1 : taken.back() + 1;
    const Plug place = array.value.element(index);
    if (const Plug source = engine::sourceOf(from.value); !source.isNull()) {
        scene.breakConnection(source, from.value);
        (void)scene.connect(source, place, true);
    }
    for (const Plug& destination : engine::destinationsOf(from.value)) {
        scene.breakConnection(from.value, destination);
        (void)scene.connect(place, destination, true);
    }
    return placeholderName(to.nodeName, static_cast<std::size_t>(index));
}

/// What could not be done to the nodes of a reference waits with that reference from now on.
void passOn(Scene& scene, OwnedEdit each, const std::vector<Child>& children)
{
    const auto child = std::find_if(children.begin(), children.end(), [&](const Child& candidate) {
        return each.owner == candidate.reference->nodeName;
    });
    if (child == children.end())
        return;
    Reference& owner = *child->reference;
    for (const std::size_t at : placeholdersOf(each.edit))
        each.edit.words[at] = movePlaceholder(scene, each.edit.words[at], owner);
    if (each.edit.kind == engine::ReferenceEdit::connect)
        each.edit.words[0] = owner.nodeName;
    if (owner.isLoaded) {
        owner.otherEdits.push_back(std::move(each.edit));
        return;
    }
    EditList all = keptEdits(scene, owner).value_or(EditList());
    all.push_back(std::move(each));
    keepEdits(scene, owner, all);
}

/// References in it hold the edits of two files: they are read again later, as the scene's own.
Outcome unloadAllIn(Scene& scene, Reference& reference, const ReadOptions& options, SceneSummary& summary)
{
    ReferenceStates states = statesBelow(scene, reference);
    const bool hasLoaded = std::any_of(states.begin(), states.end(), [](const auto& state) {
        return state.second.isLoaded.value_or(false);
    });
    if (!hasLoaded)
        return {};
    for (auto& state : states)
        state.second.isLoaded = false;
    return readAgain(scene, reference, std::move(states), options, summary);
}

std::vector<Child> childrenAsBefore(Scene& scene, const Reference& reference, const ReferenceStates& before)
{
    std::vector<Child> children;
    for (const auto& other : scene.references) {
        if (other->parent != &reference)
            continue;
        const auto state = before.find(other->nodeName);
        children.push_back({other.get(), state != before.end() && state->second.isLoaded.value_or(false)});
    }
    return children;
}

void makeOwn(Scene& scene, Reference& reference, ReferenceStates before, const ReadOptions& options,
             SceneSummary& summary)
{
    const std::vector<Child> children = childrenAsBefore(scene, reference, before);
    EditList waiting = takeWaitingEdits(scene, reference);
    noteFiles(scene, waiting, before);
    for (const engine::Ref<Node>& node : reference.nodes)
        node->isReferenced = false;
    for (const Child& child : children)
        makeTheScenesOwn(scene, *child.reference);
    for (const Child& child : children)
        if (child.wasLoaded)
            loadReference(scene, *child.reference, options, before, summary);
    for (OwnedEdit& each : waiting) {
        Reference* owner = findReference(scene, each.owner);
        if (!EditApplier(scene, owner ? topReference(*owner) : reference).apply(each.edit))
            passOn(scene, std::move(each), children);
    }
}

} // namespace

Outcome setNestedLoaded(Scene& scene, Reference& reference, bool isLoaded, const ReadOptions& options,
                        SceneSummary& summary)
{
    Reference& top = topReference(reference);
    ReferenceStates states = statesBelow(scene, top);
    states[reference.nodeName].isLoaded = isLoaded;
    states[reference.nodeName].depth = depthBelow(options.references);
    return readAgain(scene, top, std::move(states), options, summary);
}

Outcome replaceNested(Scene& scene, Reference& reference, const std::string& file, bool isLoaded,
                      const ReadOptions& options, SceneSummary& summary)
{
    if (topReference(reference).keepsEdits)
        return cannotBeReadAgain(topReference(reference));
    if (Outcome named = nameFile(scene, reference, file); !named)
        return named;
    return setNestedLoaded(scene, reference, isLoaded, options, summary);
}

Outcome importReference(Scene& scene, Reference& reference, const ReadOptions& options, SceneSummary& summary)
{
    if (reference.parent)
        return {Reason::readOnly, "The reference '" + reference.nodeName + "' belongs to the reference '" +
                                      reference.parent->nodeName + "': import that one first"};
    if (!reference.isLoaded)
        return {Reason::failed, "The reference '" + reference.nodeName + "' is not loaded: load it first"};
    tellOfReference(scene, engine::Happening::referenceImportBegun, reference);

    const ReferenceStates before = statesBelow(scene, reference);
    if (Outcome outcome = unloadAllIn(scene, reference, options, summary); !outcome)
        return outcome;
    makeOwn(scene, reference, before, options, summary);
    engine::Event done = referenceEvent(scene, engine::Happening::referenceImportDone, reference);
    done.node = nullptr;
    dropReference(scene, reference);
    scene.isModified = true;
    scene.observers().tell(done);
    return {};
}

} // namespace tvxhost::scene
