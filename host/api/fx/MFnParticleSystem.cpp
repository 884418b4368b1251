// MFnParticleSystem: particle shapes.
#include <maya/MDoubleArray.h>
#include <maya/MFnParticleSystem.h>
#include <maya/MIntArray.h>
#include <maya/MPoint.h>
#include <maya/MPointArray.h>
#include <maya/MTime.h>
#include <maya/MVector.h>
#include <maya/MVectorArray.h>

#include "engine/particle.h"
#include "engine/scene.h"
#include "support/dagSet.h"
#include "support/dataSet.h"
#include "support/notImplemented.h"

#include <array>

using namespace tvxhost;
using api::failure;
using api::give;
using api::StatusText;
using engine::DataType;

namespace {

/// The array of a per-particle attribute as the API's and the engine's type.
template <class ArrayData, class ElementOf>
struct PerParticle
{
    using Data = ArrayData;
    using Element = ElementOf;
};
using Doubles = PerParticle<engine::DoubleArrayData, double>;
using Vectors = PerParticle<engine::VectorArrayData, MVector>;
using Integers = PerParticle<engine::IntArrayData, int>;

engine::Attribute* attributeOf(const MFnParticleSystem& set, const std::string& name)
{
    engine::DagNode* node = api::dagNodeOf(set);
    return node ? node->findAttribute(name) : nullptr;
}

/// The data of a per-particle attribute of that kind; null when there is no such attribute. What holds
/// nothing yet counts as empty.
template <class Kind>
engine::Ref<typename Kind::Data> dataOf(const MFnParticleSystem& set, const std::string& name)
{
    engine::DagNode* node = api::dagNodeOf(set);
    engine::Attribute* attribute = attributeOf(set, name);
    const engine::Ref<typename Kind::Data> empty(new typename Kind::Data);
    if (!attribute || !engine::isPerParticle(*node, *attribute) || attribute->dataType != empty->type())
        return {};
    const auto data = engine::readData(engine::Plug(*node, *attribute));
    auto* found = dynamic_cast<typename Kind::Data*>(data.value.get());
    return found ? engine::Ref<typename Kind::Data>(found) : empty;
}

/// Reads an attribute into an array of the caller; false, the array untouched, when there is none.
template <class Kind, class Array>
bool read(const MFnParticleSystem& set, const std::string& name, Array& array)
{
    const auto data = dataOf<Kind>(set, name);
    if (data)
        tvxAccess::elements(array) = api::elementsOf<typename Kind::Element>(*data);
    return static_cast<bool>(data);
}

template <class Kind, class Array>
void readOrClear(const MFnParticleSystem& set, const char* name, Array& array)
{
    if (!read<Kind>(set, name, array))
        array.clear();
}

template <class Kind, class Array>
unsigned int getAttribute(const MFnParticleSystem& set, const MString& name, Array& array, MStatus* status)
{
    TVX_API_CALL_OR("MFnParticleSystem::getPerParticleAttribute", status, 0);
    if (!api::requireAttached(api::dagNodeOf(set), status))
        return 0;
    if (read<Kind>(set, tvxAccess::text(name), array))
        return array.length();
    give(status, failure(StatusText::unexpectedFailure));
    return 0;
}

template <class Kind, class Array>
void setAttribute(const MFnParticleSystem& set, const MString& name, const Array& array, MStatus* status)
{
    TVX_API_CALL_OR("MFnParticleSystem::setPerParticleAttribute", status, void());
    if (!api::requireAttached(api::dagNodeOf(set), status))
        return;
    if (!dataOf<Kind>(set, tvxAccess::text(name))) {
        give(status, failure(StatusText::unexpectedFailure));
        return;
    }
    typename Kind::Data data;
    api::elementsOf<typename Kind::Element>(data) = tvxAccess::elements(array);
    const engine::Plug plug(*api::dagNodeOf(set), *attributeOf(set, tvxAccess::text(name)));
    give(status, api::toStatus(engine::writeData(plug, data)));
}

template <class Kind>
bool isAttribute(const MFnParticleSystem& set, const char* function, const MString& name, MStatus* status)
{
    TVX_API_CALL_OR(function, status, false);
    return api::requireAttached(api::dagNodeOf(set), status) &&
           static_cast<bool>(dataOf<Kind>(set, tvxAccess::text(name)));
}

/// A number that the shape holds for all particles; 0 when it has no such attribute.
double wholeNumber(const MFnParticleSystem& set, const char* name)
{
    engine::DagNode* node = api::dagNodeOf(set);
    const auto plug = node ? node->findPlug(name) : engine::Outcome(engine::Reason::doesNotExist);
    return plug ? engine::readNumber(plug.value).value.asReal() : 0.0;
}

bool wholeFlag(const MFnParticleSystem& set, const char* name)
{
    return wholeNumber(set, name) != 0.0;
}

/// The attribute of each particle, or for all of them what the whole shape says.
void readNumbers(const MFnParticleSystem& set, const char* each, const char* whole, MDoubleArray& array)
{
    if (!read<Doubles>(set, each, array) || array.length() == 0)
        array = MDoubleArray(set.count(), wholeNumber(set, whole));
}

void readColors(const MFnParticleSystem& set, const char* each, const std::array<const char*, 3>& whole,
                MVectorArray& array)
{
    if (read<Vectors>(set, each, array) && array.length() > 0)
        return;
    const MVector color(wholeNumber(set, whole[0]), wholeNumber(set, whole[1]), wholeNumber(set, whole[2]));
    array = MVectorArray(set.count(), color);
}

constexpr std::array<const char*, 3> kColor = {"colorRed", "colorGreen", "colorBlue"};
constexpr std::array<const char*, 3> kIncandescence = {"incandescenceRed", "incandescenceGreen",
                                                       "incandescenceBlue"};

bool hasEither(const MFnParticleSystem& set, const char* each, const char* whole)
{
    return attributeOf(set, each) || attributeOf(set, whole);
}

std::vector<engine::Vec3d> placesOf(const MPointArray& points)
{
    std::vector<engine::Vec3d> places;
    for (unsigned int i = 0; i < points.length(); ++i)
        places.emplace_back(points[i].x, points[i].y, points[i].z);
    return places;
}

std::vector<engine::Vec3d> directionsOf(const MVectorArray& vectors)
{
    std::vector<engine::Vec3d> directions;
    for (unsigned int i = 0; i < vectors.length(); ++i)
        directions.emplace_back(vectors[i].x, vectors[i].y, vectors[i].z);
    return directions;
}

MStatus emitInto(const MFnParticleSystem& set, const MPointArray& positions, const MVectorArray& velocities)
{
    TVX_API_CALL("MFnParticleSystem::emit");
    engine::DagNode* node = api::dagNodeOf(set);
    if (!node)
        return api::notAttached();
    if (velocities.length() != 0 && velocities.length() != positions.length())
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    return api::toStatus(engine::emitParticles(*node, placesOf(positions), directionsOf(velocities)));
}

} // namespace

