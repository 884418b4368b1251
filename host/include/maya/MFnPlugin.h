// MFnPlugin: what a plug-in adds to Maya. One file of a plug-in includes this header; others define
// MNoVersionString.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnBase.h>
#include <maya/MObject.h>
#include <maya/MPxData.h>
#include <maya/MPxNode.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>
#include <maya/MSyntax.h>
#include <maya/MTypeId.h>
#include <maya/MTypes.h>

#ifndef MNoVersionString
#define TVX_TEXT_OF(number) #number
#define TVX_VERSION_TEXT(number) TVX_TEXT_OF(number)
extern "C" {
/// The version of the interface that the plug-in was built for; Maya looks it up by this name.
extern PLUGIN_EXPORT char MApiVersion[];
char MApiVersion[] = TVX_VERSION_TEXT(MAYA_API_VERSION);
}
#undef TVX_VERSION_TEXT
#undef TVX_TEXT_OF
#endif

class MPxBakeEngine;
class MPxMaterialInformation;
class MPxTransformationMatrix;
class MRenderPassDef;
typedef struct _object PyObject;

/// Make instances of a plug-in's classes; Maya owns and deletes them.
typedef MPxTransformationMatrix* (*MCreateXformMatrixFunction)();
typedef MPxMaterialInformation* (*MMaterialInfoFactoryFnPtr)(MObject&);
typedef MPxBakeEngine* (*MBakeEngineCreatorFnPtr)();

/// A plug-in as seen by its entry points: registers what it adds when it is loaded, and takes it back when it
/// is unloaded. When a plug-in makes several of these, vendor and version are those of the first.
class OPENMAYA_EXPORT MFnPlugin : public MFnBase
{
public:
    /// Attached to nothing.
    MFnPlugin();

    /// Attached to the object that an entry point received.
    MFnPlugin(MObject& object, const char* vendor = "Unknown", const char* version = "Unknown",
              const char* requiredApiVersion = "Any", MStatus* ReturnStatus = nullptr);

    ~MFnPlugin() override;

    MFn::Type type() const override;

    /// What the first constructor said.
    MString vendor(MStatus* ReturnStatus = nullptr) const;
    MString version(MStatus* ReturnStatus = nullptr) const;
    MString apiVersion(MStatus* ReturnStatus = nullptr) const;

    /// The name under which Maya knows the plug-in: that of its file, without folder and extension.
    MString name(MStatus* ReturnStatus = nullptr) const;

    /// The folder that the plug-in was loaded from.
    MString loadPath(MStatus* ReturnStatus = nullptr) const;

    /// Changes the name; with `allowRename` a name that is taken gets a number.
    MStatus setName(const MString& newName, bool allowRename = true);

    MStatus setVersion(const MString& newVersion);

    /// Adds a MEL command, or removes it. kFailure when the name is taken, kInvalidParameter when there is
    /// nothing to remove.
    MStatus registerCommand(const MString& commandName, MCreatorFunction creatorFunction,
                            MCreateSyntaxFunction createSyntaxFunction = nullptr);
    MStatus deregisterCommand(const MString& commandName);

    /// Kinds of commands and tools.
    MStatus registerControlCommand(const MString& commandName, MCreatorFunction creatorFunction);
    MStatus deregisterControlCommand(const MString& commandName);
    MStatus registerModelEditorCommand(const MString& commandName, MCreatorFunction creatorFunction,
                                       MCreatorFunction paneCreatorFunction);
    MStatus deregisterModelEditorCommand(const MString& commandName);
    MStatus registerConstraintCommand(const MString& commandName, MCreatorFunction creatorFunction);
    MStatus deregisterConstraintCommand(const MString& commandName);
    MStatus registerContextCommand(const MString& commandName, MCreatorFunction creatorFunction);
    MStatus registerContextCommand(const MString& commandName, MCreatorFunction creatorFunction,
                                   const MString& toolCmdName, MCreatorFunction toolCmdCreator,
                                   MCreateSyntaxFunction toolCmdSyntax = nullptr);
    MStatus deregisterContextCommand(const MString& commandName);
    MStatus deregisterContextCommand(const MString& commandName, const MString& toolCmdName);

    /// Adds a node type and runs its initialise function once. kFailure when the name or the number is taken;
    /// a failure of the initialise function is handed on. `classification` is a list, separated by colons, of
    /// where the type belongs.
    MStatus registerNode(const MString& typeName, const MTypeId& typeId, MCreatorFunction creatorFunction,
                         MInitializeFunction initFunction, MPxNode::Type type = MPxNode::kDependNode,
                         const MString* classification = nullptr);

    /// Removes a node type. Nodes of it that exist turn into unknown nodes. kInvalidParameter for a number
    /// that this plug-in did not register.
    MStatus deregisterNode(const MTypeId& typeId);

    /// Adds a type of shape with its own drawing.
    MStatus registerShape(const MString& typeName, const MTypeId& typeId, MCreatorFunction creatorFunction,
                          MInitializeFunction initFunction, MCreatorFunction uiCreatorFunction,
                          const MString* classification = nullptr);

