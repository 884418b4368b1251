// Particles: see particle.h.
#include "particle.h"

#include "scene.h"
#include "values.h"

#include <algorithm>
#include <limits>
#include <string_view>

namespace tvxhost::engine {

namespace {

bool isArrayOfValues(const Attribute& attribute)
{
    return attribute.kind == AttributeKind::typed && !attribute.isArray() &&
           (attribute.dataType == DataType::doubleArray || attribute.dataType == DataType::vectorArray ||
            attribute.dataType == DataType::intArray);
}

/// "mass0" → "mass"; null when the attribute is no initial state, such as one that only the node itself
/// writes.
Attribute* stateOfInitial(const Node& particles, const Attribute& initial)
{
    if (!isArrayOfValues(initial) || !initial.flags.writable || initial.longName.back() != '0')
        return nullptr;
    Attribute* state = particles.findAttribute(initial.longName.substr(0, initial.longName.size() - 1));
    return state && state->dataType == initial.dataType ? state : nullptr;
}

bool isState(const Node& particles, const Attribute& attribute)
{
    return isArrayOfValues(attribute) && !stateOfInitial(particles, attribute) &&
           (attribute.flags.dynamic || initialStateOf(particles, attribute));
}

class ParticleBehaviour final : public NodeBehaviour
{
public:
    explicit ParticleBehaviour(Node& node) : m_node(node) {}

    Computed compute(const Plug& plug) override
    {
        if (plug.attribute()->longName == "count") {
            keepNumber(plug, Number(static_cast<std::int64_t>(particleCount(m_node))));
            setClean(plug);
            return Computed::done;
        }
        // What is computed holds for this time: the next one is to be heard of.
        static_cast<void>(evaluate(Plug(m_node, *m_node.findAttribute("currentTime"))));
        Attribute* initial = initialStateOf(m_node, *plug.attribute());
        const Expected<Ref<Data>> data = initial ? readData(Plug(m_node, *initial)) : Reason::noData;
        if (!data || !data.value)
            return Computed::unknown;
        keepData(plug, data.value->clone());
        setClean(plug);
        return Computed::done;
    }

    bool computes(const Attribute& dynamic) const override { return isState(m_node, dynamic); }

    std::optional<bool> shouldSave(const Plug& plug) override
    {
        // Of a state that has a beginning, the beginning is what files keep.
        return isState(m_node, *plug.attribute()) && initialStateOf(m_node, *plug.attribute())
                   ? std::optional(false)
                   : std::nullopt;
    }

