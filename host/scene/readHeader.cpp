// SceneReader: the frame of a file: plug-ins, units, information, references.
#include "sceneReader.h"

#include "flagScanner.h"
#include "referenceEdits.h"

#include "engine/settingsChange.h"

#include <algorithm>

namespace tvxhost::scene {

using engine::Outcome;
using engine::Reason;

namespace {

void addAll(std::vector<std::string>& to, const std::vector<std::string>& from)
{
    for (const std::string& word : from)
        if (std::find(to.begin(), to.end(), word) == to.end())
            to.push_back(word);
}

/// Adds a requirement, or what is new of it to the one that names the same plug-in.
void addRequirement(std::vector<engine::Scene::Requirement>& all, const engine::Scene::Requirement& added)
{
    const auto known = std::find_if(all.begin(), all.end(), [&](const engine::Scene::Requirement& candidate) {
        return candidate.plugin == added.plugin;
    });
    if (known == all.end()) {
        all.push_back(added);
        return;
    }
    known->version = added.version;
    addAll(known->nodeTypes, added.nodeTypes);
    addAll(known->dataTypes, added.dataTypes);
}

} // namespace

void SceneReader::requires_(const SceneStatement& statement)
{
    engine::Scene::Requirement requirement;
    std::vector<std::string> words;
    for (FlagScanner flags(statement.arguments); flags.next();) {
        if (flags.is("nt", "nodeType"))
            requirement.nodeTypes.emplace_back(flags.text());
        else if (flags.is("dt", "dataType"))
            requirement.dataTypes.emplace_back(flags.text());
        else if (flags.isPositional())
            words.emplace_back(flags.text());
        else
            requirement.words += (requirement.words.empty() ? "" : " ") + sourceText(flags.argument());
    }
    if (words.size() != 2) {
        error("'requires' needs a name and a version", statement.line);
        return;
    }
    requirement.plugin = words[0];
    requirement.version = words[1];
    if (requirement.plugin == "maya") {
        m_summary.version = requirement.version;
        return;
    }
    if (!m_reference)
        addRequirement(m_scene.requirements, requirement);
    if (!m_triedPlugins.insert(requirement.plugin).second)
        return;
    m_summary.plugins.push_back(requirement.plugin);
    const Outcome loaded =
        m_options.loadPlugin ? m_options.loadPlugin(requirement.plugin) : Outcome(Reason::doesNotExist);
    if (!loaded)
        warning(loaded.text.empty()
                    ? "Plug-in, \"" + requirement.plugin + "\", was not found on MAYA_PLUG_IN_PATH."
                    : loaded.text,
                statement.line);
}

void SceneReader::currentUnit(const SceneStatement& statement)
{
    const engine::SettingsChange settings(m_scene);
    engine::Units& units = m_scene.units();
    const auto take = [&](auto& unit, const auto& named, const std::string& name) {
        if (const auto found = named(name))
            unit = *found;
        else
            error("Invalid unit '" + name + "'", statement.line);
    };
    for (FlagScanner flags(statement.arguments); flags.next();) {
        if (flags.is("l", "linear"))
            take(units.linear, engine::linearUnitNamed, std::string(flags.text()));
        else if (flags.is("a", "angle"))
            take(units.angle, engine::angularUnitNamed, std::string(flags.text()));
        else if (flags.is("t", "time"))
            take(units.time, engine::timeUnitNamed, std::string(flags.text()));
    }
}

void SceneReader::fileInfo(const SceneStatement& statement)
{
    std::vector<std::string> words;
    for (FlagScanner flags(statement.arguments); flags.next();)
        if (flags.isPositional())
            words.emplace_back(flags.text());
    if (words.size() != 2) {
        error("'fileInfo' needs a keyword and a value", statement.line);
        return;
    }
    if (m_reference)
        return;
    auto& all = m_scene.fileInfo;
    const auto known =
        std::find_if(all.begin(), all.end(), [&](const auto& entry) { return entry.first == words[0]; });
    if (known == all.end())
        all.emplace_back(words[0], words[1]);
    else
        known->second = words[1];
}

std::string SceneReader::absoluteName(const std::string& name) const
{
    const std::string& space = m_scene.currentNamespace();
    return space == ":" || name.empty() ? name : space.substr(1) + ":" + name;
}

/// A line of the table of references, or a reference. Those that are deferred and that the table says are
/// loaded come when the whole file has been read, since their edits stand in it.
void SceneReader::file(const SceneStatement& statement)
{
    ReferenceStatement parsed = parseReference(statement.arguments);
    engine::Reference& reference = parsed.reference;
    reference.nodeName = absoluteName(reference.nodeName);
    if (parsed.depth > 0) {
        std::optional<bool>& isLoaded = m_states[reference.nodeName].isLoaded;
        if (!isLoaded)
            isLoaded = !reference.isDeferred;
        return;
    }
    if (!parsed.isReference || reference.file.empty()) {
        keep(m_scene.keptConnections, statement);
        return;
    }
    reference.from = m_file;
    reference.line = statement.line;
    reference.parent = m_reference;
    m_scene.references.push_back(std::make_unique<engine::Reference>(std::move(reference)));
    m_references.push_back(m_scene.references.back().get());
    engine::Reference& added = *m_references.back();
    const ReferenceState& state = m_states[added.nodeName];
    if (!state.file.empty())
        added.file = state.file;
    if (!added.isDeferred)
        loadReference(added, state.isLoaded.value_or(true));
}

void SceneReader::loadReferences()
{
    for (engine::Reference* reference : m_references) {
        if (reference->isLoaded)
            applyEdits(m_scene, *reference);
        else if (reference->isDeferred)
            loadReference(*reference, m_states[reference->nodeName].isLoaded.value_or(false));
    }
}

/// Which of the references that this file makes are read.
ReferenceDepth SceneReader::referenceDepth() const
{
    if (!m_reference)
        return m_options.references;
    const auto state = m_states.find(m_reference->nodeName);
    return state == m_states.end() ? ReferenceDepth::asSaved
                                   : state->second.depth.value_or(ReferenceDepth::asSaved);
}

/// Loads one that this file makes, unless none are. `isWanted`: what was saved says that it is loaded.
void SceneReader::loadReference(engine::Reference& reference, bool isWanted)
{
    const ReferenceDepth depth = referenceDepth();
    if (depth == ReferenceDepth::none || (depth == ReferenceDepth::asSaved && !isWanted))
        return;
    std::optional<ReferenceDepth>& below = m_states[reference.nodeName].depth;
    if (!below)
        below = depthBelow(depth);
    scene::loadReference(m_scene, reference, m_options, m_states, m_summary);
}

} // namespace tvxhost::scene
