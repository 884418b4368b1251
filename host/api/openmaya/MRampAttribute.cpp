// MRampAttribute: ramps of numbers and of colours.
#include <maya/MColor.h>
#include <maya/MColorArray.h>
#include <maya/MFloatArray.h>
#include <maya/MIntArray.h>
#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MRampAttribute.h>
#include <maya/MString.h>

#include "engine/ramp.h"
#include "support/functionSet.h"
#include "support/plugCall.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

using namespace tvxhost::api;
using tvxhost::engine::Outcome;
using tvxhost::engine::Plug;
using tvxhost::engine::RampEntry;
using Entries = std::vector<RampEntry>;
using Value = std::array<double, 3>;

namespace {

MStatus badValue()
{
    return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
}

bool isOfKind(const Plug& plug, bool isColor)
{
    return isColor ? tvxhost::engine::isColorRamp(plug) : tvxhost::engine::isNumberRamp(plug);
}

/// Success for a living ramp, of a kind or of any.
MStatus rampStatus(const Plug& plug)
{
    if (plug.isNull() || !plug.isValid())
        return failure(StatusText::objectDoesNotExist);
    return isOfKind(plug, true) || isOfKind(plug, false) ? MStatus()
                                                         : failure(StatusText::objectIsIncompatible);
}

MStatus rampStatus(const Plug& plug, bool isColor)
{
    const MStatus status = rampStatus(plug);
    return !status || isOfKind(plug, isColor) ? status : failure(StatusText::objectIsIncompatible);
}

Value valueOf(float number)
{
    return {static_cast<double>(number), 0.0, 0.0};
}

Value valueOf(const MColor& color)
{
    return {static_cast<double>(color.r), static_cast<double>(color.g), static_cast<double>(color.b)};
}

void assign(const Value& value, float& number)
{
    number = static_cast<float>(value[0]);
}

void assign(const Value& value, MColor& color)
{
    color = MColor(static_cast<float>(value[0]), static_cast<float>(value[1]), static_cast<float>(value[2]));
}

// Which kind of ramp an array or value belongs to.
constexpr bool isColorful(const MColorArray*)
{
    return true;
}
constexpr bool isColorful(const MFloatArray*)
{
    return false;
}
constexpr bool isColorful(const MColor*)
{
    return true;
}
constexpr bool isColorful(const float*)
{
    return false;
}

bool isInterpolation(int number)
{
    return number >= MRampAttribute::kNone && number <= MRampAttribute::kSpline;
}

/// The entries that equally long arrays tell, with the indices from 0 up; nothing when they do not fit.
template <class Values>
std::optional<Entries> entriesOf(const MFloatArray& positions, const Values& values, const MIntArray& interps)
{
    if (values.length() != positions.length() || interps.length() != positions.length())
        return std::nullopt;
    Entries entries;
    for (unsigned int i = 0; i < positions.length(); ++i) {
        if (!isInterpolation(interps[i]))
            return std::nullopt;
        entries.push_back({static_cast<int>(i), static_cast<double>(positions[i]), valueOf(values[i]),
                           static_cast<RampEntry::Interpolation>(interps[i])});
    }
    return entries;
}

bool hasEntry(const Plug& ramp, int index)
{
    const auto indices = tvxhost::engine::existingElements(ramp);
    return std::find(indices.begin(), indices.end(), index) != indices.end();
}

template <class Values>
MStatus listEntries(const Plug& ramp, MIntArray& indexes, MFloatArray& positions, Values& values,
                    MIntArray& interps)
{
    if (const MStatus status = rampStatus(ramp, isColorful(&values)); !status)
        return status;
    indexes.clear();
    positions.clear();
    values.clear();
    interps.clear();
    for (const RampEntry& entry : tvxhost::engine::rampEntries(ramp)) {
        indexes.append(entry.index);
        positions.append(static_cast<float>(entry.position));
        std::decay_t<decltype(values[0])> value{};
        assign(entry.value, value);
        values.append(value);
        interps.append(static_cast<int>(entry.interpolation));
    }
    return MS::kSuccess;
}

template <class Values>
MStatus add(const Plug& ramp, const MFloatArray& positions, const Values& values, const MIntArray& interps)
{
    if (const MStatus status = rampStatus(ramp, isColorful(&values)); !status)
        return status;
    const auto entries = entriesOf(positions, values, interps);
    if (!entries)
        return badValue();
    int free = 0;
    for (RampEntry entry : *entries) {
        while (hasEntry(ramp, free))
            ++free;
        entry.index = free;
        if (const Outcome written = tvxhost::engine::writeRampEntry(ramp, entry); !written)
            return plugStatus(written);
    }
    return MS::kSuccess;
}

/// Changes one entry that is there.
template <class Change>
MStatus changeEntry(const Plug& ramp, const MStatus& isRamp, unsigned int index, Change change)
{
    if (!isRamp)
        return isRamp;
    if (index > static_cast<unsigned int>(std::numeric_limits<int>::max()) ||
        !hasEntry(ramp, static_cast<int>(index)))
        return failure(StatusText::noElementAtIndex);
    return plugStatus(change(static_cast<int>(index)));
}

template <class T>
MStatus valueAt(const Plug& ramp, float position, T& value)
{
    const MStatus status = rampStatus(ramp, isColorful(&value));
    if (status)
        assign(
            tvxhost::engine::rampValueAt(tvxhost::engine::rampEntries(ramp), static_cast<double>(position)),
            value);
    return status;
}

template <class Values>
MStatus sample(const Plug& ramp, unsigned int count, Values& values)
{
    if (const MStatus status = rampStatus(ramp, isColorful(&values)); !status)
        return status;
    const Entries entries = tvxhost::engine::rampEntries(ramp);
    values.clear();
    for (unsigned int i = 0; i < count; ++i) {
        std::decay_t<decltype(values[0])> value{};
        assign(tvxhost::engine::rampValueAt(entries, count > 1 ? static_cast<double>(i) / (count - 1) : 0.0),
               value);
        values.append(value);
    }
    return MS::kSuccess;
}

MStatus replace(const Plug& ramp, bool isColor, const std::optional<Entries>& entries)
{
    if (const MStatus status = rampStatus(ramp, isColor); !status)
        return status;
    return entries ? plugStatus(tvxhost::engine::replaceRamp(ramp, *entries)) : badValue();
}

std::optional<Entries> oneEntry(const Value& value, float position, int interpolation)
{
    if (!isInterpolation(interpolation))
        return std::nullopt;
    return Entries{
        {0, static_cast<double>(position), value, static_cast<RampEntry::Interpolation>(interpolation)}};
}

/// An attribute of its own, when its names are legal.
MObject makeAttribute(const char* name, const MString& longName, const MString& shortName, bool isColor,
                      MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, MObject());
    const auto made =
        tvxhost::engine::makeRamp(tvxAccess::text(longName), tvxAccess::text(shortName), isColor);
    giveSuccess(returnStatus);
    return tvxAccess::handle(made.get());
}

