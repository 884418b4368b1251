// Attribute: the description of one attribute of a node type, or a dynamic one of a node.
#pragma once

#include "data.h"
#include "object.h"
#include "outcome.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tvxhost::engine {

class NodeType;

enum class AttributeKind : std::uint8_t
{
    numeric, ///< one number, or a group of 2 to 4 equal ones (then the numbers are children)
    unit,    ///< one angle, distance or time
    enumeration,
    typed,    ///< a data object (string, arrays, mesh …)
    compound, ///< children of any kinds
    message,
    matrix,  ///< 4 x 4, double or float
    generic, ///< any of several kinds
    lightData,
};

/// How one number is stored. The sizes are those of the C types of the same names.
enum class NumberKind : std::uint8_t
{
    none,
    boolean,
    byte,
    character,
    shortInteger,
    integer,
    int64,
    single,
    real
};

enum class UnitKind : std::uint8_t
{
    none,
    angle,
    distance,
    time
};

/// Bytes of one number of a kind.
std::size_t sizeOf(NumberKind kind);

/// The flags of an attribute; the defaults are those of a new attribute in Maya.
struct AttributeFlags
{
    bool readable = true;
    bool writable = true;
    bool connectable = true;
    bool storable = true;
    bool cached = true;
    bool array = false;
    bool indexMatters = true;
    bool arrayBuilder = false;
    bool keyable = false;
    bool channelBox = false;
    bool hidden = false;
    bool usedAsColor = false;
    bool usedAsFilename = false;
    bool internal = false;
    bool worldSpace = false;
    bool affectsAppearance = false;
    bool affectsWorldSpace = false;
    bool renderSource = false;
    bool dynamic = false;
};

/// One field of an enumeration.
struct EnumField
{
    std::string name;
    short value = 0;
};

/// An attribute. Built free-standing (by the API's function sets, by `addAttr`, by the tables of built-in
/// types), then added to a type or a node, after which its structure no longer changes (flags and fields
/// may).
class Attribute : public Object
{
public:
    /// Compounds in compounds go this deep at most, and hold this many arrays in one another.
    static constexpr int kMaxNesting = 12;
    static constexpr int kMaxArrayDepth = 4;

    Attribute(AttributeKind kind, std::string longName, std::string shortName);
    ~Attribute() override;

    AttributeKind kind = AttributeKind::numeric;
    std::string longName;
    std::string shortName;
    /// A second short name that finds the attribute too ("opR" beside "opr"); empty when there is none.
    std::string otherShortName;
    std::string niceName;
    std::vector<std::string> categories;
    AttributeFlags flags;

    NumberKind number = NumberKind::none; ///< numeric, unit (real), enumeration (shortInteger)
    UnitKind unit = UnitKind::none;
    DataType dataType = DataType::none; ///< typed
    std::string pluginDataType;         ///< typed: the name of a data type that is `DataType::plugin`
    bool singleMatrix = false;          ///< matrix of floats
    std::vector<DataType> acceptedData; ///< generic
    std::vector<std::string> acceptedPluginData; ///< generic: names of plug-ins' types of data
    std::vector<EnumField> fields;

    /// Default of a number (for a group each child has its own); in internal units.
    double defaultNumber = 0.0;
    /// Default of typed and matrix attributes; null for none.
    Ref<Data> defaultData;
    std::optional<double> minimum, maximum, softMinimum, softMaximum;

    /// What happens to a destination when its connection goes: 0 delete element, 1 reset, 2 nothing.
    int disconnectBehaviour = 2;

    // Structure
    Attribute* parent = nullptr;          ///< the compound or number group that holds this one
    std::vector<Ref<Attribute>> children; ///< compound, number group
    const NodeType* owner = nullptr;      ///< the type it was added to; null while free or when dynamic
    int index = -1;        ///< place among the top-level attributes of the node type's whole list
    int siblingIndex = -1; ///< place among the children of the parent

    bool isCompound() const { return !children.empty() || kind == AttributeKind::compound; }
    /// A group of equal numbers whose values lie side by side (float3, double3, long2 …).
    bool isNumberGroup() const { return kind == AttributeKind::numeric && !children.empty(); }
    bool isArray() const { return flags.array; }
    /// How many arrays there are from the top level down to this attribute, itself included.
    int arrayDepth() const;
    const Attribute* topLevel() const;
    int childIndex(const Attribute& child) const;
    /// True when this attribute is `other` or stands below it.
    bool isAtOrBelow(const Attribute& other) const;
    /// Whether it and all below it stay within kMaxNesting and kMaxArrayDepth.
    bool isNestedWithinLimits() const;

    /// Exchanges how two attributes of the same structure are declared: names, flags, numbers, fields.
    void swapDeclaration(Attribute& other);

    /// Adds a child (before the attribute itself is added to a type).
    void addChild(Ref<Attribute> child);

    /// The MEL name of its type as `getAttr -type` gives it: "double", "float3", "doubleAngle", "string",
    /// "TdataCompound" …
    std::string typeName() const;
    std::optional<short> fieldValue(const std::string& name) const;
    std::optional<std::string> fieldName(short value) const;
};

/// A number of a kind; children are made by makeNumberGroup.
Ref<Attribute> makeNumber(const std::string& longName, const std::string& shortName, NumberKind kind,
                          double defaultValue);
/// 2 to 4 numbers side by side; `suffixes` name the children ("X","Y","Z"), long names get them as they
/// stand, short names get `shortSuffixes`.
Ref<Attribute> makeNumberGroup(const std::string& longName, const std::string& shortName, NumberKind kind,
                               int count, const std::array<const char*, 4>& suffixes,
                               const std::array<const char*, 4>& shortSuffixes);
/// Three floats named R, G, B (short names r, g, b, found as R, G, B too), used as a colour.
Ref<Attribute> makeColor(const std::string& longName, const std::string& shortName);
/// Three floats named X, Y, Z.
Ref<Attribute> makePoint(const std::string& longName, const std::string& shortName);

} // namespace tvxhost::engine
