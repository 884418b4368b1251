// MSceneMessage: callbacks for files, references, plug-ins and the end of the program.
#pragma once

#include <maya/MMessage.h>

/// Callbacks for files, references, plug-ins and the end of the program. To register gives the id of the
/// callback, and 0 on failure: kInvalidParameter for a message of another kind, or without a function. Never
/// sent by the host, which does no such thing: those of rendering, kBefore/AfterExportReference and
/// kBefore/AfterImportReference.
class OPENMAYA_EXPORT MSceneMessage : public MMessage
{
public:
    enum Message
    {
        kSceneUpdate = 0,
        kBeforeNew = 1,
        kAfterNew = 2,
        kBeforeImport = 3,
        kAfterImport = 4,
        kBeforeOpen = 5,
        kAfterOpen = 6,
        kBeforeFileRead = 7,
        kAfterFileRead = 8,
        kAfterSceneReadAndRecordEdits = 9,
        kBeforeExport = 10,
        kAfterExport = 11,
        kBeforeSave = 12,
        kAfterSave = 13,
        kBeforeReference = 14,
        kAfterReference = 15,
        kBeforeRemoveReference = 16,
        kAfterRemoveReference = 17,
        kBeforeImportReference = 18,
        kAfterImportReference = 19,
        kBeforeExportReference = 20,
        kAfterExportReference = 21,
        kBeforeUnloadReference = 22,
        kAfterUnloadReference = 23,
        kBeforeSoftwareRender = 24,
        kAfterSoftwareRender = 25,
        kBeforeSoftwareFrameRender = 26,
        kAfterSoftwareFrameRender = 27,
        kSoftwareRenderInterrupted = 28,
        kMayaInitialized = 29,
        kMayaExiting = 30,
        kBeforeNewCheck = 31,
        kBeforeOpenCheck = 32,
        kBeforeSaveCheck = 33,
        kBeforeImportCheck = 34,
        kBeforeExportCheck = 35,
        kBeforeLoadReference = 36,
        kAfterLoadReference = 37,
        kBeforeLoadReferenceCheck = 38,
        kBeforeReferenceCheck = 39,
        kBeforeCreateReferenceCheck = 39,
        kBeforePluginLoad = 40,
        kAfterPluginLoad = 41,
        kBeforePluginUnload = 42,
        kAfterPluginUnload = 43,
        kBeforeCreateReference = 44,
        kAfterCreateReference = 45,
        kExportStarted = 46,
        kBeforeLoadReferenceAndRecordEdits = 47,
        kAfterLoadReferenceAndRecordEdits = 48,
        kBeforeCreateReferenceAndRecordEdits = 49,
        kAfterCreateReferenceAndRecordEdits = 50,
        kLast = 51,
    };

    /// For all messages but the checks.
    static MCallbackId addCallback(Message msg, MBasicFunction func, void* clientData = nullptr,
                                   MStatus* ReturnStatus = nullptr);

    /// For kBeforeNewCheck, kBeforeSaveCheck and the other checks: nothing is done when the answer is false.
    static MCallbackId addCheckCallback(Message msg, MCheckFunction func, void* clientData = nullptr,
                                        MStatus* ReturnStatus = nullptr);

    /// For the checks that are about a file.
    static MCallbackId addCheckFileCallback(Message msg, MCheckFileFunction func, void* clientData = nullptr,
                                            MStatus* ReturnStatus = nullptr);

    /// For plug-ins. Before loading: path; after it: path and name. Before and after unloading: name and
    /// path.
    static MCallbackId addStringArrayCallback(Message msg, MStringArrayFunction func,
                                              void* clientData = nullptr, MStatus* ReturnStatus = nullptr);

    /// For references: the reference node, which is null where there is none, and the file.
    static MCallbackId addReferenceCallback(Message msg, MObjectFileFunction func, void* clientData = nullptr,
                                            MStatus* ReturnStatus = nullptr);
    static MCallbackId addCheckReferenceCallback(Message msg, MCheckObjectFileFunction func,
                                                 void* clientData = nullptr, MStatus* ReturnStatus = nullptr);

    /// A connection of a file could not be made: its ends, as far as there are such plugs, and their names.
    static MCallbackId addConnectionFailedCallback(MConnFailFunction func, void* clientData = nullptr,
                                                   MStatus* ReturnStatus = nullptr);

    /// A namespace was renamed: its former and its new name.
    static MCallbackId addNamespaceRenamedCallback(MTwoStringFunction func, void* clientData = nullptr,
                                                   MStatus* ReturnStatus = nullptr);

    /// The name of this class.
    static const char* className();

    /// Obsolete: as addCheckCallback, addCheckFileCallback, addStringArrayCallback.
    static MCallbackId addCallback(Message, void (*func)(bool* retCode, void* clientData),
                                   void* clientData = nullptr, MStatus* ReturnStatus = nullptr);
    static MCallbackId addCallback(Message, void (*func)(bool* retCode, MFileObject& file, void* clientData),
                                   void* clientData = nullptr, MStatus* ReturnStatus = nullptr);
    static MCallbackId addCallback(Message, void (*func)(const MStringArray& strs, void* clientData),
                                   void* clientData, MStatus* ReturnStatus);
};
