// Makes the core log that the loaded plug-in traces into throw.
#pragma once

namespace tarvox::crowd::test {

/// The next `count` traces that pass a log's filter throw core::Exception("the log is broken") instead of
/// reaching the listeners.
void breakCoreLog(int count);

} // namespace tarvox::crowd::test