MObject makeOn(const MObject& object, const MString& longName, const MString& shortName, bool isColor,
               const std::optional<Entries>& entries, MStatus* returnStatus)
{
    TVX_API_CALL_OR("MRampAttribute::createRamp", returnStatus, MObject());
    auto* node = nodeOf(object);
    const auto made =
        tvxhost::engine::makeRamp(tvxAccess::text(longName), tvxAccess::text(shortName), isColor);
    MStatus status = node && entries ? plugStatus(node->addDynamicAttribute(made))
                     : node          ? badValue()
                                     : failure(StatusText::objectIsIncompatible);
    if (status)
        status = plugStatus(tvxhost::engine::replaceRamp(Plug(*node, *made), *entries));
    give(returnStatus, status);
    return status ? tvxAccess::handle(made.get()) : MObject();
}

} // namespace

MRampAttribute::MRampAttribute() : plug(new Plug) {}

MRampAttribute::MRampAttribute(const MRampAttribute& other) : plug(new Plug(*other.plug)) {}

MRampAttribute::MRampAttribute(const MPlug& obj, MStatus* ReturnStatus) : plug(new Plug)
{
    TVX_API_CONSTRUCTION("MRampAttribute::MRampAttribute", ReturnStatus);
    const MStatus status = rampStatus(tvxAccess::plug(obj));
    if (status)
        *plug = tvxAccess::plug(obj);
    give(ReturnStatus, status);
}

