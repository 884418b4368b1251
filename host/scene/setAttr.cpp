// setAttr: see setAttr.h.
#include "setAttr.h"

#include "numberText.h"
#include "pluginDataText.h"
#include "polyFaces.h"
#include "typedData.h"
#include "uiUnits.h"

#include "engine/node.h"

#include <algorithm>
#include <array>

namespace tvxhost::scene {

using engine::AttributeKind;
using engine::Expected;
using engine::Outcome;
using engine::Plug;
using engine::Reason;

namespace {

// Taking a statement apart

using FlagTarget = std::optional<bool> SetAttrRequest::*;

struct StateFlag
{
    std::string_view shortName;
    std::string_view longName;
    FlagTarget target;
};

constexpr std::array kStateFlags = {
    StateFlag{"k", "keyable", &SetAttrRequest::keyable},
    StateFlag{"l", "lock", &SetAttrRequest::locked},
    StateFlag{"cb", "channelBox", &SetAttrRequest::channelBox},
    StateFlag{"ca", "caching", &SetAttrRequest::caching},
};

constexpr std::array<std::string_view, 4> kSizeFlags = {"s", "size", "ch", "capacityHint"};
constexpr std::array<std::string_view, 2> kClampFlags = {"c", "clamp"};
constexpr std::array<std::string_view, 2> kAlteredFlags = {"av", "alteredValue"};
constexpr std::array<std::string_view, 2> kTypeFlags = {"type", "typ"};

template <class Names>
bool isOneOf(std::string_view name, const Names& names)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// Takes one flag and its value; the position of what follows, or null when the value is missing or wrong.
const mel::Argument* takeFlag(const mel::Argument* flag, const mel::Argument* end, SetAttrRequest& request,
                              Outcome& outcome)
{
    const std::string_view name = flag->text.substr(1);
    if (isOneOf(name, kClampFlags)) {
        request.clamp = true;
        return flag + 1;
    }
    if (isOneOf(name, kAlteredFlags)) {
        request.hasHint = true;
        return flag + 1;
    }
    const auto* state = std::find_if(kStateFlags.begin(), kStateFlags.end(), [&](const StateFlag& candidate) {
        return name == candidate.shortName || name == candidate.longName;
    });
    const bool isSize = isOneOf(name, kSizeFlags);
    const bool isType = isOneOf(name, kTypeFlags);
    if (state == kStateFlags.end() && !isSize && !isType) {
        outcome = {Reason::notFound, "Invalid flag '" + std::string(flag->text) + "'"};
        return nullptr;
    }
    if (flag + 1 == end) {
        outcome = {Reason::failed, "Flag '" + std::string(flag->text) + "' must be passed an argument"};
        return nullptr;
    }
    const mel::Argument& value = flag[1];
    if (isType) {
        request.type = value.text;
    } else if (isSize) {
        request.hasHint = true;
    } else {
        request.*state->target = booleanOf(value);
        if (!(request.*state->target)) {
            outcome = {Reason::failed,
                       "Invalid arguments for flag '" + std::string(flag->text) + "'.  Expected ( on|off )"};
            return nullptr;
        }
    }
    return flag + 2;
}

// Storing numbers

/// The numbers of a statement in internal units, one group per element after the other.
class NumberStream
{
public:
    NumberStream(engine::Attribute& attribute, Words words, const engine::Units& units)
        : m_words(words), m_leaves(numberLeaves(attribute))
    {
        for (const engine::Attribute* leaf : m_leaves)
            m_factors.push_back(internalPerUi(*leaf, units));
        m_values.resize(m_leaves.size());
    }

    bool isNumeric() const { return !m_leaves.empty(); }
    /// Numbers of one size side by side: what arrays can take in one go.
    bool isUniform(const engine::Attribute& attribute) const
    {
        return isNumeric() && (attribute.isNumberGroup() || attribute.children.empty());
    }

