// MFnAnimCurve: making curves and asking what they hold. The edits are in MFnAnimCurveEdits.cpp.
#include <maya/MFnAnimCurve.h>

#include "engine/number.h"
#include "engine/scene.h"
#include "support/apiCall.h"
#include "support/curveSet.h"

#include <maya/MAngle.h>
#include <maya/MDGModifier.h>
#include <maya/MPlug.h>

#include <cmath>

using namespace tvxhost;
using api::curveOf;
using api::failure;
using api::give;
using api::StatusText;
using api::wrongSort;
using engine::AnimCurveKeys;
using engine::KeySide;

namespace {

/// What a query sees.
struct Asked
{
    const engine::Node& node;
    const AnimCurveKeys keys;
};

/// Asks the curve; `query` returns a status and writes its answer itself.
template <class Query>
MStatus ask(const MFnBase& set, Query query)
{
    engine::Node* node = curveOf(set);
    return node ? query(Asked{*node, engine::readCurve(*node)}) : api::notAttached();
}

template <class Answer, class Query>
Answer answer(const MFnBase& set, MStatus* returnStatus, Answer neutral, Query query)
{
    give(returnStatus, ask(set, [&](const Asked& curve) { return query(curve, neutral); }));
    return neutral;
}

/// The same for one key.
template <class Answer, class Query>
Answer answerOfKey(const MFnBase& set, unsigned int index, MStatus* returnStatus, Answer neutral, Query query)
{
    return answer(set, returnStatus, neutral, [&](const Asked& curve, Answer& result) -> MStatus {
        if (index >= curve.keys.keys.size())
            return failure(StatusText::noElementAtIndex);
        result = query(curve, curve.keys.keys[index]);
        return MS::kSuccess;
    });
}

/// The value at an input, when the curve takes such inputs.
MStatus evaluateAt(const MFnBase& set, double input, bool isTime, double& internal, double& perCaller)
{
    return ask(set, [&](const Asked& curve) -> MStatus {
        if (engine::isTimed(curve.node) != isTime)
            return wrongSort();
        internal = curve.keys.valueAt(input);
        perCaller = api::valuePerCaller(curve.node);
        return MS::kSuccess;
    });
}

MStatus evaluateNumber(const MFnBase& set, double input, bool isTime, double& value)
{
    double internal = 0.0;
    double perCaller = 1.0;
    const MStatus status = evaluateAt(set, input, isTime, internal, perCaller);
    if (status)
        value = internal / perCaller;
    return status;
}

MStatus evaluateTime(const MFnBase& set, double input, bool isTime, MTime& value)
{
    const engine::Node* node = curveOf(set);
    if (node && !api::yieldsTime(*node))
        return wrongSort();
    double internal = 0.0;
    double perCaller = 1.0;
    const MStatus status = evaluateAt(set, input, isTime, internal, perCaller);
    if (status)
        value = api::fromInternal<MTime>(internal);
    return status;
}

/// The type of curve that fits a plug.
MFnAnimCurve::AnimCurveType typeForPlug(const MPlug& plug, bool timed, MStatus* returnStatus)
{
    const engine::Plug p = tvxAccess::plug(plug);
    if (!p.isValid()) {
        give(returnStatus, failure(StatusText::nullArgument));
        return MFnAnimCurve::kAnimCurveUnknown;
    }
    const auto type = api::curveTypeNamed(engine::curveTypeFor(*p.attribute(), timed));
    const bool exists = type != MFnAnimCurve::kAnimCurveUnknown;
    give(returnStatus, exists ? MStatus() : failure(StatusText::objectIsIncompatible));
    return type;
}

MObject attachTo(MFnAnimCurve& set, engine::Node* node)
{
    const MObject handle = tvxAccess::handle(node);
    static_cast<void>(api::attachTo(set, handle));
    return handle;
}

/// Makes a curve through a modifier, which can then take it away.
MObject makeByModifier(MFnAnimCurve& set, const engine::Plug& fed, const std::string& type,
                       MDGModifier& modifier, MStatus* returnStatus)
{
    if (!fed.isNull() && (engine::isLocked(fed) || engine::isFedAnywhere(fed))) {
        give(returnStatus, failure(StatusText::unexpectedFailure));
        return MObject();
    }
    MStatus status;
    const MObject made = modifier.createNode(MString(type.c_str()), &status);
    engine::Node* node = api::nodeOf(made);
    if (status && !fed.isNull()) {
        status = modifier.renameNode(made, MString(engine::curveNameFor(fed).c_str()));
        if (status)
            status = modifier.connect(tvxAccess::plug(engine::Plug(*node, *node->findAttribute("output"))),
                                      tvxAccess::plug(fed));
    }
    if (status)
        status = modifier.newPlugValueBool(
            tvxAccess::plug(engine::Plug(*node, *node->findAttribute("weightedTangents"))), false);
    if (status)
        status = modifier.doIt();
    give(returnStatus, status);
    return status ? attachTo(set, node) : MObject();
}

/// Makes a curve of a type that feeds a plug, or (a null plug) nothing.
MObject make(MFnAnimCurve& set, const engine::Plug& fed, const std::string& type, MDGModifier* modifier,
             MStatus* returnStatus)
{
    if (type.empty()) {
        give(returnStatus, failure(MS::kInvalidParameter, StatusText::unexpectedFailure));
        return MObject();
    }
    if (modifier)
        return makeByModifier(set, fed, type, *modifier, returnStatus);
    const auto made =
        fed.isNull() ? engine::Scene::current().createNode(type) : engine::makeCurveFor(fed, type);
    engine::Outcome outcome = made.outcome;
    if (made)
        outcome = engine::writeCurve(*made.value, AnimCurveKeys());
    give(returnStatus, api::toStatus(outcome));
    return made ? attachTo(set, made.value) : MObject();
}

MObject makeFor(MFnAnimCurve& set, const MPlug& plug, const std::string* type, MDGModifier* modifier,
                MStatus* returnStatus)
{
    const engine::Plug fed = tvxAccess::plug(plug);
    if (!fed.isValid() || fed.isArray() || !engine::isNumberLeaf(*fed.attribute())) {
        give(returnStatus,
             failure(fed.isValid() ? StatusText::objectIsIncompatible : StatusText::nullArgument));
        return MObject();
    }
    return make(set, fed, type ? *type : engine::curveTypeFor(*fed.attribute(), true), modifier,
                returnStatus);
}

MFnAnimCurve::InfinityType infinityOf(const MFnBase& set, MStatus* returnStatus,
                                      engine::CurveInfinity AnimCurveKeys::*which)
{
    return answer(set, returnStatus, MFnAnimCurve::kConstant,
                  [&](const Asked& curve, MFnAnimCurve::InfinityType& result) {
                      result = static_cast<MFnAnimCurve::InfinityType>(curve.keys.*which);
                      return MStatus();
                  });
}

MFnAnimCurve::TangentType typeOfSide(const MFnBase& set, unsigned int index, MStatus* returnStatus,
                                     KeySide side)
{
    return answerOfKey(
        set, index, returnStatus, MFnAnimCurve::kTangentGlobal,
        [&](const Asked&, const engine::AnimKey& key) { return api::tangentType(key.side(side).kind); });
}

bool flagOf(const MFnBase& set, unsigned int index, MStatus* returnStatus, bool engine::AnimKey::*flag)
{
    return answerOfKey(set, index, returnStatus, false,
                       [&](const Asked&, const engine::AnimKey& key) { return key.*flag; });
}

bool findKey(const MFnBase& set, double input, bool isTime, unsigned int& index, MStatus* returnStatus)
{
    return answer(set, returnStatus, false, [&](const Asked& curve, bool& isFound) -> MStatus {
        if (engine::isTimed(curve.node) != isTime)
            return wrongSort();
        const auto found = curve.keys.find(input);
        isFound = found.has_value();
        if (found)
            index = static_cast<unsigned int>(*found);
        return MS::kSuccess;
    });
}

unsigned int findClosestKey(const MFnBase& set, double input, bool isTime, MStatus* returnStatus)
{
    return answer(set, returnStatus, 0u, [&](const Asked& curve, unsigned int& index) -> MStatus {
        if (engine::isTimed(curve.node) != isTime)
            return wrongSort();
        if (curve.keys.keys.empty())
            return failure(StatusText::noElementAtIndex);
        index = static_cast<unsigned int>(curve.keys.closest(input));
        return MS::kSuccess;
    });
}

} // namespace

