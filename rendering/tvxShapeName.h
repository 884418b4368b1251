// The names of the locators' shapes.
#pragma once

#include <maya/MObject.h>

namespace tarvox::crowd {

/// Names a shape when Maya has constructed it; Maya makes the name unique when it is taken. A shape that
/// cannot be renamed keeps the name that Maya gave it.
void nameShape(const MObject& shape, const char* name);

} // namespace tarvox::crowd
