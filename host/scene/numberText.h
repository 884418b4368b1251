// Numbers as scene files hold them.
#pragma once

#include <string>

namespace tvxhost::scene {

/// Appends a double: in up to nine digits when these read back equal, else in seventeen.
void appendDouble(std::string& out, double value);
/// Appends a float of a group ("float3" …): in up to eight digits when these read back equal, else in nine.
void appendFloat(std::string& out, float value);
/// Appends a float of a mesh's list: what stands behind the point has the digits that it would have alone.
void appendMeshFloat(std::string& out, float value);
/// A double in seventeen digits, as in matrices.
std::string wholeDoubleText(double value);
/// A double as a string of its own.
std::string doubleText(double value);

} // namespace tvxhost::scene
