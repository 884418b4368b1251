// The severity codes of the core log.
#pragma once

namespace tarvox::core {

/// How grave a message is. A smaller code is more severe; a log passes the messages whose code is at most
/// its filter. Codes travel as plain `int`, so that a level read from a preference needs no cast: a filter
/// below 0 passes nothing and one above 4 passes everything.
enum Severity : int
{
    kCritical = 0,
    kError = 1,
    kWarning = 2,
    kInfo = 3,
    kDebug = 4
};

} // namespace tarvox::core
