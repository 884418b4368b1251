// The names of the locators' shapes.
#include "rendering/tvxShapeName.h"

#include <maya/MFnDependencyNode.h>

namespace tarvox::crowd {

void nameShape(const MObject& shape, const char* name)
{
    MFnDependencyNode(shape, nullptr).setName(name, false);
}

} // namespace tarvox::crowd
