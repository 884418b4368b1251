// The node types that the plug-in registers.
#pragma once

#include <maya/MPxNode.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypeId.h>

#include <cstddef>

namespace tarvox::crowd {

/// What Maya is told about one node type. The pointers are to statics of the node's class, which are only
/// read when the plug-in is loaded.
struct NodeRow
{
    const char* name;
    const MTypeId* id;
    void* (*creator)();
    MStatus (*initialize)();
    MPxNode::Type kind;
    const MString* classification; ///< null for none
};

/// The node types in the order in which they are registered, and deregistered too.
struct NodeTable
{
    const NodeRow* first;
    std::size_t size;

    const NodeRow* begin() const { return first; }
    const NodeRow* end() const { return first + size; }
};

NodeTable nodeTable();

} // namespace tarvox::crowd
