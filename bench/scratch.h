// The folder where benchmarks write, gone when the program ends.
#pragma once

#include <string>

namespace tvxbench {

/// A fresh folder on the disk of the build, made on first use.
const std::string& scratchFolder();
std::string scratchFile(const std::string& name);

} // namespace tvxbench
