// The parts of `setAttr` statements that say something of one plug.
#pragma once

#include "engine/plug.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tvxhost::scene {

/// " -l on -k off …": what differs from the attribute's own state; empty when nothing does.
std::string stateFlags(const engine::Plug& plug);
/// Whether the value of a plug belongs into a file at all.
bool isStored(const engine::Plug& plug);

bool isNumeric(const engine::Attribute& attribute);
/// A group of numbers that a `-type "double3"` names.
bool isGroup(const engine::Attribute& attribute);
/// The numbers of a plug; none when it cannot be read.
std::vector<double> numbersOf(const engine::Plug& plug);

/// " -type "double3"" of a group, nothing of others.
std::string typeFlag(const engine::Attribute& attribute);
/// " ".path"".
std::string pathText(const std::string& path);
/// " -s 3".
std::string sizeFlag(std::size_t count);

/// A line among the kept ones of a node that marks a plug whose value a file calls altered (`-av`): no
/// statement, but written with what the plug's own one says.
std::string alteredMark(const std::string& path);
/// The path in such a line; empty when it is another one.
std::string alteredPath(const std::string& line);

} // namespace tvxhost::scene
