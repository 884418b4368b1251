// Declaring a node's attributes.
#include "rendering/tvxNodeAttributes.h"

#include "core/utils/tvxMayaUtils.h"

#include <maya/MFnData.h>
#include <maya/MFnEnumAttribute.h>
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
    if (!coreLogAdmits(core::kError))
        return false;
    if (step.exception)
        reportException(core::kError, file, line, step.function, step.exception->c_str());
    else
        report(core::kError, file, line, step.function, [&](std::ostream& text) { text << step.problem; });
    return false;
}

// The recipe of all kinds: create, prepare, set the flags, add.
template <class Function, class Create, class Prepare>
AttributeStep NodeAttributes::createAndAdd(MObject& attribute, const char* problem,
                                           const AttributeFlags& flags, Create create, Prepare prepare) const
{
    return attempt(m_function, [&]() -> const char* {
        MStatus status;
        Function function;
        attribute = create(function, status);
        if (!status)
            return problem;
        prepare(function);
        return addWithFlags(function, attribute, flags);
    });
}

AttributeStep NodeAttributes::color(MObject& attribute, const char* longName, const char* shortName,
                                    const MColor& defaultColor, const AttributeFlags& flags) const
{
    return createAndAdd<MFnNumericAttribute>(
        attribute, "Color attribute create error", flags,
        [&](MFnNumericAttribute& function, MStatus& status) {
            return function.createColor(longName, shortName, &status);
        },
        [&](MFnNumericAttribute& function) {
            function.setDefault(defaultColor.r, defaultColor.g, defaultColor.b);
        });
}

AttributeStep NodeAttributes::integer(MObject& attribute, const char* longName, const char* shortName,
                                      int defaultValue, const AttributeFlags& flags) const
{
    return createAndAdd<MFnNumericAttribute>(
        attribute, "Numeric attribute create error", flags,
        [&](MFnNumericAttribute& function, MStatus& status) {
            return function.create(longName, shortName, MFnNumericData::kInt, defaultValue, &status);
        },
        [](MFnNumericAttribute&) {});
}

AttributeStep NodeAttributes::number(MObject& attribute, const char* longName, const char* shortName,
                                     double defaultValue, const AttributeFlags& flags,
                                     const std::optional<Range>& range) const
{
    return createAndAdd<MFnNumericAttribute>(
        attribute, "Numeric attribute create error", flags,
        [&](MFnNumericAttribute& function, MStatus& status) {
            return function.create(longName, shortName, MFnNumericData::kDouble, defaultValue, &status);
        },
        [&](MFnNumericAttribute& function) {
            if (!range)
                return;
            function.setMin(range->minimum);
            function.setMax(range->maximum);
        });
}

AttributeStep NodeAttributes::choice(MObject& attribute, const char* longName, const char* shortName,
                                     std::initializer_list<ChoiceField> fields,
                                     const AttributeFlags& flags) const
{
    return createAndAdd<MFnEnumAttribute>(
        attribute, "Enum attribute create error", flags,
        [&](MFnEnumAttribute& function, MStatus& status) {
            return function.create(longName, shortName, 0, &status);
        },
        [&](MFnEnumAttribute& function) {
            for (const ChoiceField& field : fields)
                function.addField(field.name, field.value);
        });
}

AttributeStep NodeAttributes::string(MObject& attribute, const char* longName, const char* shortName,
                                     const AttributeFlags& flags) const
{
    return createAndAdd<MFnTypedAttribute>(
        attribute, "Typed attribute create error", flags,
        [&](MFnTypedAttribute& function, MStatus& status) {
            return function.create(longName, shortName, MFnData::kString, MObject::kNullObj, &status);
        },
        [](MFnTypedAttribute&) {});
}

} // namespace tarvox::crowd
