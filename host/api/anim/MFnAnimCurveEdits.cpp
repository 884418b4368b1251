// MFnAnimCurve: changing keys, tangents and infinities.
#include <maya/MFnAnimCurve.h>

#include "engine/scene.h"
#include "support/apiCall.h"
#include "support/curveSet.h"

#include <maya/MAngle.h>
#include <maya/MDoubleArray.h>
#include <maya/MTimeArray.h>

#include <cmath>
#include <utility>
#include <vector>

using namespace tvxhost;
using api::curveOf;
using api::failure;
using api::StatusText;
using api::wrongSort;
using engine::AnimCurveKeys;
using engine::AnimKey;
using engine::KeySide;

namespace {

/// Reads the keys, has them changed and writes them when that went well; `change` records it.
template <class Change>
MStatus edit(const MFnBase& set, MAnimCurveChange* record, Change change)
{
    engine::Node* node = curveOf(set);
    if (!node)
        return api::notAttached();
    AnimCurveKeys keys = engine::readCurve(*node);
    const AnimCurveKeys before = keys;
    if (const MStatus changed = change(keys, std::as_const(*node)); !changed)
        return changed;
    const MStatus written = api::toStatus(engine::writeCurve(*node, keys));
    if (written && record)
        api::CurveChanges::of(*record).edits.push_back({node, before, keys});
    return written;
}

/// The same for one key.
template <class Change>
MStatus editKey(const MFnBase& set, unsigned int index, MAnimCurveChange* record, Change change)
{
    return edit(set, record, [&](AnimCurveKeys& keys, const engine::Node& node) -> MStatus {
        if (index >= keys.keys.size())
            return failure(StatusText::noElementAtIndex);
        return change(keys, node);
    });
}

KeySide sideOf(bool inTangent)
{
    return inTangent ? KeySide::in : KeySide::out;
}

/// A place of the curve's own sort, in internal units.
struct Input
{
    double at;
    bool isTime;
};

Input inputOf(const MTime& time)
{
    return {api::internalValue(time), true};
}

Input inputOf(double number)
{
    return {number, false};
}

/// A value as callers give it.
struct CallersValue
{
    double number;
    bool isTime;
};

struct TangentKinds
{
    std::optional<engine::TangentKind> in;
    std::optional<engine::TangentKind> out;
};

TangentKinds kindsOf(MFnAnimCurve::TangentType in, MFnAnimCurve::TangentType out)
{
    const api::GlobalTangents& globals = api::globalTangents();
    return {api::tangentKind(in == MFnAnimCurve::kTangentGlobal ? globals.in : in),
            api::tangentKind(out == MFnAnimCurve::kTangentGlobal ? globals.out : out)};
}

/// Adds or sets a key; a key that is there keeps what is not given.
MStatus putKey(const MFnBase& set, const Input& input, const CallersValue& value, const TangentKinds& kinds,
               MAnimCurveChange* record, unsigned int& index)
{
    if (!kinds.in || !kinds.out)
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    return edit(set, record, [&](AnimCurveKeys& keys, const engine::Node& node) -> MStatus {
        if (engine::isTimed(node) != input.isTime || (value.isTime && !api::yieldsTime(node)))
            return wrongSort();
        const auto there = keys.find(input.at);
        AnimKey key = there ? keys.keys[*there] : AnimKey();
        if (!there)
            key.at = input.at;
        key.value = value.isTime ? value.number : value.number * api::valuePerCaller(node);
        const std::size_t place = keys.put(key);
        keys.setKind(place, KeySide::in, *kinds.in);
        keys.setKind(place, KeySide::out, *kinds.out);
        index = static_cast<unsigned int>(place);
        return MS::kSuccess;
    });
}

unsigned int addKeyAt(const MFnBase& set, const Input& input, const CallersValue& value,
                      const TangentKinds& kinds, MAnimCurveChange* record, MStatus* returnStatus)
{
    unsigned int index = 0;
    api::give(returnStatus, putKey(set, input, value, kinds, record, index));
    return index;
}

MStatus moveKey(const MFnBase& set, unsigned int index, const Input& input, MAnimCurveChange* record)
{
    return editKey(set, index, record, [&](AnimCurveKeys& keys, const engine::Node& node) -> MStatus {
        if (engine::isTimed(node) != input.isTime)
            return wrongSort();
        return keys.move(index, input.at) ? MStatus() : failure(StatusText::unexpectedFailure);
    });
}

MStatus setKinds(const MFnBase& set, const std::vector<unsigned int>& indices, const TangentKinds& kinds,
                 bool changesIn, bool changesOut, MAnimCurveChange* record)
{
    if (!kinds.in || !kinds.out)
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    return edit(set, record, [&](AnimCurveKeys& keys, const engine::Node&) -> MStatus {
        for (const unsigned int index : indices)
            if (index >= keys.keys.size())
                return failure(StatusText::noElementAtIndex);
        for (const unsigned int index : indices) {
            if (changesIn)
                keys.setKind(index, KeySide::in, *kinds.in);
            if (changesOut)
                keys.setKind(index, KeySide::out, *kinds.out);
        }
        return MS::kSuccess;
    });
}

MStatus setKeyFlag(const MFnBase& set, unsigned int index, bool AnimKey::*flag, bool value,
                   MAnimCurveChange* record)
{
    return editKey(set, index, record, [&](AnimCurveKeys& keys, const engine::Node&) {
        keys.keys[index].*flag = value;
        return MStatus();
    });
}

bool exists(MFnAnimCurve::InfinityType type)
{
    return type == MFnAnimCurve::kConstant || type == MFnAnimCurve::kLinear ||
           (type >= MFnAnimCurve::kCycle && type <= MFnAnimCurve::kOscillate);
}

MStatus setInfinity(const MFnBase& set, engine::CurveInfinity AnimCurveKeys::*which,
                    MFnAnimCurve::InfinityType type, MAnimCurveChange* record)
{
    if (!exists(type))
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    return edit(set, record, [&](AnimCurveKeys& keys, const engine::Node&) {
        keys.*which = static_cast<engine::CurveInfinity>(type);
        return MStatus();
    });
}

/// Has the handle of one side changed: its angle, its length, or both.
template <class Change>
MStatus changeHandle(const MFnBase& set, unsigned int index, bool inTangent, MAnimCurveChange* record,
                     Change change)
{
    return editKey(set, index, record, [&](AnimCurveKeys& keys, const engine::Node& node) {
        const KeySide side = sideOf(inTangent);
        engine::TangentHandle handle = engine::handleOf(node, keys, index, side);
        change(handle);
        keys.setTangent(index, side, engine::directionOf(node, handle, keys.isWeighted));
        return MStatus();
    });
}

} // namespace