MRampAttribute::MRampAttribute(const MObject& node, const MObject& attr, MStatus* ReturnStatus)
    : MRampAttribute(MPlug(node, attr), ReturnStatus)
{
}

MRampAttribute& MRampAttribute::operator=(const MRampAttribute& other)
{
    *plug = *other.plug;
    return *this;
}

MRampAttribute::~MRampAttribute()
{
    delete plug;
}

const char* MRampAttribute::className()
{
    return "MRampAttribute";
}

// Entries

unsigned int MRampAttribute::getNumEntries(MStatus* returnStatus)
{
    TVX_API_CALL_OR("MRampAttribute::getNumEntries", returnStatus, 0);
    const MStatus status = rampStatus(*plug);
    give(returnStatus, status);
    return status ? static_cast<unsigned int>(tvxhost::engine::existingElements(*plug).size()) : 0;
}

void MRampAttribute::getEntries(MIntArray& indexes, MFloatArray& positions, MFloatArray& values,
                                MIntArray& interps, MStatus* returnStatus)
{
    TVX_API_CONSTRUCTION("MRampAttribute::getEntries", returnStatus);
    give(returnStatus, listEntries(*plug, indexes, positions, values, interps));
}

void MRampAttribute::getEntries(MIntArray& indexes, MFloatArray& positions, MColorArray& colors,
                                MIntArray& interps, MStatus* returnStatus)
{
    TVX_API_CONSTRUCTION("MRampAttribute::getEntries", returnStatus);
    give(returnStatus, listEntries(*plug, indexes, positions, colors, interps));
}

void MRampAttribute::addEntries(MFloatArray& positions, MColorArray& values, MIntArray& interps,
                                MStatus* returnStatus)
{
    TVX_API_CONSTRUCTION("MRampAttribute::addEntries", returnStatus);
    give(returnStatus, add(*plug, positions, values, interps));
}

void MRampAttribute::addEntries(MFloatArray& positions, MFloatArray& values, MIntArray& interps,
                                MStatus* returnStatus)
{
    TVX_API_CONSTRUCTION("MRampAttribute::addEntries", returnStatus);
    give(returnStatus, add(*plug, positions, values, interps));
}

void MRampAttribute::deleteEntries(MIntArray& indexes, MStatus* returnStatus)
{
    TVX_API_CONSTRUCTION("MRampAttribute::deleteEntries", returnStatus);
    MStatus status = rampStatus(*plug);
    for (unsigned int i = 0; status && i < indexes.length(); ++i)
        status = changeEntry(*plug, status, static_cast<unsigned int>(indexes[i]),
                             [this](int index) { return tvxhost::engine::removeElement(*plug, index); });
    give(returnStatus, status);
}

void MRampAttribute::setColorAtIndex(MColor& color, unsigned int index, MStatus* returnStatus)
{
    TVX_API_CONSTRUCTION("MRampAttribute::setColorAtIndex", returnStatus);
    give(returnStatus, changeEntry(*plug, rampStatus(*plug, true), index, [&](int place) {
             return tvxhost::engine::writeRampValue(*plug, place, valueOf(color));
         }));
}

