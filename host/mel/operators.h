// The operators of MEL on values.
#pragma once

#include "ast.h"
#include "value.h"

namespace tvxhost::mel {

/// `left op right` for every operator but && and ||. Throws ValueError for a combination MEL does not have
/// and for a division by zero.
Value applied(ast::Operator op, const Value& left, const Value& right);
/// `-value`
Value negated(const Value& value);
/// As scripts write it: "+", "<=".
const char* operatorText(ast::Operator op);

} // namespace tvxhost::mel
