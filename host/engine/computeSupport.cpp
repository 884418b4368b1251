// Support of computes: see computeSupport.h.
#include "computeSupport.h"

#include "cell.h"
#include "dirtySpread.h"
#include "node.h"
#include "values.h"

#include <algorithm>
#include <string>

namespace tvxhost::engine {

Plug plugOf(Node& node, std::string_view attribute)
{
    Attribute* found = node.findAttribute(std::string(attribute));
    return found ? Plug(node, *found) : Plug();
}

Plug topPlug(const Plug& plug)
{
    Plug top = plug;
    while (top.isChild())
        top = top.parent();
    return top;
}

double numberOf(Node& node, std::string_view attribute)
{
    return readNumber(plugOf(node, attribute)).value.asReal();
}

std::vector<double> numbersOf(Node& node, std::string_view attribute)
{
    return readNumbers(plugOf(node, attribute)).value;
}

Vec3d vectorOf(const Plug& plug)
{
    const std::vector<double> numbers = readNumbers(plug).value;
    return numbers.size() == 3 ? Vec3d(numbers[0], numbers[1], numbers[2]) : Vec3d(0.0);
}

Vec3d vectorOf(Node& node, std::string_view attribute)
{
    return vectorOf(plugOf(node, attribute));
}

Matrix matrixOf(const Plug& plug)
{
    const Expected<Ref<Data>> data = readData(plug);
    const bool isMatrix = data.value && data.value->type() == DataType::matrix;
    return isMatrix ? static_cast<const MatrixData&>(*data.value).value : Matrix();
}

void finishNumber(const Plug& plug, double value)
{
    keepNumber(plug, Number(value));
    setClean(plug);
}

void finishNumbers(const Plug& plug, const std::vector<double>& values)
{
    const std::size_t children = plug.childCount();
    for (std::size_t i = 0; i < std::min(children, values.size()); ++i)
        keepNumber(plug.child(i), Number(values[i]));
    if (children == 0 && !values.empty())
        keepNumber(plug, Number(values.front()));
    setClean(plug);
}

void finishData(const Plug& plug, Ref<Data> data)
{
    keepData(plug, std::move(data));
    setClean(plug);
}

void finishMatrix(const Plug& plug, const Matrix& matrix)
{
    finishData(plug, Ref<Data>(new MatrixData(matrix)));
}

void finishVector(const Plug& plug, const Vec3d& vector)
{
    finishNumbers(plug, {vector.x, vector.y, vector.z});
}

} // namespace tvxhost::engine
