// What a file would say of one node, statement by statement: what the edits of references are told by.
#pragma once

#include "engine/scene.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tvxhost::scene {

/// One `setAttr` or `addAttr` of a node.
struct NodeStatement
{
    bool isDeclaration = false;
    std::string path;     ///< of the attribute, short names; of a declaration the short name
    std::string longName; ///< of a declaration
    std::string words;    ///< what follows or precedes the path, as edits hold it: flags, type and values

    std::size_t digest() const;
};

std::vector<NodeStatement> statementsOf(engine::Scene& scene, engine::Node& node);
/// The words of a plug's value, also when it is the default.
std::string statementOf(engine::Scene& scene, const engine::Plug& plug);

} // namespace tvxhost::scene
