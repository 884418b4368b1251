// NodeWriter: arrays, whose elements stand in lists.
#include "nodeWriter.h"

#include "attributeTypes.h"
#include "connectionEnd.h"
#include "curveText.h"
#include "numberText.h"
#include "plugTarget.h"
#include "polyFaces.h"
#include "setAttrText.h"
#include "uiUnits.h"
#include "valueLines.h"
#include "valueText.h"

#include "engine/data.h"

#include <algorithm>
#include <cstdlib>

namespace tvxhost::scene {

using engine::Attribute;
using engine::AttributeKind;
using engine::Plug;

namespace {

/// Values that one statement holds at most.
constexpr std::size_t kValuesPerStatement = 500;

/// Numbers, groups of them and compounds of single numbers ("ktv"): what one list of values can hold.
bool isFlat(const Attribute& attribute)
{
    return attribute.kind == AttributeKind::numeric ||
           std::none_of(attribute.children.begin(), attribute.children.end(),
                        [](const auto& child) { return child->isCompound(); });
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

std::string rangeText(const Plug& array, int first, int last)
{
    std::string range = '[' + std::to_string(first);
    if (last != first)
        range += ':' + std::to_string(last);
    return pathText(filePath(array) + range + ']');
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

bool isJoined(const Plug& plug)
{
    return engine::isFedAnywhere(plug) || engine::isConnected(plug);
}

/// Elements that Maya counts and this host does not have: the list of shaders begins with four there.
std::size_t elementsElsewhere(const Plug& array)
{
    const bool isShaderList = array.node()->isDefaultNode && array.attribute()->longName == "shaders";
    return isShaderList ? 2 : 0;
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
    if (isPerInstance(attribute) && !attribute.parent)
        return writeInstances(array, elements);
    if (elements.empty() || !attribute.flags.storable || !attribute.flags.writable)
        return;
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
    std::size_t written = (runs.empty() ? 0 : elements.size()) + elementsElsewhere(array);
    for (const int index : elements) {
        const Plug element = array.element(index);
        const std::size_t before = m_out.size();
        if (runs.empty() || (leaves > 0 && (engine::isFedAnywhere(element) || !flagsOf(element).empty())))
            writePlug(element);
        if (runs.empty() && (m_out.size() != before || isJoined(element) || isSkipped(element)))
            ++written;
    }
    if (written > 1 && !isOne)
        m_out.insert(start, "\tsetAttr" + sizeFlag(written) + pathText(filePath(array)) + ";\n");
    if (leaves > 0)
        writeConnectedSize(array, elements);
}

/// The elements that stand for the instances of a node; how many of them are connected is told.
void NodeWriter::writeInstances(const Plug& array, const std::vector<int>& elements)
{
    if (!array.attribute()->isCompound())
        return;
    const auto joined = std::count_if(elements.begin(), elements.end(),
                                      [&](int index) { return isJoined(array.element(index)); });
    if (joined > 1)
        line("setAttr" + sizeFlag(static_cast<std::size_t>(joined)) + pathText(filePath(array)) + ";");
    for (const int index : elements)
        writePlug(array.element(index));
}

/// Arrays of numbers tell once more how many elements are connected.
void NodeWriter::writeConnectedSize(const Plug& array, const std::vector<int>& elements)
{
    const auto count = std::count_if(elements.begin(), elements.end(),
                                     [&](int index) { return isJoined(array.element(index)); });
    if (count > 1)
        line("setAttr" + sizeFlag(static_cast<std::size_t>(count)) + pathText(filePath(array)) + ";");
}

std::vector<std::string> NodeWriter::numberRuns(const Plug& array, const std::vector<int>& elements,
                                                std::size_t leaves)
{
    const auto fits = [&](int index) {
        const Plug element = array.element(index);
        return isStored(element) && engine::hasOwnValue(element) && !engine::isFedAnywhere(element) &&
               flagsOf(element).empty() && !isSkipped(element);
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
        return engine::isFedAnywhere(plug) || !flagsOf(plug).empty() || isSkipped(plug);
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

} // namespace tvxhost::scene
