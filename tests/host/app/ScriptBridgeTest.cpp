// Values of the language as the API sees them, there and back.
#include "app/scriptBridge.h"

#include <gtest/gtest.h>

namespace {

using tvxhost::app::toResult;
using tvxhost::app::toValue;
using tvxhost::engine::ScriptRunner;
using tvxhost::mel::Matrix;
using tvxhost::mel::Type;
using tvxhost::mel::Value;
using tvxhost::mel::Vector;
using Kind = ScriptRunner::Result::Kind;

void expectThereAndBack(const Value& value, Kind kind, bool isArray)
{
    const ScriptRunner::Result result = toResult(value);
    EXPECT_EQ(result.kind, kind);
    EXPECT_EQ(result.isArray, isArray);
    const Value back = toValue(result);
    EXPECT_EQ(back.type(), value.type());
    EXPECT_EQ(resultText(back), resultText(value));
}

TEST(ScriptValues, KeepTheirTypeAndValueThroughTheApi)
{
    expectThereAndBack(Value(), Kind::none, false);
    expectThereAndBack(Value(-7), Kind::integer, false);
    expectThereAndBack(Value(0.25), Kind::real, false);
    expectThereAndBack(Value("two words"), Kind::string, false);
    expectThereAndBack(Value(Vector(1, 2, 3)), Kind::vector, false);
    expectThereAndBack(Value(Value::Integers{1, 2}), Kind::integer, true);
    expectThereAndBack(Value(Value::Numbers{0.5}), Kind::real, true);
    expectThereAndBack(Value(Value::Strings{"a", ""}), Kind::string, true);
    expectThereAndBack(Value(Value::Strings{}), Kind::string, true);
    expectThereAndBack(Value(Value::Vectors{{1, 2, 3}, {4, 5, 6}}), Kind::vector, true);
}

TEST(ScriptValues, KeepTheShapeOfAMatrix)
{
    Matrix matrix(2, 3);
    matrix.at(1, 2) = 5;
    const Value back = toValue(toResult(Value(matrix)));
    ASSERT_EQ(back.type(), Type::matrix);
    EXPECT_EQ(back.matrix().rows, 2u);
    EXPECT_EQ(back.matrix().columns, 3u);
    EXPECT_EQ(back.matrix().at(1, 2), 5);
}

} // namespace
