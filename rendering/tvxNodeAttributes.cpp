// Declaring a node's attributes.
#include "rendering/tvxNodeAttributes.h"

#include "core/utils/tvxMayaUtils.h"

#include <maya/MFnData.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MFnNumericData.h>
#include <maya/MFnTypedAttribute.h>

#include <ostream>

namespace tarvox::crowd {

namespace {

// The part that all kinds share: null when it went well, else what failed.
const char* addWithFlags(MFnAttribute& function, const MObject& attribute, const AttributeFlags& flags)
{
    MayaUtils::setAttributeFlags(function, flags.keyable, flags.readable, flags.writable, flags.hidden,
                                 flags.array, flags.indexMatters);
    if (!MPxNode::addAttribute(attribute))
        return "Add attribute error";
    if (!flags.storable)
        function.setStorable(false);
    return nullptr;
}

} // namespace

bool succeeded(const AttributeStep& step, const char* file, int line)
{
    if (!step.problem && !step.exception)
        return true;
    if (coreLog().getSeverityFilter() < core::kError)
        return false;
    if (step.exception)
        reportException(core::kError, file, line, step.function, step.exception->c_str());
    else
        report(core::kError, file, line, step.function, [&](std::ostream& text) { text << step.problem; });
    return false;
}

AttributeStep NodeAttributes::color(MObject& attribute, const char* longName, const char* shortName,
                                    const MColor& defaultColor, const AttributeFlags& flags) const
{
    return attempt(m_function, [&]() -> const char* {
        MStatus status;
        MFnNumericAttribute function;
        attribute = function.createColor(longName, shortName, &status);
        if (!status)
            return "Color attribute create error";
        function.setDefault(defaultColor.r, defaultColor.g, defaultColor.b);
        return addWithFlags(function, attribute, flags);
    });
}

AttributeStep NodeAttributes::integer(MObject& attribute, const char* longName, const char* shortName,
                                      int defaultValue, const AttributeFlags& flags) const
{
    return attempt(m_function, [&]() -> const char* {
        MStatus status;
        MFnNumericAttribute function;
        attribute = function.create(longName, shortName, MFnNumericData::kInt, defaultValue, &status);
        if (!status)
            return "Numeric attribute create error";
        return addWithFlags(function, attribute, flags);
    });
}

AttributeStep NodeAttributes::string(MObject& attribute, const char* longName, const char* shortName,
                                     const AttributeFlags& flags) const
{
    return attempt(m_function, [&]() -> const char* {
        MStatus status;
        MFnTypedAttribute function;
        attribute = function.create(longName, shortName, MFnData::kString, MObject::kNullObj, &status);
        if (!status)
            return "Typed attribute create error";
        return addWithFlags(function, attribute, flags);
    });
}

} // namespace tarvox::crowd
