// MSceneMessage: callbacks for files, references, plug-ins and the end of the program.
#include <maya/MFileObject.h>
#include <maya/MSceneMessage.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>

#include "support/callbacks.h"

#include <algorithm>
#include <optional>

using namespace tvxhost::api;
using tvxhost::engine::Event;
using tvxhost::engine::Happening;

namespace {

using Message = MSceneMessage::Message;

/// What a message is about, which decides by which functions it can be received.
enum class Subject
{
    session,
    file,
    reference,
    plugin,
    check,
    fileCheck,
    referenceCheck,
};

struct MessageRow
{
    Message message;
    Subject subject;
    std::optional<Happening> what; ///< none: it is never sent
};

constexpr MessageRow kMessages[] = {
    {Message::kBeforeNew, Subject::file, Happening::newBegun},
    {Message::kAfterNew, Subject::file, Happening::newDone},
    {Message::kBeforeImport, Subject::file, Happening::importBegun},
    {Message::kAfterImport, Subject::file, Happening::importDone},
    {Message::kBeforeOpen, Subject::file, Happening::openBegun},
    {Message::kAfterOpen, Subject::file, Happening::openDone},
    {Message::kBeforeFileRead, Subject::file, Happening::readBegun},
    {Message::kAfterFileRead, Subject::file, Happening::readDone},
    {Message::kAfterSceneReadAndRecordEdits, Subject::file, Happening::readDone},
    {Message::kBeforeExport, Subject::file, Happening::exportBegun},
    {Message::kAfterExport, Subject::file, Happening::exportDone},
    {Message::kExportStarted, Subject::file, Happening::exportBegun},
    {Message::kBeforeSave, Subject::file, Happening::saveBegun},
    {Message::kAfterSave, Subject::file, Happening::saveDone},
    {Message::kBeforeReference, Subject::reference, Happening::referenceBegun},
    {Message::kAfterReference, Subject::reference, Happening::referenceDone},
    {Message::kBeforeCreateReference, Subject::reference, Happening::referenceBegun},
    {Message::kAfterCreateReference, Subject::reference, Happening::referenceDone},
    {Message::kBeforeCreateReferenceAndRecordEdits, Subject::reference, Happening::referenceBegun},
    {Message::kAfterCreateReferenceAndRecordEdits, Subject::reference, Happening::referenceDone},
    {Message::kBeforeLoadReference, Subject::reference, Happening::referenceLoadBegun},
    {Message::kAfterLoadReference, Subject::reference, Happening::referenceLoadDone},
    {Message::kBeforeLoadReferenceAndRecordEdits, Subject::reference, Happening::referenceLoadBegun},
    {Message::kAfterLoadReferenceAndRecordEdits, Subject::reference, Happening::referenceLoadDone},
    {Message::kBeforeUnloadReference, Subject::reference, Happening::referenceUnloadBegun},
    {Message::kAfterUnloadReference, Subject::reference, Happening::referenceUnloadDone},
    {Message::kBeforeRemoveReference, Subject::reference, Happening::referenceRemovalBegun},
    {Message::kAfterRemoveReference, Subject::reference, Happening::referenceRemovalDone},
    {Message::kBeforeImportReference, Subject::reference, Happening::referenceImportBegun},
    {Message::kAfterImportReference, Subject::reference, Happening::referenceImportDone},
    {Message::kBeforeExportReference, Subject::reference, {}},
    {Message::kAfterExportReference, Subject::reference, {}},
    {Message::kBeforeSoftwareRender, Subject::session, {}},
    {Message::kAfterSoftwareRender, Subject::session, {}},
    {Message::kBeforeSoftwareFrameRender, Subject::session, {}},
    {Message::kAfterSoftwareFrameRender, Subject::session, {}},
    {Message::kSoftwareRenderInterrupted, Subject::session, {}},
    {Message::kMayaInitialized, Subject::session, Happening::started},
    {Message::kMayaExiting, Subject::session, Happening::quitting},
    {Message::kBeforeNewCheck, Subject::check, Happening::newChecked},
    {Message::kBeforeSaveCheck, Subject::check, Happening::saveChecked},
    {Message::kBeforeOpenCheck, Subject::fileCheck, Happening::openChecked},
    {Message::kBeforeImportCheck, Subject::fileCheck, Happening::importChecked},
    {Message::kBeforeExportCheck, Subject::fileCheck, Happening::exportChecked},
    {Message::kBeforeReferenceCheck, Subject::referenceCheck, Happening::referenceChecked},
    {Message::kBeforeLoadReferenceCheck, Subject::referenceCheck, Happening::referenceLoadChecked},
    {Message::kBeforePluginLoad, Subject::plugin, Happening::pluginLoadBegun},
    {Message::kAfterPluginLoad, Subject::plugin, Happening::pluginLoadDone},
    {Message::kBeforePluginUnload, Subject::plugin, Happening::pluginUnloadBegun},
    {Message::kAfterPluginUnload, Subject::plugin, Happening::pluginUnloadDone},
};

/// Registers for a message that is about one of some subjects.
template <class Function, class Translate>
MCallbackId addFor(Message message, std::initializer_list<Subject> subjects, Function* function,
                   void* clientData, Translate translate, MStatus* returnStatus)
{
    const auto* row = std::find_if(std::begin(kMessages), std::end(kMessages),
                                   [message](const MessageRow& each) { return each.message == message; });
    if (row == std::end(kMessages) ||
        std::find(subjects.begin(), subjects.end(), row->subject) == subjects.end()) {
        give(returnStatus, failure(MS::kInvalidParameter, StatusText::itemNotFound));
        return 0;
    }
    return row->what ? addCallback({*row->what}, function, clientData, translate, returnStatus)
                     : addCallback({}, function, clientData, translate, returnStatus);
}

MFileObject fileOf(const Event& event)
{
    MFileObject file;
    file.setRawFullName(tvxAccess::string(event.text));
    return file;
}

void tellNothing(const Callback<void(void*)>& callback, const Event&)
{
    callback();
}

void askPlainly(const Callback<void(bool*, void*)>& callback, const Event& event)
{
    callback(event.isAllowed);
}

void askAboutFile(const Callback<void(bool*, MFileObject&, void*)>& callback, const Event& event)
{
    MFileObject file = fileOf(event);
    callback(event.isAllowed, file);
}

/// Loading: path and name; unloading: name and path. What there is of them.
void tellTexts(const Callback<void(const MStringArray&, void*)>& callback, const Event& event)
{
    const bool isUnloading =
        event.what == Happening::pluginUnloadBegun || event.what == Happening::pluginUnloadDone;
    MStringArray texts;
    for (const std::string& text :
         {isUnloading ? event.name : event.text, isUnloading ? event.text : event.name})
        if (!text.empty())
            texts.append(tvxAccess::string(text));
    callback(texts);
}

MCallbackId addCheck(const char* name, Message message, MMessage::MCheckFunction function, void* clientData,
                     MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, 0);
    return addFor(message, {Subject::check, Subject::fileCheck, Subject::referenceCheck}, function,
                  clientData, askPlainly, returnStatus);
}

