// DagPath: one way from the world down to a DAG node; instances have several.
#pragma once

#include "node.h"
#include "outcome.h"

#include <string>
#include <utility>
#include <vector>

namespace tvxhost::engine {

/// A value type. Invalid when default constructed; the path of the world has length 0 and is valid.
class DagPath
{
public:
    DagPath() = default;
    DagPath(const DagPath& other);
    DagPath(DagPath&& other) noexcept = default;
    ~DagPath();
    DagPath& operator=(DagPath other) noexcept;
    /// The path of the world of a scene.
    static DagPath world(Scene& scene);
    /// The first path that leads to a node (for an instanced one the path of instance 0).
    static DagPath firstTo(DagNode& node);
    /// All paths, in order of instance number: by parent index, depth first.
    static std::vector<DagPath> allTo(DagNode& node);
    /// How many there are.
    static std::size_t countTo(const DagNode& node);

    // Every call on a path asks this, so a path is walked again only after some object has died or come back.
    bool isValid() const { return m_world && (m_validAt == Object::lifeChanges() + 1 || isEachAlive()); }
    /// Nodes below the world.
    std::size_t length() const { return m_nodes.size(); }
    /// The node at the end (the world for length 0, null when invalid).
    DagNode* node() const
    {
        if (!m_nodes.empty())
            return m_nodes.back();
        return m_world ? m_world->asDag() : nullptr;
    }
    DagNode* nodeAt(std::size_t i) const { return m_nodes[i]; }
    /// The nearest transform upwards, the end included; null when there is none.
    DagNode* transform() const;

    Outcome pop(std::size_t n = 1);
    Outcome push(DagNode& child);

    int instanceNumber() const;
    std::string fullName() const;
    /// The shortest ending that is unique in the scene.
    std::string partialName() const;

    Matrix inclusiveMatrix() const; ///< world matrix of the end
    Matrix exclusiveMatrix() const; ///< world matrix of what is above the end
    /// Visibility, intermediate flag and display overrides along the whole path.
    bool isVisible() const;
    bool isTemplated() const;

    /// The first non-intermediate shape directly below the end (a transform); null when there is none.
    DagNode* shapeBelow() const;

    friend bool operator==(const DagPath& a, const DagPath& b);
    friend bool operator!=(const DagPath& a, const DagPath& b) { return !(a == b); }

private:
    bool isEachAlive() const;
    void append(DagNode& node);

    Ref<Node> m_world;
    PointerList<DagNode, 4> m_nodes;     ///< held as by a Ref each
    mutable std::uint64_t m_validAt = 0; ///< Object::lifeChanges() when all were last seen alive, and 1 more
};

} // namespace tvxhost::engine
