// Plug: a node's attribute, with the element indices that lead to it. A description: it holds no value
// itself.
#pragma once

#include "attribute.h"
#include "object.h"
#include "outcome.h"

#include <array>
#include <string>
#include <vector>

namespace tvxhost::engine {

class Node;
class Cell;

/// How to spell a plug's name.
struct PlugNameStyle
{
    bool withNode = true;
    bool longNames = true;
    bool fullPath = false;     ///< all ancestor compounds, even when the child's name is unambiguous
    bool longNodePath = false; ///< the node by its full DAG path
    bool useAlias = false;
};

/// A value type; copying is cheap. Null when default constructed. Holds its node and attribute, but a plug of
/// a deleted node is dead: every operation on it fails with doesNotExist.
class Plug
{
public:
    static constexpr int kMaxDepth = Attribute::kMaxArrayDepth;
    static constexpr int kNoIndex = -1;

    Plug() = default;
    /// The plug of an attribute. Not checked: see isValid(). Indices of arrays above it are undetermined
    /// (-1); when the attribute itself is an array, the plug is the array and not an element.
    Plug(Node& node, Attribute& attribute);

    bool isNull() const { return !m_attribute; }
    /// The node lives and has the attribute.
    bool isValid() const;
    Node* node() const { return m_node.get(); }
    Attribute* attribute() const { return m_attribute.get(); }

    bool isArray() const;    ///< an array attribute without an index of its own
    bool isElement() const;  ///< an element of an array
    bool isCompound() const; ///< has children (an array of compounds has none until an element is taken)
    bool isChild() const;    ///< its attribute has a parent
    bool isDynamic() const;

    /// Null plug when there is no such thing.
    Plug child(std::size_t i) const;
    Plug child(const Attribute& attribute) const;
    std::size_t childCount() const;
    Plug parent() const;
    Plug array() const;
    Plug element(int logicalIndex) const;
    /// Index in the innermost array of this plug; -1 when it is no element.
    int logicalIndex() const;
    /// Indices from the outermost array inwards.
    const std::array<int, kMaxDepth>& indices() const { return m_indices; }
    int indexCount() const { return m_indexCount; }
    /// Sets the index of one array above (or of) this plug.
    void selectIndex(const Attribute& array, int logicalIndex);

    /// `a` is `b` or stands below it (child or element), on the same node.
    bool isAtOrBelow(const Plug& other) const;

    std::string name(const PlugNameStyle& style = {}) const;

    friend bool operator==(const Plug& a, const Plug& b);
    friend bool operator!=(const Plug& a, const Plug& b) { return !(a == b); }

private:
    Ref<Node> m_node;
    Ref<Attribute> m_attribute;
    std::array<int, kMaxDepth> m_indices{};
    int m_indexCount = 0;
};

/// A number read from or written to a plug, whole numbers without loss.
struct Number
{
    bool isWhole = true;
    std::int64_t whole = 0;
    double real = 0.0;

    Number() = default;
    Number(std::int64_t n) : whole(n), real(static_cast<double>(n)) {}
    Number(int n) : Number(static_cast<std::int64_t>(n)) {}
    Number(double x) : isWhole(false), whole(0), real(x) {}
    double asReal() const { return real; }
    /// C's conversion towards zero; what does not fit is clamped, not a number is 0.
    std::int64_t asWhole() const;
};

/// What a caller may override of an attribute on one plug: empty = as the attribute says.
struct PlugState
{
    bool locked = false;
    std::optional<bool> keyable;
    std::optional<bool> channelBox;
    std::optional<bool> caching;
};

// Reading. Each evaluates first: an incoming connection or a dirty output is computed.
/// The number of a leaf (numeric, unit, enumeration), in internal units; wrongKind for anything else.
Expected<Number> readNumber(const Plug& plug);
/// All leaf numbers of a plug, depth first (the three of a colour, the sixteen of a matrix).
Expected<std::vector<double>> readNumbers(const Plug& plug);
/// The string of a string plug; empty and success when it holds none.
Expected<std::string> readString(const Plug& plug);
/// The data object of a typed, matrix or generic plug: the plug's own, not a copy. noData when it holds none.
/// A number group gives a new NumericData.
Expected<Ref<Data>> readData(const Plug& plug);

/// Stores a number past all refusals, for values that the host itself keeps up to date (the time, what a
/// built-in compute yields); marks clean and spreads dirtiness.
void storeInternal(const Plug& plug, const Number& value);
/// The same for data; takes the object, not a copy.
void storeInternal(const Plug& plug, Ref<Data> data);

// Writing. Each stores, marks clean and spreads dirtiness; refused with lockedOrConnected, notWritable
// (unless `internal`), pastMinimum, pastMaximum, typeMismatch and the like, the value then being unchanged.
enum class Limits
{
    refuse,
    clamp,
    ignore
};
Outcome writeNumber(const Plug& plug, const Number& value, Limits limits = Limits::refuse);
/// One number per leaf, all or nothing.
Outcome writeNumbers(const Plug& plug, const std::vector<double>& values, Limits limits = Limits::refuse);
/// Sets the elements of an array of numbers or number groups from `first` upwards, `count` numbers in all:
/// what the many values of a mesh are read with.
Outcome writeElements(const Plug& arrayPlug, int first, const double* values, std::size_t count);
Outcome writeString(const Plug& plug, const std::string& value);
/// Stores a copy.
Outcome writeData(const Plug& plug, const Data& data);
/// Stores the object itself, which nobody else may change from then on.
Outcome giveData(const Plug& plug, Ref<Data> data);

/// Elements that exist (set or connected), ascending. Does not evaluate.
std::vector<int> existingElements(const Plug& arrayPlug);
/// Removes an element with its value and connections.
Outcome removeElement(const Plug& arrayPlug, int logicalIndex);

bool isDirty(const Plug& plug);
/// Marks a plug (with everything below it) computed.
void setClean(const Plug& plug);
/// Spreads dirtiness from a plug whose value changed: to what it affects, and on along connections.
void spreadDirty(const Plug& plug);
/// Brings a plug up to date. failed when a compute failed; the last value stays.
Outcome evaluate(const Plug& plug);

// Connections
/// The plug that feeds this one directly; null when none.
Plug sourceOf(const Plug& plug);
std::vector<Plug> destinationsOf(const Plug& plug);
bool isConnected(const Plug& plug);
/// Whether a plug, one above or one below it is fed by a connection.
bool isFedAnywhere(const Plug& plug);
/// Every plug of the node with a connection, in the order of the node's attributes, then indices.
std::vector<Plug> connectedPlugs(const Node& node);

PlugState stateOf(const Plug& plug);
void setState(const Plug& plug, const PlugState& state);
/// Locked itself or through a parent or array above it.
bool isLocked(const Plug& plug);
/// The value was ever set or differs from the default (what a scene file needs to hold).
bool hasOwnValue(const Plug& plug);
bool isDefault(const Plug& plug);

} // namespace tvxhost::engine
