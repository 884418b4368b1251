// Calls that a devkit newer than 2016 changes or deprecates, in one form for all.
#pragma once

#include <maya/M3dView.h>

#if defined(_MSC_VER)
#define TVX_DEPRECATED_CALLS_BEGIN __pragma(warning(push)) __pragma(warning(disable : 4996))
#define TVX_DEPRECATED_CALLS_END __pragma(warning(pop))
#else
#define TVX_DEPRECATED_CALLS_BEGIN                                                                           \
    _Pragma("GCC diagnostic push") _Pragma("GCC diagnostic ignored \"-Wdeprecated-declarations\"")
#define TVX_DEPRECATED_CALLS_END _Pragma("GCC diagnostic pop")
#endif

namespace tarvox::crowd::compat {

TVX_DEPRECATED_CALLS_BEGIN

/// Makes the view's GL context current; deprecated since 2019, and still the only way in the old viewport.
inline void beginGL(M3dView& view)
{
    view.beginGL();
}
/// Gives the view's GL context back.
inline void endGL(M3dView& view)
{
    view.endGL();
}

TVX_DEPRECATED_CALLS_END

} // namespace tarvox::crowd::compat