void MRampAttribute::setValueAtIndex(float value, unsigned int index, MStatus* returnStatus)
{
    TVX_API_CONSTRUCTION("MRampAttribute::setValueAtIndex", returnStatus);
    give(returnStatus, changeEntry(*plug, rampStatus(*plug, false), index, [&](int place) {
             return tvxhost::engine::writeRampValue(*plug, place, valueOf(value));
         }));
}

void MRampAttribute::setPositionAtIndex(float position, unsigned int index, MStatus* returnStatus)
{
    TVX_API_CONSTRUCTION("MRampAttribute::setPositionAtIndex", returnStatus);
    give(returnStatus, changeEntry(*plug, rampStatus(*plug), index, [&](int place) {
             return tvxhost::engine::writeRampPosition(*plug, place, static_cast<double>(position));
         }));
}

void MRampAttribute::setInterpolationAtIndex(MInterpolation interp, unsigned int index, MStatus* returnStatus)
{
    TVX_API_CONSTRUCTION("MRampAttribute::setInterpolationAtIndex", returnStatus);
    const MStatus status = isInterpolation(interp) ? rampStatus(*plug) : badValue();
    give(returnStatus, changeEntry(*plug, status, index, [&](int place) {
             return tvxhost::engine::writeRampInterpolation(*plug, place,
                                                            static_cast<RampEntry::Interpolation>(interp));
         }));
}

bool MRampAttribute::hasIndex(unsigned int index, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MRampAttribute::hasIndex", ReturnStatus, false);
    const MStatus status = rampStatus(*plug);
    give(ReturnStatus, status);
    return status && index <= static_cast<unsigned int>(std::numeric_limits<int>::max()) &&
           hasEntry(*plug, static_cast<int>(index));
}

// Kinds and values

bool MRampAttribute::isColorRamp(MStatus* returnStatus) const
{
    TVX_API_CALL_OR("MRampAttribute::isColorRamp", returnStatus, false);
    give(returnStatus, rampStatus(*plug));
    return isOfKind(*plug, true);
}

bool MRampAttribute::isCurveRamp(MStatus* returnStatus) const
{
    TVX_API_CALL_OR("MRampAttribute::isCurveRamp", returnStatus, false);
    give(returnStatus, rampStatus(*plug));
    return isOfKind(*plug, false);
}

void MRampAttribute::getColorAtPosition(float position, MColor& color, MStatus* returnStatus, MDGContext&)
{
    TVX_API_CONSTRUCTION("MRampAttribute::getColorAtPosition", returnStatus);
    give(returnStatus, valueAt(*plug, position, color));
}

void MRampAttribute::getValueAtPosition(float position, float& value, MStatus* returnStatus, MDGContext&)
{
    TVX_API_CONSTRUCTION("MRampAttribute::getValueAtPosition", returnStatus);
    give(returnStatus, valueAt(*plug, position, value));
}

void MRampAttribute::sampleColorRamp(unsigned int numberOfSamples, MColorArray& colors, MStatus* returnStatus,
                                     MDGContext&)
{
    TVX_API_CONSTRUCTION("MRampAttribute::sampleColorRamp", returnStatus);
    give(returnStatus, sample(*plug, numberOfSamples, colors));
}

void MRampAttribute::sampleValueRamp(unsigned int numberOfSamples, MFloatArray& values, MStatus* returnStatus,
                                     MDGContext&)
{
    TVX_API_CONSTRUCTION("MRampAttribute::sampleValueRamp", returnStatus);
    give(returnStatus, sample(*plug, numberOfSamples, values));
}

// The whole