TVX_FUNCTION_SET(MFnAnimCurve, MFn::kAnimCurve)

MFnAnimCurve::MFnAnimCurve(const MPlug& plug, MStatus* ReturnStatus)
{
    TVX_API_CONSTRUCTION("MFnAnimCurve::MFnAnimCurve", ReturnStatus);
    const engine::Plug fed = tvxAccess::plug(plug);
    engine::Node* node = fed.isValid() ? engine::curveFeeding(fed) : nullptr;
    give(ReturnStatus,
         node ? api::attachTo(*this, tvxAccess::handle(node)) : failure(StatusText::objectIsIncompatible));
}

MObject MFnAnimCurve::create(const MObject& node, const MObject& attribute, MDGModifier* modifier,
                             MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnAnimCurve::create", ReturnStatus, MObject());
    return makeFor(*this, MPlug(node, attribute), nullptr, modifier, ReturnStatus);
}

MObject MFnAnimCurve::create(const MObject& node, const MObject& attribute, AnimCurveType animCurveType,
                             MDGModifier* modifier, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnAnimCurve::create", ReturnStatus, MObject());
    const std::string type = api::curveTypeName(animCurveType);
    return makeFor(*this, MPlug(node, attribute), &type, modifier, ReturnStatus);
}

MObject MFnAnimCurve::create(const MPlug& plug, MDGModifier* modifier, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnAnimCurve::create", ReturnStatus, MObject());
    return makeFor(*this, plug, nullptr, modifier, ReturnStatus);
}

