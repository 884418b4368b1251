// What an API function answers that the host does not do: a loud kNotImplemented.
#include "notImplemented.h"

#include "engine/scene.h"

namespace tvxhost::api {

MStatus notImplemented(const char* function)
{
    engine::Scene::current().scriptEditor().notImplemented(function);
    return failure(StatusText::notImplemented);
}

} // namespace tvxhost::api
