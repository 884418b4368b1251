// Home of the listener interface's virtual table.
#include <tvxCore/ILogEventListener.h>

namespace tarvox::core {

ILogEventListener::~ILogEventListener() = default;

} // namespace tarvox::core
