// Scene: making and breaking connections.
#include "cell.h"
#include "dirtySpread.h"
#include "number.h"
#include "observers.h"
#include "scene.h"
#include "valueEdits.h"
#include "values.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace tvxhost::engine {

namespace {

bool isSingleNumber(const Plug& plug)
{
    return isNumberLeaf(*plug.attribute()) && !plug.isArray();
}

bool acceptsData(const Attribute& generic, const Attribute& other)
{
    if (generic.acceptedData.empty() && generic.acceptedPluginData.empty())
        return true;
    const auto& names = generic.acceptedPluginData;
    if (std::find(names.begin(), names.end(), other.pluginDataType) != names.end())
        return true;
    const DataType type = isNumberLeaf(other) || other.isNumberGroup() ? DataType::numeric
                          : other.kind == AttributeKind::matrix        ? DataType::matrix
                                                                       : other.dataType;
    return std::find(generic.acceptedData.begin(), generic.acceptedData.end(), type) !=
           generic.acceptedData.end();
}

bool isMatrix(const Attribute& attribute)
{
    return attribute.kind == AttributeKind::matrix ||
           (attribute.kind == AttributeKind::typed && attribute.dataType == DataType::matrix);
}

/// Whether values of one attribute can go to another, arrays aside.
bool fit(const Attribute& source, const Attribute& destination)
{
    if (destination.kind == AttributeKind::generic)
        return source.kind != AttributeKind::message && acceptsData(destination, source);
    if (source.kind == AttributeKind::generic)
        return destination.kind != AttributeKind::message;
    if (isNumberLeaf(source) || isNumberLeaf(destination))
        return isNumberLeaf(source) && isNumberLeaf(destination);
    if (source.isCompound() || destination.isCompound()) {
        if (source.children.size() != destination.children.size())
            return false;
        return std::equal(source.children.begin(), source.children.end(), destination.children.begin(),
                          [](const Ref<Attribute>& a, const Ref<Attribute>& b) {
                              return a->isArray() == b->isArray() && fit(*a, *b);
                          });
    }
    if (isMatrix(source) || isMatrix(destination))
        return isMatrix(source) && isMatrix(destination);
    return source.kind == destination.kind && source.dataType == destination.dataType &&
           source.pluginDataType == destination.pluginDataType;
}

Outcome refused(const Plug& source, const Plug& destination, Reason reason, const char* why)
{
    return {reason, "Connection not made: '" + source.name() + "' -> '" + destination.name() + "'.  " + why};
}

Outcome checkEnds(const Plug& source, const Plug& destination)
{
    if (source.isNull() || destination.isNull())
        return {Reason::nullArgument, "a plug is null"};
    if (!source.isValid() || !destination.isValid())
        return {Reason::doesNotExist, "a node is gone or has no such attribute"};
    const AttributeFlags& from = source.attribute()->flags;
    const AttributeFlags& to = destination.attribute()->flags;
    if (!from.connectable)
        return refused(source, destination, Reason::notConnectable, "Source attribute is not connectable.");
    if (!to.connectable)
        return refused(source, destination, Reason::notConnectable,
                       "Destination attribute is not connectable.");
    if (!from.readable)
        return refused(source, destination, Reason::notReadable, "Source attribute must be readable.");
    if (!to.writable)
        return refused(source, destination, Reason::notWritable, "Destination attribute must be writable.");
    if (source == destination)
        return refused(source, destination, Reason::cycle, "Source and destination are the same.");
    if (source.isArray() != destination.isArray() || !fit(*source.attribute(), *destination.attribute()))
        return refused(source, destination, Reason::typeMismatch,
                       "Data types of source and destination are not compatible.");
    return {};
}

Outcome checkBehaviours(const Plug& source, const Plug& destination)
{
    const auto says = [](const Plug& plug, const Plug& other, bool asSource) {
        NodeBehaviour* behaviour = plug.node()->behaviour();
        return behaviour ? behaviour->legalConnection(plug, other, asSource).value_or(true) : true;
    };
    if (says(source, destination, true) && says(destination, source, false))
        return {};
    return refused(source, destination, Reason::failed, "A node refused it.");
}

/// Everything that feeds a plug, something above it or something below it.
std::vector<Plug> feedingAround(const Plug& plug)
{
    std::vector<Plug> fed;
    const CellStore& cells = plug.node()->cells();
    const Cell* exact = cells.find(plug);
    for (const Cell* cell = cells.findNearest(plug); cell; cell = cell->parent())
        if (cell->source())
            fed.push_back(cell->plug());
    if (!exact || exact->linkedCells() == 0 || exact->below().empty())
        return fed;
    std::vector<const Cell*> rest = {exact};
    while (!rest.empty()) {
        const Cell* cell = rest.back();
        rest.pop_back();
        for (const std::unique_ptr<Cell>& below : cell->below()) {
            if (!below || below->linkedCells() == 0)
                continue;
            if (below->source())
                fed.push_back(below->plug());
            rest.push_back(below.get());
        }
    }
    return fed;
}

UnitKind unitOf(const Plug& plug)
{
    const Attribute& attribute = *plug.attribute();
    const Attribute& leaf = attribute.isNumberGroup() ? *attribute.children.front() : attribute;
    return leaf.kind == AttributeKind::unit ? leaf.unit : UnitKind::none;
}

/// Times flow through conversions in ticks of 1/6000 s, as files have it.
constexpr double kTicksPerSecond = 6000.0;

double internalPerUi(const Units& units, UnitKind unit)
{
    switch (unit) {
    case UnitKind::angle:
        return radiansPer(units.angle);
    case UnitKind::distance:
        return centimetresPer(units.linear);
    case UnitKind::time:
        return secondsPer(units.time) * kTicksPerSecond;
    case UnitKind::none:
        break;
    }
    return 1.0;
}

bool meetsNumbersOnly(const Plug& plug)
{
    return isSingleNumber(plug) || (plug.attribute()->isNumberGroup() && !plug.isArray());
}

/// The factor of the unitConversion node that a connection needs; nothing when values fit as they are.
std::optional<double> conversionFactor(const Units& units, const Plug& source, const Plug& destination)
{
    if (!meetsNumbersOnly(source) || !meetsNumbersOnly(destination))
        return std::nullopt;
    const UnitKind from = unitOf(source);
    const UnitKind to = unitOf(destination);
    if (from == to)
        return std::nullopt;
    const double factor = internalPerUi(units, to) / internalPerUi(units, from);
    if (factor == 1.0)
        return std::nullopt;
    return factor;
}

void tellBehaviours(const Plug& source, const Plug& destination,
                    void (NodeBehaviour::*member)(const Plug&, const Plug&, bool))
{
    // What their code edits in turn it edits again when this is done again.
    const Journal::Into nothing(source.node()->scene().journal(), nullptr);
    if (NodeBehaviour* behaviour = source.node()->behaviour())
        (behaviour->*member)(source, destination, true);
    if (NodeBehaviour* behaviour = destination.node()->behaviour())
        (behaviour->*member)(destination, source, false);
}

void tellConnection(Happening what, const Plug& source, const Plug& destination)
{
    source.node()->scene().observers().tell({what, destination.node(), source.node(), &destination, &source});
}

void outdateDestination(Cell& cell)
{
    // Its value is another one now, whether or not it was up to date before.
    markClean(cell);
    DirtySpread spread;
    spread.outdated(cell);
    spread.run();
}

/// A connection that is made and taken away. While it is away, its destination holds the value that it had
/// without it; while it is there, that value is kept here.
class Joint
{
public:
    Joint(const Plug& source, const Plug& destination) : m_source(source), m_destination(destination) {}

