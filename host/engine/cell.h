// Cell: where the value, the connections and the state of one plug live; CellStore: the cells of one node.
#pragma once

#include "attribute.h"
#include "data.h"
#include "elementList.h"
#include "packedElements.h"
#include "plug.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace tvxhost::engine {

class Cell;
class CellStore;

/// Whether a value may be used as it is. `inherited`: as the cell above says, at the top as the attribute
/// says (outputs begin dirty, everything else clean).
enum class Freshness : std::uint8_t
{
    inherited,
    dirty,
    clean
};

/// The connections of one cell.
class Links
{
public:
    Cell* source() const { return m_source; }
    /// In the order of connecting; null where one has gone.
    const std::vector<Cell*>& destinations() const { return m_destinations; }
    bool hasDestinations() const { return m_destinations.size() > m_gone; }
    bool empty() const { return !m_source && !hasDestinations(); }

private:
    friend class Cell;

    Cell* m_source = nullptr;
    std::size_t m_place = 0; ///< among the destinations of the source
    std::vector<Cell*> m_destinations;
    std::size_t m_gone = 0;
};

/// One plug's storage. Made when it is needed: a plug without a cell has its attribute's default, no
/// connection and no state of its own. Cells mirror the attributes: those of a compound hold its children's,
/// those of an array its elements'. The numbers of a group lie in the group's cell, its children point there.
class Cell
{
public:
    Cell(CellStore& store, Cell* parent, Attribute& attribute, int index);
    ~Cell();
    Cell(const Cell&) = delete;
    Cell& operator=(const Cell&) = delete;

    CellStore& store() const { return m_store; }
    Cell* parent() const { return m_parent; }
    Attribute& attribute() const { return m_attribute; }
    /// Logical index of an element, Plug::kNoIndex for anything else.
    int index() const { return m_index; }
    bool isArray() const { return m_attribute.isArray() && m_index == Plug::kNoIndex; }
    Plug plug() const;

    // Cells below: the children of a compound, or the elements of an array in ascending order. Any may be
    // null.
    const std::vector<std::unique_ptr<Cell>>& below() const { return m_below.values(); }
    Cell* findChild(const Attribute& child) const;
    Cell& makeChild(Attribute& child);
    Cell* findElement(int logicalIndex) const;
    /// An element that was packed moves into its own cell.
    Cell& makeElement(int logicalIndex);
    /// Takes an element out that has no connections; null when it has no cell or does not exist.
    std::unique_ptr<Cell> takeElement(int logicalIndex);
    /// Puts an element back that was taken from here; one that is there now makes room.
    void putElement(std::unique_ptr<Cell> element);
    /// How many elements an array has, with cells or packed.
    std::size_t elementCount() const { return m_below.count() + (m_packed ? m_packed->indices().size() : 0); }
    /// The logical index of the n-th element in ascending order, n below elementCount(). In constant time
    /// unless some have cells and others are packed, or elements come and go between the calls.
    int elementIndex(std::size_t n);

    // Packed elements of an array of numbers or data; null when there are none.
    const PackedElements* packed() const { return m_packed.get(); }
    /// Where a packed element is or shall be; null when the array cannot be packed or the element has a cell.
    PackedElements* packedFor(int logicalIndex);
    /// Exchanges all packed elements for others of the same kind.
    void swapPacked(std::unique_ptr<PackedElements>& other) { m_packed.swap(other); }

    // Value
    std::uint8_t* bytes() const { return m_bytes; } ///< null when the plug holds no plain numbers
    Ref<Data>* data() { return &m_data; }
    const Ref<Data>& data() const { return m_data; }

    // Connections
    const Links* links() const { return m_links.get(); }
    Cell* source() const { return m_links ? m_links->source() : nullptr; }
    /// How many cells at and below this one have a connection.
    std::size_t linkedCells() const { return m_linkedCells; }
    /// Connects, in the source's order right before another of its destinations; null: after all others.
    void connectFrom(Cell& source, Cell* before = nullptr);
    /// The destination of this one's source that follows this one; null when it is the last.
    Cell* nextOfSource() const;
    void disconnectFromSource();

    /// For arrays: all elements below this index are connected. Raised by those who look for a free one.
    int firstFreeHint = 0;

    // State
    Freshness freshness = Freshness::inherited;
    bool mixedBelow = false; ///< some cell below has a freshness of its own
    bool wasSet = false;
    bool evaluating = false;
    bool failureTold = false;
    bool cycleTold = false;
    PlugState state;

private:
    bool canPack() const;
    void adoptValue(int logicalIndex, Cell& element) const;
    Links& makeLinks();
    void countLinked(bool more);
    void dropEmptyLinks();
    void compactDestinations();
    std::size_t makeGapBefore(const Cell& destination);

    CellStore& m_store;
    Cell* m_parent;
    Attribute& m_attribute;
    int m_index;
    bool m_ownsBytes = false;
    alignas(8) std::uint8_t m_small[8] = {};
    std::uint8_t* m_bytes = nullptr;
    Ref<Data> m_data;
    ElementList<std::unique_ptr<Cell>> m_below;
    std::unique_ptr<PackedElements> m_packed;
    std::unique_ptr<Links> m_links;
    std::size_t m_linkedCells = 0;
};

/// Where a plug's value can be read without making a cell. All null: the attribute's default.
struct ValuePlace
{
    const std::uint8_t* bytes = nullptr;
    const Ref<Data>* data = nullptr;
    bool isDefault() const { return !bytes && !data; }
};

/// The cells of one node.
class CellStore
{
public:
    explicit CellStore(Node& node) : m_node(node) {}

    Node& node() const { return m_node; }
    /// Forgets everything. Cells of other nodes are not told.
    void clear();

    Cell* find(const Attribute& topLevel) const;
    Cell& make(Attribute& topLevel);
    /// Takes the cell of an attribute out; null when there is none.
    std::unique_ptr<Cell> take(const Attribute& topLevel);
    void put(std::unique_ptr<Cell> root);
    const std::vector<std::unique_ptr<Cell>>& roots() const { return m_roots; }

    /// The cell of a plug; null when there is none (or an index on the way is undetermined).
    Cell* find(const Plug& plug) const;
    /// Makes it; null only when an index on the way is undetermined.
    Cell* make(const Plug& plug);
    /// The cell of a plug or of the nearest thing above it.
    Cell* findNearest(const Plug& plug) const;
    ValuePlace valueOf(const Plug& plug) const;
    /// The outermost element on the way to a plug that does not exist yet; a null plug when all do.
    Plug firstMissingElement(const Plug& plug) const;

    /// Raised with every change of a value, for those who keep something derived from values.
    std::uint64_t edits = 0;
    /// The geometry put together for a mesh, the data it was made of, and the `edits` it belongs to.
    Ref<Data> derivedMesh;
    Ref<Data> derivedMeshSource;
    /// The data that a mesh may change in place, because it made it.
    Ref<Data> ownMesh;
    std::uint64_t derivedMeshEdits = 0;

private:
    std::vector<std::unique_ptr<Cell>>::const_iterator placeFor(const Attribute& topLevel) const;

    Node& m_node;
    std::vector<std::unique_ptr<Cell>> m_roots; ///< sorted by the address of the attribute
};

} // namespace tvxhost::engine
