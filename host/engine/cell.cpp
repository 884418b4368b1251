// Cell: see cell.h.
#include "cell.h"

#include "node.h"
#include "number.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace tvxhost::engine {

namespace {

/// Bytes from the start of a number group to one of its numbers.
std::size_t offsetInGroup(const Attribute& child)
{
    return static_cast<std::size_t>(child.siblingIndex) * sizeOf(child.number);
}

bool isInNumberGroup(const Attribute& attribute)
{
    return attribute.parent && attribute.parent->isNumberGroup() && !attribute.isArray();
}

} // namespace

void Cell::compactDestinations()
{
    // Rare enough to be free on average, and it keeps the order.
    std::vector<Cell*>& cells = m_links->m_destinations;
    if (m_links->m_gone * 2 <= cells.size())
        return;
    cells.erase(std::remove(cells.begin(), cells.end(), nullptr), cells.end());
    for (std::size_t i = 0; i < cells.size(); ++i)
        cells[i]->m_links->m_place = i;
    m_links->m_gone = 0;
}

Cell::Cell(CellStore& store, Cell* parent, Attribute& attribute, int index)
    : m_store(store), m_parent(parent), m_attribute(attribute), m_index(index)
{
    const std::size_t size = isArray() ? 0 : numberBytes(attribute);
    if (size == 0)
        return;
    if (isInNumberGroup(attribute)) {
        m_bytes = parent->m_bytes + offsetInGroup(attribute);
        return;
    }
    m_ownsBytes = size > sizeof m_small;
    m_bytes = m_ownsBytes ? new std::uint8_t[size] : m_small;
    storeDefault(attribute, m_bytes);
}

Cell::~Cell()
{
    if (m_ownsBytes)
        delete[] m_bytes;
}

Plug Cell::plug() const
{
    Plug result(m_store.node(), m_attribute);
    for (const Cell* cell = this; cell; cell = cell->m_parent)
        if (cell->m_index != Plug::kNoIndex)
            result.selectIndex(cell->m_attribute, cell->m_index);
    return result;
}

Cell* Cell::findChild(const Attribute& child) const
{
    const auto place = static_cast<std::size_t>(child.siblingIndex);
    return place < below().size() ? below()[place].get() : nullptr;
}

Cell& Cell::makeChild(Attribute& child)
{
    std::vector<std::unique_ptr<Cell>>& children = m_below.places();
    if (children.empty())
        children.resize(m_attribute.children.size());
    std::unique_ptr<Cell>& place = children[static_cast<std::size_t>(child.siblingIndex)];
    if (!place)
        place = std::make_unique<Cell>(m_store, this, child, Plug::kNoIndex);
    return *place;
}

Cell* Cell::findElement(int logicalIndex) const
{
    const std::unique_ptr<Cell>* element = m_below.find(logicalIndex);
    return element ? element->get() : nullptr;
}

Cell& Cell::makeElement(int logicalIndex)
{
    if (Cell* element = findElement(logicalIndex))
        return *element;
    auto element = std::make_unique<Cell>(m_store, this, m_attribute, logicalIndex);
    adoptValue(logicalIndex, *element);
    return *m_below.put(logicalIndex, std::move(element));
}

void Cell::adoptValue(int logicalIndex, Cell& element) const
{
    if (!m_packed || !m_packed->has(logicalIndex))
        return;
    // The packed value stays where it is, unseen: taking it out would move all that follow.
    element.wasSet = true;
    if (const std::uint8_t* packedBytes = m_packed->bytes(logicalIndex))
        std::memcpy(element.m_bytes, packedBytes, numberBytes(m_attribute));
    else
        element.m_data = *m_packed->data(logicalIndex);
}

std::unique_ptr<Cell> Cell::takeElement(int logicalIndex)
{
    std::unique_ptr<Cell> element = m_below.take(logicalIndex);
    if (m_packed)
        m_packed->remove(logicalIndex);
    return element;
}

void Cell::putElement(std::unique_ptr<Cell> element)
{
    const int logicalIndex = element->m_index;
    if (m_packed)
        m_packed->remove(logicalIndex);
    m_below.put(logicalIndex, std::move(element));
    // What was put back may know for itself whether it is up to date.
    for (Cell* cell = this; cell && !cell->mixedBelow; cell = cell->m_parent)
        cell->mixedBelow = true;
}

int Cell::elementIndex(std::size_t n)
{
    static const std::vector<int> none;
    const std::vector<int>& packed = m_packed ? m_packed->indices() : none;
    if (m_below.hasFreePlaces())
        m_below.dropFreePlaces();
    if (packed.empty())
        return m_below.indexAt(n);
    if (m_below.count() == 0)
        return packed[n];
    // An element is in one of the two only: as many packed ones stand before a cell as have smaller indices.
    std::size_t passed = 0;
    for (; passed < m_below.count(); ++passed) {
        const int index = m_below.indexAt(passed);
        const auto before =
            static_cast<std::size_t>(std::lower_bound(packed.begin(), packed.end(), index) - packed.begin());
        if (n < passed + before)
            break;
        if (n == passed + before)
            return index;
    }
    return packed[n - passed];
}