TVX_FUNCTION_SET(MFnParticleSystem, MFn::kParticle)

MFnParticleSystem::MFnParticleSystem() {}

MFnParticleSystem::MFnParticleSystem(const MDagPath& object, MStatus* ret)
{
    TVX_API_CONSTRUCTION("MFnParticleSystem::MFnParticleSystem", ret);
    give(ret, api::attachTo(*this, object));
}

bool MFnParticleSystem::objectChanged(MFn::Type type, MStatus* ReturnStatus)
{
    return MFnDagNode::objectChanged(type, ReturnStatus);
}

MObject MFnParticleSystem::create(MStatus* status)
{
    return create(MObject(), status);
}

MObject MFnParticleSystem::create(MObject parent, MStatus* status)
{
    TVX_API_CALL_OR("MFnParticleSystem::create", status, MObject());
    engine::DagNode* above = api::dagNodeOf(parent);
    if (!parent.isNull() && !above) {
        give(status, failure(StatusText::objectIsIncompatible));
        return MObject();
    }
    const auto made = engine::Scene::current().createNode("particle", {}, above);
    give(status, api::toStatus(made.outcome));
    if (!made)
        return MObject();
    static_cast<void>(api::attachTo(*this, tvxAccess::handle(made.value)));
    return tvxAccess::handle(above ? made.value->asDag() : made.value->asDag()->parents().front());
}

MStatus MFnParticleSystem::emit(const MPoint& position)
{
    return emitInto(*this, MPointArray(1, position), MVectorArray());
}

