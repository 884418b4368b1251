// SceneReader: statements that declare and set attributes.
#include "sceneReader.h"

#include "setAttr.h"
#include "setAttrText.h"
#include "xformMatrix.h"

#include "mel/value.h"

namespace tvxhost::scene {

using engine::Expected;
using engine::Node;
using engine::Outcome;
using engine::Reason;

namespace {

bool isDeclaredByType(const Node& node, const engine::Attribute& attribute)
{
    const engine::Attribute* own = node.type().find(attribute.longName);
    return own && own->shortName == attribute.shortName;
}

bool isMissing(const Outcome& outcome)
{
    return outcome.reason == Reason::notFound || outcome.reason == Reason::doesNotExist;
}

/// Whether a statement marks its value as altered.
bool isAltered(const mel::ArgumentList& arguments, const SetAttrRequest& request)
{
    for (const mel::Argument& argument : arguments) {
        if (argument.text == request.plug)
            return false;
        if (argument.text == "-av" || argument.text == "-alteredValue")
            return true;
    }
    return false;
}

/// Whether only the size of an array is told, of which nothing is there.
bool tellsSizeOnly(const SetAttrRequest& request, const PlugTarget& target)
{
    return request.hasHint && !request.hasValues() && !request.changesState() && !target.isRange &&
           target.plug.isArray() && engine::existingElements(target.plug).empty();
}

} // namespace

/// Keeps a relative statement of a node (or default node) that is not understood; false when the section is
/// that of a node the host knows.
bool SceneReader::keepForSection(const SceneStatement& statement)
{
    if (m_section.isUnknown) {
        keep(m_section.node->keptLines, statement);
        return true;
    }
    if (m_section.isMissingDefault) {
        m_scene.keptConnections.back() += "\n\t" + keptText(statement.source);
        ++m_summary.keptStatements;
        return true;
    }
    return false;
}

void SceneReader::addAttr(const SceneStatement& statement)
{
    const bool isKept = keepForSection(statement);
    Node* node = m_section.node;
    if (!node)
        return;
    m_lastDeclaration = statement.line;
    try {
        const mel::ParsedCommand flags = mel::parseArguments(m_addAttr, statement.arguments);
        const auto declaration = declarationFrom(flags, m_scene.units());
        const Outcome added =
            declaration ? m_compounds.declare(*node, declaration.value) : declaration.outcome;
        if (added || isKept)
            return;
        // An attribute that this host's type has anyway: the line goes back into the file as it was.
        const bool isKnown = declaration && isDeclaredByType(*node, *declaration.value.attribute);
        if (!isKnown)
            error(added.text, statement.line);
        if (isKnown || added.reason != Reason::nameTaken)
            keep(node->keptLines, statement);
    } catch (const mel::ValueError& wrong) {
        if (!isKept)
            error(wrong.what(), statement.line);
    }
}

void SceneReader::setAttr(const SceneStatement& statement)
{
    Expected<SetAttrRequest> parsed = parseSetAttr(statement.arguments);
    if (!parsed) {
        if (!keepForSection(statement))
            error(parsed.outcome.text, statement.line);
        return;
    }
    SetAttrRequest& request = parsed.value;
    const bool isRelative = !request.plug.empty() && request.plug.front() == '.';
    const bool isKept = isRelative && keepForSection(statement);
    if (isRelative && !m_section.node)
        return;
    const auto target =
        isRelative ? findTarget(*m_section.node, request.plug.substr(1)) : findTarget(m_scene, request.plug);
    if (!target) {
        if (isKept)
            return;
        if (isRelative && isMissing(target.outcome))
            keep(m_section.node->keptLines, statement);
        else
            error(target.outcome.text, statement.line);
        return;
    }
    request.source = statement.source;
    const Outcome set = applySetAttr(target.value, request, {m_scene.units(), engine::Limits::ignore});
    if (isKept)
        return;
    if (set) {
        // The parts are more than the matrix that they make.
        if (isRelative && request.hasValues() && request.values->text == kXformWord)
            keep(m_section.node->keptLines, statement);
        else if (isRelative && isAltered(statement.arguments, request))
            m_section.node->keptLines.push_back(alteredMark(std::string(request.plug.substr(1))));
        else if (isRelative && m_section.node->isDefaultNode && tellsSizeOnly(request, target.value))
            m_section.node->keptLines.push_back(keptText(statement.source));
        return;
    }
    if (!isRelative || set.reason != Reason::notImplemented)
        error("setAttr: " + set.text, statement.line);
    if (isRelative && set.reason != Reason::lockedOrConnected)
        keep(m_section.node->keptLines, statement);
}

} // namespace tvxhost::scene
