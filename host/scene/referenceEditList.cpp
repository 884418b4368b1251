// All edits of a scene's references; see referenceEditList.h.
#include "referenceEditList.h"

#include "referenceEditApplier.h"
#include "referenceEdits.h"
#include "referenceNames.h"
#include "references.h"

#include <algorithm>

namespace tvxhost::scene {

using engine::Plug;
using engine::Reference;
using engine::ReferenceEdit;
using engine::Scene;

namespace {

/// What is connected to a placeholder: the plug of the other end.
std::string connectedTo(Scene& scene, const std::string& placeholder, int ends)
{
    const auto plug = scene.findPlug(placeholder);
    if (!plug)
        return {};
    if (ends == ReferenceEdit::destination) {
        const Plug source = engine::sourceOf(plug.value);
        return source.isNull() ? std::string() : editName(source);
    }
    const std::vector<Plug> fed = engine::destinationsOf(plug.value);
    return fed.empty() ? std::string() : editName(fed.front());
}

void listKept(Scene& scene, Reference& reference, std::vector<ListedEdit>& all)
{
    const std::optional<EditList> kept = keptEdits(scene, reference);
    if (!kept)
        return;
    for (OwnedEdit each : *kept) {
        if (each.edit.kind == ReferenceEdit::connect && each.edit.ends != ReferenceEdit::both)
            each.otherEnd = connectedTo(scene, each.edit.words[2], each.edit.ends);
        const bool isApplied = reference.isLoaded && reference.parent && !each.hasFailed;
        all.push_back({&reference, std::move(each), isApplied});
    }
}

void listLoaded(Scene& scene, Reference& reference, std::vector<ListedEdit>& all)
{
    for (OwnedEdit& each : textOf(scene, reference).edits) {
        const bool isApplied = !each.hasFailed;
        all.push_back({&reference, std::move(each), isApplied});
    }
}

/// "|a|b.c" and "b.c" are the same plug, "b" is the node of both.
bool namesTheSame(const std::string& whole, const std::string& asked)
{
    const bool hasAttribute = asked.find('.') != std::string::npos;
    const std::string name = hasAttribute ? whole : whole.substr(0, whole.find('.'));
    if (name == asked)
        return true;
    const std::size_t begin = name.size() - std::min(name.size(), asked.size());
    return asked[0] != '|' && begin > 0 && name[begin - 1] == '|' &&
           name.compare(begin, asked.size(), asked) == 0;
}

/// Whether a reference node is that of a reference or of one within it.
bool isWithin(Scene& scene, const std::string& nodeName, const Reference& reference)
{
    for (const auto& part : scene.references)
        if (part->nodeName == nodeName)
            for (const Reference* above = part.get(); above; above = above->parent)
                if (above == &reference)
                    return true;
    return false;
}

bool concerns(Scene& scene, const ListedEdit& listed, const std::string& target)
{
    for (const auto& reference : scene.references)
        if (reference->nodeName == target)
            return listed.storedOn == reference.get() || isWithin(scene, listed.edit.owner, *reference);
    const std::vector<std::string> targets = targetsOf(listed.edit);
    return std::any_of(targets.begin(), targets.end(),
                       [&](const std::string& each) { return namesTheSame(each, target); });
}

/// Gives the edits that a loaded reference keeps back to the parts that they concern.
void keepWithParts(Scene& scene, Reference& top, EditList edits)
{
    for (const auto& part : scene.references)
        if (&topReference(*part) == &top)
            part->otherEdits.clear();
    for (OwnedEdit& each : edits)
        for (const auto& part : scene.references)
            if (part->nodeName == each.owner && &topReference(*part) == &top)
                part->otherEdits.push_back(std::move(each.edit));
}

/// Those that no node shows: what may be changed.
EditList changeable(Scene& scene, const Reference& reference)
{
    if (!reference.isLoaded)
        return keptEdits(scene, reference).value_or(EditList());
    EditList edits;
    for (const auto& part : scene.references)
        if (&topReference(*part) == &reference)
            for (const ReferenceEdit& edit : part->otherEdits)
                edits.push_back({part->nodeName, edit, hasFailed(scene, edit), {}});
    return edits;
}

} // namespace

std::vector<ListedEdit> listEdits(Scene& scene)
{
    std::vector<ListedEdit> all;
    for (const auto& reference : scene.references) {
        if (!reference->parent && reference->isLoaded && !reference->keepsEdits)
            listLoaded(scene, *reference, all);
        else
            listKept(scene, *reference, all);
    }
    return all;
}

bool isMeant(Scene& scene, const EditFilter& filter, const ListedEdit& listed)
{
    if (listed.edit.hasFailed ? !filter.failed : !filter.successful)
        return false;
    if (!filter.command.empty() && commandOf(listed.edit.edit) != filter.command)
        return false;
    if (!filter.referenceNode.empty() && listed.storedOn->nodeName != filter.referenceNode)
        return false;
    return filter.target.empty() || concerns(scene, listed, filter.target);
}

std::size_t changeEdits(Scene& scene, const EditFilter& filter, const EditChange& change)
{
    std::size_t changed = 0;
    for (const auto& reference : scene.references) {
        if (reference->parent || reference->keepsEdits)
            continue;
        const std::size_t before = changed;
        EditList left;
        for (OwnedEdit& each : changeable(scene, *reference)) {
            const bool isWanted = isMeant(scene, filter, {reference.get(), each, false}) &&
                                  !(reference->isLoaded && !each.hasFailed);
            changed += isWanted ? 1 : 0;
            if (!isWanted || change(each))
                left.push_back(std::move(each));
        }
        if (changed == before)
            continue;
        scene.isModified = true;
        if (reference->isLoaded)
            keepWithParts(scene, *reference, std::move(left));
        else
            keepEdits(scene, *reference, left);
    }
    return changed;
}

void applyFailedEdits(Scene& scene, Reference& reference)
{
    EditApplier applier(scene, reference);
    EditList left;
    for (OwnedEdit& each : changeable(scene, reference))
        if (!each.hasFailed || !applier.apply(each.edit))
            left.push_back(std::move(each));
    keepWithParts(scene, reference, std::move(left));
}

void changeTarget(OwnedEdit& each, const std::string& before, const std::string& after)
{
    for (std::string& word : each.edit.words) {
        const std::size_t dot = word.find('.');
        const std::string node = word.substr(0, dot);
        if (word == before)
            word = after;
        else if (dot != std::string::npos && node == before && after.find('.') == std::string::npos)
            word = after + word.substr(dot);
        else if (before[0] == '.' && dot != std::string::npos && word.substr(dot) == before)
            word = node + after;
    }
    // Edits of one attribute name it apart from its node.
    std::vector<std::string>& words = each.edit.words;
    const bool hasAttribute = each.edit.kind == ReferenceEdit::setAttribute ||
                              each.edit.kind == ReferenceEdit::addAttribute ||
                              each.edit.kind == ReferenceEdit::deleteAttribute;
    if (!hasAttribute)
        return;
    const std::size_t dot = before.find('.');
    const std::size_t newDot = after.find('.');
    const bool isIt = dot != std::string::npos && newDot != std::string::npos &&
                      (dot == 0 || words[0] == before.substr(0, dot)) && words[1] == before.substr(dot + 1);
    if (!isIt)
        return;
    if (newDot > 0)
        words[0] = after.substr(0, newDot);
    words[1] = after.substr(newDot + 1);
}

} // namespace tvxhost::scene