    void setDependentsDirty(const Plug& plug, std::vector<Plug>& further) override
    {
        if (plug.attribute()->longName == "currentTime") {
            for (Attribute* state : particleState(m_node))
                further.emplace_back(m_node, *state);
        } else if (Attribute* state = stateOfInitial(m_node, *plug.attribute())) {
            further.emplace_back(m_node, *state);
        }
    }

private:
    Node& m_node;
};

/// What a new particle begins with where that is not zero.
double startValue(const Node& particles, const std::string& attribute)
{
    if (attribute == "mass")
        return 1.0;
    if (attribute == "birthTime")
        return particles.scene().time();
    return attribute == "lifespanPP" ? static_cast<double>(std::numeric_limits<float>::max()) : 0.0;
}

/// The elements of an attribute as they are now.
template <class ArrayClass>
decltype(ArrayClass::values) elementsOf(Node& particles, Attribute& attribute)
{
    const Ref<Data> data = readData(Plug(particles, attribute)).value;
    const auto* array = dynamic_cast<const ArrayClass*>(data.get());
    return array ? array->values : decltype(ArrayClass::values)();
}

/// Brings the elements of an attribute to a number and has the new ones filled.
template <class ArrayClass, class Fill>
void resize(Node& particles, Attribute& attribute, std::size_t count, Fill fill)
{
    auto values = elementsOf<ArrayClass>(particles, attribute);
    const std::size_t before = std::min(values.size(), count);
    values.resize(count);
    for (std::size_t i = before; i < count; ++i)
        fill(values[i], i);
    storeInternal(Plug(particles, attribute), Ref<Data>(new ArrayClass(std::move(values))));
}

struct Newcomers
{
    std::size_t before = 0; ///< particles that are there already
    const std::vector<Vec3d>& positions;
    const std::vector<Vec3d>& velocities;
};

Vec3d startVector(const std::string& attribute, const Newcomers& newcomers, std::size_t index)
{
    const std::vector<Vec3d>* given = attribute == "position"   ? &newcomers.positions
                                      : attribute == "velocity" ? &newcomers.velocities
                                                                : nullptr;
    const std::size_t which = index - newcomers.before;
    return given && index >= newcomers.before && which < given->size() ? (*given)[which] : Vec3d(0);
}

std::int64_t nextIdOf(Node& particles)
{
    const Expected<Plug> plug = particles.findPlug("nextId");
    return plug ? readNumber(plug.value).value.asWhole() : 0;
}

/// Brings every attribute of the present state to this number of particles.
void resizeState(Node& particles, std::size_t count, const Newcomers& newcomers)
{
    std::int64_t nextId = nextIdOf(particles);
    for (Attribute* state : particleState(particles)) {
        const std::string& name = state->longName;
        if (state->dataType == DataType::vectorArray)
            resize<VectorArrayData>(particles, *state, count, [&](Vec3d& value, std::size_t i) {
                value = startVector(name, newcomers, i);
            });
        else if (state->dataType == DataType::intArray)
            resize<IntArrayData>(particles, *state, count,
                                 [](std::int32_t& value, std::size_t) { value = 0; });
        else if (name == "particleId")
            resize<DoubleArrayData>(particles, *state, count, [&](double& value, std::size_t) {
                value = static_cast<double>(nextId++);
            });
        else
            resize<DoubleArrayData>(particles, *state, count,
                                    [&](double& value, std::size_t) { value = startValue(particles, name); });
    }
    if (const Expected<Plug> plug = particles.findPlug("nextId"))
        storeInternal(plug.value, Number(nextId));
}

} // namespace

bool isPerParticle(const Node& particles, const Attribute& attribute)
{
    return isState(particles, attribute) || stateOfInitial(particles, attribute);
}

Attribute* initialStateOf(const Node& particles, const Attribute& state)
{
    if (!isArrayOfValues(state))
        return nullptr;
    Attribute* initial = particles.findAttribute(state.longName + "0");
    return initial && stateOfInitial(particles, *initial) == &state ? initial : nullptr;
}

std::vector<Attribute*> particleState(const Node& particles)
{
    std::vector<Attribute*> state;
    for (Attribute* attribute : particles.attributes())
        if (isState(particles, *attribute))
            state.push_back(attribute);
    return state;
}

std::size_t particleCount(Node& particles)
{
    Attribute* position = particles.findAttribute("position");
    const Expected<Ref<Data>> data = position ? readData(Plug(particles, *position)) : Reason::notFound;
    const auto* vectors = dynamic_cast<const VectorArrayData*>(data.value.get());
    return vectors ? vectors->values.size() : 0;
}

Outcome emitParticles(Node& particles, const std::vector<Vec3d>& positions,
                      const std::vector<Vec3d>& velocities)
{
    if (!particles.type().isA("particle"))
        return {Reason::wrongKind, "'" + particles.name() + "' is not a particle shape"};
    const std::size_t before = particleCount(particles);
    resizeState(particles, before + positions.size(), {before, positions, velocities});
    return {};
}

Outcome setParticleCount(Node& particles, std::size_t count)
{
    if (!particles.type().isA("particle"))
        return {Reason::wrongKind, "'" + particles.name() + "' is not a particle shape"};
    const std::vector<Vec3d> none;
    resizeState(particles, count, {particleCount(particles), none, none});
    return {};
}

Outcome saveInitialState(Node& particles)
{
    for (Attribute* state : particleState(particles)) {
        Attribute* initial = initialStateOf(particles, *state);
        const Expected<Ref<Data>> data = readData(Plug(particles, *state));
        if (!initial || !data || !data.value)
            continue;
        // A copy: writing the initial state outdates the present one.
        const Ref<Data> present = data.value->clone();
        if (Outcome written = writeData(Plug(particles, *initial), *present); !written)
            return written;
    }
    const Expected<Plug> nextId0 = particles.findPlug("nextId0");
    return nextId0 ? writeNumber(nextId0.value, Number(nextIdOf(particles))) : Outcome();
}

void addParticleBehaviour(TypeTable& types)
{
    types.find("particle")->behaviour = [](Node& node) { return std::make_unique<ParticleBehaviour>(node); };
}

} // namespace tvxhost::engine