bool Cell::canPack() const
{
    return isArray() && (numberBytes(m_attribute) != 0 || m_attribute.kind == AttributeKind::typed);
}

PackedElements* Cell::packedFor(int logicalIndex)
{
    if (!canPack() || findElement(logicalIndex))
        return nullptr;
    if (!m_packed)
        m_packed = std::make_unique<PackedElements>(numberBytes(m_attribute));
    return m_packed.get();
}

Links& Cell::makeLinks()
{
    if (!m_links) {
        m_links = std::make_unique<Links>();
        countLinked(true);
    }
    return *m_links;
}

void Cell::countLinked(bool more)
{
    for (Cell* cell = this; cell; cell = cell->m_parent)
        cell->m_linkedCells += more ? 1 : static_cast<std::size_t>(-1);
}

void Cell::dropEmptyLinks()
{
    if (!m_links || !m_links->empty())
        return;
    m_links.reset();
    countLinked(false);
    for (const Cell* cell = this; cell->m_parent; cell = cell->m_parent)
        if (cell->m_index != Plug::kNoIndex)
            cell->m_parent->firstFreeHint = std::min(cell->m_parent->firstFreeHint, cell->m_index);
}

void Cell::connectFrom(Cell& source, Cell* before)
{
    Links& mine = makeLinks();
    Links& theirs = source.makeLinks();
    mine.m_source = &source;
    if (before && before->source() == &source) {
        mine.m_place = source.makeGapBefore(*before);
        theirs.m_destinations[mine.m_place] = this;
        --theirs.m_gone;
        return;
    }
    mine.m_place = theirs.m_destinations.size();
    theirs.m_destinations.push_back(this);
}

Cell* Cell::nextOfSource() const
{
    const std::vector<Cell*>& cells = m_links->m_source->m_links->m_destinations;
    const auto behind = cells.begin() + static_cast<std::ptrdiff_t>(m_links->m_place) + 1;
    const auto next = std::find_if(behind, cells.end(), [](const Cell* cell) { return cell; });
    return next == cells.end() ? nullptr : *next;
}

/// The free place right before a destination of this cell. Where there is none many are made: more may come.
std::size_t Cell::makeGapBefore(const Cell& destination)
{
    std::vector<Cell*>& cells = m_links->m_destinations;
    const std::size_t place = destination.m_links->m_place;
    if (place > 0 && !cells[place - 1])
        return place - 1;
    const std::size_t count = cells.size();
    cells.insert(cells.begin() + static_cast<std::ptrdiff_t>(place), count, nullptr);
    m_links->m_gone += count;
    for (std::size_t i = place + count; i < cells.size(); ++i)
        if (cells[i])
            cells[i]->m_links->m_place = i;
    return place + count - 1;
}

void Cell::disconnectFromSource()
{
    Cell& source = *m_links->m_source;
    Links& theirs = *source.m_links;
    theirs.m_destinations[m_links->m_place] = nullptr;
    ++theirs.m_gone;
    source.compactDestinations();
    m_links->m_source = nullptr;
    dropEmptyLinks();
    source.dropEmptyLinks();
}

void CellStore::clear()
{
    m_roots.clear();
    derivedMesh = {};
    derivedMeshSource = {};
    ownMesh = {};
    ++edits;
}

Cell* CellStore::find(const Attribute& topLevel) const
{
    const auto place =
        std::lower_bound(m_roots.begin(), m_roots.end(), &topLevel,
                         [](const std::unique_ptr<Cell>& cell, const Attribute* attribute) {
                             return std::less<const Attribute*>()(&cell->attribute(), attribute);
                         });
    return place != m_roots.end() && &(*place)->attribute() == &topLevel ? place->get() : nullptr;
}

Cell& CellStore::make(Attribute& topLevel)
{
    if (Cell* cell = find(topLevel))
        return *cell;
    if (&topLevel == m_node.type().intermediateObject())
        m_node.m_mayBeIntermediate = true;
    return **m_roots.insert(placeFor(topLevel),
                            std::make_unique<Cell>(*this, nullptr, topLevel, Plug::kNoIndex));
}

/// Where the cell of an attribute without one goes.
std::vector<std::unique_ptr<Cell>>::const_iterator CellStore::placeFor(const Attribute& topLevel) const
{
    return std::upper_bound(m_roots.begin(), m_roots.end(), &topLevel,
                            [](const Attribute* attribute, const std::unique_ptr<Cell>& cell) {
                                return std::less<const Attribute*>()(attribute, &cell->attribute());
                            });
}