MStatus MFnAnimCurve::remove(unsigned int index, MAnimCurveChange* change)
{
    TVX_API_CALL("MFnAnimCurve::remove");
    return editKey(*this, index, change, [&](AnimCurveKeys& keys, const engine::Node&) {
        keys.keys.erase(keys.keys.begin() + static_cast<std::ptrdiff_t>(index));
        return MStatus();
    });
}

MStatus MFnAnimCurve::addKeyframe(const MTime& time, double value, MAnimCurveChange* change)
{
    TVX_API_CALL("MFnAnimCurve::addKeyframe");
    unsigned int index = 0;
    return putKey(*this, inputOf(time), {value, false}, kindsOf(kTangentGlobal, kTangentGlobal), change,
                  index);
}

MStatus MFnAnimCurve::addKeyframe(const MTime& time, double value, TangentType tangentInType,
                                  TangentType tangentOutType, MAnimCurveChange* change)
{
    TVX_API_CALL("MFnAnimCurve::addKeyframe");
    unsigned int index = 0;
    return putKey(*this, inputOf(time), {value, false}, kindsOf(tangentInType, tangentOutType), change,
                  index);
}

unsigned int MFnAnimCurve::addKey(const MTime& time, double value, TangentType tangentInType,
                                  TangentType tangentOutType, MAnimCurveChange* change, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnAnimCurve::addKey", ReturnStatus, 0u);
    return addKeyAt(*this, inputOf(time), {value, false}, kindsOf(tangentInType, tangentOutType), change,
                    ReturnStatus);
}

