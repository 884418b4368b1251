// EditApplier: see referenceEditApplier.h.
#include "referenceEditApplier.h"

#include "connectionEnd.h"
#include "lightLinks.h"
#include "plugTarget.h"
#include "referenceEditText.h"
#include "setAttr.h"

#include "mel/parser.h"

namespace tvxhost::scene {

using engine::DagNode;
using engine::Node;
using engine::Plug;
using engine::ReferenceEdit;
using engine::Scene;

namespace {

Plug destinationFedBy(const Plug& source, const Plug& destination)
{
    for (const Plug& fed : engine::destinationsOf(source))
        if (fed == destination || (destination.isArray() && fed.isElement() && fed.array() == destination))
            return fed;
    return destination;
}

} // namespace

bool EditApplier::apply(const ReferenceEdit& edit)
{
    switch (edit.kind) {
    case ReferenceEdit::parent:
        return parent(edit.words[0], edit.words[1]);
    case ReferenceEdit::addAttribute:
        return addAttribute(edit);
    case ReferenceEdit::setAttribute:
        return setAttribute(edit);
    case ReferenceEdit::disconnect:
        return disconnect(edit.words[0], edit.words[1]);
    case ReferenceEdit::connect:
        return connect(edit);
    case kRelationshipEdit:
        return link(edit.words);
    case ReferenceEdit::lock:
    case ReferenceEdit::unlock:
        return lock(edit);
    case ReferenceEdit::deleteAttribute:
        deleteAttribute(edit);
        return false;
    default:
        return false;
    }
}

Node* EditApplier::nodeNamed(const std::string& name) const
{
    const auto found = m_scene.findNode(name);
    return found ? found.value : nullptr;
}

bool EditApplier::parent(const std::string& childName, const std::string& parentName)
{
    const auto item = m_scene.findItem(childName);
    DagNode* child = item ? item.value.node->asDag() : nullptr;
    Node* under = parentName.empty() ? nullptr : nodeNamed(parentName);
    if (!child || (!parentName.empty() && (!under || !under->asDag())))
        return false;
    const auto& path = item.value.path;
    DagNode* from = path.length() > 1 ? path.nodeAt(path.length() - 2) : nullptr;
    return static_cast<bool>(m_scene.reparent(*child, from, under ? under->asDag() : nullptr));
}

bool EditApplier::addAttribute(const ReferenceEdit& edit)
{
    Node* node = nodeNamed(edit.words[0]);
    if (!node)
        return false;
    const std::string text = "addAttr -ln " + mel::quoted(edit.words[1]) + " -sn " +
                             mel::quoted(edit.words[2]) + edit.words[3] + ";";
    mel::StatementReader reader(text, "");
    try {
        if (!reader.next() || !reader.plain())
            return false;
        const auto flags = mel::parseArguments(m_addAttr, reader.plain()->arguments);
        const auto declaration = declarationFrom(flags, m_scene.units());
        return declaration && m_compounds.declare(*node, declaration.value);
    } catch (const mel::SyntaxError&) {
        return false;
    } catch (const mel::ValueError&) {
        return false;
    }
}

bool EditApplier::setAttribute(const ReferenceEdit& edit)
{
    Node* node = nodeNamed(edit.words[0]);
    if (!node)
        return false;
    const std::string text = "setAttr " + mel::quoted("." + edit.words[1]) + edit.words[2] + ";";
    mel::StatementReader reader(text, "");
    try {
        if (!reader.next() || !reader.plain())
            return false;
    } catch (const mel::SyntaxError&) {
        return false;
    }
    auto request = parseSetAttr(reader.plain()->arguments);
    const auto target = findTarget(*node, edit.words[1]);
    if (!request || !target)
        return false;
    request.value.source = text;
    if (!applySetAttr(target.value, request.value, {m_scene.units(), engine::Limits::ignore}))
        return false;
    if (!target.value.isRange && request.value.hasValues())
        m_reference.setByEdits.emplace_back(node, filePath(target.value.plug));
    return true;
}

bool EditApplier::lock(const ReferenceEdit& edit)
{
    const auto plug = m_scene.findPlug(edit.words[0] + "." + edit.words[1]);
    if (!plug)
        return false;
    engine::PlugState state = engine::stateOf(plug.value);
    state.locked = edit.kind == ReferenceEdit::lock;
    engine::setState(plug.value, state);
    return true;
}

void EditApplier::deleteAttribute(const ReferenceEdit& edit)
{
    Node* node = nodeNamed(edit.words[0]);
    engine::Attribute* attribute = node ? node->findAttribute(edit.words[1]) : nullptr;
    if (attribute)
        (void)node->removeDynamicAttribute(*attribute);
}

bool EditApplier::disconnect(const std::string& sourceName, const std::string& destinationName)
{
    const auto source = connectionEnd(m_scene, sourceName);
    const auto destination = connectionEnd(m_scene, destinationName);
    return source && destination &&
           m_scene.disconnect(source.value, destinationFedBy(source.value, destination.value));
}

bool EditApplier::connect(const ReferenceEdit& edit)
{
    const std::vector<std::string>& words = edit.words;
    if (edit.ends == ReferenceEdit::both)
        return connectInside(words);
    const auto own = connectionEnd(m_scene, words[1]);
    const auto placeholder = m_scene.findPlug(words[2]);
    if (!own || !placeholder)
        return false;
    if (edit.ends == ReferenceEdit::source)
        return passOn(own.value, placeholder.value);
    if (edit.ends != ReferenceEdit::destination)
        return false;
    const Plug source = engine::sourceOf(placeholder.value);
    if (source.isNull())
        return false;
    m_scene.breakConnection(source, placeholder.value);
    return join(source, own.value);
}

bool EditApplier::connectInside(const std::vector<std::string>& words)
{
    const auto source = connectionEnd(m_scene, words[1]);
    const auto destination = connectionEnd(m_scene, words[2]);
    const auto from = m_scene.findPlug(words[3]);
    const auto to = m_scene.findPlug(words[4]);
    if (!source || !destination)
        return false;
    if (from && to)
        m_scene.breakConnection(from.value, to.value);
    return join(source.value, destination.value);
}

bool EditApplier::link(const std::vector<std::string>& words)
{
    constexpr std::size_t kWordsOfLink = 5;
    return words.size() == kWordsOfLink && words.back() == "0" &&
           makeLightLink(m_scene, {words[0], words[1], words[2], words[3]});
}

/// What the placeholder feeds is fed by the node of the reference.
bool EditApplier::passOn(const Plug& source, const Plug& placeholder)
{
    const std::vector<Plug> destinations = engine::destinationsOf(placeholder);
    bool isDone = !destinations.empty();
    for (const Plug& destination : destinations) {
        m_scene.breakConnection(placeholder, destination);
        isDone = join(source, destination) && isDone;
    }
    return isDone;
}

bool EditApplier::join(const Plug& source, const Plug& destination)
{
    const Plug to = destination.isArray() ? m_scene.nextAvailable(destination) : destination;
    return static_cast<bool>(m_scene.connect(source, to, true));
}

} // namespace tvxhost::scene
