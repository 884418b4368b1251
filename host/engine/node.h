// Node and DagNode: the things of a scene.
#pragma once

#include "nodeMemory.h"
#include "nodeType.h"
#include "object.h"
#include "plug.h"
#include "pointerList.h"

#include <Imath/ImathBox.h>

#include <cstdint>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tvxhost::engine {

class CellStore;
class DagNode;
class NameTable;
class Scene;

/// The code of one node of a plug-in's type. Owned by its node.
class NodeBehaviour
{
public:
    virtual ~NodeBehaviour() = default;
    /// Called once the node and its code are tied together, before anything else.
    virtual void postConstructor() {}
    virtual Computed compute(const Plug& plug) = 0;
    /// Empty: the host's own rule holds.
    virtual std::optional<bool> shouldSave(const Plug&) { return std::nullopt; }
    /// Whether it computes an attribute that was added to its node.
    virtual bool computes(const Attribute& /*dynamic*/) const { return false; }
    virtual void setDependentsDirty(const Plug&, std::vector<Plug>&) {}
    /// Empty: no opinion.
    virtual std::optional<bool> legalConnection(const Plug&, const Plug& /*other*/, bool /*asSource*/)
    {
        return std::nullopt;
    }
    virtual void connectionMade(const Plug&, const Plug& /*other*/, bool /*asSource*/) {}
    virtual void connectionBroken(const Plug&, const Plug& /*other*/, bool /*asSource*/) {}
    /// The API's object for this node (an MPxNode*), for those who made it; the engine never looks at it.
    virtual void* apiObject() { return nullptr; }
};

/// A dependency node. Made and deleted by Scene only. Begins on a line of the processor's cache.
class alignas(64) Node : public Object
{
public:
    /// Nodes above or below one.
    using Links = PointerList<DagNode, 1>;

protected:
    // What every walk through a scene reads stands together at the front, so that it is fetched at once; what
    // only DAG nodes have, too.
    /// Whether a value of "intermediateObject" was ever kept: seldom, and asked of every shape.
    bool m_mayBeIntermediate = false;
    Links m_parents;
    Links m_children;

private:
    friend class CellStore;
    friend class NameTable;
    friend class Scene;
    NodeType* m_type;
    Scene* m_scene;
    std::unique_ptr<CellStore> m_cells;

public:
    Node(Scene& scene, NodeType& type);
    ~Node() override;

    static void* operator new(std::size_t size) { return takeNodeMemory(size); }
    static void operator delete(void* memory, std::size_t size) { giveBackNodeMemory(memory, size); }

    Scene& scene() const { return *m_scene; }
    NodeType& type() const { return *m_type; }
    /// Name with namespace, without DAG path.
    const std::string& name() const { return m_name; }
    const std::string& uuid() const { return m_uuid; }
    void setUuid(std::string uuid);
    NodeBehaviour* behaviour() const { return m_behaviour.get(); }
    DagNode* asDag();
    const DagNode* asDag() const;

    bool isDefaultNode = false;
    bool isShared = false;
    bool isLockedNode = false;
    bool isReferenced = false;
    bool doNotWrite = false;

    /// Locks or unlocks it against changes of what it is.
    void setLocked(bool locked);

    /// Static and dynamic top-level attributes, static first.
    std::vector<Attribute*> attributes() const;
    const std::vector<Ref<Attribute>>& dynamicAttributes() const { return m_dynamic; }
    /// By long or short name (children too) or alias; null when there is none.
    Attribute* findAttribute(const std::string& name) const;
    bool hasAttribute(const Attribute& attribute) const;
    /// Whether the attribute is computed rather than only kept.
    bool isOutput(const Attribute& attribute) const
    {
        if (attribute.flags.dynamic)
            return m_behaviour && m_behaviour->computes(attribute);
        return m_type->isOutput(attribute);
    }
    Outcome addDynamicAttribute(const Ref<Attribute>& attribute);
    Outcome removeDynamicAttribute(Attribute& attribute);
    /// Remembers for undo how a dynamic attribute, with what is below it, is declared: to be called right
    /// before that changes.
    void keepDeclaration(Attribute& attribute);

    /// Gives a plug of this node a further name, under which it is found; an empty one takes it away.
    /// nameTaken when an attribute or another plug has the name, invalidName for what is not a legal one.
    Outcome setAlias(const Plug& plug, const std::string& alias);
    /// Empty when the plug has none.
    std::string aliasOf(const Plug& plug) const;
    /// Alias and the plug's path (long names, without the node), in the order in which they were given.
    const std::vector<std::pair<std::string, std::string>>& aliases() const { return m_aliases; }
    /// The long name of an attribute is another one from now on.
    void renameInAliases(const std::string& before, const std::string& after);

    /// A plug by a path such as "t", "translateX", "iog[0].og[1].gcl"; `error` set when there is none.
    /// A range ("vt[0:15]") is not a plug: see scene/.
    Expected<Plug> findPlug(const std::string& path);

    /// For a node of a type that nobody knows: the type's name as the scene gave it, and its plug-in.
    std::string unknownType;
    std::string unknownPlugin;
    /// Statements of the scene about this node that the host does not understand (unknown attributes and the
    /// like), as they stood and in order, to be written back.
    std::vector<std::string> keptLines;

    /// Rises with every node that is made: tells which of two came first.
    std::uint64_t serial() const { return m_serial; }

    /// The step of the journal in which it was made; 0 for none.
    std::uint64_t madeInStep() const { return m_madeInStep; }

    CellStore& cells() { return *m_cells; }
    const CellStore& cells() const { return *m_cells; }

private:
    class AttributeRemoval;
    void removeAttribute(Attribute& attribute);
    void dropAliasesOf(const Attribute& attribute);

    std::string m_name;
    std::string m_uuid;
    std::vector<Ref<Attribute>> m_dynamic;
    std::vector<std::pair<std::string, std::string>> m_aliases;
    std::unique_ptr<NodeBehaviour> m_behaviour;
    std::list<Node*>::iterator m_place; ///< in the scene's list
    std::uint64_t m_serial = 0;         ///< rises with every node that is made
    std::size_t m_nameSlot = 0;         ///< among the nodes of its name
    std::uint64_t m_madeInStep = 0;
    std::size_t m_departures = 0; ///< edits that can bring it back
    bool m_isWaiting = false;     ///< out of the scene, and may come back
};

/// A node with a place in the DAG: transforms, shapes and the world.
class DagNode final : public Node
{
public:
    DagNode(Scene& scene, NodeType& type);

    bool isWorld() const { return m_parents.empty() && isWorldOfScene(); }
    bool isTransform() const;
    bool isShape() const { return type().isShape; }

    /// In the order of parenting; several when the node is instanced. Top-level nodes have the world as
    /// parent.
    const Links& parents() const { return m_parents; }
    /// In DAG order, shapes and transforms mixed.
    const Links& children() const { return m_children; }
    /// The i-th child. Children are mostly asked for one after the other, so those that come next, and what
    /// is directly below them, are on their way into the processor's cache.
    DagNode* childAt(std::size_t i) const;

    /// Reads the attribute without evaluating anything.
    bool isIntermediate();
    /// The local matrix of a transform (identity for shapes), row vectors, centimetres and radians inside.
    Matrix localMatrix();

private:
    bool isWorldOfScene() const;
};

inline DagNode* Node::asDag()
{
    return m_type->isDag ? static_cast<DagNode*>(this) : nullptr;
}

inline const DagNode* Node::asDag() const
{
    return m_type->isDag ? static_cast<const DagNode*>(this) : nullptr;
}

} // namespace tvxhost::engine
