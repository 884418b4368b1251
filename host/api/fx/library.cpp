// libOpenMayaFX: what says of the library that it is this host's.
#include <maya/MTypes.h>

namespace tvxhost::api {

/// The interface that the library belongs to, as MAYA_API_VERSION.
OPENMAYAFX_EXPORT extern const int fxInterfaceVersion;
const int fxInterfaceVersion = MAYA_API_VERSION;

} // namespace tvxhost::api
