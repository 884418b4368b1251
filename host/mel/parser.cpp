// Parsing of whole scripts.
#include "parser.h"

#include "astBuilder.h"
#include "syntaxErrors.h"
#include "syntaxTree.h"

namespace tvxhost::mel {

std::shared_ptr<const ast::Script> parseScript(std::string_view text, const std::string& name)
{
    const LineIndex lines(text);
    try {
        const SyntaxTree tree = parseWholeScript(text);
        auto script = std::make_shared<ast::Script>();
        script->name = name;
        script->statements = AstBuilder(text, lines).statements(*tree);
        return script;
    } catch (const GrammarError& error) {
        throw syntaxError(error, lines, name);
    }
}

} // namespace tvxhost::mel
