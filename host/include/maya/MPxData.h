// MPxData: base class of a plug-in's own data.
#pragma once

#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypeId.h>
#include <maya/MTypes.h>

#include <iosfwd>

class MArgList;

/// Base class of a type of data that a plug-in defines. Attributes of the type (MFnTypedAttribute::create
/// with the number that MFnPlugin::registerData was given) hold such data; it is copied by `copy` and kept in
/// scene files by readASCII and writeASCII. While its plug-in is not loaded, the words in a file are kept as
/// they are.
class OPENMAYA_EXPORT MPxData
{
public:
    enum Type
    {
        kData = 0,
        kGeometryData = 1,
        kLast = 2,
    };

    MPxData();
    virtual ~MPxData();

    /// Reads what writeASCII wrote, beginning with the argument whose index is given, and moves that index
    /// behind what was read. As they are here: kFailure. The host reads and writes no bytes.
    virtual MStatus readASCII(const MArgList& argList, unsigned int& endOfTheLastParsedElement);
    virtual MStatus readBinary(std::istream& in, unsigned int length);

    /// Writes the data as words of a setAttr, or as bytes. As they are here: kFailure.
    virtual MStatus writeASCII(std::ostream& out);
    virtual MStatus writeBinary(std::ostream& out);

    /// Takes over the values of other data of the same type.
    virtual void copy(const MPxData& src) = 0;

    /// The type's number and name.
    virtual MTypeId typeId() const = 0;
    virtual MString name() const = 0;

protected:
    void* instance; ///< for Maya's own use

private:
    friend class tvxAccess;
};
