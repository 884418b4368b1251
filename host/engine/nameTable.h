// NameTable: who has which name, among all nodes and among siblings, and which numbers are free.
#pragma once

#include "pointerList.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tvxhost::engine {

class DagNode;
class Node;

/// A set of numbers kept as runs without gaps, so that the next free one is found at once.
class NumberRuns
{
public:
    void insert(int n);
    void erase(int n);
    /// The smallest number from `from` upwards that is not in the set.
    int firstFree(int from) const;

private:
    std::map<int, int> m_runs; ///< first to last of each run
};

/// A name split before its trailing number ("pCube12" = "pCube" + 12). No number: -1.
struct NumberedName
{
    std::string stem;
    int number = -1;
};
NumberedName splitNumber(const std::string& name);

/// Looks up and changes cost the same however many nodes there are, also when many share one name.
class NameTable
{
public:
    /// Most names belong to one node.
    using Holders = PointerList<Node, 1>;

    void add(Node& node);
    void remove(Node& node);
    /// All nodes of a name, in no order.
    const Holders& nodesNamed(const std::string& name) const;
    bool isTaken(const std::string& name) const { return !nodesNamed(name).empty(); }
    bool isTakenByDependencyNode(const std::string& name) const;

    /// A name from `name`'s stem that nobody has, with a number above its own (from 1 when it has none).
    std::string nextFree(const std::string& name) const;
    /// `stem` and the smallest number from 1 upwards that is free.
    std::string firstFree(const std::string& stem) const;

    // Siblings: to be told when a child comes, goes, or is about to be renamed.
    void addChild(const DagNode& parent, DagNode& child);
    void removeChild(const DagNode& parent, const DagNode& child);
    DagNode* childNamed(const DagNode& parent, std::string_view name) const;

    void clear();

private:
    struct Bucket
    {
        Holders nodes;
        std::size_t dependencyNodes = 0;
    };
    struct Sibling
    {
        const DagNode* parent;
        std::string_view name; ///< the child's own
        friend bool operator==(const Sibling& a, const Sibling& b)
        {
            return a.parent == b.parent && a.name == b.name;
        }
    };
    struct SiblingHash
    {
        std::size_t operator()(const Sibling& sibling) const;
    };

    std::string freeFrom(const std::string& stem, int number) const;

    std::unordered_map<std::string, Bucket> m_buckets;
    std::unordered_map<std::string, NumberRuns> m_numbers; ///< by stem
    std::unordered_map<Sibling, DagNode*, SiblingHash> m_siblings;
};

} // namespace tvxhost::engine
