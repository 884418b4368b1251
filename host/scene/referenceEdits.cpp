// The edits of references; see referenceEdits.h.
#include "referenceEdits.h"

#include "referenceEditApplier.h"
#include "referenceNames.h"
#include "referenceStatements.h"
#include "references.h"

#include "engine/data.h"
#include "mel/arguments.h"

#include <algorithm>
#include <set>

namespace tvxhost::scene {

using engine::DagNode;
using engine::Expected;
using engine::KeptData;
using engine::Node;
using engine::Plug;
using engine::Reference;
using engine::ReferenceEdit;
using engine::Scene;

namespace {

Node* nodeOf(Scene& scene, const Reference& reference)
{
    const auto node = scene.findNode(":" + reference.nodeName);
    return node ? node.value : nullptr;
}

/// The text of `.ed`; null when there is none.
const std::string* textOfEdits(const Plug& edits)
{
    const auto data = engine::readData(edits);
    const bool isKept = data && data.value && data.value->type() == engine::DataType::plugin;
    return isKept ? &static_cast<const KeptData&>(*data.value).text : nullptr;
}

/// The values of placeholders mean nothing.
void dropPlaceholderLines(Node& node)
{
    auto& lines = node.keptLines;
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [](const std::string& line) {
                                   return line.find("\".phl\"") != std::string::npos ||
                                          line.find("\".phl[") != std::string::npos;
                               }),
                lines.end());
}

void writePlaceholderLines(Node& node, const std::set<int>& indices)
{
    dropPlaceholderLines(node);
    if (indices.size() > 1)
        node.keptLines.push_back("setAttr -s " + std::to_string(indices.size()) + " \".phl\";");
    for (const int index : indices)
        node.keptLines.push_back("setAttr \".phl[" + std::to_string(index) + "]\" 0;");
}

void cutOff(Scene& scene, const Plug& placeholder)
{
    if (const Plug source = engine::sourceOf(placeholder); !source.isNull())
        scene.breakConnection(source, placeholder);
    for (const Plug& destination : engine::destinationsOf(placeholder))
        scene.breakConnection(placeholder, destination);
}

/// Takes away the placeholders that are not among these.
void removeOtherPlaceholders(Scene& scene, Node& node, const std::set<int>& indices)
{
    const auto placeholders = node.findPlug("phl");
    if (!placeholders)
        return;
    for (const int index : engine::existingElements(placeholders.value))
        if (indices.count(index) == 0) {
            cutOff(scene, placeholders.value.element(index));
            (void)engine::removeElement(placeholders.value, index);
        }
}

void removeUnusedPlaceholders(Node& node)
{
    const auto placeholders = node.findPlug("phl");
    if (!placeholders)
        return;
    for (const int index : engine::existingElements(placeholders.value))
        if (!engine::isConnected(placeholders.value.element(index)))
            (void)engine::removeElement(placeholders.value, index);
}

/// The transform that held the scene's own nodes while the reference's were not there.
void dropFosterParent(Scene& scene, const Reference& reference)
{
    const auto found = scene.findNode("|" + fosterName(reference));
    if (found && found.value->type().name == "fosterParent" && found.value->asDag()->children().empty())
        (void)scene.deleteNode(*found.value);
}

/// The part of a reference that a reference node's name means; the reference itself when there is none.
Reference& partNamed(Scene& scene, Reference& reference, const std::string& nodeName)
{
    for (const auto& part : scene.references)
        if (part->nodeName == nodeName && &topReference(*part) == &reference)
            return *part;
    return reference;
}

void noteNode(Scene& scene, engine::ReferenceBaseline& baseline, Node& node)
{
    auto& values = baseline.values[&node];
    for (const NodeStatement& statement : statementsOf(scene, node))
        values[statement.path] = statement.digest();
    if (DagNode* dag = node.asDag(); dag && !dag->parents().empty())
        baseline.parents[&node] = {dag->parents().front(), editName(node)};
    const auto note = [&](const Plug& source, const Plug& destination) {
        if (baseline.connectionKeys.insert(connectionKey(source, destination)).second)
            baseline.connections.emplace_back(source, destination);
    };
    for (const Plug& plug : engine::connectedPlugs(node)) {
        if (const Plug source = engine::sourceOf(plug); !source.isNull())
            note(source, plug);
        for (const Plug& destination : engine::destinationsOf(plug))
            note(plug, destination);
    }
}

} // namespace

