// MArrayDataBuilder: new elements for an array.
#pragma once

#include <maya/MArrayDataHandle.h>
#include <maya/MDataHandle.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

class MDataBlock;
class MObject;

/// Builds the elements of an array attribute, to be handed to MArrayDataHandle::set().
class OPENMAYA_EXPORT MArrayDataBuilder
{
public:
    /// Empty, for an array attribute, with room for so many elements.
    MArrayDataBuilder(const MObject& attribute, unsigned int numElements, MStatus* ReturnStatus = nullptr);

    MArrayDataBuilder(MDataBlock*, const MObject& attribute, unsigned int, MStatus* ReturnStatus = nullptr);
    MArrayDataBuilder(const MArrayDataBuilder& other);
    ~MArrayDataBuilder();

    MArrayDataBuilder& operator=(const MArrayDataBuilder& other);

    /// Adds an element behind the last one.
    MDataHandle addLast(MStatus* ReturnStatus = nullptr);

    /// The element with an index, added when there is none.
    MDataHandle addElement(unsigned int index, MStatus* ReturnStatus = nullptr);

    /// The same when elements are arrays themselves.
    MArrayDataHandle addLastArray(MStatus* ReturnStatus = nullptr);
    MArrayDataHandle addElementArray(unsigned int index, MStatus* ReturnStatus = nullptr);

    /// Removes the element with an index; kFailure when there is none.
    MStatus removeElement(unsigned int index);

    /// How many elements there are.
    unsigned int elementCount(MStatus* ReturnStatus = nullptr) const;

    /// Makes room for more elements.
    MStatus growArray(unsigned int amount);
    MStatus setGrowSize(unsigned int size);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    char storage[41];
};
