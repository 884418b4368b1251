// MArrayDataBuilder: new elements for an array.
#include <maya/MArrayDataBuilder.h>
#include <maya/MDataBlock.h>

#include "support/apiCall.h"
#include "support/builderState.h"
#include "support/dataBlockState.h"
#include "support/functionSet.h"
#include "support/notImplemented.h"

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::Plug;

namespace {

void setBuilding(MArrayDataBuilder& builder, ArrayBuilding* building)
{
    std::memcpy(tvxAccess::storage(builder), &building, sizeof building);
}

/// The element at an index, made when it is missing.
MDataHandle elementOf(ArrayBuilding& building, int index, MStatus* returnStatus)
{
    const Plug element = building.array.element(index);
    const auto slot = tvxhost::engine::outputSlot(element);
    const auto state = slot ? HandleState::of(element, slot.value, true) : std::nullopt;
    if (!state) {
        give(returnStatus, failure(MS::kInvalidParameter, StatusText::unexpectedFailure));
        return MDataHandle();
    }
    building.indices.insert(index);
    giveSuccess(returnStatus);
    return state->handle();
}

} // namespace

namespace tvxhost::api {

ArrayBuilding* buildingOf(const MArrayDataBuilder& builder)
{
    ArrayBuilding* building = nullptr;
    std::memcpy(&building, tvxAccess::storage(builder), sizeof building);
    return building;
}

MArrayDataBuilder makeBuilder(const ArrayBuilding& building)
{
    // Copied from its bytes: the constructors are calls of the API.
    alignas(MArrayDataBuilder) char bytes[sizeof(MArrayDataBuilder)] = {};
    const ArrayBuilding* pointer = building.array.isNull() ? nullptr : &building;
    std::memcpy(bytes, &pointer, sizeof pointer);
    return MArrayDataBuilder(*reinterpret_cast<const MArrayDataBuilder*>(bytes));
}

} // namespace tvxhost::api

// Without a data block there is no array to build.
MArrayDataBuilder::MArrayDataBuilder(const MObject&, unsigned int, MStatus* ReturnStatus) : storage()
{
    notImplemented("MArrayDataBuilder::MArrayDataBuilder(MObject)", ReturnStatus);
}

MArrayDataBuilder::MArrayDataBuilder(MDataBlock* block, const MObject& attribute, unsigned int,
                                     MStatus* ReturnStatus)
    : storage()
{
    TVX_API_CONSTRUCTION("MArrayDataBuilder::MArrayDataBuilder", ReturnStatus);
    const DataBlock* state = block ? tvxAccess::dataBlock(*block) : nullptr;
    Attribute* a = attributeOf(attribute);
    const bool isArray = state && state->node && a && a->isArray();
    give(ReturnStatus, isArray ? MStatus() : failure(StatusText::objectIsIncompatible));
    if (isArray)
        setBuilding(*this, new ArrayBuilding{Plug(*state->node, *a), {}});
}

MArrayDataBuilder::MArrayDataBuilder(const MArrayDataBuilder& other) : storage()
{
    if (const ArrayBuilding* building = buildingOf(other))
        setBuilding(*this, new ArrayBuilding(*building));
}

MArrayDataBuilder::~MArrayDataBuilder()
{
    delete buildingOf(*this);
}

MArrayDataBuilder& MArrayDataBuilder::operator=(const MArrayDataBuilder& other)
{
    if (this != &other) {
        delete buildingOf(*this);
        const ArrayBuilding* building = buildingOf(other);
        setBuilding(*this, building ? new ArrayBuilding(*building) : nullptr);
    }
    return *this;
}

const char* MArrayDataBuilder::className()
{
    return "MArrayDataBuilder";
}

MDataHandle MArrayDataBuilder::addLast(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MArrayDataBuilder::addLast", ReturnStatus, MDataHandle());
    ArrayBuilding* building = buildingOf(*this);
    if (!requireAttached(building, ReturnStatus))
        return MDataHandle();
    const int index = building->indices.empty() ? 0 : *building->indices.rbegin() + 1;
    return elementOf(*building, index, ReturnStatus);
}

MDataHandle MArrayDataBuilder::addElement(unsigned int index, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MArrayDataBuilder::addElement", ReturnStatus, MDataHandle());
    ArrayBuilding* building = buildingOf(*this);
    return requireAttached(building, ReturnStatus)
               ? elementOf(*building, static_cast<int>(index), ReturnStatus)
               : MDataHandle();
}

// As for MArrayDataHandle: an element of an array is never an array itself.
MArrayDataHandle MArrayDataBuilder::addLastArray(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MArrayDataBuilder::addLastArray", ReturnStatus, ArrayHandleState::handleOn({}));
    give(ReturnStatus, failure(StatusText::objectIsIncompatible));
    return ArrayHandleState::handleOn({});
}

MArrayDataHandle MArrayDataBuilder::addElementArray(unsigned int, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MArrayDataBuilder::addElementArray", ReturnStatus, ArrayHandleState::handleOn({}));
    give(ReturnStatus, failure(StatusText::objectIsIncompatible));
    return ArrayHandleState::handleOn({});
}

MStatus MArrayDataBuilder::removeElement(unsigned int index)
{
    TVX_API_CALL("MArrayDataBuilder::removeElement");
    ArrayBuilding* building = buildingOf(*this);
    if (!building)
        return notAttached();
    return building->indices.erase(static_cast<int>(index)) > 0 ? MStatus()
                                                                : failure(StatusText::noElementAtIndex);
}

unsigned int MArrayDataBuilder::elementCount(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MArrayDataBuilder::elementCount", ReturnStatus, 0);
    const ArrayBuilding* building = buildingOf(*this);
    return requireAttached(building, ReturnStatus) ? static_cast<unsigned int>(building->indices.size()) : 0;
}

// Arrays grow element by element, so the size hints have nothing to act on.
MStatus MArrayDataBuilder::growArray(unsigned int)
{
    TVX_API_CALL("MArrayDataBuilder::growArray");
    return buildingOf(*this) ? MStatus() : notAttached();
}

MStatus MArrayDataBuilder::setGrowSize(unsigned int)
{
    TVX_API_CALL("MArrayDataBuilder::setGrowSize");
    return buildingOf(*this) ? MStatus() : notAttached();
}
