// MNamespace: the namespaces of the scene.
#pragma once

#include <maya/MObjectArray.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>
#include <maya/MTypes.h>

/// The namespaces of the scene. Names of namespaces are relative to the current one unless they begin with a
/// colon; the root is a colon.
class OPENMAYA_EXPORT MNamespace
{
public:
    /// Makes a namespace, in the current one or in another.
    static MStatus addNamespace(const MString& name, const MString* parent = nullptr);

    /// The name with characters that are not allowed replaced by underscores.
    static MString validateName(const MString& name, MStatus* ReturnStatus = nullptr);

    /// The namespace that new nodes are put into.
    static MString currentNamespace(MStatus* ReturnStatus = nullptr);
    static MStatus setCurrentNamespace(const MString& name);

    /// The namespaces in the current one, or in another; with `recurse` all below too.
    static MStringArray getNamespaces(const bool recurse = false, MStatus* ReturnStatus = nullptr);
    static MStringArray getNamespaces(const MString& parentNamespace, const bool recurse = false,
                                      MStatus* ReturnStatus = nullptr);

    static bool namespaceExists(const MString& name, MStatus* ReturnStatus = nullptr);

    /// The namespace that the current one is in.
    static MString parentNamespace(MStatus* ReturnStatus = nullptr);

    /// Removes a namespace; kFailure when it is not empty, unless its contents are to go too.
    static MStatus removeNamespace(const MString& name, bool removeContents = false);

    /// Renames a namespace, within its parent or another.
    static MStatus renameNamespace(const MString& oldName, const MString& newName,
                                   const MString* parent = nullptr);

    /// The nodes of a namespace; with `recurse` those of all below too.
    static MObjectArray getNamespaceObjects(const MString& parentNamespace, const bool recurse = false,
                                            MStatus* ReturnStatus = nullptr);

    /// Moves the contents of a namespace into another; with `force` nodes whose names clash are renamed.
    static MStatus moveNamespace(const MString& src, const MString& dst, const bool force = false);

    /// The root.
    static MString rootNamespace(MStatus* ReturnStatus = nullptr);

    /// Whether names are looked up in the current namespace before the root.
    static bool relativeNames(MStatus* ReturnStatus = nullptr);
    static MStatus setRelativeNames(bool newState);

    /// The namespace in a node's name, and the name without it.
    static MString getNamespaceFromName(const MString& fullName, MStatus* ReturnStatus = nullptr);
    static MString stripNamespaceFromName(const MString& fullName, MStatus* ReturnStatus = nullptr);

    /// The name from the root on.
    static MString makeNamepathAbsolute(const MString&, MStatus* ReturnStatus = nullptr);

    /// The name of this class.
    static const char* className();
};
