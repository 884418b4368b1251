// NodeType: what all nodes of one type share; TypeTable: all types that are known now.
#pragma once

#include "attribute.h"
#include "outcome.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace tvxhost::engine {

class Node;
class NodeBehaviour;
class Plug;

/// The answer of a compute.
enum class Computed
{
    done,    ///< the plug was computed (and marked clean by the code that did it)
    unknown, ///< not mine: ask the parent type
    failed,  ///< an evaluation failure; the plug stays dirty
};

/// Computes a plug of a built-in type. Plugs it does not know: Computed::unknown.
using ComputeFunction = std::function<Computed(Node& node, const Plug& plug)>;
/// Makes the per-node code of a plug-in's type. May return null: the creation of the node fails.
using BehaviourFactory = std::function<std::unique_ptr<NodeBehaviour>(Node& node)>;

/// One node type: its place in the inheritance, its attributes and what affects what.
class NodeType
{
public:
    NodeType(std::string name, std::uint32_t id, NodeType* parent);

    std::string name;
    std::uint32_t id = 0;
    NodeType* parent = nullptr; ///< null for the root type, "node"
    std::string plugin;         ///< the plug-in that registered it; empty for built-in types
    std::string classification;
    /// Shapes: new ones are called baseName + "Shape" + number below a transform baseName + number. Empty (as
    /// for plug-ins' types): the type's name and number below "transform" + number.
    std::string baseName;
    bool isDag = false;
    bool isShape = false;
    bool isAbstract = false;    ///< cannot be created
    ComputeFunction compute;    ///< may be empty
    BehaviourFactory behaviour; ///< may be empty; the nearest one up the parents counts

    /// True when this is `other` or derives from it.
    bool isA(const NodeType& other) const;
    bool isA(const std::string& typeName) const;

    /// Own and inherited top-level attributes in the order in which they were added, the inherited ones
    /// first.
    const std::vector<Ref<Attribute>>& attributes() const { return m_attributes; }
    /// All attributes, children included, found by long, short or other short name; null when there is none.
    Attribute* find(const std::string& name) const;

    /// Adds a top-level attribute with all its children. Fails with nameTaken when one of the names is in
    /// use, and with wrongKind for a child of a compound. Must not be called once nodes of the type exist.
    Outcome addAttribute(const Ref<Attribute>& attribute);
    /// Declares that `input` affects `output`. Both must be attributes of this type (inherited counts), the
    /// output not keyable; a compound stands for its children as well.
    Outcome addAffects(const Attribute& input, const Attribute& output);
    /// Says that an attribute is computed although nothing of its own node affects it (what a DAG node takes
    /// from its place).
    void addComputed(const Attribute& output);
    /// What changes when `input` does: the declared outputs of it and of the compounds above and the children
    /// below it, own and inherited, each once, in the order of declaration.
    const std::vector<Attribute*>& affectedBy(const Attribute& input) const;
    /// The declarations themselves (without what is inherited), in order.
    const std::vector<std::pair<Attribute*, Attribute*>>& affects() const { return m_affects; }
    /// True when some declared affects reaches the attribute, a parent or a child of it: then it is computed.
    bool isOutput(const Attribute& attribute) const;

    /// The attribute "intermediateObject", which every DAG type inherits; null for the others. Looked up
    /// once, since whoever looks for the shape below a transform asks for it.
    Attribute* intermediateObject() const;

    /// What the API has found out about the type: the engine never looks at it.
    class Notes
    {
    public:
        virtual ~Notes() = default;
    };
    mutable std::unique_ptr<Notes> apiNotes;

    int liveNodes = 0;    ///< nodes of exactly this type in the scene
    int waitingNodes = 0; ///< those that are gone, but that undo or redo may bring back

private:
    friend class TypeTable;
    std::vector<Ref<Attribute>> m_attributes;
    std::unordered_map<std::string, Attribute*> m_names;
    std::vector<std::pair<Attribute*, Attribute*>> m_affects;
    std::vector<const Attribute*> m_computed;
    mutable std::unordered_map<const Attribute*, std::vector<Attribute*>> m_affectedCache;
    mutable std::unordered_map<const Attribute*, bool> m_outputCache;
    mutable Attribute* m_intermediateObject = nullptr;
};

/// Says that an attribute and all below it belong to a type; null: to none any more.
void setOwner(Attribute& attribute, const NodeType* owner);

/// All node types. Built-in ones are there from the start; they come from the tables in engine/types.
class TypeTable
{
public:
    TypeTable();
    ~TypeTable();

    NodeType* find(const std::string& name) const;
    NodeType* find(std::uint32_t id) const;
    /// In the order of registration.
    std::vector<NodeType*> all() const;
    std::vector<NodeType*> ofPlugin(const std::string& plugin) const;

    /// Registers a type; its attributes are added afterwards. nameTaken when name or id is in use.
    Expected<NodeType*> add(std::string name, std::uint32_t id, NodeType& parent);
    /// The root type, which has no parent.
    Expected<NodeType*> addRoot(std::string name, std::uint32_t id);
    /// A number for a built-in type that has no id of its own.
    std::uint32_t nextNamelessId();
    /// Forgets a type. Nodes of it must be gone (inUse otherwise; turn them into unknown nodes first).
    Outcome remove(NodeType& type);

private:
    friend class Scene;
    Expected<NodeType*> insert(std::unique_ptr<NodeType> type);
    /// A type of no name that stands for `type` once it is gone: same attributes, nothing is computed.
    NodeType& retire(NodeType& type);

    std::vector<std::unique_ptr<NodeType>> m_types;
    std::vector<std::unique_ptr<NodeType>> m_retired;
    std::unordered_map<std::string, NodeType*> m_byName;
    std::unordered_map<std::uint32_t, NodeType*> m_byId;
    std::uint32_t m_lastNamelessId = 0;
};

} // namespace tvxhost::engine
