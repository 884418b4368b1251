// The types of MEL, and their conversions.
#include "value.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

namespace tvxhost::mel {

namespace {

struct TypeRow
{
    const char* name;
    Type element; ///< of an array
    Type array;   ///< with elements of this type
};

// In the order of Type.
constexpr TypeRow kTypes[] = {
    {"void", Type::none, Type::none},          {"int", Type::none, Type::integerArray},
    {"float", Type::none, Type::numberArray},  {"string", Type::none, Type::stringArray},
    {"vector", Type::none, Type::vectorArray}, {"matrix", Type::none, Type::none},
    {"int[]", Type::integer, Type::none},      {"float[]", Type::number, Type::none},
    {"string[]", Type::string, Type::none},    {"vector[]", Type::vector, Type::none},
};

const TypeRow& row(Type type)
{
    return kTypes[static_cast<std::size_t>(type)];
}

[[noreturn]] void cannotConvert(Type from, Type to)
{
    throw ValueError(std::string("Cannot convert data of type ") + typeName(from) + " to type " +
                     typeName(to) + ".");
}

int truncated(double value)
{
    constexpr double kLeast = std::numeric_limits<int>::min();
    constexpr double kMost = std::numeric_limits<int>::max();
    return std::isnan(value) ? 0 : static_cast<int>(std::clamp(value, kLeast, kMost));
}

std::string joined(const Vector& vector, const char* separator)
{
    return numberText(vector.x) + separator + numberText(vector.y) + separator + numberText(vector.z);
}

std::string joined(const Matrix& matrix, const char* rowSeparator)
{
    std::string text;
    for (std::size_t i = 0; i < matrix.elements.size(); ++i) {
        if (i != 0) {
            text += i % matrix.columns == 0 ? rowSeparator : ", ";
        }
        text += numberText(matrix.elements[i]);
    }
    return text;
}

/// Up to three leading numbers: "1 2 3", "<<1, 2, 3>>".
Vector parsedVector(std::string_view text)
{
    Vector vector(0.0);
    for (int i = 0; i < 3; ++i) {
        const std::size_t start = text.find_first_not_of(" \t\n\r<,");
        if (start == std::string_view::npos) {
            break;
        }
        text.remove_prefix(start);
        const LeadingNumber number = leadingNumber(text);
        if (!number.found) {
            break;
        }
        vector[i] = number.value;
        text.remove_prefix(std::min(text.size(), text.find_first_of(" \t\n\r,>")));
    }
    return vector;
}

/// Converts each element; only numbers convert inside arrays.
Value convertedArray(const Value& array, Type to)
{
    // `{}` has elements of no type.
    if (array.size() == 0 && isArray(to)) {
        return Value::neutral(to);
    }
    if (to == Type::integerArray && array.type() == Type::numberArray) {
        Value::Integers integers;
        integers.reserve(array.size());
        for (const double number : array.numbers()) {
            integers.push_back(truncated(number));
        }
        return integers;
    }
    if (to == Type::numberArray && array.type() == Type::integerArray) {
        return Value::Numbers(array.integers().begin(), array.integers().end());
    }
    if (to == Type::vector && array.type() == Type::numberArray && array.size() == 3) {
        return Vector(array.numbers()[0], array.numbers()[1], array.numbers()[2]);
    }
    cannotConvert(array.type(), to);
}

} // namespace

const char* typeName(Type type)
{
    return row(type).name;
}

bool isArray(Type type)
{
    return row(type).element != Type::none;
}

Type arrayOf(Type element)
{
    return row(element).array;
}

Type elementOf(Type array)
{
    return row(array).element;
}

Value Value::neutral(Type type)
{
    switch (type) {
    case Type::none:
        return {};
    case Type::integer:
        return 0;
    case Type::number:
        return 0.0;
    case Type::string:
        return std::string();
    case Type::vector:
        return Vector(0.0);
    case Type::matrix:
        return Matrix();
    case Type::integerArray:
        return Integers();
    case Type::numberArray:
        return Numbers();
    case Type::stringArray:
        return Strings();
    case Type::vectorArray:
        return Vectors();
    }
    return {};
}

std::size_t Value::size() const
{
    switch (type()) {
    case Type::none:
        return 0;
    case Type::integerArray:
        return integers().size();
    case Type::numberArray:
        return numbers().size();
    case Type::stringArray:
        return strings().size();
    case Type::vectorArray:
        return vectors().size();
    default:
        return 1;
    }
}

Value Value::element(std::size_t index) const
{
    if (index >= size()) {
        return neutral(elementOf(type()));
    }
    switch (type()) {
    case Type::integerArray:
        return integers()[index];
    case Type::numberArray:
        return numbers()[index];
    case Type::stringArray:
        return strings()[index];
    case Type::vectorArray:
        return vectors()[index];
    default:
        return *this;
    }
}

void Value::setElement(std::size_t index, const Value& value) const
{
    const auto set = [index](auto& elements, const auto& element, const auto& filler) {
        if (index >= elements.size()) {
            elements.resize(index + 1, filler);
        }
        elements[index] = element;
    };
    const Value element = value.to(elementOf(type()));
    switch (type()) {
    case Type::integerArray:
        return set(integers(), element.integer(), 0);
    case Type::numberArray:
        return set(numbers(), element.number(), 0.0);
    case Type::stringArray:
        return set(strings(), element.string(), std::string());
    case Type::vectorArray:
        return set(vectors(), element.vector(), Vector(0.0));
    default:
        throw ValueError(std::string("A value of type ") + typeName(type()) + " has no elements.");
    }
}

Value Value::detached() const
{
    switch (type()) {
    case Type::integerArray:
        return integers();
    case Type::numberArray:
        return numbers();
    case Type::stringArray:
        return strings();
    case Type::vectorArray:
        return vectors();
    default:
        return *this;
    }
}

Value Value::to(Type target) const
{
    if (type() == target) {
        return *this;
    }
    if (isNone()) {
        cannotConvert(Type::none, target);
    }
    if (isArray(type())) {
        return convertedArray(*this, target);
    }
    switch (target) {
    case Type::integer:
        return toInteger();
    case Type::number:
        return toNumber();
    case Type::string:
        return toString();
    case Type::vector:
        return toVector();
    case Type::numberArray:
        if (type() == Type::vector) {
            return Numbers{vector().x, vector().y, vector().z};
        }
        break;
    case Type::matrix:
        if (type() == Type::vector) {
            Matrix row(1, 3);
            row.elements = {vector().x, vector().y, vector().z};
            return row;
        }
        break;
    default:
        break;
    }
    cannotConvert(type(), target);
}

int Value::toInteger() const
{
    switch (type()) {
    case Type::integer:
        return integer();
    case Type::number:
        return truncated(number());
    case Type::string:
        return truncated(leadingNumber(string()).value);
    case Type::vector:
        return truncated(vector().length());
    default:
        cannotConvert(type(), Type::integer);
    }
}

double Value::toNumber() const
{
    switch (type()) {
    case Type::integer:
        return integer();
    case Type::number:
        return number();
    case Type::string:
        return leadingNumber(string()).value;
    case Type::vector:
        return vector().length();
    default:
        cannotConvert(type(), Type::number);
    }
}

bool Value::toBoolean() const
{
    if (type() == Type::string && (string() == "on" || string() == "yes" || string() == "true")) {
        return true;
    }
    return toNumber() != 0.0;
}

std::string Value::toString() const
{
    switch (type()) {
    case Type::none:
        return {};
    case Type::integer:
        return std::to_string(integer());
    case Type::number:
        return numberText(number());
    case Type::string:
        return string();
    case Type::vector:
        return joined(vector(), " ");
    case Type::matrix:
        return "<< " + joined(matrix(), ";\n   ") + " >>\n";
    default:
        break;
    }
    std::string text;
    for (std::size_t i = 0; i < size(); ++i) {
        text += element(i).toString() + '\n';
    }
    return text;
}

Vector Value::toVector() const
{
    switch (type()) {
    case Type::vector:
        return vector();
    case Type::string:
        return parsedVector(string());
    case Type::numberArray:
        return convertedArray(*this, Type::vector).vector();
    default:
        return Vector(toNumber());
    }
}

std::string numberText(double value)
{
    char text[32];
    const int length = std::snprintf(text, sizeof text, "%.10g", value);
    return std::string(text, static_cast<std::size_t>(length));
}

std::string resultText(const Value& value)
{
    if (value.type() == Type::vector) {
        return "<<" + joined(value.vector(), ", ") + ">>";
    }
    if (value.type() == Type::matrix) {
        return "<<" + joined(value.matrix(), "; ") + ">>";
    }
    if (!isArray(value.type())) {
        return value.toString();
    }
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        text += (i == 0 ? "" : " ") + resultText(value.element(i));
    }
    return text;
}

LeadingNumber leadingNumber(std::string_view text)
{
    const std::size_t start = text.find_first_not_of(" \t\n\r\f\v");
    if (start == std::string_view::npos) {
        return {};
    }
    text.remove_prefix(start);
    if (text.size() > 1 && text.front() == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    const bool negative = !text.empty() && text.front() == '-';
    const std::string_view digits = text.substr(negative ? 1 : 0);
    if (digits.size() > 2 && digits[0] == '0' && (digits[1] == 'x' || digits[1] == 'X')) {
        unsigned long long whole = 0;
        const auto [end, error] =
            std::from_chars(digits.data() + 2, digits.data() + digits.size(), whole, 16);
        if (error == std::errc() && end != digits.data() + 2) {
            return {negative ? -static_cast<double>(whole) : static_cast<double>(whole), true};
        }
    }
    // "nan" and "inf" are words to MEL.
    if (digits.empty() || !(digits[0] == '.' || (digits[0] >= '0' && digits[0] <= '9'))) {
        return {};
    }
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range) {
        return {std::strtod(std::string(text).c_str(), nullptr), true};
    }
    return {value, error == std::errc() && end != text.data()};
}

} // namespace tvxhost::mel