unsigned int MFnAnimCurve::addKey(const MTime& timeInput, const MTime& timeValue, TangentType tangentInType,
                                  TangentType tangentOutType, MAnimCurveChange* change, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnAnimCurve::addKey", ReturnStatus, 0u);
    return addKeyAt(*this, inputOf(timeInput), {api::internalValue(timeValue), true},
                    kindsOf(tangentInType, tangentOutType), change, ReturnStatus);
}

unsigned int MFnAnimCurve::addKey(double unitlessInput, double value, TangentType tangentInType,
                                  TangentType tangentOutType, MAnimCurveChange* change, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnAnimCurve::addKey", ReturnStatus, 0u);
    return addKeyAt(*this, inputOf(unitlessInput), {value, false}, kindsOf(tangentInType, tangentOutType),
                    change, ReturnStatus);
}

unsigned int MFnAnimCurve::addKey(double unitlessInput, const MTime& time, TangentType tangentInType,
                                  TangentType tangentOutType, MAnimCurveChange* change, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnAnimCurve::addKey", ReturnStatus, 0u);
    return addKeyAt(*this, inputOf(unitlessInput), {api::internalValue(time), true},
                    kindsOf(tangentInType, tangentOutType), change, ReturnStatus);
}

MStatus MFnAnimCurve::addKeys(MTimeArray* timeArray, MDoubleArray* valueArray, TangentType tangentInType,
                              TangentType tangentOutType, bool keepExistingKeys, MAnimCurveChange* change)
{
    TVX_API_CALL("MFnAnimCurve::addKeys");
    if (!timeArray || !valueArray)
        return failure(StatusText::nullArgument);
    const TangentKinds kinds = kindsOf(tangentInType, tangentOutType);
    if (timeArray->length() != valueArray->length() || !kinds.in || !kinds.out)
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    return edit(*this, change, [&](AnimCurveKeys& keys, const engine::Node& node) -> MStatus {
        if (!engine::isTimed(node))
            return wrongSort();
        if (!keepExistingKeys)
            keys.keys.clear();
        for (unsigned int i = 0; i < timeArray->length(); ++i) {
            AnimKey key;
            key.at = api::internalValue((*timeArray)[i]);
            key.value = (*valueArray)[i] * api::valuePerCaller(node);
            key.in.kind = *kinds.in;
            key.out.kind = *kinds.out;
            keys.put(key);
        }
        return MS::kSuccess;
    });
}

MStatus MFnAnimCurve::setValue(unsigned int index, double value, MAnimCurveChange* change)
{
    TVX_API_CALL("MFnAnimCurve::setValue");
    return editKey(*this, index, change, [&](AnimCurveKeys& keys, const engine::Node& node) {
        keys.keys[index].value = value * api::valuePerCaller(node);
        return MStatus();
    });
}

MStatus MFnAnimCurve::setTime(unsigned int index, const MTime& time, MAnimCurveChange* change)
{
    TVX_API_CALL("MFnAnimCurve::setTime");
    return moveKey(*this, index, inputOf(time), change);
}

MStatus MFnAnimCurve::setUnitlessInput(unsigned int index, double unitlessInput, MAnimCurveChange* change)
{
    TVX_API_CALL("MFnAnimCurve::setUnitlessInput");
    return moveKey(*this, index, inputOf(unitlessInput), change);
}

MStatus MFnAnimCurve::setInTangentType(unsigned int index, TangentType tangentType, MAnimCurveChange* change)
{
    TVX_API_CALL("MFnAnimCurve::setInTangentType");
    return setKinds(*this, {index}, kindsOf(tangentType, tangentType), true, false, change);
}

MStatus MFnAnimCurve::setOutTangentType(unsigned int index, TangentType tangentType, MAnimCurveChange* change)
{
    TVX_API_CALL("MFnAnimCurve::setOutTangentType");
    return setKinds(*this, {index}, kindsOf(tangentType, tangentType), false, true, change);
}

MStatus MFnAnimCurve::setTangentTypes(MIntArray indexArray, TangentType tangentInType,
                                      TangentType tangentOutType, MAnimCurveChange* change)
{
    TVX_API_CALL("MFnAnimCurve::setTangentTypes");
    std::vector<unsigned int> indices;
    for (unsigned int i = 0; i < indexArray.length(); ++i)
        indices.push_back(static_cast<unsigned int>(indexArray[i]));
    return setKinds(*this, indices, kindsOf(tangentInType, tangentOutType), true, true, change);
}

