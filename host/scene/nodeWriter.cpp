// NodeWriter: see nodeWriter.h.
#include "nodeWriter.h"

#include "attributeDeclaration.h"
#include "attributeTypes.h"
#include "connectionEnd.h"
#include "curveText.h"
#include "lineBreaker.h"
#include "plugTarget.h"
#include "pluginDataText.h"
#include "setAttrText.h"
#include "typedData.h"
#include "uiUnits.h"
#include "valueLines.h"
#include "valueText.h"

#include "engine/data.h"
#include "engine/mesh.h"
#include "engine/typeName.h"

#include <algorithm>
#include <array>

namespace tvxhost::scene {

using engine::Attribute;
using engine::AttributeKind;
using engine::Plug;

namespace {

/// A node whose type nobody knew when it was read: its lines are all there is of it. A type that went with
/// its plug-in still has its attributes.
bool isPlaceholder(const engine::Node& node, engine::TypeTable& types)
{
    return !node.unknownType.empty() && types.find(node.type().name) == &node.type();
}

/// `".path"` of a kept statement, without quotes and dot; empty when it has none.
std::string pathIn(const std::string& statement)
{
    const std::size_t begin = statement.find("\".");
    const std::size_t end = begin == std::string::npos ? begin : statement.find('"', begin + 1);
    return end == std::string::npos ? std::string() : statement.substr(begin + 2, end - begin - 2);
}

/// Whether a kept statement tells nothing but the size of an array.
bool tellsSize(const std::string& statement)
{
    constexpr std::string_view kEnd = "\";";
    return statement.rfind("setAttr -s", 0) == 0 && statement.size() > kEnd.size() &&
           statement.compare(statement.size() - kEnd.size(), kEnd.size(), kEnd) == 0;
}

bool hasElements(engine::Node& node, const std::string& path)
{
    const auto array = node.findPlug(path);
    return array && array.value.isArray() && !engine::existingElements(array.value).empty();
}

/// Types whose defaults are known for sure.
constexpr std::array<std::string_view, 7> kCertainTypes = {"node",          "entity",  "dagNode",  "shape",
                                                           "geometryShape", "locator", "transform"};

/// Whether a value that was set is written even when it is the default: that an element is there says
/// something, and of most built-in types Maya may have another default than the host's tables.
bool tellsWhenSet(const Plug& plug)
{
    const engine::NodeType* owner = plug.attribute()->topLevel()->owner;
    const bool isBuiltIn = owner && owner->plugin.empty();
    return plug.isElement() || (isBuiltIn && std::find(kCertainTypes.begin(), kCertainTypes.end(),
                                                       owner->name) == kCertainTypes.end());
}

} // namespace

void NodeWriter::writeNode(engine::Node& node)
{
    const std::string& type = engine::typeNameOf(node);
    std::string text =
        "createNode " + type + (node.isShared ? " -s" : "") + " -n " + mel::quoted(node.name());
    LineBreaker words(text);
    const engine::DagNode* dag = node.asDag();
    std::string parentName;
    if (const auto parent = parentNames.find(&node); parent != parentNames.end())
        parentName = parent->second;
    else if (dag && !dag->parents().empty() && !dag->parents().front()->isWorld())
        parentName = fileName(*dag->parents().front());
    if (!parentName.empty()) {
        words.word("-p", LineBreaker::Blank::behind);
        words.word(mel::quoted(parentName));
    }
    m_out += text + ";\n";
    line("rename -uid " + mel::quoted(node.uuid()) + ";");
    // Geometry that a shape holds as a whole is in its attributes only while they are written.
    engine::Step inAttributes;
    if (dag) {
        const engine::Journal::Into step(m_scene.journal(), &inAttributes);
        engine::settleMesh(*node.asDag());
    }
    writeLines(node);
    const engine::Journal::Into nothing(m_scene.journal(), nullptr);
    inAttributes.undo();
}

bool NodeWriter::writeLines(engine::Node& node)
{
    const std::size_t before = m_out.size();
    m_keptPaths.clear();
    m_alteredPaths.clear();
    for (const std::string& kept : node.keptLines)
        if (std::string altered = alteredPath(kept); !altered.empty())
            m_alteredPaths.insert(std::move(altered));
        else if (std::string path = pathIn(kept); !path.empty() && !tellsSize(kept))
            m_keptPaths.insert(std::move(path));
    const bool keepsLinesOnly = isPlaceholder(node, m_scene.types());
    if (!keepsLinesOnly) {
        for (const auto& attribute : node.dynamicAttributes())
            declare(*attribute);
        for (Attribute* attribute : inFileOrder(node))
            writePlug(Plug(node, *attribute));
    }
    writeLinkSizes(node);
    for (const std::string& kept : node.keptLines)
        if (kept.rfind("lockNode", 0) == 0)
            m_out += kept + '\n';
        else if (alteredPath(kept).empty() && !(tellsSize(kept) && hasElements(node, pathIn(kept))))
            line(kept);
    if (const auto reference = references.find(&node); reference != references.end())
        writeEdits(reference->second);
    if (node.isLockedNode && !keepsLinesOnly)
        m_out += "lockNode -l 1 ;\n";
    return m_out.size() != before;
}

/// Of links that could not be made the statements are kept; their number stands with the node.
void NodeWriter::writeLinkSizes(engine::Node& node)
{
    if (node.type().name != "lightLinker")
        return;
    constexpr std::array<std::pair<std::string_view, const char*>, 4> kLinks = {
        {{"link", "lnk"}, {"ignore", "ign"}, {"shadowLink", "slnk"}, {"shadowIgnore", "sign"}}};
    for (const auto& [kind, path] : kLinks) {
        const std::string start =
            "relationship " + mel::quoted(kind) + ' ' + mel::quoted(referenceName(node)) + ' ';
        const auto count =
            std::count_if(m_scene.keptConnections.begin(), m_scene.keptConnections.end(),
                          [&](const std::string& statement) { return statement.rfind(start, 0) == 0; });
        if (count > 1 && !hasElements(node, std::string(kind)))
            line("setAttr" + sizeFlag(static_cast<std::size_t>(count)) + pathText(path) + ";");
    }
}

void NodeWriter::writeEdits(const ReferenceText& text)
{
    if (text.placeholders > 1)
        line("setAttr" + sizeFlag(text.placeholders) + pathText("phl") + ";");
    for (std::size_t i = 1; i <= text.placeholders; ++i)
        line("setAttr" + pathText("phl[" + std::to_string(i) + "]") + " 0;");
    line("setAttr" + pathText("ed") + " -type \"dataReferenceEdits\"" +
         editsText(text.referenceNode, text.edits) + ";");
}

void NodeWriter::declare(const Attribute& attribute)
{
    line(addAttrLine(attribute, m_scene.units()));
    for (const auto& child : attribute.children)
        declare(*child);
}

void NodeWriter::writePlug(const Plug& plug)
{
    if (isSkipped(plug))
        return;
    if (plug.isArray())
        writeArray(plug);
    else if (plug.isCompound())
        writeCompound(plug);
    else
        writeLeaf(plug);
}

void NodeWriter::writeLeaf(const Plug& plug)
{
    const std::string value = valueWords(plug);
    const std::string state = flagsOf(plug);
    if (!value.empty() || !state.empty())
        line("setAttr" + state + pathText(filePath(plug)) + value + ";");
}

void NodeWriter::writeState(const Plug& plug)
{
    if (const std::string state = flagsOf(plug); !state.empty())
        line("setAttr" + state + pathText(filePath(plug)) + ";");
}

void NodeWriter::writeCompound(const Plug& plug)
{
    const bool isWhole = isGroup(*plug.attribute()) && !engine::isFedAnywhere(plug);
    if (!isWhole) {
        writeState(plug);
        for (std::size_t i = 0; i < plug.childCount(); ++i)
            writePlug(plug.child(i));
        return;
    }
    writeLeaf(plug);
    for (std::size_t i = 0; i < plug.childCount(); ++i)
        writeState(plug.child(i));
}

std::string NodeWriter::valueWords(const Plug& plug)
{
    const bool isNews = tellsWhenSet(plug) ? engine::hasOwnValue(plug) : !engine::isDefault(plug);
    return isNews ? plainWords(plug) : std::string();
}

std::string NodeWriter::statement(const Plug& plug)
{
    const std::string value = plug.isArray() ? std::string() : plainWords(plug);
    return value.empty() ? value : "setAttr" + flagsOf(plug) + pathText(filePath(plug)) + value + ";";
}

std::string NodeWriter::plainWords(const Plug& plug)
{
    if (!isStored(plug) || engine::isFedAnywhere(plug))
        return {};
    const Attribute& attribute = *plug.attribute();
    if (isGroup(attribute)) {
        const std::vector<Attribute*> leaves = numberLeaves(*plug.attribute());
        const std::vector<double> numbers = numbersOf(plug);
        const std::string type = typeFlag(attribute);
        ValueLines lines({}, widthBefore(filePath(plug), type) + 1);
        for (std::size_t i = 0; i < std::min(leaves.size(), numbers.size()); ++i)
            lines.add(leafText(*leaves[i], numbers[i], m_scene.units(), true));
        return type + lines.text() + ' ';
    }
    if (isNumeric(attribute)) {
        const auto number = engine::readNumber(plug);
        return number ? ' ' + leafText(attribute, number.value.asReal(), m_scene.units(), false)
                      : std::string();
    }
    const auto data = engine::readData(plug);
    if (!data || !data.value)
        return {};
    if (data.value->type() == engine::DataType::string)
        return " -type \"string\" " +
               stringText(static_cast<const engine::StringData&>(*data.value).value.str());
    if (data.value->type() == engine::DataType::registered)
        return pluginDataWords(static_cast<const engine::PluginData&>(*data.value), m_scene.scriptEditor());
    return dataWords(*data.value, filePath(plug));
}

std::string NodeWriter::flagsOf(const Plug& plug) const
{
    const bool isAltered = !m_alteredPaths.empty() && m_alteredPaths.count(filePath(plug)) != 0;
    return (isAltered ? " -av" : "") + stateFlags(plug);
}

bool NodeWriter::isSkipped(const Plug& plug) const
{
    return !m_keptPaths.empty() && m_keptPaths.count(filePath(plug)) != 0;
}

void NodeWriter::line(const std::string& text)
{
    m_out += '\t';
    m_out += text;
    m_out += '\n';
}

} // namespace tvxhost::scene
