// How the shading nodes answer for their output.
#pragma once

#include <maya/MColor.h>
#include <maya/MDataBlock.h>
#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MStatus.h>

namespace tarvox::crowd {

/// The default of a colour output: orange.
MColor outputColor();

/// Whether the plug is that of the output, or a child of it.
bool asksFor(const MPlug& plug, const MObject& output);

/// Computes a colour output that equals one of the inputs, whole, also when only a component is asked for.
/// @return MS::kUnknownParameter for a plug that does not ask for the output; nothing is touched then
MStatus passColorThrough(const MPlug& plug, MDataBlock& dataBlock, const MObject& input,
                         const MObject& output);

} // namespace tarvox::crowd
