// Numbers as scene files hold them.
#pragma once

#include <string>

namespace tvxhost::scene {

/// Appends a double: in up to nine digits when these read back equal, else in seventeen.
void appendDouble(std::string& out, double value);
/// Appends a float of a group ("float3" …): in up to eight digits when these read back equal, else in nine.
void appendFloat(std::string& out, float value);
/// The same as a string of its own.
std::string doubleText(double value);

} // namespace tvxhost::scene