MObject MFnAnimCurve::create(const MPlug& plug, AnimCurveType animCurveType, MDGModifier* modifier,
                             MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnAnimCurve::create", ReturnStatus, MObject());
    const std::string type = api::curveTypeName(animCurveType);
    return makeFor(*this, plug, &type, modifier, ReturnStatus);
}

MObject MFnAnimCurve::create(AnimCurveType animCurveType, MDGModifier* modifier, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnAnimCurve::create", ReturnStatus, MObject());
    return make(*this, engine::Plug(), api::curveTypeName(animCurveType), modifier, ReturnStatus);
}

MFnAnimCurve::AnimCurveType MFnAnimCurve::animCurveType(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::animCurveType", ReturnStatus, kAnimCurveUnknown);
    const engine::Node* node = curveOf(*this);
    give(ReturnStatus, node ? MStatus() : api::notAttached());
    return node ? api::curveTypeNamed(node->type().name) : kAnimCurveUnknown;
}

MFnAnimCurve::AnimCurveType MFnAnimCurve::timedAnimCurveTypeForPlug(MPlug& plug, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::timedAnimCurveTypeForPlug", ReturnStatus, kAnimCurveUnknown);
    return typeForPlug(plug, true, ReturnStatus);
}

MFnAnimCurve::AnimCurveType MFnAnimCurve::unitlessAnimCurveTypeForPlug(MPlug& plug,
                                                                       MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::unitlessAnimCurveTypeForPlug", ReturnStatus, kAnimCurveUnknown);
    return typeForPlug(plug, false, ReturnStatus);
}

double MFnAnimCurve::evaluate(const MTime& atTime, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::evaluate", ReturnStatus, 0.0);
    double value = 0.0;
    give(ReturnStatus, evaluateNumber(*this, api::internalValue(atTime), true, value));
    return value;
}

MStatus MFnAnimCurve::evaluate(const MTime& atTime, double& value) const
{
    TVX_API_CALL("MFnAnimCurve::evaluate");
    return evaluateNumber(*this, api::internalValue(atTime), true, value);
}

MStatus MFnAnimCurve::evaluate(const MTime& atTime, MTime& timeValue) const
{
    TVX_API_CALL("MFnAnimCurve::evaluate");
    return evaluateTime(*this, api::internalValue(atTime), true, timeValue);
}

MStatus MFnAnimCurve::evaluate(const double& atUnitlessInput, double& value) const
{
    TVX_API_CALL("MFnAnimCurve::evaluate");
    return evaluateNumber(*this, atUnitlessInput, false, value);
}

MStatus MFnAnimCurve::evaluate(const double& atUnitlessInput, MTime& timeValue) const
{
    TVX_API_CALL("MFnAnimCurve::evaluate");
    return evaluateTime(*this, atUnitlessInput, false, timeValue);
}

bool MFnAnimCurve::isStatic(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::isStatic", ReturnStatus, false);
    return answer(*this, ReturnStatus, false, [](const Asked& curve, bool& result) {
        result = curve.keys.isStatic();
        return MStatus();
    });
}

unsigned int MFnAnimCurve::numKeyframes(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::numKeyframes", ReturnStatus, 0u);
    return numKeys(ReturnStatus);
}

unsigned int MFnAnimCurve::numKeys(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::numKeys", ReturnStatus, 0u);
    return answer(*this, ReturnStatus, 0u, [](const Asked& curve, unsigned int& result) {
        result = static_cast<unsigned int>(curve.keys.keys.size());
        return MStatus();
    });
}

bool MFnAnimCurve::find(const MTime& time, unsigned int& index, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::find", ReturnStatus, false);
    return findKey(*this, api::internalValue(time), true, index, ReturnStatus);
}

bool MFnAnimCurve::find(double unitlessInput, unsigned int& index, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::find", ReturnStatus, false);
    return findKey(*this, unitlessInput, false, index, ReturnStatus);
}

unsigned int MFnAnimCurve::findClosest(const MTime& time, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::findClosest", ReturnStatus, 0u);
    return findClosestKey(*this, api::internalValue(time), true, ReturnStatus);
}

unsigned int MFnAnimCurve::findClosest(double unitlessInput, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::findClosest", ReturnStatus, 0u);
    return findClosestKey(*this, unitlessInput, false, ReturnStatus);
}

