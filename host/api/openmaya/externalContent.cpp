// MFnDependencyNode and MPxNode: the files that a node needs, and where it is to take them from.
#include <maya/MExternalContentInfoTable.h>
#include <maya/MExternalContentLocationTable.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MPxNode.h>
#include <maya/MStringArray.h>

#include "support/attributeLists.h"
#include "support/nodeSet.h"
#include "support/plugCall.h"

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::DataType;
using tvxhost::engine::Node;
using tvxhost::engine::Plug;

namespace {

MPxNode* ownObjectOf(const Node& node)
{
    return node.behaviour() ? static_cast<MPxNode*>(node.behaviour()->apiObject()) : nullptr;
}

/// The plug of a text that is not inside an array; a null one otherwise.
Plug textPlug(Node& node, Attribute* attribute)
{
    const bool isText = attribute && attribute->dataType == DataType::string && attribute->arrayDepth() == 0;
    const Plug plug = isText ? Plug(node, *attribute) : Plug();
    return !plug.isNull() && plug.isValid() ? plug : Plug();
}

/// The attributes of a node that say which files it needs, as far as they are set.
std::vector<Attribute*> fileAttributes(Node& node)
{
    std::vector<Attribute*> found;
    for (Attribute* attribute : allAttributes(node)) {
        const Plug plug = attribute->flags.usedAsFilename ? textPlug(node, attribute) : Plug();
        if (!plug.isNull() && !tvxhost::engine::readString(plug).value.empty())
            found.push_back(attribute);
    }
    return found;
}

std::string fullNameOf(Node& node)
{
    auto* dag = node.asDag();
    return dag ? tvxhost::engine::DagPath::firstTo(*dag).fullName() : node.name();
}

MStatus addFile(MExternalContentInfoTable& table, Node& node, Attribute* attribute)
{
    const Plug plug = textPlug(node, attribute);
    if (plug.isNull())
        return failure(StatusText::objectIsIncompatible);
    const auto path = tvxhost::engine::readString(plug);
    return table.addUnresolvedEntry(tvxAccess::string(attribute->longName), tvxAccess::string(path.value),
                                    tvxAccess::string(fullNameOf(node)));
}

MStatus takeFile(const MExternalContentLocationTable& table, Node& node, Attribute* attribute)
{
    const Plug plug = textPlug(node, attribute);
    if (plug.isNull())
        return failure(StatusText::objectIsIncompatible);
    MString location;
    const MStatus status = table.getLocation(tvxAccess::string(attribute->longName), location);
    return status ? plugStatus(tvxhost::engine::writeString(plug, tvxAccess::text(location))) : status;
}

} // namespace

MStatus MFnDependencyNode::getExternalContent(MExternalContentInfoTable& table) const
{
    TVX_API_CALL("MFnDependencyNode::getExternalContent");
    Node* node = nodeOf(*this);
    if (!node)
        return notAttached();
    if (const MPxNode* own = ownObjectOf(*node)) {
        own->getExternalContent(table);
        return MS::kSuccess;
    }
    MStatus status;
    for (Attribute* attribute : fileAttributes(*node))
        if (const MStatus added = addFile(table, *node, attribute); !added)
            status = added;
    return status;
}

MStatus MFnDependencyNode::addExternalContentForFileAttr(MExternalContentInfoTable& table,
                                                         const MObject& attr) const
{
    TVX_API_CALL("MFnDependencyNode::addExternalContentForFileAttr");
    Node* node = nodeOf(*this);
    return node ? addFile(table, *node, attributeOf(attr)) : notAttached();
}

MStatus MFnDependencyNode::setExternalContent(const MExternalContentLocationTable& table)
{
    TVX_API_CALL("MFnDependencyNode::setExternalContent");
    Node* node = nodeOf(*this);
    if (!node)
        return notAttached();
    if (MPxNode* own = ownObjectOf(*node)) {
        own->setExternalContent(table);
        return MS::kSuccess;
    }
    MStatus status;
    MString location;
    for (Attribute* attribute : fileAttributes(*node)) {
        if (!table.getLocation(tvxAccess::string(attribute->longName), location))
            continue;
        if (const MStatus taken = takeFile(table, *node, attribute); !taken)
            status = taken;
    }
    return status;
}

MStatus MFnDependencyNode::setExternalContentForFileAttr(const MObject& attr,
                                                         const MExternalContentLocationTable& table)
{
    TVX_API_CALL("MFnDependencyNode::setExternalContentForFileAttr");
    Node* node = nodeOf(*this);
    return node ? takeFile(table, *node, attributeOf(attr)) : notAttached();
}

bool MPxNode::addExternalContentForFileAttr(MExternalContentInfoTable& table, const MObject& attr) const
{
    return node && addFile(table, *node, attributeOf(attr));
}

bool MPxNode::setExternalContentForFileAttr(const MObject& attr, const MExternalContentLocationTable& table)
{
    return node && takeFile(table, *node, attributeOf(attr));
}
