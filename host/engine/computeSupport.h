// What the computes of the built-in nodes share: reading their inputs, finishing their outputs.
#pragma once

#include "data.h"
#include "plug.h"

#include <string_view>
#include <vector>

namespace tvxhost::engine {

/// The plug at an attribute of a node by long name; a null plug when it has none such.
Plug plugOf(Node& node, std::string_view attribute);

/// The plug at an attribute of the top level that a request is about: the element of an array.
Plug topPlug(const Plug& plug);

/// A number of a node, evaluated.
double numberOf(Node& node, std::string_view attribute);
/// The numbers of a group, or the one that an attribute has, evaluated.
std::vector<double> numbersOf(Node& node, std::string_view attribute);
/// The three numbers of a group, evaluated.
Vec3d vectorOf(const Plug& plug);
Vec3d vectorOf(Node& node, std::string_view attribute);
/// A matrix, evaluated; the identity when there is none.
Matrix matrixOf(const Plug& plug);

// Each stores a computed value and marks it clean, without telling anybody: those who hang on it know
// already.
void finishNumber(const Plug& plug, double value);
/// As many numbers as the plug has children, or the first one for a plug of one number.
void finishNumbers(const Plug& plug, const std::vector<double>& values);
void finishData(const Plug& plug, Ref<Data> data);
void finishMatrix(const Plug& plug, const Matrix& matrix);
void finishVector(const Plug& plug, const Vec3d& vector);

} // namespace tvxhost::engine
