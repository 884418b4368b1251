// NodeWriter: the lines of one node of a scene file.
#pragma once

#include "referenceEdits.h"

#include "engine/node.h"
#include "engine/scene.h"

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace tvxhost::scene {

/// Writes what a node holds beyond its type: its own attributes, values and states.
class NodeWriter
{
public:
    /// Appends to `out`, which outlives the writer.
    NodeWriter(engine::Scene& scene, std::string& out) : m_scene(scene), m_out(out) {}

    /// `createNode` and everything below it.
    void writeNode(engine::Node& node);
    /// The indented lines of a node that need no `createNode`: of default nodes. True when there were any.
    bool writeLines(engine::Node& node);
    /// A `setAttr` of the plug with its value, also when that is the default; empty when it has none to
    /// write.
    std::string statement(const engine::Plug& plug);

    /// Names of parents that stand in the file for others: for nodes below those of a reference.
    std::unordered_map<const engine::Node*, std::string> parentNames;
    /// Loaded references by their node: their edits are written with it.
    std::unordered_map<const engine::Node*, ReferenceText> references;

private:
    void declare(const engine::Attribute& attribute);

    void writePlug(const engine::Plug& plug);
    void writeCompound(const engine::Plug& plug);
    void writeLeaf(const engine::Plug& plug);
    void writeState(const engine::Plug& plug);
    /// The words of a value, from the blank behind the name up to the semicolon; empty when there is none to
    /// write.
    std::string valueWords(const engine::Plug& plug);
    std::string plainWords(const engine::Plug& plug);

    // Arrays, in nodeArrays.cpp
    void writeArray(const engine::Plug& array);
    void writeInstances(const engine::Plug& array, const std::vector<int>& elements);
    /// Runs of elements whose numbers stand side by side; the statements without `setAttr` and size.
    std::vector<std::string> numberRuns(const engine::Plug& array, const std::vector<int>& elements,
                                        std::size_t leaves);
    void writeConnectedSize(const engine::Plug& array, const std::vector<int>& elements);
    bool isSpecialAnywhere(const engine::Plug& array, const std::vector<int>& elements) const;
    void writeWeights(const engine::Plug& array, const std::vector<int>& elements);
    void writeFaces(const engine::Plug& array, const std::vector<int>& elements);

    void writeLinkSizes(engine::Node& node);
    void writeEdits(const ReferenceText& text);

    /// The flags of a plug's statement.
    std::string flagsOf(const engine::Plug& plug) const;
    bool isSkipped(const engine::Plug& plug) const;
    void line(const std::string& text);

    engine::Scene& m_scene;
    std::string& m_out;
    std::unordered_set<std::string> m_keptPaths;    ///< that the node's kept lines set
    std::unordered_set<std::string> m_alteredPaths; ///< of values that are marked as altered
};

} // namespace tvxhost::scene
