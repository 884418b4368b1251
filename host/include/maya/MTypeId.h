// MTypeId: the number that names a type of node or data.
#pragma once

#include <maya/MTypes.h>

class MStatus;

/// The number that names a type of node or data. Binary scenes store it. 0 to 0x7ffff are for use inside a
/// studio, 0x80000 to 0xfffff for examples; all else are blocks given out by Autodesk.
class OPENMAYA_EXPORT MTypeId
{
public:
    /// The number 0.
    MTypeId();
    MTypeId(unsigned int id);

    /// From the prefix of a block (its upper 24 bits) and a number in the block (0 to 255).
    MTypeId(unsigned int prefix, unsigned int id);
    MTypeId(const MTypeId& src);
    ~MTypeId();

    MTypeId& operator=(const MTypeId& rhs);
    bool operator==(const MTypeId& rhs) const;
    bool operator!=(const MTypeId& rhs) const;

    /// The number.
    unsigned int id(MStatus* ReturnStatus = nullptr) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    unsigned int number;
};