MCallbackId addFileCheck(const char* name, Message message, MMessage::MCheckFileFunction function,
                         void* clientData, MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, 0);
    return addFor(message, {Subject::fileCheck, Subject::referenceCheck}, function, clientData, askAboutFile,
                  returnStatus);
}

MCallbackId addTexts(const char* name, Message message, MMessage::MStringArrayFunction function,
                     void* clientData, MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, 0);
    return addFor(message, {Subject::plugin}, function, clientData, tellTexts, returnStatus);
}

} // namespace

const char* MSceneMessage::className()
{
    return "MSceneMessage";
}

MCallbackId MSceneMessage::addCallback(Message msg, MBasicFunction func, void* clientData,
                                       MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MSceneMessage::addCallback", ReturnStatus, 0);
    // The one message that stands for several.
    if (msg == kSceneUpdate)
        return tvxhost::api::addCallback({Happening::newDone, Happening::openDone, Happening::importDone,
                                          Happening::referenceDone, Happening::referenceRemovalDone},
                                         func, clientData, tellNothing, ReturnStatus);
    return addFor(msg, {Subject::session, Subject::file, Subject::reference, Subject::plugin}, func,
                  clientData, tellNothing, ReturnStatus);
}

MCallbackId MSceneMessage::addCheckCallback(Message msg, MCheckFunction func, void* clientData,
                                            MStatus* ReturnStatus)
{
    return addCheck("MSceneMessage::addCheckCallback", msg, func, clientData, ReturnStatus);
}