MStatus MFnAnimCurve::setTangent(unsigned int index, float x, float y, bool inTangent,
                                 MAnimCurveChange* change, bool convertUnits)
{
    TVX_API_CALL("MFnAnimCurve::setTangent");
    return editKey(*this, index, change, [&](AnimCurveKeys& keys, const engine::Node& node) {
        const double perInput = convertUnits ? engine::inputPerUi(node) : 1.0;
        const double perValue = convertUnits ? engine::valuePerUi(node) : 1.0;
        keys.setTangent(index, sideOf(inTangent),
                        {static_cast<double>(x) * perInput, static_cast<double>(y) * perValue});
        return MStatus();
    });
}

MStatus MFnAnimCurve::setTangent(unsigned int index, const MAngle& angle, double weight, bool inTangent,
                                 MAnimCurveChange* change, bool convertUnits)
{
    TVX_API_CALL("MFnAnimCurve::setTangent");
    if (!convertUnits)
        return editKey(*this, index, change, [&](AnimCurveKeys& keys, const engine::Node&) {
            const double length = keys.isWeighted ? 3.0 * weight : 1.0;
            const double radians = api::internalValue(angle);
            keys.setTangent(index, sideOf(inTangent),
                            {length * std::cos(radians), length * std::sin(radians)});
            return MStatus();
        });
    return changeHandle(*this, index, inTangent, change, [&](engine::TangentHandle& handle) {
        handle = {api::internalValue(angle), weight};
    });
}

MStatus MFnAnimCurve::setAngle(unsigned int index, const MAngle& angle, bool inTangent,
                               MAnimCurveChange* change)
{
    TVX_API_CALL("MFnAnimCurve::setAngle");
    return changeHandle(*this, index, inTangent, change,
                        [&](engine::TangentHandle& handle) { handle.angle = api::internalValue(angle); });
}

MStatus MFnAnimCurve::setWeight(unsigned int index, double weight, bool inTangent, MAnimCurveChange* change)
{
    TVX_API_CALL("MFnAnimCurve::setWeight");
    engine::Node* node = curveOf(*this);
    if (node && !engine::readCurve(*node).isWeighted)
        return wrongSort();
    return changeHandle(*this, index, inTangent, change,
                        [&](engine::TangentHandle& handle) { handle.weight = weight; });
}

MStatus MFnAnimCurve::setWeightsLocked(unsigned int index, bool locked, MAnimCurveChange* change)
{
    TVX_API_CALL("MFnAnimCurve::setWeightsLocked");
    return setKeyFlag(*this, index, &AnimKey::weightsLocked, locked, change);
}

MStatus MFnAnimCurve::setTangentsLocked(unsigned int index, bool locked, MAnimCurveChange* change)
{
    TVX_API_CALL("MFnAnimCurve::setTangentsLocked");
    return setKeyFlag(*this, index, &AnimKey::tangentsLocked, locked, change);
}

MStatus MFnAnimCurve::setPreInfinityType(InfinityType infinityType, MAnimCurveChange* change)
{
    TVX_API_CALL("MFnAnimCurve::setPreInfinityType");
    return setInfinity(*this, &AnimCurveKeys::before, infinityType, change);
}

MStatus MFnAnimCurve::setPostInfinityType(InfinityType infinityType, MAnimCurveChange* change)
{
    TVX_API_CALL("MFnAnimCurve::setPostInfinityType");
    return setInfinity(*this, &AnimCurveKeys::after, infinityType, change);
}

MStatus MFnAnimCurve::setIsWeighted(bool isWeighted, MAnimCurveChange* change)
{
    TVX_API_CALL("MFnAnimCurve::setIsWeighted");
    return edit(*this, change, [&](AnimCurveKeys& keys, const engine::Node&) {
        keys.setWeighted(isWeighted);
        return MStatus();
    });
}

MStatus MFnAnimCurve::setIsBreakdown(unsigned int index, bool isBreakdown, MAnimCurveChange* change)
{
    TVX_API_CALL("MFnAnimCurve::setIsBreakdown");
    return setKeyFlag(*this, index, &AnimKey::isBreakdown, isBreakdown, change);
}
