// MSpace: the spaces in which coordinates are given.
#pragma once

#include <maya/MTypes.h>

/// The space in which coordinates are given. kTransform, kPreTransform and kPostTransform belong to
/// transforms; shapes know kObject and kWorld.
class OPENMAYA_EXPORT MSpace
{
public:
    enum Space
    {
        kInvalid = 0,
        kTransform = 1,     ///< relative to the transform's own matrix
        kPreTransform = 2,  ///< before it: the space of the node's points
        kPostTransform = 3, ///< after it: the space of the parent
        kWorld = 4,         ///< through all parents; needs a function set that was built on a path
        kObject = 2,
        kLast = 5,
    };
};
