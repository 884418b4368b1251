// How much of the thread's stack is left: scripts may nest calls, the host must not overflow.
#pragma once

namespace tvxhost::mel {

/// False when less than a quarter of the current thread's stack is left; true where that cannot be told.
bool stackHasRoom();

} // namespace tvxhost::mel
