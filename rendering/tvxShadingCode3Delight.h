// What the nodes of 3Delight's shading networks share.
#pragma once

#include <maya/MPxNode.h>

#include <new>

namespace tarvox::crowd {

/// A node that carries shading-language source for 3Delight's translation and computes nothing.
/// @tparam Node  the node's own class, which declares the attributes in its initialize(): each node type has
///               attribute objects of its own
template <class Node>
class ShadingCode3Delight : public MPxNode
{
public:
    /// Declarations of the parameters that the code takes.
    inline static MObject shadingParameters;
    inline static MObject shadingCode;

    /// @return a new instance, which Maya owns; null when there is no memory for it
    static void* creator() { return new (std::nothrow) Node; }

    /// Computes nothing: MS::kUnknownParameter for every plug.
    MStatus compute(const MPlug& /*plug*/, MDataBlock& /*dataBlock*/) override
    {
        return MStatus::kUnknownParameter;
    }
};

} // namespace tarvox::crowd
