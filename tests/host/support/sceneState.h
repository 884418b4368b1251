// What a scene holds as text, to be compared before and after: objects by identity and name, values, states,
// connections, lists in their order. What is computed is left out.
#pragma once

#include "engine/number.h"
#include "engine/scene.h"
#include "engine/values.h"

#include <sstream>
#include <string>

namespace tvxhost::test {

class SceneState
{
public:
    static std::string of(engine::Scene& scene)
    {
        SceneState state;
        state.addScene(scene);
        return state.m_out.str();
    }

private:
    using Plug = engine::Plug;

    void addScene(engine::Scene& scene)
    {
        m_out.precision(17);
        for (engine::Node* node : scene.nodes())
            addNode(*node);
        for (const auto* list : {&scene.selection(), &scene.hilite()}) {
            m_out << "list";
            for (const engine::SelectionItem& item : list->items())
                m_out << ' ' << item.name(true);
            m_out << '\n';
        }
        m_out << "namespace " << scene.currentNamespace() << (scene.hasRelativeNames() ? " first" : "")
              << " of";
        for (const std::string& name : scene.namespaces())
            m_out << ' ' << name;
        const engine::Units& units = scene.units();
        m_out << "\nunits " << engine::nameOf(units.linear) << ' ' << engine::nameOf(units.angle) << ' '
              << units.time << "\ntime " << scene.time();
        const engine::Playback& playback = scene.playback();
        m_out << "\nplayback " << playback.minimum() << ' ' << playback.maximum() << ' '
              << playback.animationStart() << ' ' << playback.animationEnd() << ' ' << playback.by << '\n';
        for (const auto& [key, value] : scene.fileInfo)
            m_out << "info " << key << ' ' << value << '\n';
    }

    void addNode(engine::Node& node)
    {
        m_out << &node << ' ' << node.type().name << ' ' << node.name() << ' ' << node.uuid()
              << (node.isLockedNode ? " locked" : "") << (node.isShared ? " shared" : "") << '\n';
        if (const engine::DagNode* dag = node.asDag()) {
            for (const engine::DagNode* parent : dag->parents())
                m_out << "  below " << parent->name();
            for (const engine::DagNode* child : dag->children())
                m_out << "  above " << child->name();
            m_out << '\n';
        }
        for (const auto& [alias, path] : node.aliases())
            m_out << "  alias " << alias << ' ' << path << '\n';
        for (engine::Attribute* attribute : node.attributes()) {
            if (attribute->flags.dynamic)
                addDeclaration(*attribute);
            addPlug(Plug(node, *attribute));
        }
        for (const Plug& source : engine::connectedPlugs(node))
            for (const Plug& destination : engine::destinationsOf(source))
                m_out << "  " << source.name() << " -> " << destination.name() << '\n';
    }

    void addDeclaration(const engine::Attribute& attribute)
    {
        m_out << "  dynamic " << &attribute << ' ' << attribute.longName << ' ' << attribute.shortName << ' '
              << attribute.niceName << ' ' << attribute.minimum.value_or(-1e300) << ' '
              << attribute.maximum.value_or(1e300) << ' ' << attribute.defaultNumber << '\n';
    }

    void addPlug(const Plug& plug)
    {
        const engine::PlugState state = engine::stateOf(plug);
        if (state.locked || state.keyable || state.channelBox || state.caching)
            m_out << "  state " << plug.name() << ' ' << state.locked << state.keyable.value_or(true)
                  << state.keyable.has_value() << state.channelBox.value_or(true)
                  << state.channelBox.has_value() << state.caching.has_value() << '\n';
        if (plug.node()->isOutput(*plug.attribute()))
            return;
        if (plug.isArray()) {
            for (const int index : engine::existingElements(plug)) {
                m_out << "  element " << plug.name() << ' ' << index << '\n';
                addPlug(plug.element(index));
            }
            return;
        }
        for (std::size_t i = 0; i < plug.childCount(); ++i)
            addPlug(plug.child(i));
        if (!plug.isCompound() && engine::hasOwnValue(plug) && !engine::isFedAnywhere(plug))
            addValue(plug);
    }

    void addValue(const Plug& leaf)
    {
        m_out << "  value " << leaf.name() << ' ';
        if (engine::isNumberLeaf(*leaf.attribute()))
            m_out << engine::storedNumber(leaf).asReal() << '\n';
        else
            m_out << engine::storedData(leaf).get() << '\n';
    }

    std::ostringstream m_out;
};

} // namespace tvxhost::test