std::unique_ptr<Cell> CellStore::take(const Attribute& topLevel)
{
    const auto place = std::find_if(m_roots.begin(), m_roots.end(), [&](const std::unique_ptr<Cell>& cell) {
        return &cell->attribute() == &topLevel;
    });
    if (place == m_roots.end())
        return nullptr;
    std::unique_ptr<Cell> root = std::move(*place);
    m_roots.erase(place);
    return root;
}

void CellStore::put(std::unique_ptr<Cell> root)
{
    (void)take(root->attribute());
    m_roots.insert(placeFor(root->attribute()), std::move(root));
}

namespace {

/// One step on the way from the top to a plug: into a child, or into an element of the array just reached.
struct WayStep
{
    Attribute* attribute;
    int index; ///< of the element to take, when `isElement`
    bool isElement;
};

/// The way from the top-level attribute to a plug.
class Way
{
public:
    explicit Way(const Plug& plug)
    {
        int level = plug.indexCount();
        bool isArrayItself = plug.isArray();
        for (Attribute* attribute = plug.attribute(); attribute; attribute = attribute->parent) {
            if (attribute->isArray() && !isArrayItself)
                m_steps[--m_first] = {attribute, plug.indices()[static_cast<std::size_t>(--level)], true};
            isArrayItself = false;
            m_steps[--m_first] = {attribute, Plug::kNoIndex, false};
        }
    }

    const WayStep* begin() const { return m_steps.data() + m_first; }
    const WayStep* end() const { return m_steps.data() + m_steps.size(); }

private:
    static constexpr std::size_t kMaxSteps = Attribute::kMaxNesting + Plug::kMaxDepth;
    std::array<WayStep, kMaxSteps> m_steps;
    std::size_t m_first = kMaxSteps;
};

} // namespace

Cell* CellStore::findNearest(const Plug& plug) const
{
    Cell* cell = nullptr;
    for (const WayStep& step : Way(plug)) {
        Cell* next = !cell            ? find(*step.attribute)
                     : step.isElement ? cell->findElement(step.index)
                                      : cell->findChild(*step.attribute);
        if (!next)
            break;
        cell = next;
    }
    return cell;
}

Cell* CellStore::find(const Plug& plug) const
{
    Cell* cell = findNearest(plug);
    const bool isThere = cell && &cell->attribute() == plug.attribute() && cell->isArray() == plug.isArray();
    return isThere ? cell : nullptr;
}

Cell* CellStore::make(const Plug& plug)
{
    Cell* cell = nullptr;
    for (const WayStep& step : Way(plug)) {
        if (step.isElement && step.index < 0)
            return nullptr;
        cell = !cell            ? &make(*step.attribute)
               : step.isElement ? &cell->makeElement(step.index)
                                : &cell->makeChild(*step.attribute);
    }
    return cell;
}

Plug CellStore::firstMissingElement(const Plug& plug) const
{
    if (plug.indexCount() == 0)
        return {};
    const Way way(plug);
    const Cell* cell = nullptr;
    bool isLost = false; // what comes next has no cell
    for (const WayStep& step : way) {
        if (!step.isElement) {
            if (!isLost)
                cell = cell ? cell->findChild(*step.attribute) : find(*step.attribute);
            isLost = !cell;
            continue;
        }
        if (!isLost && !cell->findElement(step.index) && cell->packed() && cell->packed()->has(step.index))
            return {};
        cell = isLost ? nullptr : cell->findElement(step.index);
        if (cell)
            continue;
        Plug element(m_node, *step.attribute);
        for (const WayStep* above = way.begin(); above <= &step; ++above)
            if (above->isElement)
                element.selectIndex(*above->attribute, above->index);
        return element;
    }
    return {};
}

ValuePlace CellStore::valueOf(const Plug& plug) const
{
    const Cell* cell = findNearest(plug);
    if (!cell)
        return {};
    Attribute& attribute = *plug.attribute();
    if (&cell->attribute() == &attribute && cell->isArray() == plug.isArray())
        return {cell->bytes(), cell->bytes() ? nullptr : &cell->data()};

    const std::size_t offset = isInNumberGroup(attribute) ? offsetInGroup(attribute) : 0;
    const Attribute& holder = isInNumberGroup(attribute) ? *attribute.parent : attribute;
    if (&cell->attribute() != &holder)
        return {};
    if (!cell->isArray())
        return {cell->bytes() + offset, nullptr};
    if (!cell->packed())
        return {};
    const int index = plug.logicalIndex();
    if (const std::uint8_t* bytes = cell->packed()->bytes(index))
        return {bytes + offset, nullptr};
    return {nullptr, cell->packed()->data(index)};
}

} // namespace tvxhost::engine
