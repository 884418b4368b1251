// MFnCompoundAttribute: attributes that hold other attributes.
#include <maya/MFnCompoundAttribute.h>
#include <maya/MStringArray.h>

#include "support/addAttrCommand.h"
#include "support/attributeSets.h"

#include <algorithm>

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::AttributeKind;
using tvxhost::engine::Ref;

namespace {

void appendCommands(const Attribute& attribute, bool longFlags, MStringArray& commands)
{
    commands.append(tvxAccess::string(addAttrCommand(attribute, longFlags)));
    for (const auto& child : attribute.children)
        appendCommands(*child, longFlags, commands);
}

} // namespace

TVX_FUNCTION_SET(MFnCompoundAttribute, MFn::kCompoundAttribute)

MObject MFnCompoundAttribute::create(const MString& full, const MString& brief, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnCompoundAttribute::create", ReturnStatus, MObject());
    return adoptAttribute(
        *this, new Attribute(AttributeKind::compound, tvxAccess::text(full), tvxAccess::text(brief)),
        ReturnStatus);
}

MStatus MFnCompoundAttribute::addChild(const MObject& child)
{
    TVX_API_CALL("MFnCompoundAttribute::addChild");
    Attribute* attribute = attributeOf(*this);
    if (!attribute)
        return notAttached();
    Attribute* added = attributeOf(child);
    if (!added)
        return failure(child.isNull() ? StatusText::nullArgument : StatusText::objectIsIncompatible);
    if (added->parent || attribute->isAtOrBelow(*added) || !isFree(*added) || !isFree(*attribute))
        return failure(StatusText::unexpectedFailure);
    attribute->addChild(added);
    return MS::kSuccess;
}

MStatus MFnCompoundAttribute::removeChild(const MObject& child)
{
    TVX_API_CALL("MFnCompoundAttribute::removeChild");
    Attribute* attribute = attributeOf(*this);
    if (!attribute)
        return notAttached();
    Attribute* removed = attributeOf(child);
    if (!removed || removed->parent != attribute)
        return failure(StatusText::itemNotFound);
    if (!isFree(*attribute))
        return failure(StatusText::unexpectedFailure);
    removed->parent = nullptr;
    removed->siblingIndex = -1;
    auto& children = attribute->children;
    children.erase(std::find(children.begin(), children.end(), Ref<Attribute>(removed)));
    for (std::size_t i = 0; i < children.size(); ++i)
        children[i]->siblingIndex = static_cast<int>(i);
    return MS::kSuccess;
}

unsigned int MFnCompoundAttribute::numChildren(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnCompoundAttribute::numChildren", ReturnStatus, 0);
    const Attribute* attribute = attributeOf(*this);
    return requireAttached(attribute, ReturnStatus) ? static_cast<unsigned int>(attribute->children.size())
                                                    : 0;
}

MObject MFnCompoundAttribute::child(unsigned int index, MStatus* ReturnStatus) const
{
    return childAt(*this, "MFnCompoundAttribute::child", index, ReturnStatus);
}

MStatus MFnCompoundAttribute::getAddAttrCmds(MStringArray& cmds, bool useLongNames) const
{
    TVX_API_CALL("MFnCompoundAttribute::getAddAttrCmds");
    const Attribute* attribute = attributeOf(*this);
    if (!attribute)
        return notAttached();
    cmds.clear();
    appendCommands(*attribute, useLongNames, cmds);
    return MS::kSuccess;
}
