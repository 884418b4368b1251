// Variables: the global ones of a session, and those of the blocks of a running procedure.
#pragma once

#include "value.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tvxhost::mel {

/// A variable keeps the type it was declared with.
struct Variable
{
    Type type = Type::none;
    Value value;

    /// Assigns a value of its own, converted to the variable's type. Throws ValueError.
    void assign(const Value& newValue);
};

/// The variables that every script can declare `global`, by name without the dollar sign.
using Globals = std::unordered_map<std::string, std::shared_ptr<Variable>>;

/// The variables of one procedure call, in nested blocks. Names are views into the running script's tree.
class Frame
{
public:
    void enterBlock() { m_blocks.push_back(m_variables.size()); }
    void leaveBlock();
    bool inBlock() const { return !m_blocks.empty(); }

    /// The innermost variable of that name; null when there is none.
    const std::shared_ptr<Variable>* find(std::string_view name) const;
    /// The variable of that name in the innermost block only.
    const std::shared_ptr<Variable>* findInBlock(std::string_view name) const;
    /// Declares the variable in the innermost block; it hides an outer one of the same name.
    void declare(std::string_view name, std::shared_ptr<Variable> variable);

private:
    std::vector<std::pair<std::string_view, std::shared_ptr<Variable>>> m_variables;
    std::vector<std::size_t> m_blocks; ///< where each block's variables begin
};

} // namespace tvxhost::mel
