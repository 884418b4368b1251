// All paths to one node, and which of them continues a path best.
#include "core/utils/tvxInstancePaths.h"

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

int score(std::string_view candidate, std::string_view parent)
{
    std::size_t shared = 0;
    while (shared < InstancePaths::kComparedLength && shared < candidate.size()) {
        if (shared == parent.size())
            return static_cast<int>(shared) + (candidate[shared] == '|' ? 1 : 0);
        if (candidate[shared] != parent[shared])
            break;
        ++shared;
    }
    return static_cast<int>(shared);
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

const MDagPath* InstancePaths::bestByScore(const MString& parent) const
{
    const MDagPath* best = nullptr;
    int bestScore = -1;
    for (unsigned int i = 0; i < m_paths.length(); ++i) {
        const int candidate = score(viewOf(m_names[i]), viewOf(parent));
        if (candidate > bestScore) {
            bestScore = candidate;
            best = &m_paths[i];
        }
    }
    return best;
}

} // namespace tarvox::crowd
