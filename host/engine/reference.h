// Reference: another file whose nodes are part of a scene without being written with it.
#pragma once

#include "object.h"
#include "plug.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace tvxhost::engine {

class DagNode;
class Node;

/// One change that the scene makes to what a file holds, as its reference node keeps it: a number that says
/// what is done, and the words of that.
struct ReferenceEdit
{
    enum Kind
    {
        parent = 0,
        addAttribute = 1,
        setAttribute = 2,
        disconnect = 3,
        deleteAttribute = 4,
        connect = 5,
        lock = 8,
        unlock = 9
    };
    /// Of a connection: which of its ends are nodes of the file.
    enum Ends
    {
        both = 0,
        source = 3,
        destination = 4
    };
    int kind = setAttribute;
    int ends = both; ///< of a connection
    std::vector<std::string> words;
};

/// How the nodes of a file were before the scene changed anything about them.
struct ReferenceBaseline
{
    /// By node: what a file would say of it, as a number per attribute path.
    std::unordered_map<const Node*, std::unordered_map<std::string, std::size_t>> values;
    std::vector<std::pair<Plug, Plug>> connections; ///< source and destination
    std::unordered_set<std::string> connectionKeys;
    std::unordered_map<const Node*, std::pair<const DagNode*, std::string>> parents; ///< parent, full name
};

struct Reference
{
    std::string nodeName; ///< its reference node, with namespace
    std::string file;     ///< as the scene names it
    std::string path;     ///< where it is; empty until it was found
    std::string space;    ///< namespace or prefix, as the scene says it
    bool hasPrefix = false;
    std::string words; ///< further flags of its statement, as they stood
    std::string from;  ///< the file that names it
    int line = 0;      ///< of its statement
    bool isDeferred = false;
    bool isLoaded = false;
    bool keepsEdits = false;     ///< its node keeps edits that are not understood
    Reference* parent = nullptr; ///< the one whose file makes this one; null for the scene's own
    std::vector<Ref<Node>>
        nodes; ///< while loaded: those of its file, without those of files that this one refers to
    ReferenceBaseline baseline; ///< of the scene's own references, while loaded
    std::vector<std::pair<Ref<Node>, std::string>> setByEdits; ///< node and attribute path
    std::vector<ReferenceEdit> otherEdits; ///< that could not be applied, or cannot be seen in the nodes
};

} // namespace tvxhost::engine
