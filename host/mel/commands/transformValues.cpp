// The numbers of a transform; see transformValues.h.
#include "transformValues.h"

#include <Imath/ImathEuler.h>
#include <Imath/ImathMatrixAlgo.h>

#include <array>

namespace tvxhost::mel {

using engine::DagNode;
using engine::Expected;
using engine::Matrix;
using engine::Outcome;
using engine::Plug;
using engine::Vec3d;

namespace {

/// Imath's orders in the order of the attribute's fields: xyz, yzx, zxy, xzy, yxz, zyx.
constexpr std::array kOrders = {Imath::Eulerd::XYZ, Imath::Eulerd::YZX, Imath::Eulerd::ZXY,
                                Imath::Eulerd::XZY, Imath::Eulerd::YXZ, Imath::Eulerd::ZYX};

Expected<Vec3d> vectorOf(DagNode& node, const char* attribute)
{
    const Expected<Plug> plug = node.findPlug(attribute);
    if (!plug)
        return plug.outcome;
    const auto numbers = engine::readNumbers(plug.value);
    if (!numbers || numbers.value.size() != 3)
        return numbers.outcome;
    return Vec3d(numbers.value[0], numbers.value[1], numbers.value[2]);
}

Outcome setVector(DagNode& node, const char* attribute, const Vec3d& value)
{
    const Expected<Plug> plug = node.findPlug(attribute);
    if (!plug)
        return plug.outcome;
    const Expected<Vec3d> before = vectorOf(node, attribute);
    if (before && before.value == value)
        return {};
    return engine::writeNumbers(plug.value, {value.x, value.y, value.z});
}

std::size_t rotateOrder(DagNode& node)
{
    const Expected<Plug> plug = node.findPlug("rotateOrder");
    const auto number = plug ? engine::readNumber(plug.value) : Expected<engine::Number>();
    const auto order = static_cast<std::size_t>(number ? number.value.asWhole() : 0);
    return order < kOrders.size() ? order : 0;
}

/// Angles about x, y and z, whatever the order in which they are applied.
Vec3d anglesOf(const Matrix& rotation, std::size_t order)
{
    Imath::Eulerd euler(kOrders[order]);
    euler.extract(rotation);
    return euler.toXYZVector();
}

} // namespace

Outcome setLocalMatrix(DagNode& transform, const Matrix& local)
{
    Vec3d scale, shear, angles, translation;
    if (!Imath::extractSHRT(local, scale, shear, angles, translation, false))
        return {engine::Reason::failed, "'" + transform.name() + "' cannot take a matrix that flattens it"};
    Matrix rotation;
    rotation.rotate(angles);
    if (const auto axis = vectorOf(transform, "rotateAxis"); axis && axis.value != Vec3d(0)) {
        Matrix own;
        own.rotate(axis.value);
        rotation = own.inverse() * rotation;
    }
    for (const Outcome& set : {setVector(transform, "scale", scale), setVector(transform, "shear", shear),
                               setVector(transform, "rotate", anglesOf(rotation, rotateOrder(transform)))})
        if (!set)
            return set;
    // Pivots shift what the rest does; translate takes up the difference.
    const Expected<Vec3d> before = vectorOf(transform, "translate");
    if (!before)
        return before.outcome;
    const Vec3d missing = local.translation() - transform.localMatrix().translation();
    return setVector(transform, "translate", before.value + missing);
}

} // namespace tvxhost::mel
