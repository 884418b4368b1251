// Helpers over the Maya API.
#pragma once

#include <maya/MFnAttribute.h>

namespace tarvox::crowd {

/// Static helpers; there is no state.
class MayaUtils
{
public:
    MayaUtils() = delete;

    /// Sets the six standard flags of a freshly created attribute, to be called before it is added to its
    /// node. What Maya answers is not examined.
    static void setAttributeFlags(MFnAttribute& attribute, bool keyable, bool readable, bool writable,
                                  bool hidden, bool array, bool indexMatters);
};

} // namespace tarvox::crowd
