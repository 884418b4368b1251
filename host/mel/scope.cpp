// Variables and blocks.
#include "scope.h"

#include <algorithm>

namespace tvxhost::mel {

void Variable::assign(const Value& newValue)
{
    // Assigning an array to itself must not copy from what is being replaced.
    value = newValue.to(type).detached();
}

void Frame::leaveBlock()
{
    m_variables.resize(m_blocks.back());
    m_blocks.pop_back();
}

const std::shared_ptr<Variable>* Frame::find(std::string_view name) const
{
    const auto found = std::find_if(m_variables.rbegin(), m_variables.rend(),
                                    [name](const auto& entry) { return entry.first == name; });
    return found == m_variables.rend() ? nullptr : &found->second;
}

const std::shared_ptr<Variable>* Frame::findInBlock(std::string_view name) const
{
    const auto first =
        m_variables.begin() + static_cast<std::ptrdiff_t>(m_blocks.empty() ? 0 : m_blocks.back());
    const auto found =
        std::find_if(first, m_variables.end(), [name](const auto& entry) { return entry.first == name; });
    return found == m_variables.end() ? nullptr : &found->second;
}

void Frame::declare(std::string_view name, std::shared_ptr<Variable> variable)
{
    m_variables.emplace_back(name, std::move(variable));
}

} // namespace tvxhost::mel
