// MExternalContentLocationTable: where the files of a node are to be taken from.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MString;

/// Where the files of a node are to be taken from, by the keys that MExternalContentInfoTable has.
class OPENMAYA_EXPORT MExternalContentLocationTable
{
public:
    MExternalContentLocationTable();
    ~MExternalContentLocationTable();

    /// kInvalidParameter for a key that is there.
    MStatus addEntry(const MString& key, const MString& location);

    /// One by place, in the order of the keys; kInvalidParameter when there is no such place.
    MStatus getEntry(unsigned int index, MString& key, MString& location) const;

    /// One by key; kInvalidParameter when there is no such key.
    MStatus getLocation(const MString& key, MString& location) const;

    unsigned int length() const;

private:
    friend class tvxAccess;

    MExternalContentLocationTable(const MExternalContentLocationTable&) = delete;
    MExternalContentLocationTable& operator=(const MExternalContentLocationTable&) = delete;

    tvxhost::api::ContentTable* table; ///< owned
};
