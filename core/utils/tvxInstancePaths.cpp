// All paths to one node, and which of them continues a path best.
#include "core/utils/tvxInstancePaths.h"

#include <algorithm>

namespace tarvox::crowd {

namespace {

std::string_view viewOf(const MString& text)
{
    return text.asChar();
}

/// Takes the first name off a path name; empty when there is none left.
std::string_view takeName(std::string_view& path)
{
    const std::size_t begin = path.find_first_not_of('|');
    if (begin == std::string_view::npos)
        return {};
    const std::size_t end = path.find('|', begin);
    const std::string_view name = path.substr(begin, end - begin);
    path.remove_prefix(end == std::string_view::npos ? path.size() : end);
    return name;
}

/// The leading characters that two names share, as far as names are compared.
std::size_t sharedBy(std::string_view a, std::string_view b)
{
    const std::size_t end = std::min({a.size(), b.size(), InstancePaths::kComparedLength});
    std::size_t shared = 0;
    while (shared < end && a[shared] == b[shared])
        ++shared;
    return shared;
}

} // namespace

InstancePaths::InstancePaths(const MObject& node)
{
    MDagPath::getAllPathsTo(node, m_paths);
    m_names.reserve(m_paths.length());
    for (unsigned int i = 0; i < m_paths.length(); ++i)
        addToIndex(i);
}

void InstancePaths::addToIndex(unsigned int path)
{
    m_names.push_back(m_paths[path].fullPathName());
    const std::string_view whole = viewOf(m_names.back());
    std::string_view left = whole.substr(0, whole.rfind('|')); // the node itself is on no way to it
    if (m_steps.empty())
        m_steps.push_back({path, {}});
    std::size_t step = 0;
    for (std::string_view name = takeName(left); !name.empty(); name = takeName(left)) {
        const auto [below, isNew] = m_steps[step].below.try_emplace(name, m_steps.size());
        step = below->second;
        if (isNew)
            m_steps.push_back({path, {}});
    }
}

const MDagPath* InstancePaths::bestFor(const MString& parent) const
{
    const MDagPath* found = viewOf(parent).size() < kComparedLength ? firstThrough(parent) : nullptr;
    return found ? found : bestByScore(parent);
}

// As long as the whole of the parent's name is compared, the paths that continue it have the highest score.
const MDagPath* InstancePaths::firstThrough(const MString& parent) const
{
    if (m_steps.empty())
        return nullptr;
    std::string_view left = viewOf(parent);
    std::size_t step = 0;
    for (std::string_view name = takeName(left); !name.empty(); name = takeName(left)) {
        const auto below = m_steps[step].below.find(name);
        if (below == m_steps[step].below.end())
            return nullptr;
        step = below->second;
    }
    return &m_paths[m_steps[step].firstPath];
}

// For a parent that no path goes on behind, as far as it is compared: none gets the one character more.
const MDagPath* InstancePaths::bestByScore(const MString& parent) const
{
    const MDagPath* best = nullptr;
    std::size_t mostShared = 0;
    for (unsigned int i = 0; i < m_paths.length(); ++i) {
        const std::size_t shared = sharedBy(viewOf(m_names[i]), viewOf(parent));
        if (!best || shared > mostShared) {
            mostShared = shared;
            best = &m_paths[i];
        }
    }
    return best;
}

} // namespace tarvox::crowd