MCallbackId MSceneMessage::addCheckFileCallback(Message msg, MCheckFileFunction func, void* clientData,
                                                MStatus* ReturnStatus)
{
    return addFileCheck("MSceneMessage::addCheckFileCallback", msg, func, clientData, ReturnStatus);
}

MCallbackId MSceneMessage::addStringArrayCallback(Message msg, MStringArrayFunction func, void* clientData,
                                                  MStatus* ReturnStatus)
{
    return addTexts("MSceneMessage::addStringArrayCallback", msg, func, clientData, ReturnStatus);
}

MCallbackId MSceneMessage::addReferenceCallback(Message msg, MObjectFileFunction func, void* clientData,
                                                MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MSceneMessage::addReferenceCallback", ReturnStatus, 0);
    const auto translate = [](const auto& callback, const Event& event) {
        callback(tvxAccess::handle(event.node), fileOf(event));
    };
    return addFor(msg, {Subject::reference}, func, clientData, translate, ReturnStatus);
}

MCallbackId MSceneMessage::addCheckReferenceCallback(Message msg, MCheckObjectFileFunction func,
                                                     void* clientData, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MSceneMessage::addCheckReferenceCallback", ReturnStatus, 0);
    const auto translate = [](const auto& callback, const Event& event) {
        MFileObject file = fileOf(event);
        callback(event.isAllowed, tvxAccess::handle(event.node), file);
    };
    return addFor(msg, {Subject::referenceCheck}, func, clientData, translate, ReturnStatus);
}

MCallbackId MSceneMessage::addConnectionFailedCallback(MConnFailFunction func, void* clientData,
                                                       MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MSceneMessage::addConnectionFailedCallback", ReturnStatus, 0);
    const auto translate = [](const auto& callback, const Event& event) {
        MPlug source = plugOf(event.otherPlug);
        MPlug destination = plugOf(event.plug);
        callback(source, destination, tvxAccess::string(event.text), tvxAccess::string(event.name));
    };
    return tvxhost::api::addCallback({Happening::connectionFailed}, func, clientData, translate,
                                     ReturnStatus);
}

MCallbackId MSceneMessage::addNamespaceRenamedCallback(MTwoStringFunction func, void* clientData,
                                                       MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MSceneMessage::addNamespaceRenamedCallback", ReturnStatus, 0);
    const auto translate = [](const auto& callback, const Event& event) {
        callback(tvxAccess::string(event.text), tvxAccess::string(event.name));
    };
    return tvxhost::api::addCallback({Happening::namespaceRenamed}, func, clientData, translate,
                                     ReturnStatus);
}

MCallbackId MSceneMessage::addCallback(Message msg, void (*func)(bool*, void*), void* clientData,
                                       MStatus* ReturnStatus)
{
    return addCheck("MSceneMessage::addCallback", msg, func, clientData, ReturnStatus);
}

MCallbackId MSceneMessage::addCallback(Message msg, void (*func)(bool*, MFileObject&, void*),
                                       void* clientData, MStatus* ReturnStatus)
{
    return addFileCheck("MSceneMessage::addCallback", msg, func, clientData, ReturnStatus);
}

MCallbackId MSceneMessage::addCallback(Message msg, void (*func)(const MStringArray&, void*),
                                       void* clientData, MStatus* ReturnStatus)
{
    return addTexts("MSceneMessage::addCallback", msg, func, clientData, ReturnStatus);
}
