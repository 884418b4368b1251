// Members of function sets that read or write one attribute of the attached node.
#include "attributeMembers.h"

#include "engine/scene.h"

#include <maya/MColor.h>

namespace tvxhost::api {

engine::Expected<engine::Plug> memberPlug(const MFnBase& set, const char* attribute)
{
    engine::Node* node = nodeOf(set);
    if (!node)
        return engine::Outcome(engine::Reason::doesNotExist);
    engine::Attribute* found = node->findAttribute(attribute);
    if (!found)
        return engine::Outcome(engine::Reason::notFound);
    return engine::Plug(*node, *found);
}

double readMember(const MFnBase& set, const char* function, const char* attribute, MStatus* returnStatus)
{
    TVX_API_CALL_OR(function, returnStatus, 0.0);
    const auto plug = memberPlug(set, attribute);
    const auto number = plug ? engine::readNumber(plug.value) : plug.outcome;
    give(returnStatus, toStatus(number.outcome));
    return number.value.asReal();
}

MStatus writeMember(const MFnBase& set, const char* function, const char* attribute, double value)
{
    TVX_API_CALL(function);
    const auto plug = memberPlug(set, attribute);
    return toStatus(plug ? engine::writeNumber(plug.value, value) : plug.outcome);
}

MColor readColorMember(const MFnBase& set, const char* function, const char* attribute, MStatus* returnStatus)
{
    const MColor black(0.0F, 0.0F, 0.0F);
    TVX_API_CALL_OR(function, returnStatus, black);
    const auto plug = memberPlug(set, attribute);
    const auto numbers = plug ? engine::readNumbers(plug.value) : plug.outcome;
    give(returnStatus, toStatus(numbers.outcome));
    if (numbers.value.size() != 3)
        return black;
    const auto part = [&](std::size_t i) { return static_cast<float>(numbers.value[i]); };
    return MColor(part(0), part(1), part(2));
}

MStatus writeColorMember(const MFnBase& set, const char* function, const char* attribute, const MColor& color)
{
    TVX_API_CALL(function);
    const auto plug = memberPlug(set, attribute);
    const std::vector<double> parts = {static_cast<double>(color.r), static_cast<double>(color.g),
                                       static_cast<double>(color.b)};
    return toStatus(plug ? engine::writeNumbers(plug.value, parts) : plug.outcome);
}

} // namespace tvxhost::api
