// The grammar of MEL. Rules commit (`must`) as soon as the kind of a construct is known, so that an error is
// found where it is, and nothing is parsed twice.
#pragma once

#include <tao/pegtl.hpp>

namespace tvxhost::mel::grammar {

using namespace tao::pegtl;

// White space and comments

struct comment_end : string<'*', '/'>
{
};
struct line_comment : seq<string<'/', '/'>, star<not_one<'\r', '\n'>>>
{
};
struct block_comment : seq<string<'/', '*'>, star<not_at<comment_end>, any>, must<comment_end>>
{
};
struct blank : plus<one<' ', '\t', '\n', '\r', '\f', '\v'>>
{
};
struct ws : star<sor<blank, line_comment, block_comment>>
{
};
struct byte_order_mark : string<'\xef', '\xbb', '\xbf'>
{
};

// Words

struct type_word : sor<TAO_PEGTL_KEYWORD("int"), TAO_PEGTL_KEYWORD("float"), TAO_PEGTL_KEYWORD("string"),
                       TAO_PEGTL_KEYWORD("vector"), TAO_PEGTL_KEYWORD("matrix")>
{
};
struct true_word : sor<TAO_PEGTL_KEYWORD("true"), TAO_PEGTL_KEYWORD("on"), TAO_PEGTL_KEYWORD("yes")>
{
};
struct false_word : sor<TAO_PEGTL_KEYWORD("false"), TAO_PEGTL_KEYWORD("off"), TAO_PEGTL_KEYWORD("no")>
{
};
struct catch_word : sor<TAO_PEGTL_KEYWORD("catchQuiet"), TAO_PEGTL_KEYWORD("catch")>
{
};
struct global_word : TAO_PEGTL_KEYWORD("global")
{
};
struct proc_word : TAO_PEGTL_KEYWORD("proc")
{
};
struct if_word : TAO_PEGTL_KEYWORD("if")
{
};
struct else_word : TAO_PEGTL_KEYWORD("else")
{
};
struct while_word : TAO_PEGTL_KEYWORD("while")
{
};
struct do_word : TAO_PEGTL_KEYWORD("do")
{
};
struct for_word : TAO_PEGTL_KEYWORD("for")
{
};
struct in_word : TAO_PEGTL_KEYWORD("in")
{
};
struct switch_word : TAO_PEGTL_KEYWORD("switch")
{
};
struct case_word : TAO_PEGTL_KEYWORD("case")
{
};
struct default_word : TAO_PEGTL_KEYWORD("default")
{
};
struct break_word : TAO_PEGTL_KEYWORD("break")
{
};
struct continue_word : TAO_PEGTL_KEYWORD("continue")
{
};
struct return_word : TAO_PEGTL_KEYWORD("return")
{
};
struct reserved : sor<type_word, true_word, false_word, catch_word, global_word, proc_word, if_word,
                      else_word, while_word, do_word, for_word, in_word, switch_word, case_word, default_word,
                      break_word, continue_word, return_word>
{
};

/// What may stand in an unquoted argument: names, paths, patterns, components, numbers with units.
struct word_char : sor<identifier_other, one<'|', ':', '.', '*', '?', '[', ']', '@', '#', '~', '-', '\\'>,
                       range<'\x80', '\xff'>, seq<one<'/'>, not_at<one<'/', '*'>>>>
{
};

struct callable_name : seq<not_at<reserved>, identifier>
{
};
struct variable_name : seq<one<'$'>, identifier>
{
};

// Literals

struct exponent : seq<one<'e', 'E'>, opt<one<'+', '-'>>, plus<digit>>
{
};
struct float_digits : sor<seq<plus<digit>, one<'.'>, star<digit>, opt<exponent>>,
                          seq<one<'.'>, plus<digit>, opt<exponent>>, seq<plus<digit>, exponent>>
{
};
struct integer_digits : sor<seq<one<'0'>, one<'x', 'X'>, plus<xdigit>>, plus<digit>>
{
};
struct float_literal : float_digits
{
};
struct integer_literal : integer_digits
{
};

struct line_end : sor<string<'\r', '\n'>, one<'\r', '\n'>>
{
};
struct string_text : star<sor<seq<one<'\\'>, sor<line_end, any>>, not_one<'"', '\\', '\r', '\n'>>>
{
};
struct string_end : one<'"'>
{
};
struct string_literal : seq<one<'"'>, string_text, must<string_end>>
{
};

// Expressions

struct expression;
struct operand;
struct captured_invocation;

template <class Opening, class Content, class Closing>
struct enclosed : if_must<Opening, ws, Content, ws, Closing>
{
};
template <class Item>
struct comma_list : seq<Item, star<ws, one<','>, must<ws, Item>>>
{
};

struct parentheses : enclosed<one<'('>, expression, one<')'>>
{
};
struct argument_list : enclosed<one<'('>, opt<comma_list<expression>>, one<')'>>
{
};
struct array_literal : enclosed<one<'{'>, opt<comma_list<expression>>, one<'}'>>
{
};
struct matrix_row : comma_list<expression>
{
};
struct matrix_literal
    : enclosed<string<'<', '<'>, seq<matrix_row, star<ws, one<';'>, must<ws, matrix_row>>>, string<'>', '>'>>
{
};
struct capture : enclosed<one<'`'>, captured_invocation, one<'`'>>
{
};

struct index : enclosed<one<'['>, expression, one<']'>>
{
};
struct component : seq<one<'.'>, one<'x', 'y', 'z'>, not_at<identifier_other>>
{
};
struct variable : seq<variable_name, star<ws, index>, opt<component>>
{
};

struct cast_prefix : seq<one<'('>, ws, type_word, ws, one<')'>>
{
};
struct cast_call : seq<type_word, ws, parentheses>
{
};
struct catch_call : seq<catch_word, must<ws, sor<parentheses, capture>>>
{
};
struct function_call : seq<callable_name, ws, argument_list>
{
};

struct primary
    : sor<variable, string_literal, float_literal, integer_literal, cast_call, catch_call, function_call,
          true_word, false_word, parentheses, capture, matrix_literal, array_literal>
{
};

struct prefix_operator : sor<string<'+', '+'>, string<'-', '-'>, one<'!', '-', '+'>>
{
};
struct postfix_operator : sor<string<'+', '+'>, string<'-', '-'>>
{
};
struct operand : seq<rep_opt<32, sor<cast_prefix, prefix_operator>, ws>, primary, opt<ws, postfix_operator>>
{
};

struct binary_operator
    : sor<string<'<', '='>, string<'>', '='>, string<'=', '='>, string<'!', '='>, string<'&', '&'>,
          string<'|', '|'>, seq<one<'<'>, not_at<one<'<'>>>, seq<one<'>'>, not_at<one<'>'>>>,
          seq<one<'+', '-', '*', '/', '%', '^'>, not_at<one<'='>>>>
{
};
struct assignment_operator : sor<seq<one<'+', '-', '*', '/', '%', '^'>, one<'='>>, one<'='>>
{
};
struct assignment_tail : if_must<assignment_operator, ws, expression>
{
};
struct conditional_tail : if_must<one<'?'>, ws, expression, ws, one<':'>, ws, expression>
{
};
struct expression : seq<operand, star<ws, binary_operator, must<ws, operand>>,
                        opt<ws, sor<assignment_tail, conditional_tail>>>
{
};

// Commands

struct sign : opt<one<'+', '-'>>
{
};
struct flag_token : seq<one<'-'>, identifier, not_at<word_char>>
{
};
struct float_token : seq<sign, float_digits, not_at<word_char>>
{
};
struct integer_token : seq<sign, integer_digits, not_at<word_char>>
{
};
struct word_token : plus<word_char>
{
};

// An index of an argument follows its variable at once: `$a [0]` are two arguments.
struct argument_variable : seq<variable_name, star<index>, opt<component>, not_at<word_char>>
{
};
struct negated_argument : seq<one<'-'>, sor<argument_variable, parentheses>>
{
};
struct plain_or_enclosed : sor<string_literal, argument_variable, parentheses, array_literal, matrix_literal,
                               negated_argument, flag_token, float_token, integer_token, word_token>
{
};
struct argument : sor<capture, plain_or_enclosed>
{
};
struct command_name : seq<callable_name, not_at<word_char>>
{
};
// `name (a, b)` is a function call, `name (a) b` a command: what follows the parentheses tells.
template <class Argument>
struct invocation_of : seq<command_name, opt<ws, argument_list>, star<ws, Argument>>
{
};
struct invocation : invocation_of<argument>
{
};
// Inside back quotes the next back quote is the closing one.
struct captured_invocation : invocation_of<plain_or_enclosed>
{
};

// Statements

struct statement;
struct statement_end : seq<ws, sor<one<';'>, eof>>
{
};
struct condition : seq<ws, one<'('>, ws, expression, ws, one<')'>>
{
};
struct body : seq<ws, statement>
{
};

struct block : if_must<one<'{'>, star<ws, statement>, ws, one<'}'>>
{
};
struct empty_statement : one<';'>
{
};

struct array_size : enclosed<one<'['>, opt<expression>, one<']'>>
{
};
struct initial_value : seq<one<'='>, not_at<one<'='>>, must<ws, expression>>
{
};
struct declarator : seq<variable_name, star<ws, array_size>, opt<ws, initial_value>>
{
};
struct declaration_head : seq<opt<global_word, ws>, type_word, ws, at<one<'$'>>>
{
};
struct declarators : seq<declaration_head, must<comma_list<declarator>>>
{
};
struct declaration : seq<declarators, must<statement_end>>
{
};

struct array_mark : seq<one<'['>, ws, one<']'>>
{
};
struct result_type : seq<type_word, opt<ws, array_mark>>
{
};
struct parameter : seq<type_word, must<ws, variable_name, star<ws, array_size>>>
{
};
struct procedure : if_must<seq<opt<global_word, ws>, proc_word>, ws, opt<result_type, ws>, callable_name, ws,
                           one<'('>, ws, opt<comma_list<parameter>>, ws, one<')'>, ws, block>
{
};

struct else_if : if_must<seq<ws, else_word, ws, if_word>, condition, body>
{
};
struct else_branch : if_must<seq<ws, else_word>, body>
{
};
struct if_statement : if_must<if_word, condition, body, star<else_if>, opt<else_branch>>
{
};
struct while_statement : if_must<while_word, condition, body>
{
};
struct do_statement : if_must<do_word, body, ws, while_word, condition, statement_end>
{
};

struct for_in_head : seq<opt<type_word, ws>, variable_name, ws, in_word>
{
};
struct for_in : if_must<for_in_head, ws, expression, ws, one<')'>, body>
{
};
struct for_initial : opt<sor<declarators, comma_list<expression>>>
{
};
struct for_condition : opt<expression>
{
};
struct for_step : opt<comma_list<expression>>
{
};
struct for_loop
    : seq<for_initial, must<ws, one<';'>, ws, for_condition, ws, one<';'>, ws, for_step, ws, one<')'>, body>>
{
};
struct for_statement : if_must<for_word, ws, one<'('>, ws, sor<for_in, for_loop>>
{
};

struct case_label : if_must<case_word, ws, expression, ws, one<':'>>
{
};
struct default_label : if_must<default_word, ws, one<':'>>
{
};
struct switch_case : seq<sor<case_label, default_label>, star<ws, statement>>
{
};
struct switch_statement : if_must<switch_word, condition, ws, one<'{'>, star<ws, switch_case>, ws, one<'}'>>
{
};

struct break_statement : if_must<break_word, statement_end>
{
};
struct continue_statement : if_must<continue_word, statement_end>
{
};
struct return_statement : if_must<return_word, ws, opt<expression>, statement_end>
{
};

// A command in back quotes is an expression, and no statement of its own.
struct expression_statement : seq<not_at<one<'`'>>, expression, must<statement_end>>
{
};
// What cannot begin an argument, or can only where a blank does not follow.
struct joining_operator
    : sor<string<'=', '='>, string<'!', '='>, string<'<', '='>, string<'>', '='>, string<'&', '&'>,
          one<'?', '%', '^'>, seq<one<'<'>, not_at<one<'<'>>>, seq<one<'>'>, not_at<one<'>'>>>,
          seq<sor<one<'+', '-', '*', '/'>, string<'|', '|'>>, blank>>
{
};
// `sin(1) * 2` is an expression, though it begins as a command does.
struct function_in_expression : seq<callable_name, argument_list, ws, joining_operator>
{
};
struct command_statement : seq<not_at<function_in_expression>, invocation, must<statement_end>>
{
};

struct statement : sor<block, empty_statement, command_statement, declaration, procedure, if_statement,
                       for_statement, while_statement, do_statement, switch_statement, break_statement,
                       continue_statement, return_statement, expression_statement>
{
};

struct whole_script : seq<opt<byte_order_mark>, star<ws, statement>, ws, must<eof>>
{
};
struct next_statement : seq<ws, sor<eof, must<statement>>>
{
};

// The light path: statements of tokens only

struct plain_string : seq<one<'"'>, string_text, string_end>
{
};
// Long strings stand in several pieces: ("one" + "two").
struct sum_string : seq<one<'"'>, string_text, string_end>
{
};
struct plain_sum : seq<one<'('>, opt<blank>, sum_string, plus<opt<blank>, one<'+'>, opt<blank>, sum_string>,
                       opt<blank>, one<')'>>
{
};
struct plain_argument : sor<plain_string, plain_sum, flag_token, float_token, integer_token, word_token>
{
};
struct plain_statement : seq<command_name, star<ws, plain_argument>, ws, one<';'>>
{
};

} // namespace tvxhost::mel::grammar