MStatus MFnParticleSystem::emit(const MPointArray& positionArray)
{
    return emitInto(*this, positionArray, MVectorArray());
}

MStatus MFnParticleSystem::emit(const MPoint& position, const MVector& velocity)
{
    return emitInto(*this, MPointArray(1, position), MVectorArray(1, velocity));
}

MStatus MFnParticleSystem::emit(const MPointArray& positionArray, const MVectorArray& velocityArray)
{
    return emitInto(*this, positionArray, velocityArray);
}

MStatus MFnParticleSystem::saveInitialState() const
{
    TVX_API_CALL("MFnParticleSystem::saveInitialState");
    engine::DagNode* node = api::dagNodeOf(*this);
    return node ? api::toStatus(engine::saveInitialState(*node)) : api::notAttached();
}

void MFnParticleSystem::evaluateDynamics(MTime&, bool)
{
    api::notImplemented("MFnParticleSystem::evaluateDynamics");
}

bool MFnParticleSystem::isValid() const
{
    return api::dagNodeOf(*this) != nullptr;
}

MString MFnParticleSystem::particleName() const
{
    const engine::DagNode* node = api::dagNodeOf(*this);
    return node ? tvxAccess::string(node->name()) : MString();
}

unsigned int MFnParticleSystem::count() const
{
    TVX_API_CALL_OR("MFnParticleSystem::count", nullptr, 0);
    engine::DagNode* node = api::dagNodeOf(*this);
    return node ? static_cast<unsigned int>(engine::particleCount(*node)) : 0;
}

void MFnParticleSystem::setCount(unsigned int number) const
{
    if (engine::DagNode* node = api::dagNodeOf(*this))
        static_cast<void>(engine::setParticleCount(*node, number));
}

MFnParticleSystem::RenderType MFnParticleSystem::renderType() const
{
    // In the order of the attribute's fields.
    constexpr std::array kTypes = {kMultiPoint, kMultiStreak, kNumeric, kPoints, kSpheres,
                                   kSprites,    kStreak,      kBlobby,  kCloud,  kTube};
    const auto field = static_cast<std::size_t>(wholeNumber(*this, "particleRenderType"));
    return field < kTypes.size() ? kTypes[field] : kPoints;
}

void MFnParticleSystem::position(MVectorArray& array) const
{
    readOrClear<Vectors>(*this, "position", array);
}

void MFnParticleSystem::velocity(MVectorArray& array) const
{
    readOrClear<Vectors>(*this, "velocity", array);
}

void MFnParticleSystem::acceleration(MVectorArray& array) const
{
    readOrClear<Vectors>(*this, "acceleration", array);
}

void MFnParticleSystem::particleIds(MIntArray& array) const
{
    MDoubleArray ids;
    readOrClear<Doubles>(*this, "particleId", ids);
    array.setLength(ids.length());
    for (unsigned int i = 0; i < ids.length(); ++i)
        array[i] = static_cast<int>(ids[i]);
}

void MFnParticleSystem::age(MDoubleArray& array) const
{
    readOrClear<Doubles>(*this, "age", array);
}

void MFnParticleSystem::mass(MDoubleArray& array) const
{
    readOrClear<Doubles>(*this, "mass", array);
}

void MFnParticleSystem::position0(MVectorArray&) const
{
    api::notImplemented("MFnParticleSystem::position0");
}

void MFnParticleSystem::position1(MVectorArray&) const
{
    api::notImplemented("MFnParticleSystem::position1");
}

void MFnParticleSystem::radius0(MDoubleArray& array) const
{
    readNumbers(*this, "radius0PP", "radius0", array);
}

void MFnParticleSystem::radius1(MDoubleArray& array) const
{
    readNumbers(*this, "radius1PP", "radius1", array);
}

void MFnParticleSystem::radius(MDoubleArray& array) const
{
    readNumbers(*this, "radiusPP", "radius", array);
}

void MFnParticleSystem::lifespan(MDoubleArray& array) const
{
    readNumbers(*this, "lifespanPP", "lifespan", array);
}

void MFnParticleSystem::rgb(MVectorArray& array) const
{
    readColors(*this, "rgbPP", kColor, array);
}

void MFnParticleSystem::opacity(MDoubleArray& array) const
{
    readNumbers(*this, "opacityPP", "opacity", array);
}

