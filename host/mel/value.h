// Value: what a MEL expression evaluates to, and the conversions between the types of the language.
#pragma once

#include <Imath/ImathVec.h>

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tvxhost::mel {

enum class Type
{
    none, ///< no value: what a command without a result gives
    integer,
    number, ///< `float`, in double precision
    string,
    vector,
    matrix,
    integerArray,
    numberArray,
    stringArray,
    vectorArray,
};

/// The type as scripts write it: "int", "float", "string[]"; "void" for none.
const char* typeName(Type type);
bool isArray(Type type);
/// The array type with elements of `element`; none when there is none (matrix, arrays).
Type arrayOf(Type element);
/// The type of one element of an array type; none when `array` is no array.
Type elementOf(Type array);

using Vector = Imath::V3d;

/// A table of numbers of fixed size, stored row by row.
struct Matrix
{
    std::size_t rows = 0;
    std::size_t columns = 0;
    std::vector<double> elements;

    Matrix() = default;
    Matrix(std::size_t rowCount, std::size_t columnCount)
        : rows(rowCount), columns(columnCount), elements(rowCount * columnCount)
    {
    }
    double& at(std::size_t row, std::size_t column) { return elements[row * columns + column]; }
    double at(std::size_t row, std::size_t column) const { return elements[row * columns + column]; }
};

/// A conversion or an operation that MEL does not have; the text is the message a script's author sees.
class ValueError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// One value. Copying an array value shares its elements, as passing an array to a procedure does;
/// `detached()` makes a copy of its own, as assignment does.
class Value
{
public:
    using Integers = std::vector<int>;
    using Numbers = std::vector<double>;
    using Strings = std::vector<std::string>;
    using Vectors = std::vector<Vector>;

    Value() = default;
    Value(int value) : m_data(value) {}
    Value(bool value) : m_data(value ? 1 : 0) {}
    Value(double value) : m_data(value) {}
    Value(std::string value) : m_data(std::move(value)) {}
    Value(std::string_view value) : m_data(std::string(value)) {}
    Value(const char* value) : m_data(std::string(value)) {}
    Value(const Vector& value) : m_data(value) {}
    Value(Matrix value) : m_data(std::move(value)) {}
    Value(Integers values) : m_data(std::make_shared<Integers>(std::move(values))) {}
    Value(Numbers values) : m_data(std::make_shared<Numbers>(std::move(values))) {}
    Value(Strings values) : m_data(std::make_shared<Strings>(std::move(values))) {}
    Value(Vectors values) : m_data(std::make_shared<Vectors>(std::move(values))) {}

    /// The value a declared variable of the type begins with: 0, "", an empty array; a matrix has no size.
    static Value neutral(Type type);

    Type type() const { return static_cast<Type>(m_data.index()); }
    bool isNone() const { return type() == Type::none; }

    /// The parts as they are stored; the type must be the one asked for.
    int integer() const { return std::get<int>(m_data); }
    double number() const { return std::get<double>(m_data); }
    const std::string& string() const { return std::get<std::string>(m_data); }
    const Vector& vector() const { return std::get<Vector>(m_data); }
    const Matrix& matrix() const { return std::get<Matrix>(m_data); }
    Matrix& matrix() { return std::get<Matrix>(m_data); }
    /// Elements are shared by all copies of an array value: a change is seen through each of them.
    Integers& integers() const { return *std::get<std::shared_ptr<Integers>>(m_data); }
    Numbers& numbers() const { return *std::get<std::shared_ptr<Numbers>>(m_data); }
    Strings& strings() const { return *std::get<std::shared_ptr<Strings>>(m_data); }
    Vectors& vectors() const { return *std::get<std::shared_ptr<Vectors>>(m_data); }
    std::string& string() { return std::get<std::string>(m_data); }

    /// The number of elements of an array; 1 for anything else but none.
    std::size_t size() const;
    /// An element of an array; the neutral value past the end.
    Value element(std::size_t index) const;
    /// Sets an element of an array, which grows as needed; the value is converted to the element's type.
    void setElement(std::size_t index, const Value& value) const;
    /// A value that shares no elements with this one.
    Value detached() const;

    /// The value converted as assignment converts. Throws ValueError where MEL has no conversion.
    Value to(Type type) const;
    /// Numbers truncate, strings give their leading number, vectors their length.
    int toInteger() const;
    double toNumber() const;
    /// True when the number is not 0; "on", "yes" and "true" count as 1.
    bool toBoolean() const;
    /// The text that `print` shows and that joining strings uses.
    std::string toString() const;
    Vector toVector() const;

private:
    std::variant<std::monostate, int, double, std::string, Vector, Matrix, std::shared_ptr<Integers>,
                 std::shared_ptr<Numbers>, std::shared_ptr<Strings>, std::shared_ptr<Vectors>>
        m_data;
};

/// Ten significant digits, as MEL writes a float.
std::string numberText(double value);
/// The text of `// Result: text //`: array elements in one line, a vector in angle brackets.
std::string resultText(const Value& value);

/// How much of a string was a number.
struct LeadingNumber
{
    double value = 0.0;
    bool found = false; ///< the string begins with a number (after white space)
};
LeadingNumber leadingNumber(std::string_view text);

} // namespace tvxhost::mel
