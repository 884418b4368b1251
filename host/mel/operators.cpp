// Arithmetic and comparison. The result has the wider type of the two: int, float, vector, matrix, string.
#include "operators.h"

#include <algorithm>
#include <cmath>

namespace tvxhost::mel {

using ast::Operator;

namespace {

bool isComparison(Operator op)
{
    return op >= Operator::less && op <= Operator::notEqual;
}

[[noreturn]] void illegal(Operator op, Type type)
{
    throw ValueError(std::string("Illegal operation \"") + operatorText(op) + "\" on data of type " +
                     typeName(type) + ".");
}

template <class T>
T divisor(T value)
{
    if (value == T(0)) {
        throw ValueError("Division by zero.");
    }
    return value;
}

template <class T>
bool compared(Operator op, const T& left, const T& right)
{
    switch (op) {
    case Operator::less:
        return left < right;
    case Operator::lessOrEqual:
        return left <= right;
    case Operator::greater:
        return left > right;
    case Operator::greaterOrEqual:
        return left >= right;
    case Operator::equal:
        return left == right;
    default:
        return left != right;
    }
}

/// Whole numbers have 32 bits and wrap around.
int wrapped(long long value)
{
    return static_cast<int>(static_cast<unsigned>(static_cast<unsigned long long>(value)));
}

Value onIntegers(Operator op, long long left, long long right)
{
    switch (op) {
    case Operator::add:
        return wrapped(left + right);
    case Operator::subtract:
        return wrapped(left - right);
    case Operator::multiply:
        return wrapped(left * right);
    case Operator::divide:
        return wrapped(left / divisor(right));
    case Operator::modulo:
        return wrapped(left % divisor(right));
    default:
        illegal(op, Type::integer);
    }
}

double onNumbers(Operator op, double left, double right)
{
    switch (op) {
    case Operator::add:
        return left + right;
    case Operator::subtract:
        return left - right;
    case Operator::multiply:
        return left * right;
    case Operator::divide:
        return left / divisor(right);
    case Operator::modulo:
        return std::fmod(left, divisor(right));
    default:
        illegal(op, Type::number);
    }
}

Vector eachComponent(Operator op, const Vector& left, const Vector& right)
{
    return {onNumbers(op, left.x, right.x), onNumbers(op, left.y, right.y), onNumbers(op, left.z, right.z)};
}

Value onVectors(Operator op, const Value& leftValue, const Value& rightValue)
{
    const Vector left = leftValue.toVector();
    const Vector right = rightValue.toVector();
    const bool bothVectors = leftValue.type() == rightValue.type();
    switch (op) {
    case Operator::multiply:
        return bothVectors ? Value(left.dot(right)) : Value(eachComponent(op, left, right));
    case Operator::cross:
        return left.cross(right);
    case Operator::equal:
        return left == right;
    case Operator::notEqual:
        return left != right;
    default:
        // An order of vectors is that of their lengths.
        return isComparison(op) ? Value(compared(op, left.length(), right.length()))
                                : Value(eachComponent(op, left, right));
    }
}

[[noreturn]] void sizesDiffer()
{
    throw ValueError("The sizes of the matrices do not fit each other.");
}

Matrix product(const Matrix& left, const Matrix& right)
{
    if (left.columns != right.rows) {
        sizesDiffer();
    }
    Matrix result(left.rows, right.columns);
    for (std::size_t row = 0; row < left.rows; ++row) {
        for (std::size_t column = 0; column < right.columns; ++column) {
            for (std::size_t i = 0; i < left.columns; ++i) {
                result.at(row, column) += left.at(row, i) * right.at(i, column);
            }
        }
    }
    return result;
}

Matrix eachElement(Operator op, const Matrix& left, const Matrix& right)
{
    if (left.rows != right.rows || left.columns != right.columns) {
        sizesDiffer();
    }
    Matrix result(left.rows, left.columns);
    std::transform(left.elements.begin(), left.elements.end(), right.elements.begin(),
                   result.elements.begin(), [op](double a, double b) { return onNumbers(op, a, b); });
    return result;
}

/// A vector beside a matrix is a row, or behind it a column.
Matrix matrixOf(const Vector& vector, bool isRow)
{
    Matrix result(isRow ? 1 : 3, isRow ? 3 : 1);
    result.elements = {vector.x, vector.y, vector.z};
    return result;
}

Matrix filled(double value, const Matrix& like)
{
    Matrix result(like.rows, like.columns);
    std::fill(result.elements.begin(), result.elements.end(), value);
    return result;
}

Value onMatrices(Operator op, const Value& leftValue, const Value& rightValue)
{
    const bool leftIsMatrix = leftValue.type() == Type::matrix;
    const bool rightIsMatrix = rightValue.type() == Type::matrix;
    if (op == Operator::multiply && leftIsMatrix && rightIsMatrix) {
        return product(leftValue.matrix(), rightValue.matrix());
    }
    if (op == Operator::multiply && leftValue.type() == Type::vector) {
        const Matrix row = product(matrixOf(leftValue.vector(), true), rightValue.matrix());
        return row.columns == 3 ? Value(Vector(row.at(0, 0), row.at(0, 1), row.at(0, 2))) : Value(row);
    }
    if (op == Operator::multiply && rightValue.type() == Type::vector) {
        return product(leftValue.matrix(), matrixOf(rightValue.vector(), false));
    }
    const Matrix left = leftIsMatrix ? leftValue.matrix() : filled(leftValue.toNumber(), rightValue.matrix());
    const Matrix right = rightIsMatrix ? rightValue.matrix() : filled(rightValue.toNumber(), left);
    if (op == Operator::equal || op == Operator::notEqual) {
        const bool equal = left.rows == right.rows && left.elements == right.elements;
        return equal == (op == Operator::equal);
    }
    if (isComparison(op) || op == Operator::cross) {
        illegal(op, Type::matrix);
    }
    return eachElement(op, left, right);
}

Value onStrings(Operator op, const Value& left, const Value& right)
{
    if (op == Operator::add) {
        return left.toString() + right.toString();
    }
    if (isComparison(op)) {
        return compared(op, left.toString(), right.toString());
    }
    illegal(op, Type::string);
}

} // namespace

Value applied(Operator op, const Value& left, const Value& right)
{
    for (const Value* operand : {&left, &right}) {
        if (isArray(operand->type()) || operand->isNone()) {
            illegal(op, operand->type());
        }
    }
    const auto either = [&](Type type) { return left.type() == type || right.type() == type; };
    if (either(Type::string)) {
        return onStrings(op, left, right);
    }
    if (either(Type::matrix)) {
        return onMatrices(op, left, right);
    }
    if (either(Type::vector)) {
        return onVectors(op, left, right);
    }
    if (isComparison(op)) {
        return compared(op, left.toNumber(), right.toNumber());
    }
    if (either(Type::number)) {
        return onNumbers(op, left.toNumber(), right.toNumber());
    }
    return onIntegers(op, left.integer(), right.integer());
}

Value negated(const Value& value)
{
    switch (value.type()) {
    case Type::integer:
        return wrapped(-static_cast<long long>(value.integer()));
    case Type::vector:
        return -value.vector();
    case Type::matrix:
        return applied(Operator::multiply, value, -1.0);
    case Type::number:
    case Type::string:
        return -value.toNumber();
    default:
        illegal(Operator::subtract, value.type());
    }
}

const char* operatorText(Operator op)
{
    static constexpr const char* kTexts[] = {"+",  "-", "*",  "/",  "%",  "^",  "<",
                                             "<=", ">", ">=", "==", "!=", "&&", "||"};
    return kTexts[static_cast<std::size_t>(op)];
}

} // namespace tvxhost::mel