MStatus MRampAttribute::sort(bool ascending)
{
    TVX_API_CALL("MRampAttribute::sort");
    if (const MStatus status = rampStatus(*plug); !status)
        return status;
    const auto indices = tvxhost::engine::existingElements(*plug);
    Entries entries = tvxhost::engine::rampEntries(*plug);
    std::stable_sort(entries.begin(), entries.end(), [ascending](const RampEntry& a, const RampEntry& b) {
        return ascending ? a.position < b.position : a.position > b.position;
    });
    for (std::size_t i = 0; i < entries.size(); ++i) {
        entries[i].index = indices[i];
        if (const Outcome written = tvxhost::engine::writeRampEntry(*plug, entries[i]); !written)
            return plugStatus(written);
    }
    return MS::kSuccess;
}

MStatus MRampAttribute::pack()
{
    TVX_API_CALL("MRampAttribute::pack");
    if (const MStatus status = rampStatus(*plug); !status)
        return status;
    Entries entries = tvxhost::engine::rampEntries(*plug);
    for (std::size_t i = 0; i < entries.size(); ++i)
        entries[i].index = static_cast<int>(i);
    return plugStatus(tvxhost::engine::replaceRamp(*plug, entries));
}

MStatus MRampAttribute::setRamp(float value, float position, MInterpolation interp)
{
    TVX_API_CALL("MRampAttribute::setRamp");
    return replace(*plug, false, oneEntry(valueOf(value), position, interp));
}

MStatus MRampAttribute::setRamp(const MColor& color, float position, MInterpolation interp)
{
    TVX_API_CALL("MRampAttribute::setRamp");
    return replace(*plug, true, oneEntry(valueOf(color), position, interp));
}

MStatus MRampAttribute::setRamp(const MFloatArray& values, const MFloatArray& positions,
                                const MIntArray& interps)
{
    TVX_API_CALL("MRampAttribute::setRamp");
    return replace(*plug, false, entriesOf(positions, values, interps));
}

MStatus MRampAttribute::setRamp(const MColorArray& values, const MFloatArray& positions,
                                const MIntArray& interps)
{
    TVX_API_CALL("MRampAttribute::setRamp");
    return replace(*plug, true, entriesOf(positions, values, interps));
}

// Making

MObject MRampAttribute::createCurveRamp(const MString& attrLongName, const MString& attrShortName,
                                        MStatus* ReturnStatus)
{
    return makeAttribute("MRampAttribute::createCurveRamp", attrLongName, attrShortName, false, ReturnStatus);
}

MObject MRampAttribute::createColorRamp(const MString& attrLongName, const MString& attrShortName,
                                        MStatus* ReturnStatus)
{
    return makeAttribute("MRampAttribute::createColorRamp", attrLongName, attrShortName, true, ReturnStatus);
}

MObject MRampAttribute::createRamp(const MString& attrLongName, const MString& attrShortName,
                                   const MObject& node, float val, float pos, MInterpolation interp,
                                   MStatus* ReturnStatus)
{
    return makeOn(node, attrLongName, attrShortName, false, oneEntry(valueOf(val), pos, interp),
                  ReturnStatus);
}

MObject MRampAttribute::createRamp(const MString& attrLongName, const MString& attrShortName,
                                   const MObject& node, const MColor& color, float pos, MInterpolation interp,
                                   MStatus* ReturnStatus)
{
    return makeOn(node, attrLongName, attrShortName, true, oneEntry(valueOf(color), pos, interp),
                  ReturnStatus);
}

MObject MRampAttribute::createRamp(const MString& attrLongName, const MString& attrShortName,
                                   const MObject& node, const MFloatArray& values,
                                   const MFloatArray& positions, const MIntArray& interps,
                                   MStatus* ReturnStatus)
{
    return makeOn(node, attrLongName, attrShortName, false, entriesOf(positions, values, interps),
                  ReturnStatus);
}

MObject MRampAttribute::createRamp(const MString& attrLongName, const MString& attrShortName,
                                   const MObject& node, const MColorArray& colors,
                                   const MFloatArray& positions, const MIntArray& interps,
                                   MStatus* ReturnStatus)
{
    return makeOn(node, attrLongName, attrShortName, true, entriesOf(positions, colors, interps),
                  ReturnStatus);
}