    /// Other things that a plug-in can add.
    MStatus registerDevice(const MString& deviceName, MCreatorFunction creatorFunction);
    MStatus deregisterDevice(const MString& deviceName);
    MStatus registerFileTranslator(const MString& translatorName, const char* pixmapName,
                                   MCreatorFunction creatorFunction, const char* optionsScriptName = nullptr,
                                   const char* defaultOptionsString = nullptr, bool requiresFullMel = false,
                                   MString dataStorageLocation = kDefaultDataLocation);
    MStatus deregisterFileTranslator(const MString& translatorName);
    MStatus registerURIFileResolver(const MString& fileResolverName, const MString& uriScheme,
                                    MCreatorFunction creatorFunction);
    MStatus deregisterURIFileResolver(const MString& fileResolverName);
    MStatus registerIkSolver(const MString& ikSolverName, MCreatorFunction creatorFunction);
    MStatus deregisterIkSolver(const MString& ikSolverName);
    MStatus registerCacheFormat(const MString& cacheFormatName, MCreatorFunction creatorFunction);
    MStatus deregisterCacheFormat(const MString& cacheFormatName);

    /// Text of the user interface that can be translated.
    MStatus registerUIStrings(MInitializeFunction registerMStringResources, const MString& pluginStringsProc);

    /// Other things that a plug-in can add.
    MStatus registerDragAndDropBehavior(const MString& behaviorName, MCreatorFunction creatorFunction);
    MStatus deregisterDragAndDropBehavior(const MString& behaviorName);
    MStatus registerImageFile(const MString& imageFormatName, MCreatorFunction creatorFunction,
                              const MStringArray& imageFileExtensions);
    MStatus deregisterImageFile(const MString& imageFormatName);
    MStatus registerAttributePatternFactory(const MString& typeName, MCreatorFunction fnPtr);
    MStatus deregisterAttributePatternFactory(const MString& typeName);
    MStatus registerAnimCurveInterpolator(const MString& typeName, int typeId,
                                          MCreatorFunction creatorFunction, int flags = 0);
    MStatus deregisterAnimCurveInterpolator(const MString& typeName);
    MStatus registerDisplayFilter(const MString& name, const MString& label, const MString& classification);
    MStatus deregisterDisplayFilter(const MString& name);
    MStatus registerRenderer(const MString& name, MCreatorFunction creatorFunction);
    MStatus deregisterRenderer(const MString& name);

    /// The plug-in of this name; a null object when it is not loaded.
    static MObject findPlugin(const MString& pluginName);

    /// Whether a plug-in has added a node type of this name.
    static bool isNodeRegistered(const MString& typeName);

    /// The number of the matrix that belongs to a type of transform.
    MTypeId matrixTypeIdFromXformId(const MTypeId& xformTypeId, MStatus* ReturnStatus = nullptr);

    /// Adds an item to a menu of the main window, and removes it.
    MStringArray addMenuItem(const MString& menuItemName, const MString& parentName,
                             const MString& commandName, const MString& commandParams,
                             bool needOptionBox = false, const MString* optBoxFunction = nullptr,
                             MStatus* retStatus = nullptr);
    MStatus removeMenuItem(MStringArray& menuItemNames);

    /// For the script plug-ins: which language registers now.
    static void setRegisteringCallableScript();
    static bool registeringCallableScript();

    /// Adds a type of transform with its own matrix.
    MStatus registerTransform(const MString& typeName, const MTypeId& typeId,
                              MCreatorFunction creatorFunction, MInitializeFunction initFunction,
                              MCreatorFunction xformCreatorFunction, const MTypeId& xformId,
                              const MString* classification = nullptr);

    MStatus registerTransform(const MString& typeName, const MTypeId& typeId,
                              MCreatorFunction creatorFunction, MInitializeFunction initFunction,
                              MCreateXformMatrixFunction xformCreatorFunction, const MTypeId& xformId,
                              const MString* classification = nullptr);

    /// Adds a type of data of its own, or removes it. kFailure when the name or the number is taken, and
    /// kInvalidParameter for a type that this plug-in did not add. Data that is left when a type goes keeps
    /// the words that it is saved with. Data that is geometry is not implemented.
    MStatus registerData(const MString& typeName, const MTypeId& typeId, MCreatorFunction creatorFunction,
                         MPxData::Type type = MPxData::kData);
    MStatus deregisterData(const MTypeId& typeId);

    /// What rendering can be extended by.
    MStatus registerRenderPassImpl(const MString& passImplId, MRenderPassDef* passDef,
                                   MCreatorFunction creatorFunction, bool overload = false);
    MStatus deregisterRenderPassImpl(const MString& passImplId);
    MStatus registerMaterialInfo(const MString& type, MMaterialInfoFactoryFnPtr fnPtr);
    MStatus unregisterMaterialInfo(const MString& typeName);
    MStatus registerBakeEngine(const MString& typeName, MBakeEngineCreatorFnPtr fnPtr);
    MStatus unregisterBakeEngine(const MString& typeName);

    /// Names of MEL procedures: Maya runs the first when the plug-in is loaded and the second when it is
    /// unloaded; in batch mode the last two.
    MStatus registerUI(const MString& creationProc, const MString& deletionProc,
                       const MString& creationBatchProc = "", const MString& deletionBatchProc = "");

    /// The same with functions of Python.
    MStatus registerUI(PyObject* creationProc, PyObject* deletionProc, PyObject* creationBatchProc = nullptr,
                       PyObject* deletionBatchProc = nullptr);

    /// The name of this class.
    static const char* className();

    static const MString kDefaultDataLocation; ///< where plug-in data are kept in a file

private:
    friend class tvxAccess;
};
