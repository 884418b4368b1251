// MExternalContentInfoTable: the files that a node needs.
#pragma once

#include <maya/MStatus.h>
#include <maya/MStringArray.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MString;

/// The files that a node needs, each under a key: for a path in an attribute the attribute's name. A path
/// stands as the node has it and, when the file is there, as it is found.
class OPENMAYA_EXPORT MExternalContentInfoTable
{
public:
    MExternalContentInfoTable();
    ~MExternalContentInfoTable();

    /// Adds a file that was found, or (empty `resolvedLocation`) not. Relative paths are those of the node
    /// `contextNodeFullName`; roles are words of the caller's own. kInvalidParameter for a key that is there.
    MStatus addResolvedEntry(const MString& key, const MString& unresolvedLocation,
                             const MString& resolvedLocation, const MStringArray& roles);
    MStatus addResolvedEntry(const MString& key, const MString& unresolvedLocation,
                             const MString& resolvedLocation, const MString& contextNodeFullName,
                             const MStringArray& roles);

    /// Adds a file, which is looked for: absolute, or below the current folder.
    MStatus addUnresolvedEntry(const MString& key, const MString& unresolvedLocation,
                               const MStringArray& roles = MStringArray());
    MStatus addUnresolvedEntry(const MString& key, const MString& unresolvedLocation,
                               const MString& contextNodeFullName,
                               const MStringArray& roles = MStringArray());

    /// What is known under a key; kInvalidParameter when there is no such key.
    MStatus getInfo(const MString& key, MString& unresolvedLocation, MString& resolvedLocation,
                    MStringArray& roles) const;
    MStatus getInfo(const MString& key, MString& unresolvedLocation, MString& resolvedLocation,
                    MString& contextNodeFullName, MStringArray& roles) const;

    /// The same by place, in the order of the keys; kInvalidParameter when there is no such place.
    MStatus getEntry(unsigned int index, MString& key, MString& unresolvedLocation, MString& resolvedLocation,
                     MStringArray& roles) const;
    MStatus getEntry(unsigned int index, MString& key, MString& unresolvedLocation, MString& resolvedLocation,
                     MString& contextNodeFullName, MStringArray& roles) const;

    unsigned int length() const;

private:
    friend class tvxAccess;

    MExternalContentInfoTable(const MExternalContentInfoTable&) = delete;
    MExternalContentInfoTable& operator=(const MExternalContentInfoTable&) = delete;

    tvxhost::api::ContentTable* table; ///< owned
};