    void make()
    {
        if (!m_source.isValid() || !m_destination.isValid())
            return;
        m_sourceElement.putBack();
        m_destinationElement.putBack();
        Cell* from = cellsOf(m_source).make(m_source);
        Cell* to = cellsOf(m_destination).make(m_destination);
        if (!from || !to || to->source())
            return;
        m_value.emplace(m_destination);
        to->connectFrom(*from, m_next.isValid() ? cellsOf(m_next).find(m_next) : nullptr);
        outdateDestination(*to);
        tell(&NodeBehaviour::connectionMade);
        tellConnection(Happening::connectionMade, m_source, m_destination);
    }

    void takeAway()
    {
        Cell* cell = m_destination.isValid() ? cellsOf(m_destination).find(m_destination) : nullptr;
        if (!cell || !m_source.isValid() || !cell->source() ||
            cell->source() != cellsOf(m_source).find(m_source))
            return;
        rememberPlace(*cell);
        cell->disconnectFromSource();
        if (m_value)
            m_value->putBack(m_destination);
        markClean(*cell);
        spreadDirty(m_destination);
        m_destinationElement.takeOut();
        m_sourceElement.takeOut();
        tell(&NodeBehaviour::connectionBroken);
        tellConnection(Happening::connectionBroken, m_source, m_destination);
    }

    // For a connection that is about to be made, before its cells are, and one about to be broken.
    void rememberMissing()
    {
        m_sourceElement = ElementLife::missingFor(m_source);
        m_destinationElement = ElementLife::missingFor(m_destination);
        m_value.emplace(m_destination);
    }
    void rememberPlace(const Cell& destination)
    {
        const Cell* next = destination.nextOfSource();
        m_next = next ? next->plug() : Plug();
    }

private:
    static CellStore& cellsOf(const Plug& plug) { return plug.node()->cells(); }
    void tell(void (NodeBehaviour::*member)(const Plug&, const Plug&, bool)) const
    {
        m_source.node()->scene().isModified = true;
        tellBehaviours(m_source, m_destination, member);
    }

    Plug m_source, m_destination;
    Plug m_next; ///< the destination of the source that comes after this one
    ElementLife m_sourceElement, m_destinationElement;
    std::optional<HeldValue> m_value;
};

} // namespace

Outcome Scene::connect(const Plug& source, const Plug& destination, bool force)
{
    if (Outcome outcome = checkEnds(source, destination); !outcome)
        return outcome;
    if (sourceOf(destination) == source)
        return {Reason::sameConnection,
                "'" + source.name() + "' is already connected to '" + destination.name() + "'."};
    if (conversionFactor(m_units, source, destination))
        return connectThroughConversion(source, destination, force);
    return connectChecked(source, destination, force);
}