    Outcome storeRun(const Plug& array, int first, std::size_t elements)
    {
        std::vector<double> values(elements * m_leaves.size());
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = m_words.number() * m_factors[i % m_factors.size()];
        if (m_words.failed())
            return {Reason::typeMismatch, "Error reading the values"};
        return engine::writeElements(array, first, values.data(), values.size());
    }

    bool canServe(std::size_t elements) const { return m_words.left() >= elements * m_leaves.size(); }

    Outcome storeNext(const Plug& plug, engine::Limits limits)
    {
        for (std::size_t i = 0; i < m_values.size(); ++i)
            m_values[i] = m_words.number() * m_factors[i];
        if (m_words.failed())
            return {Reason::typeMismatch, "Error reading the values"};
        if (m_values.size() > 1)
            return engine::writeNumbers(plug, m_values, limits);
        return engine::writeNumber(plug, number(), limits);
    }

    bool atEnd() const { return m_words.atEnd(); }

private:
    engine::Number number() const
    {
        const engine::NumberKind kind = m_leaves.front()->number;
        const double value = m_values.front();
        if (kind == engine::NumberKind::single || kind == engine::NumberKind::real)
            return value;
        return engine::Number(value).asWhole();
    }

    Words m_words;
    std::vector<engine::Attribute*> m_leaves;
    std::vector<double> m_factors;
    std::vector<double> m_values;
};

Outcome wrongValues(const Plug& plug)
{
    return {Reason::typeMismatch, "Error reading the values of '" + plug.name() + "'"};
}

Outcome storeNumbers(const PlugTarget& target, const SetAttrRequest& request, const SetAttrRules& rules,
                     engine::Limits limits)
{
    Expected<Plug> first = target.isRange ? target.at(target.first) : target.plug;
    if (!first)
        return first.outcome;
    NumberStream numbers(*first.value.attribute(), Words(request.values, request.end), rules.units);
    if (!numbers.isNumeric())
        return {Reason::notImplemented, "The attribute '" + first.value.name() + "' takes no numbers"};
    if (!target.isRange) {
        if (!numbers.canServe(1))
            return wrongValues(target.plug);
        const Outcome stored = numbers.storeNext(target.plug, limits);
        return stored && !numbers.atEnd() ? wrongValues(target.plug) : stored;
    }
    if (!numbers.canServe(target.count()))
        return wrongValues(target.plug);
    if (target.tail.empty() && limits != engine::Limits::clamp &&
        numbers.isUniform(*target.plug.attribute())) {
        const Outcome stored = numbers.storeRun(target.plug, target.first, target.count());
        return stored && !numbers.atEnd() ? wrongValues(target.plug) : stored;
    }
    for (std::size_t i = 0; i < target.count(); ++i) {
        const Expected<Plug> plug = target.nth(i);
        if (!plug)
            return plug.outcome;
        if (const Outcome stored = numbers.storeNext(plug.value, limits); !stored)
            return {stored.reason, refusedWriteMessage(plug.value, stored, rules.units)};
    }
    return numbers.atEnd() ? Outcome() : wrongValues(target.plug);
}

/// Arrays below a range ("wl[0:3].w"): per element of the range a count, then that many pairs of index and
/// value.
Outcome storeSparse(const PlugTarget& target, const SetAttrRequest& request, const SetAttrRules& rules)
{
    Words words(request.values, request.end);
    for (std::size_t i = 0; i < target.count() && !words.failed(); ++i) {
        const Expected<Plug> array = target.nth(i);
        if (!array)
            return array.outcome;
        const double factor = internalPerUi(*array.value.attribute(), rules.units);
        for (std::size_t left = words.count(2); left > 0; --left) {
            const int index = words.integer();
            const double value = words.number() * factor;
            if (words.failed() || index < 0)
                return wrongValues(target.plug);
            if (const Outcome stored = engine::writeNumber(array.value.element(index), value, rules.limits);
                !stored)
                return stored;
        }
    }
    return words.failed() || !words.atEnd() ? wrongValues(target.plug) : Outcome();
}

bool isSparse(const PlugTarget& target)
{
    if (!target.isRange || target.tail.empty())
        return false;
    const Expected<Plug> first = target.at(target.first);
    return first && first.value.isArray() && numberLeaves(*first.value.attribute()).size() == 1;
}

// Storing data

/// Whether a statement gives faces: it says so, or it goes on with a list whose first statement did.
bool givesFaces(const PlugTarget& target, const SetAttrRequest& request)
{
    const engine::Attribute& attribute = *target.plug.attribute();
    return request.type == kPolyFacesType ||
           (request.type.empty() && attribute.kind == AttributeKind::typed &&
            attribute.dataType == engine::DataType::polyFaces);
}

/// The values of a statement as they stand in it: from behind `-type "T"` to before the semicolon.
std::string rawValues(std::string_view source, std::string_view typeName)
{
    const std::size_t flag = source.find(" -type");
    const std::size_t type = flag == std::string_view::npos ? flag : source.find(typeName, flag + 6);
    if (type == std::string_view::npos)
        return {};
    std::size_t begin = type + typeName.size();
    if (begin < source.size() && source[begin] == '"')
        ++begin;
    const std::size_t end = source.rfind(';');
    if (end == std::string_view::npos || end < begin)
        return {};
    std::string raw(source.substr(begin, end - begin));
    raw.erase(std::remove(raw.begin(), raw.end(), '\r'), raw.end());
    return raw;
}

Expected<engine::Ref<engine::Data>> makeData(const SetAttrRequest& request, engine::Scene& scene)
{
    if (const auto type = scene.dataTypes().find(std::string(request.type)))
        return parsePluginData(type, request.values, request.end);
    Words words(request.values, request.end);
    if (!isKnownDataType(request.type))
        if (std::string raw = rawValues(request.source, request.type); !raw.empty())
            return engine::Ref<engine::Data>(new engine::KeptData(std::string(request.type), std::move(raw)));
    return parseData(request.type, words);
}

Outcome storeData(const PlugTarget& target, const SetAttrRequest& request)
{
    if (givesFaces(target, request))
        return storePolyFaces(target, Words(request.values, request.end));
    if (target.isRange && target.first != target.last)
        return {Reason::typeMismatch,
                "Values of type '" + std::string(request.type) + "' cannot be set in a range"};
    const Expected<Plug> plug = target.isRange ? target.at(target.first) : target.plug;
    if (!plug)
        return plug.outcome;
    const auto data = makeData(request, plug.value.node()->scene());
    if (!data)
        return data.outcome;
    engine::Outcome stored = engine::giveData(plug.value, data.value);
    // Data that nobody here understands may well belong there all the same.
    if (stored.reason == Reason::typeMismatch && data.value->type() == engine::DataType::plugin)
        stored.reason = Reason::notImplemented;
    return stored;
}

bool isKeptNumeric(const Plug& plug)
{
    const engine::Attribute& attribute = *plug.attribute();
    return attribute.kind == AttributeKind::typed && attribute.dataType == engine::DataType::plugin;
}

Outcome storeValues(const PlugTarget& target, const SetAttrRequest& request, const SetAttrRules& rules)
{
    const engine::Limits limits = request.clamp ? engine::Limits::clamp : rules.limits;
    const bool isNumeric = request.type.empty() || isNumericTypeName(request.type);
    Outcome stored;
    if (isSparse(target))
        stored = storeSparse(target, request, rules);
    else if (isNumeric && !isKeptNumeric(target.plug) && !givesFaces(target, request))
        stored = storeNumbers(target, request, rules, limits);
    else
        stored = storeData(target, request);
    return {stored.reason, stored ? std::string() : refusedWriteMessage(target.plug, stored, rules.units)};
}

// State

/// Elements whose state one statement changes at most: each gets a place of its own.
constexpr std::size_t kMostStates = 1 << 20;

void changeState(const Plug& plug, const SetAttrRequest& request)
{
    engine::PlugState state = engine::stateOf(plug);
    state.locked = request.locked.value_or(state.locked);
    if (request.keyable)
        state.keyable = request.keyable;
    if (request.channelBox)
        state.channelBox = request.channelBox;
    if (request.caching)
        state.caching = request.caching;
    engine::setState(plug, state);
}

Outcome changeStates(const PlugTarget& target, const SetAttrRequest& request)
{
    if (!target.isRange) {
        changeState(target.plug, request);
        return {};
    }
    if (target.count() > kMostStates)
        return {Reason::badIndex, "Illegal range of elements: '" + target.plug.name() + "'"};
    for (std::size_t i = 0; i < target.count(); ++i) {
        const Expected<Plug> plug = target.nth(i);
        if (!plug)
            return plug.outcome;
        changeState(plug.value, request);
    }
    return {};
}

/// Whether a statement asks for a value: types that are written without one count ("newParticles").
bool setsValue(const SetAttrRequest& request)
{
    return request.hasValues() || !request.type.empty();
}

/// The engine's text says internal units; where the user's are others, they are said instead.
std::string limitMessage(const Plug& plug, const Outcome& outcome, const engine::Units& units)
{
    const engine::Attribute& attribute = *plug.attribute();
    const bool isMaximum = outcome.reason == Reason::pastMaximum;
    const std::optional<double>& limit = isMaximum ? attribute.maximum : attribute.minimum;
    if (attribute.unit == engine::UnitKind::none || !limit)
        return outcome.text;
    return "Cannot set the attribute '" + plug.name() + "' past its " + (isMaximum ? "maximum" : "minimum") +
           " value of " + doubleText(*limit / internalPerUi(attribute, units)) + ".";
}

} // namespace

Expected<SetAttrRequest> parseSetAttr(const mel::ArgumentList& arguments)
{
    SetAttrRequest request;
    request.end = arguments.end();
    request.values = request.end;
    const mel::Argument* next = arguments.begin();
    bool hasPlug = false;
    while (next != request.end) {
        const bool isFlag = hasPlug ? next->kind == mel::ArgumentKind::flag : next->looksLikeFlag();
        if (isFlag) {
            Outcome outcome;
            next = takeFlag(next, request.end, request, outcome);
            if (!next)
                return outcome;
        } else if (!hasPlug) {
            request.plug = next->text;
            hasPlug = true;
            ++next;
        } else {
            break;
        }
    }
    if (!hasPlug)
        return {Reason::failed, "No attribute was specified"};
    request.values = next;
    // Flags may follow the values: `setAttr n.a 1 -lock on`.
    const mel::Argument* flags = std::find_if(next, request.end, [](const mel::Argument& argument) {
        return argument.kind == mel::ArgumentKind::flag;
    });
    for (const mel::Argument* flag = flags; flag && flag != request.end;) {
        Outcome outcome;
        if (flag->kind != mel::ArgumentKind::flag)
            return {Reason::failed, "Error reading the values"};
        flag = takeFlag(flag, request.end, request, outcome);
        if (!flag)
            return outcome;
    }
    request.end = flags;
    return request;
}

Outcome applySetAttr(const PlugTarget& target, const SetAttrRequest& request, const SetAttrRules& rules)
{
    if (setsValue(request)) {
        if (Outcome stored = storeValues(target, request, rules); !stored)
            return stored;
    } else if (!request.changesState() && !request.hasHint) {
        return {Reason::failed, "No values were given for '" + target.plug.name() + "'"};
    }
    return request.changesState() ? changeStates(target, request) : Outcome();
}

std::string refusedWriteMessage(const Plug& plug, const Outcome& outcome, const engine::Units& units)
{
    switch (outcome.reason) {
    case Reason::lockedOrConnected:
        return "The attribute '" + plug.name() + "' is locked or connected and cannot be modified.";
    case Reason::pastMinimum:
    case Reason::pastMaximum:
        return limitMessage(plug, outcome, units);
    default:
        return outcome.text.empty() ? "Cannot set the attribute '" + plug.name() + "'." : outcome.text;
    }
}

} // namespace tvxhost::scene
