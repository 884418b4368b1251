// MUuid: the identity of a node across files.
#pragma once

#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>

/// A universally unique identifier, as every node carries one.
class OPENMAYA_EXPORT MUuid
{
public:
    /// The empty identifier: all zero, not valid.
    MUuid();
    MUuid(const MUuid& other);

    /// From four words, or sixteen bytes.
    MUuid(const unsigned int* uuid);
    MUuid(const unsigned char* uuid);

    /// From text of the form XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX; kInvalidParameter for anything else.
    MUuid(const MString& value, MStatus* ReturnStatus = nullptr);
    ~MUuid();

    MUuid& operator=(const MUuid& rhs);
    bool operator==(const MUuid& rhs) const;
    bool operator!=(const MUuid& rhs) const;

    /// Copies the sixteen bytes out.
    MStatus get(unsigned char* uuid) const;

    /// The text form, in capital letters.
    MString asString() const;

    operator MString() const;
    void copy(const MUuid& rhs);

    /// Whether it is not the empty identifier.
    bool valid() const;

    /// Becomes a new identifier, different from all others.
    MStatus generate();

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    unsigned char* bytes; ///< sixteen, owned; null for the empty identifier
};
