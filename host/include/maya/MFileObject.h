// MFileObject: a file by its name, as it was given and as it is found.
#pragma once

#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

/// A file by its name. The raw name is what was given; in the expanded one the variables of the environment
/// are replaced; the resolved one is where the file is found. A path may be a list of folders, separated by
/// colons, in which the file is looked for in turn.
class OPENMAYA_EXPORT MFileObject
{
public:
    /// How a file is looked for; may be combined. The host finds files where their names say, relative ones
    /// in the working folder.
    enum MFileResolveMethod
    {
        kNone = 1,
        kExact = 2,
        kDirMap = 4,
        kReferenceMappings = 8,
        kRelative = 16,
        kBaseName = 32,
        kInputFile = 54,
        kInputReference = 62,
        kStrict = 6,
    };

    /// No file.
    MFileObject();
    MFileObject(const MFileObject& other);
    virtual ~MFileObject();

    MFileObject& operator=(const MFileObject& other);

    /// The name without folders; the folders; both.
    MStatus setRawName(const MString& fileName);
    MStatus setRawPath(const MString& filePath);
    MStatus setRawFullName(const MString& fullFileName);

    /// Says where the file is, whatever its name; the empty text takes that back.
    MStatus overrideResolvedFullName(const MString& fullFileName);

    MString rawName() const;
    MString rawPath() const;
    MString rawFullName() const;

    MString expandedPath() const;
    MString expandedFullName() const;

    /// Where the file is found; as expanded when it is not.
    MString resolvedName() const;
    MString resolvedPath() const;
    MString resolvedFullName() const;

    /// The folders of the path, and the file in one of them; empty for an index out of range.
    unsigned int pathCount();
    MString ithPath(unsigned int index);
    MString ithFullName(unsigned int index);

    /// Whether the file is there, in any folder or in one.
    bool exists();
    bool exists(unsigned int index);

    /// Whether there is a name.
    bool isSet() const;

    void setResolveMethod(MFileResolveMethod method);
    MFileResolveMethod resolveMethod() const;

    /// Obsolete: as the raw and resolved forms.
    MStatus setName(const MString& fileName);
    MStatus setFullName(const MString& fileName);
    MString name() const;
    MString path() const;
    MString fullName() const;

    static bool isAbsolutePath(const MString& fileName);

    /// Where a file of that name is found.
    static MString getResolvedFullName(const MString& rawFullName);
    static MString getResolvedFullName(const MString& rawFullName, bool& exists,
                                       MFileResolveMethod method = kNone);

private:
    friend class tvxAccess;

    tvxhost::api::FileObject* file; ///< owned
};
