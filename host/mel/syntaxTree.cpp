// From text to the concrete syntax tree.
#include "syntaxTree.h"

#include "grammar.h"

#include <tao/pegtl/contrib/limit_depth.hpp>

#include <type_traits>

namespace tvxhost::mel {

namespace {

// Nested statements and expressions that are taken; keeps the parser's recursion within any stack.
constexpr std::size_t kNestingLimit = 250;

template <NodeKind Kind>
struct Keep : std::true_type
{
    static void transform(SyntaxTree& node) { node->kind = Kind; }
};

template <class Rule>
struct Selected : std::false_type
{
};
#define TVX_KEEP(rule, nodeKind)                                                                             \
    template <>                                                                                              \
    struct Selected<grammar::rule> : Keep<NodeKind::nodeKind>                                                \
    {                                                                                                        \
    }
TVX_KEEP(type_word, typeWord);
TVX_KEEP(true_word, trueWord);
TVX_KEEP(false_word, falseWord);
TVX_KEEP(catch_word, catchWord);
TVX_KEEP(global_word, globalWord);
TVX_KEEP(callable_name, callableName);
TVX_KEEP(variable_name, variableName);
TVX_KEEP(float_literal, floatLiteral);
TVX_KEEP(integer_literal, integerLiteral);
TVX_KEEP(string_text, stringText);
TVX_KEEP(argument_list, argumentList);
TVX_KEEP(array_literal, arrayLiteral);
TVX_KEEP(matrix_row, matrixRow);
TVX_KEEP(matrix_literal, matrixLiteral);
TVX_KEEP(capture, capture);
TVX_KEEP(index, index);
TVX_KEEP(component, component);
TVX_KEEP(variable, variable);
TVX_KEEP(argument_variable, variable);
TVX_KEEP(cast_prefix, castPrefix);
TVX_KEEP(cast_call, castCall);
TVX_KEEP(catch_call, catchCall);
TVX_KEEP(function_call, functionCall);
TVX_KEEP(prefix_operator, prefixOperator);
TVX_KEEP(postfix_operator, postfixOperator);
TVX_KEEP(operand, operand);
TVX_KEEP(binary_operator, binaryOperator);
TVX_KEEP(assignment_operator, assignmentOperator);
TVX_KEEP(assignment_tail, assignmentTail);
TVX_KEEP(conditional_tail, conditionalTail);
TVX_KEEP(expression, expression);
TVX_KEEP(flag_token, flagToken);
TVX_KEEP(float_token, floatToken);
TVX_KEEP(integer_token, integerToken);
TVX_KEEP(word_token, wordToken);
TVX_KEEP(negated_argument, negatedArgument);
TVX_KEEP(invocation, invocation);
TVX_KEEP(captured_invocation, invocation);
TVX_KEEP(block, block);
TVX_KEEP(array_size, arraySize);
TVX_KEEP(declarator, declarator);
TVX_KEEP(declarators, declarators);
TVX_KEEP(array_mark, arrayMark);
TVX_KEEP(result_type, resultType);
TVX_KEEP(parameter, parameter);
TVX_KEEP(procedure, procedure);
TVX_KEEP(else_if, elseIf);
TVX_KEEP(else_branch, elseBranch);
TVX_KEEP(if_statement, ifStatement);
TVX_KEEP(while_statement, whileStatement);
TVX_KEEP(do_statement, doStatement);
TVX_KEEP(for_in, forIn);
TVX_KEEP(for_initial, forInitial);
TVX_KEEP(for_condition, forCondition);
TVX_KEEP(for_step, forStep);
TVX_KEEP(for_loop, forLoop);
TVX_KEEP(case_label, caseLabel);
TVX_KEEP(default_label, defaultLabel);
TVX_KEEP(switch_case, switchCase);
TVX_KEEP(switch_statement, switchStatement);
TVX_KEEP(break_statement, breakStatement);
TVX_KEEP(continue_statement, continueStatement);
TVX_KEEP(return_statement, returnStatement);
TVX_KEEP(expression_statement, expressionStatement);
TVX_KEEP(command_statement, commandStatement);
#undef TVX_KEEP

template <class Rule>
struct Limited : tao::pegtl::nothing<Rule>
{
};
template <>
struct Limited<grammar::statement> : tao::pegtl::limit_depth<kNestingLimit>
{
};
template <>
struct Limited<grammar::expression> : tao::pegtl::limit_depth<kNestingLimit>
{
};
template <>
struct Limited<grammar::invocation> : tao::pegtl::limit_depth<kNestingLimit>
{
};
template <>
struct Limited<grammar::captured_invocation> : tao::pegtl::limit_depth<kNestingLimit>
{
};

template <class Rule>
constexpr const char* kReason = "Syntax error";
template <>
constexpr const char* kReason<grammar::string_end> = "Unterminated string.";
template <>
constexpr const char* kReason<grammar::comment_end> = "Unterminated comment.";

template <class Rule>
struct Control : tao::pegtl::normal<Rule>
{
    template <class Input, class... States>
    [[noreturn]] static void raise(const Input& in, States&&...)
    {
        throw tao::pegtl::parse_error(kReason<Rule>, in);
    }
};

using Input = tao::pegtl::memory_input<tao::pegtl::tracking_mode::lazy>;

template <class Rule>
SyntaxTree parseRule(Input& input)
{
    try {
        return tao::pegtl::parse_tree::parse<Rule, SyntaxNode, Selected, Limited, Control>(input);
    } catch (const tao::pegtl::parse_error& error) {
        // The only text that is not ours is the nesting limit's.
        const bool tooDeep = error.message() == "maximum parser rule nesting depth exceeded";
        throw GrammarError{error.positions().front().byte,
                           tooDeep ? "Nested too deeply." : std::string(error.message())};
    }
}

} // namespace

SyntaxTree parseWholeScript(std::string_view text)
{
    Input input(text.data(), text.data() + text.size(), "");
    return parseRule<grammar::whole_script>(input);
}

SyntaxTree parseNextStatement(std::string_view text, std::size_t& end)
{
    Input input(text.data(), text.data() + text.size(), "");
    SyntaxTree tree = parseRule<grammar::next_statement>(input);
    end = static_cast<std::size_t>(input.current() - text.data());
    return tree;
}

} // namespace tvxhost::mel
