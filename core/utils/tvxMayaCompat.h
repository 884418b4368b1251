// Calls that a devkit newer than 2016 changes or deprecates, in one form for all.
#pragma once

#include <maya/M3dView.h>
#include <maya/MDGContext.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MStatus.h>

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

/// The plug's data in the normal context; the form with a context is deprecated since 2018, and the one
/// without is not there before.
inline MObject asMObject(const MPlug& plug, MStatus* status)
{
    return plug.asMObject(MDGContext::fsNormal, status);
}
/// The plug's data in a context; deprecated since 2018 in favour of a guard that 2016 does not have.
inline MStatus getValue(const MPlug& plug, MObject& data, MDGContext& context)
{
    return plug.getValue(data, context);
}

/// The plug of an attribute, by object or name, without asking for a networked one; deprecated since 2019.
template <class Attribute>
MPlug findPlug(const MFnDependencyNode& node, const Attribute& attribute, MStatus* status)
{
    return node.findPlug(attribute, status);
}

TVX_DEPRECATED_CALLS_END

} // namespace tarvox::crowd::compat