void takeBaseline(Scene& scene, Reference& reference)
{
    reference.baseline = {};
    for (Node* node : allNodes(scene, reference))
        noteNode(scene, reference.baseline, *node);
}

void applyEdits(Scene& scene, Reference& reference)
{
    Node* node = nodeOf(scene, reference);
    const auto edits = node ? node->findPlug("ed") : Expected<Plug>(engine::Reason::notFound);
    const std::string* text = edits ? textOfEdits(edits.value) : nullptr;
    if (!text)
        return;
    const std::optional<EditList> all = readEdits(*text);
    if (!all) {
        scene.scriptEditor().warning("The edits of reference '" + reference.nodeName +
                                     "' are not understood; they are kept.");
        reference.keepsEdits = true;
        return;
    }
    EditApplier applier(scene, reference);
    for (const OwnedEdit& each : *all)
        if (!applier.apply(each.edit) && !reference.parent)
            partNamed(scene, reference, each.owner).otherEdits.push_back(each.edit);
    // What another file says stays with its node, to be asked for.
    if (reference.parent)
        return;
    engine::storeInternal(edits.value, engine::Ref<engine::Data>());
    dropPlaceholderLines(*node);
    removeUnusedPlaceholders(*node);
    dropFosterParent(scene, reference);
}

void giveEditsBack(Scene& scene, Reference& reference, const ReferenceText& text)
{
    Node* node = nodeOf(scene, reference);
    if (!node || reference.keepsEdits)
        return;
    keepEdits(scene, reference, text.edits);
    for (const ReferenceText::Placeholder& placeholder : text.connections) {
        const auto source = placeholder.sourceName.empty() ? Expected<Plug>(placeholder.source)
                                                           : scene.findPlug(placeholder.sourceName);
        const auto destination = placeholder.destinationName.empty()
                                     ? Expected<Plug>(placeholder.destination)
                                     : scene.findPlug(placeholder.destinationName);
        if (source && destination && source.value.isValid() && destination.value.isValid())
            (void)scene.connect(source.value, destination.value, true);
    }
}

std::optional<EditList> keptEdits(Scene& scene, const Reference& reference)
{
    Node* node = nodeOf(scene, reference);
    const auto edits = node ? node->findPlug("ed") : Expected<Plug>(engine::Reason::notFound);
    const std::string* text = edits ? textOfEdits(edits.value) : nullptr;
    return text ? readEdits(*text) : std::nullopt;
}

void keepEdits(Scene& scene, const Reference& reference, const EditList& edits)
{
    Node* node = nodeOf(scene, reference);
    const auto plug = node ? node->findPlug("ed") : Expected<Plug>(engine::Reason::notFound);
    if (!plug)
        return;
    std::set<int> placeholders;
    for (const OwnedEdit& each : edits)
        for (const std::size_t at : placeholdersOf(each.edit))
            placeholders.insert(placeholderIndex(each.edit.words[at]));
    const std::string text = editsText(reference.nodeName, edits);
    engine::storeInternal(plug.value, engine::Ref<engine::Data>(new KeptData("dataReferenceEdits", text)));
    removeOtherPlaceholders(scene, *node, placeholders);
    writePlaceholderLines(*node, placeholders);
}

bool hasFailed(const Scene& scene, const ReferenceEdit& edit)
{
    if (edit.kind == kRelationshipEdit)
        return false;
    if (edit.kind != ReferenceEdit::deleteAttribute)
        return true;
    const auto node = scene.findNode(edit.words[0]);
    return !node || node.value->findAttribute(edit.words[1]) != nullptr;
}

} // namespace tvxhost::scene