Outcome Scene::connectChecked(const Plug& source, const Plug& destination, bool force)
{
    if (isLocked(destination))
        return {Reason::lockedOrConnected,
                "The attribute '" + destination.name() + "' is locked or connected and cannot be modified."};
    const std::vector<Plug> fed = feedingAround(destination);
    if (!fed.empty() && !force)
        return {Reason::alreadyConnected, "'" + fed.front().name() +
                                              "' already has an incoming connection from '" +
                                              sourceOf(fed.front()).name() + "'."};
    if (Outcome outcome = checkBehaviours(source, destination); !outcome)
        return outcome;
    for (const Plug& end : {source, destination})
        if (lacksIndex(end))
            return {Reason::badIndex, "'" + end.name() + "' lacks an index"};

    for (const Plug& old : fed)
        breakConnection(sourceOf(old), old);
    if (m_journal.isRecording()) {
        const auto joint = std::make_shared<Joint>(source, destination);
        joint->rememberMissing();
        m_journal.record([joint] { joint->takeAway(); }, [joint] { joint->make(); });
    }
    const Plug added = missingElement(destination);
    tellConnection(Happening::connectionBegun, source, destination);
    Cell& to = *destination.node()->cells().make(destination);
    to.connectFrom(*source.node()->cells().make(source));
    outdateDestination(to);
    isModified = true;
    tellBehaviours(source, destination, &NodeBehaviour::connectionMade);
    tellIfAdded(added);
    tellConnection(Happening::connectionMade, source, destination);
    return {};
}

Outcome Scene::connectThroughConversion(const Plug& source, const Plug& destination, bool force)
{
    const double factor = *conversionFactor(m_units, source, destination);
    const char* type = unitOf(source) == UnitKind::time        ? "timeToUnitConversion"
                       : unitOf(destination) == UnitKind::time ? "unitToTimeConversion"
                                                               : "unitConversion";
    Node& conversion = *createNode(type).value;
    const auto plug = [&](const char* name) { return Plug(conversion, *conversion.findAttribute(name)); };
    storeInternal(plug("conversionFactor"), Number(factor));
    Outcome outcome = connectChecked(plug("output"), destination, force);
    if (outcome)
        outcome = connectChecked(source, plug("input"), false);
    if (!outcome)
        (void)deleteNode(conversion);
    return outcome;
}

Outcome Scene::disconnect(const Plug& source, const Plug& destination)
{
    if (source.isNull() || destination.isNull())
        return {Reason::nullArgument, "a plug is null"};
    if (sourceOf(destination).isNull() || sourceOf(destination) != source)
        return {Reason::notConnected, "There is no connection from '" + source.name() + "' to '" +
                                          destination.name() + "' to disconnect"};
    if (isLocked(destination))
        return {Reason::lockedOrConnected,
                "The attribute '" + destination.name() + "' is locked or connected and cannot be modified."};
    breakConnection(source, destination);
    return {};
}

void Scene::breakConnection(const Plug& source, const Plug& destination)
{
    const auto connected = [&destination] {
        Cell* found = destination.node()->cells().find(destination);
        return found && found->source() ? found : nullptr;
    };
    if (connected())
        tellConnection(Happening::connectionEnding, source, destination);
    Cell* cell = connected();
    if (!cell)
        return;
    if (m_journal.isRecording()) {
        const auto joint = std::make_shared<Joint>(source, destination);
        joint->rememberPlace(*cell);
        m_journal.record([joint] { joint->make(); }, [joint] { joint->takeAway(); });
    }
    cell->disconnectFromSource();
    const int behaviour = destination.attribute()->disconnectBehaviour;
    if (behaviour == 1)
        resetToDefault(destination);
    // The last value that came through stays, and what hangs on it has to look again.
    markClean(*cell);
    spreadDirty(destination);
    if (behaviour == 0 && destination.isElement() && cell->linkedCells() == 0)
        (void)removeElement(destination.array(), destination.logicalIndex());
    isModified = true;
    tellBehaviours(source, destination, &NodeBehaviour::connectionBroken);
    tellConnection(Happening::connectionBroken, source, destination);
}

void Scene::disconnectAll(Node& node)
{
    for (const Plug& plug : connectedPlugs(node)) {
        if (const Plug source = sourceOf(plug); !source.isNull())
            breakConnection(source, plug);
        for (const Plug& destination : destinationsOf(plug))
            breakConnection(plug, destination);
    }
}

Plug Scene::nextAvailable(const Plug& arrayPlug) const
{
    if (!arrayPlug.isValid() || !arrayPlug.isArray())
        return {};
    Cell* array = arrayPlug.node()->cells().make(arrayPlug);
    if (!array)
        return {};
    int& index = array->firstFreeHint;
    while (const Cell* element = array->findElement(index)) {
        if (element->linkedCells() == 0)
            break;
        ++index;
    }
    return arrayPlug.element(index);
}

} // namespace tvxhost::engine