MTime MFnAnimCurve::time(unsigned int index, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::time", ReturnStatus, MTime());
    const engine::Node* node = curveOf(*this);
    if (node && !engine::isTimed(*node)) {
        give(ReturnStatus, wrongSort());
        return MTime();
    }
    return answerOfKey(*this, index, ReturnStatus, MTime(), [](const Asked&, const engine::AnimKey& key) {
        return api::fromInternal<MTime>(key.at);
    });
}

double MFnAnimCurve::value(unsigned int index, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::value", ReturnStatus, 0.0);
    return answerOfKey(*this, index, ReturnStatus, 0.0, [](const Asked& curve, const engine::AnimKey& key) {
        return key.value / api::valuePerCaller(curve.node);
    });
}

double MFnAnimCurve::unitlessInput(unsigned int index, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::unitlessInput", ReturnStatus, 0.0);
    const engine::Node* node = curveOf(*this);
    if (node && engine::isTimed(*node)) {
        give(ReturnStatus, wrongSort());
        return 0.0;
    }
    return answerOfKey(*this, index, ReturnStatus, 0.0,
                       [](const Asked&, const engine::AnimKey& key) { return key.at; });
}

bool MFnAnimCurve::isTimeInput(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::isTimeInput", ReturnStatus, false);
    const engine::Node* node = curveOf(*this);
    return api::requireAttached(node, ReturnStatus) && engine::isTimed(*node);
}

bool MFnAnimCurve::isUnitlessInput(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::isUnitlessInput", ReturnStatus, false);
    const engine::Node* node = curveOf(*this);
    return api::requireAttached(node, ReturnStatus) && !engine::isTimed(*node);
}

MFnAnimCurve::TangentType MFnAnimCurve::inTangentType(unsigned int index, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::inTangentType", ReturnStatus, kTangentGlobal);
    return typeOfSide(*this, index, ReturnStatus, KeySide::in);
}

MFnAnimCurve::TangentType MFnAnimCurve::outTangentType(unsigned int index, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::outTangentType", ReturnStatus, kTangentGlobal);
    return typeOfSide(*this, index, ReturnStatus, KeySide::out);
}

MStatus MFnAnimCurve::getTangent(unsigned int index, float& x, float& y, bool inTangent) const
{
    TVX_API_CALL("MFnAnimCurve::getTangent");
    return ask(*this, [&](const Asked& curve) -> MStatus {
        if (index >= curve.keys.keys.size())
            return failure(StatusText::noElementAtIndex);
        const auto tangent = curve.keys.tangent(index, inTangent ? KeySide::in : KeySide::out);
        x = static_cast<float>(tangent.x);
        y = static_cast<float>(tangent.y);
        return MS::kSuccess;
    });
}

MStatus MFnAnimCurve::getTangent(unsigned int index, MAngle& angle, double& weight, bool inTangent) const
{
    TVX_API_CALL("MFnAnimCurve::getTangent");
    return ask(*this, [&](const Asked& curve) -> MStatus {
        if (index >= curve.keys.keys.size())
            return failure(StatusText::noElementAtIndex);
        const auto handle =
            engine::handleOf(curve.node, curve.keys, index, inTangent ? KeySide::in : KeySide::out);
        angle = MAngle(handle.angle, MAngle::kRadians);
        weight = handle.weight;
        return MS::kSuccess;
    });
}

bool MFnAnimCurve::weightsLocked(unsigned int index, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::weightsLocked", ReturnStatus, false);
    return flagOf(*this, index, ReturnStatus, &engine::AnimKey::weightsLocked);
}

bool MFnAnimCurve::tangentsLocked(unsigned int index, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::tangentsLocked", ReturnStatus, false);
    return flagOf(*this, index, ReturnStatus, &engine::AnimKey::tangentsLocked);
}

MFnAnimCurve::InfinityType MFnAnimCurve::preInfinityType(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::preInfinityType", ReturnStatus, kConstant);
    return infinityOf(*this, ReturnStatus, &AnimCurveKeys::before);
}

MFnAnimCurve::InfinityType MFnAnimCurve::postInfinityType(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::postInfinityType", ReturnStatus, kConstant);
    return infinityOf(*this, ReturnStatus, &AnimCurveKeys::after);
}

bool MFnAnimCurve::isWeighted(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::isWeighted", ReturnStatus, false);
    return answer(*this, ReturnStatus, false, [](const Asked& curve, bool& result) {
        result = curve.keys.isWeighted;
        return MStatus();
    });
}

bool MFnAnimCurve::isBreakdown(unsigned int index, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAnimCurve::isBreakdown", ReturnStatus, false);
    return flagOf(*this, index, ReturnStatus, &engine::AnimKey::isBreakdown);
}
