// Callbacks: what the classes of messages share to register functions with the scene's observers.
#pragma once

#include "apiCall.h"
#include "engine/observers.h"
#include "engine/scene.h"
#include "handles.h"

#include <maya/MCallbackIdArray.h>

namespace tvxhost::api {

using Happenings = std::initializer_list<engine::Happening>;

inline engine::Observers& sceneObservers()
{
    return engine::Scene::current().observers();
}

/// A function of the API with the pointer that it is given last.
template <class Function>
struct Callback
{
    Function* function;
    void* clientData;

    template <class... Arguments>
    void operator()(Arguments&&... arguments) const
    {
        function(std::forward<Arguments>(arguments)..., clientData);
    }
};

/// Registers for events of the scene; fails without a function.
template <class Function, class Translate>
MCallbackId addCallback(Happenings kinds, Function* function, void* clientData, Translate translate,
                        MStatus* returnStatus, const engine::Node* node = nullptr)
{
    if (!function) {
        give(returnStatus, failure(StatusText::nullArgument));
        return 0;
    }
    giveSuccess(returnStatus);
    const Callback<Function> callback{function, clientData};
    return sceneObservers().add(
        kinds, [callback, translate](const engine::Event& event) { translate(callback, event); }, node);
}

/// The same for one node; fails for what is no living node.
template <class Function, class Translate>
MCallbackId addNodeCallback(const MObject& object, Happenings kinds, Function* function, void* clientData,
                            Translate translate, MStatus* returnStatus)
{
    if (const engine::Node* node = nodeOf(object))
        return addCallback(kinds, function, clientData, translate, returnStatus, node);
    give(returnStatus,
         failure(object.isNull() ? StatusText::nullArgument : StatusText::objectIsIncompatible));
    return 0;
}

/// The plug of an event; a null plug when it has none.
inline MPlug plugOf(const engine::Plug* plug)
{
    return plug ? tvxAccess::plug(*plug) : MPlug();
}

} // namespace tvxhost::api
