// NodeWriter: see nodeWriter.h.
#include "nodeWriter.h"

#include "attributeDeclaration.h"
#include "attributeTypes.h"
#include "connectionEnd.h"
#include "curveText.h"
#include "lineBreaker.h"
#include "numberText.h"
#include "plugTarget.h"
#include "pluginDataText.h"
#include "polyFaces.h"
#include "typedData.h"
#include "uiUnits.h"
#include "valueLines.h"
#include "valueText.h"

#include "engine/data.h"
#include "engine/mesh.h"

#include <algorithm>
#include <array>

namespace tvxhost::scene {

using engine::Attribute;
using engine::AttributeKind;
using engine::Plug;

namespace {

/// Values that one statement holds at most.
constexpr std::size_t kValuesPerStatement = 500;

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

std::string stateFlags(const Plug& plug)
{
    const engine::PlugState state = engine::stateOf(plug);
    const engine::AttributeFlags& own = plug.attribute()->flags;
    std::string flags;
    const auto add = [&](const char* name, bool value) {
        flags += std::string(" -") + name + (value ? " on" : " off");
    };
    // The lock of a plug that is fed goes with its connection: nothing could be connected to it otherwise.
    if (state.locked && engine::sourceOf(plug).isNull())
        add("l", true);
    // An added attribute that is keyable is told to be so twice.
    const bool isAddedKeyable = own.dynamic && own.keyable && !plug.attribute()->parent && !plug.isElement();
    if (state.keyable.value_or(own.keyable) != own.keyable ||
        (isAddedKeyable && state.keyable.value_or(true)))
        add("k", state.keyable.value_or(true));
    if (state.channelBox && *state.channelBox != own.channelBox)
        add("cb", *state.channelBox);
    return flags;
}

/// Whether the value of a plug belongs into a file at all.
bool isStored(const Plug& plug)
{
    const Attribute& attribute = *plug.attribute();
    if (!attribute.flags.storable || !attribute.flags.writable)
        return false;
    if (engine::NodeBehaviour* behaviour = plug.node()->behaviour())
        if (const std::optional<bool> opinion = behaviour->shouldSave(plug))
            return *opinion;
    return true;
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

bool isNumeric(const Attribute& attribute)
{
    return attribute.kind == AttributeKind::numeric || attribute.kind == AttributeKind::unit ||
           attribute.kind == AttributeKind::enumeration;
}

/// A group of numbers that a `-type "double3"` names.
bool isGroup(const Attribute& attribute)
{
    const std::string type = attribute.children.empty() ? std::string() : attributeTypeName(attribute);
    return isNumericTypeName(type);
}

/// Numbers, groups of them and compounds of single numbers ("ktv"): what one list of values can hold.
bool isFlat(const Attribute& attribute)
{
    return attribute.kind == AttributeKind::numeric ||
           std::none_of(attribute.children.begin(), attribute.children.end(),
                        [](const auto& child) { return child->isCompound(); });
}

std::vector<double> numbersOf(const Plug& plug)
{
    const auto numbers = engine::readNumbers(plug);
    return numbers ? numbers.value : std::vector<double>();
}

/// How the lists of an array are written.
struct ListForm
{
    bool isTyped = false;        ///< the first one names its type
    bool isTypedAgain = false;   ///< each further one too
    bool isWhole = false;        ///< a line does not end within an element
    bool isMesh = false;         ///< numbers have the form of those of a mesh
    std::size_t blanksAgain = 1; ///< before the values of further ones
    ValueLines::Style style;
};

ListForm meshForm(bool isTyped, bool isTypedAgain, std::size_t blanks, std::size_t blanksAgain, bool isWhole)
{
    ListForm form;
    form.isMesh = true;
    form.isTyped = isTyped;
    form.isTypedAgain = isTypedAgain;
    form.isWhole = isWhole;
    form.blanksAgain = blanksAgain;
    form.style.leads = true;
    form.style.blanks = blanks;
    return form;
}

/// The lists of a mesh have forms of their own: points, edges, UVs, normals.
ListForm listForm(const Attribute& attribute)
{
    const std::string& name = attribute.longName;
    if (name == "vrts" || name == "edge")
        return meshForm(false, false, 2, 1, true);
    if (name == "uvSetPoints")
        return meshForm(true, false, 1, 1, false);
    if (name == "normals")
        return meshForm(true, true, 2, 2, false);
    ListForm form;
    form.isTyped = isGroup(attribute);
    form.style = listStyle(attribute);
    return form;
}

/// Adds the numbers of one element. `inList`: of several elements or numbers.
void addElement(ValueLines& lines, const ListForm& form, const std::vector<Attribute*>& leaves, bool inList,
                const Plug& plug)
{
    const engine::Units& units = plug.node()->scene().units();
    const std::vector<double> numbers = numbersOf(plug);
    std::string element;
    for (std::size_t i = 0; i < std::min(numbers.size(), leaves.size()); ++i) {
        const Attribute& leaf = *leaves[i];
        const bool isFlag = leaf.number == engine::NumberKind::boolean && leaves.size() == 1;
        std::string word;
        if (form.isMesh && leaf.number == engine::NumberKind::single)
            appendMeshFloat(word, static_cast<float>(numbers[i]));
        else
            word = leafText(leaf, numbers[i], units, inList && !isFlag);
        if (!form.isWhole)
            lines.add(word);
        else
            element += (element.empty() ? "" : " ") + word;
    }
    if (form.isWhole)
        lines.add(element);
}

/// Lists of the weights of points, which Maya writes point by point.
bool holdsWeights(const Attribute& attribute)
{
    return attribute.longName == "weightList" && attribute.children.size() == 1 &&
           attribute.children.front()->isArray() &&
           attribute.children.front()->kind == AttributeKind::numeric;
}

std::string weightText(const Plug& weight)
{
    const auto number = engine::readNumber(weight);
    const Attribute& attribute = *weight.attribute();
    return leafText(attribute, number ? number.value.asReal() : 0.0, weight.node()->scene().units(), true);
}

/// Whether a list of all elements can be written: of groups only when there is no gap and none before.
bool makesLists(const Attribute& attribute, const std::vector<int>& elements)
{
    return !isGroup(attribute) || listForm(attribute).isMesh ||
           static_cast<std::size_t>(elements.back()) + 1 == elements.size();
}

std::string typeFlag(const Attribute& attribute)
{
    return isGroup(attribute) ? " -type \"" + attributeTypeName(attribute) + "\"" : std::string();
}

std::string pathText(const std::string& path)
{
    return " \"." + path + "\"";
}

std::string rangeText(const Plug& array, int first, int last)
{
    std::string range = '[' + std::to_string(first);
    if (last != first)
        range += ':' + std::to_string(last);
    return pathText(filePath(array) + range + ']');
}

std::string sizeFlag(std::size_t count)
{
    return " -s " + std::to_string(count);
}

/// Calls `use(first, last)` with the positions of each run of consecutive indices that satisfy `fits`.
template <class Fits, class Use>
void forEachRun(const std::vector<int>& indices, std::size_t longest, const Fits& fits, const Use& use)
{
    for (std::size_t begin = 0; begin < indices.size();) {
        if (!fits(indices[begin])) {
            ++begin;
            continue;
        }
        std::size_t end = begin + 1;
        while (end < indices.size() && end - begin < longest && indices[end] == indices[end - 1] + 1 &&
               fits(indices[end]))
            ++end;
        use(begin, end);
        begin = end;
    }
}

/// The number of edges that the words of a face list: `f 4 …` has four.
std::size_t edgesOf(const std::string& face)
{
    const std::size_t digits = face.find_first_of("0123456789");
    return digits == std::string::npos ? 0 : std::strtoul(face.c_str() + digits, nullptr, 10);
}

const engine::KeptData* faceAt(const Plug& plug)
{
    const auto data = engine::readData(plug);
    if (!data || data.value->type() != engine::DataType::plugin)
        return nullptr;
    const auto& kept = static_cast<const engine::KeptData&>(*data.value);
    return kept.typeName == kPolyFacesType ? &kept : nullptr;
}

} // namespace

void NodeWriter::writeNode(engine::Node& node)
{
    const std::string& type = node.unknownType.empty() ? node.type().name : node.unknownType;
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
    for (const std::string& kept : node.keptLines)
        if (std::string path = pathIn(kept); !path.empty())
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
        else
            line(kept);
    if (const auto reference = references.find(&node); reference != references.end())
        writeEdits(reference->second);
    if (node.isLockedNode && !keepsLinesOnly)
        m_out += "lockNode -l 1 ;\n";
    return m_out.size() != before;
}

/// The links of a light linker are kept as the statements that make them; their number stands with the node.
void NodeWriter::writeLinkSizes(const engine::Node& node)
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
        if (count > 1)
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
    const std::string state = stateFlags(plug);
    if (!value.empty() || !state.empty())
        line("setAttr" + state + pathText(filePath(plug)) + value + ";");
}

void NodeWriter::writeState(const Plug& plug)
{
    if (const std::string state = stateFlags(plug); !state.empty())
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
    return value.empty() ? value : "setAttr" + stateFlags(plug) + pathText(filePath(plug)) + value + ";";
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

void NodeWriter::writeArray(const Plug& array)
{
    writeState(array);
    if (isKeyArray(array)) {
        for (const std::string& statement : keyStatements(array))
            line("setAttr" + statement);
        return;
    }
    const Attribute& attribute = *array.attribute();
    const std::vector<int> elements = engine::existingElements(array);
    if (elements.empty() || !attribute.flags.storable || !attribute.flags.writable ||
        isPerInstance(attribute)) {
        if (!elements.empty() && isPerInstance(attribute) && attribute.isCompound())
            for (const int index : elements)
                writePlug(array.element(index));
        return;
    }
    if (attribute.kind == AttributeKind::typed && attribute.dataType == engine::DataType::polyFaces)
        return writeFaces(array, elements);
    if (holdsWeights(attribute) && !isSpecialAnywhere(array, elements))
        return writeWeights(array, elements);
    const std::size_t start = m_out.size();
    const std::size_t leaves = isFlat(attribute) ? numberLeaves(*array.attribute()).size() : 0;
    std::vector<std::string> runs;
    if (leaves > 0)
        runs = numberRuns(array, elements, leaves);
    const bool isOne = runs.size() == 1 && elements.size() > 1;
    for (const std::string& run : runs)
        line("setAttr" + (isOne ? sizeFlag(elements.size()) : std::string()) + run);
    std::size_t written = runs.empty() ? 0 : elements.size();
    for (const int index : elements) {
        const Plug element = array.element(index);
        const std::size_t before = m_out.size();
        if (runs.empty() || (leaves > 0 && (engine::isFedAnywhere(element) || !stateFlags(element).empty())))
            writePlug(element);
        if (runs.empty() &&
            (m_out.size() != before || engine::isFedAnywhere(element) || engine::isConnected(element)))
            ++written;
    }
    if (written > 1 && !isOne)
        m_out.insert(start, "\tsetAttr" + sizeFlag(written) + pathText(filePath(array)) + ";\n");
    if (leaves > 0)
        writeConnectedSize(array, elements);
}

/// Arrays of numbers tell once more how many elements are connected.
void NodeWriter::writeConnectedSize(const Plug& array, const std::vector<int>& elements)
{
    const auto count = std::count_if(elements.begin(), elements.end(), [&](int index) {
        const Plug element = array.element(index);
        return engine::isFedAnywhere(element) || engine::isConnected(element);
    });
    if (count > 1)
        line("setAttr" + sizeFlag(static_cast<std::size_t>(count)) + pathText(filePath(array)) + ";");
}

std::vector<std::string> NodeWriter::numberRuns(const Plug& array, const std::vector<int>& elements,
                                                std::size_t leaves)
{
    const auto fits = [&](int index) {
        const Plug element = array.element(index);
        return isStored(element) && engine::hasOwnValue(element) && !engine::isFedAnywhere(element) &&
               stateFlags(element).empty() && !isSkipped(element);
    };
    const Attribute& attribute = *array.attribute();
    const std::vector<Attribute*> leafAttributes = numberLeaves(*array.attribute());
    const ListForm form = listForm(attribute);
    const std::size_t longest =
        makesLists(attribute, elements) ? std::max<std::size_t>(1, kValuesPerStatement / leaves) : 1;
    std::vector<std::pair<std::size_t, std::size_t>> spans;
    forEachRun(elements, longest, fits,
               [&](std::size_t begin, std::size_t end) { spans.emplace_back(begin, end); });
    // A list that is all there is to write tells the number of elements.
    const bool hasSize = spans.size() == 1 && elements.size() > 1;
    std::vector<std::string> runs;
    for (const auto& [begin, end] : spans) {
        const bool isSingle = end - begin == 1;
        const bool isTyped = form.isTyped && (runs.empty() || form.isTypedAgain || longest == 1);
        const std::string type = isTyped ? typeFlag(attribute) : std::string();
        ValueLines::Style style = form.style;
        if (!runs.empty())
            style.blanks = form.blanksAgain;
        if (isSingle && (isTyped || (leaves == 1 && !hasSize)))
            style.blanks = 1;
        ValueLines lines(style, countBefore(filePath(array), hasSize, type));
        for (std::size_t i = begin; i < end; ++i)
            addElement(lines, form, leafAttributes, leaves > 1 || !isSingle, array.element(elements[i]));
        runs.push_back(rangeText(array, elements[begin], elements[end - 1]) + type + lines.text() +
                       (isTyped && isSingle ? " ;" : ";"));
    }
    return runs;
}

void NodeWriter::writeFaces(const Plug& array, const std::vector<int>& elements)
{
    struct List
    {
        std::string range;
        std::string faces;
    };
    std::vector<List> lists;
    std::size_t edges = 0;
    const auto fits = [&](int index) { return faceAt(array.element(index)) != nullptr; };
    forEachRun(elements, kValuesPerStatement, fits, [&](std::size_t begin, std::size_t end) {
        List& list = lists.emplace_back();
        list.range = rangeText(array, elements[begin], elements[end - 1]);
        for (std::size_t i = begin; i < end; ++i) {
            const engine::KeptData& face = *faceAt(array.element(elements[i]));
            edges += edgesOf(face.text);
            list.faces += "\n\t\t" + face.text;
        }
    });
    const std::string sizes =
        (elements.size() > 1 ? sizeFlag(elements.size()) : std::string()) + " -ch " + std::to_string(edges);
    if (lists.size() > 1)
        line("setAttr" + sizes + pathText(filePath(array)) + ";");
    for (const List& list : lists) {
        const bool isFirst = &list == &lists.front();
        line("setAttr" + (lists.size() == 1 ? sizes : std::string()) + list.range +
             (isFirst ? " -type \"" + std::string(kPolyFacesType) + "\" " : std::string()) + list.faces +
             ";");
    }
}

/// Whether an element has a state, a connection or a kept line.
bool NodeWriter::isSpecialAnywhere(const Plug& array, const std::vector<int>& elements) const
{
    const auto isSpecial = [&](const Plug& plug) {
        return engine::isFedAnywhere(plug) || !stateFlags(plug).empty() || isSkipped(plug);
    };
    return std::any_of(elements.begin(), elements.end(), [&](int index) {
        const Plug weights = array.element(index).child(0);
        const std::vector<int> influences = engine::existingElements(weights);
        return isSpecial(weights) || std::any_of(influences.begin(), influences.end(), [&](int influence) {
                   return isSpecial(weights.element(influence));
               });
    });
}

/// The weights of a point on a line: their number, and each behind its index.
void NodeWriter::writeWeights(const Plug& array, const std::vector<int>& elements)
{
    if (elements.size() > 1)
        line("setAttr" + sizeFlag(elements.size()) + pathText(filePath(array)) + ";");
    const auto fits = [&](int index) {
        return !engine::existingElements(array.element(index).child(0)).empty();
    };
    forEachRun(elements, kValuesPerStatement, fits, [&](std::size_t begin, std::size_t end) {
        std::string text = "setAttr" + rangeText(array, elements[begin], elements[end - 1]);
        text.insert(text.size() - 1, "." + array.attribute()->children.front()->shortName);
        for (std::size_t i = begin; i < end; ++i) {
            const Plug weights = array.element(elements[i]).child(0);
            const std::vector<int> influences = engine::existingElements(weights);
            text += "\n\t\t" + std::to_string(influences.size());
            for (const int influence : influences)
                text += ' ' + std::to_string(influence) + ' ' + weightText(weights.element(influence));
        }
        line(text + ";");
    });
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