void MFnParticleSystem::emission(MVectorArray& array) const
{
    readColors(*this, "incandescencePP", kIncandescence, array);
}

bool MFnParticleSystem::hasLifespan() const
{
    return hasEither(*this, "lifespanPP", "lifespan");
}

bool MFnParticleSystem::hasRgb() const
{
    return hasEither(*this, "rgbPP", kColor[0]);
}

bool MFnParticleSystem::hasOpacity() const
{
    return hasEither(*this, "opacityPP", "opacity");
}

bool MFnParticleSystem::hasEmission() const
{
    return hasEither(*this, "incandescencePP", kIncandescence[0]);
}

double MFnParticleSystem::surfaceShading() const
{
    return wholeNumber(*this, "surfaceShading");
}

double MFnParticleSystem::threshold() const
{
    return wholeNumber(*this, "threshold");
}

bool MFnParticleSystem::betterIllum() const
{
    return wholeFlag(*this, "betterIllumination");
}

bool MFnParticleSystem::flatShaded() const
{
    return wholeFlag(*this, "flatShaded");
}

bool MFnParticleSystem::disableCloudAxis() const
{
    return wholeFlag(*this, "disableCloudAxis");
}

double MFnParticleSystem::tailSize() const
{
    return wholeNumber(*this, "tailSize");
}

bool MFnParticleSystem::primaryVisibility() const
{
    return wholeFlag(*this, "primaryVisibility");
}

bool MFnParticleSystem::visibleInReflections() const
{
    return wholeFlag(*this, "visibleInReflections");
}

bool MFnParticleSystem::visibleInRefractions() const
{
    return wholeFlag(*this, "visibleInRefractions");
}

bool MFnParticleSystem::castsShadows() const
{
    return wholeFlag(*this, "castsShadows");
}

bool MFnParticleSystem::receiveShadows() const
{
    return wholeFlag(*this, "receiveShadows");
}

unsigned int MFnParticleSystem::getPerParticleAttribute(const MString& attrName, MIntArray& array,
                                                        MStatus* status) const
{
    return getAttribute<Integers>(*this, attrName, array, status);
}

unsigned int MFnParticleSystem::getPerParticleAttribute(const MString& attrName, MVectorArray& array,
                                                        MStatus* status) const
{
    return getAttribute<Vectors>(*this, attrName, array, status);
}

unsigned int MFnParticleSystem::getPerParticleAttribute(const MString& attrName, MDoubleArray& array,
                                                        MStatus* status) const
{
    return getAttribute<Doubles>(*this, attrName, array, status);
}

void MFnParticleSystem::setPerParticleAttribute(const MString& attrName, MVectorArray& array,
                                                MStatus* status) const
{
    setAttribute<Vectors>(*this, attrName, array, status);
}

void MFnParticleSystem::setPerParticleAttribute(const MString& attrName, MDoubleArray& array,
                                                MStatus* status) const
{
    setAttribute<Doubles>(*this, attrName, array, status);
}

bool MFnParticleSystem::isPerParticleIntAttribute(const MString& attrName, MStatus* status) const
{
    return isAttribute<Integers>(*this, "MFnParticleSystem::isPerParticleIntAttribute", attrName, status);
}

bool MFnParticleSystem::isPerParticleDoubleAttribute(const MString& attrName, MStatus* status) const
{
    return isAttribute<Doubles>(*this, "MFnParticleSystem::isPerParticleDoubleAttribute", attrName, status);
}

bool MFnParticleSystem::isPerParticleVectorAttribute(const MString& attrName, MStatus* status) const
{
    return isAttribute<Vectors>(*this, "MFnParticleSystem::isPerParticleVectorAttribute", attrName, status);
}

bool MFnParticleSystem::isDeformedParticleShape(MStatus* status) const
{
    api::notImplemented("MFnParticleSystem::isDeformedParticleShape", status);
    return false;
}

MObject MFnParticleSystem::deformedParticleShape(MStatus* status) const
{
    api::notImplemented("MFnParticleSystem::deformedParticleShape", status);
    return MObject();
}

MObject MFnParticleSystem::originalParticleShape(MStatus* status) const
{
    api::notImplemented("MFnParticleSystem::originalParticleShape", status);
    return MObject();
}
