// NameTable: see nameTable.h.
#include "nameTable.h"

#include "node.h"

#include <cctype>
#include <functional>

namespace tvxhost::engine {

void NumberRuns::insert(int n)
{
    auto after = m_runs.upper_bound(n);
    int first = n;
    int last = n;
    if (after != m_runs.begin()) {
        const auto before = std::prev(after);
        if (before->second >= n)
            return;
        if (before->second == n - 1)
            first = before->first;
    }
    if (after != m_runs.end() && after->first == n + 1) {
        last = after->second;
        m_runs.erase(after);
    }
    m_runs[first] = last;
}

void NumberRuns::erase(int n)
{
    auto run = m_runs.upper_bound(n);
    if (run == m_runs.begin() || (--run)->second < n)
        return;
    const auto [first, last] = *run;
    m_runs.erase(run);
    if (first < n)
        m_runs[first] = n - 1;
    if (n < last)
        m_runs[n + 1] = last;
}

int NumberRuns::firstFree(int from) const
{
    auto run = m_runs.upper_bound(from);
    if (run == m_runs.begin() || (--run)->second < from)
        return from;
    return run->second + 1;
}

NumberedName splitNumber(const std::string& name)
{
    constexpr std::size_t kMaxDigits = 9; // what fits an int
    std::size_t start = name.size();
    while (start > 0 && name.size() - start < kMaxDigits &&
           std::isdigit(static_cast<unsigned char>(name[start - 1])))
        --start;
    while (start + 1 < name.size() && name[start] == '0')
        ++start;
    if (start == name.size())
        return {name, -1};
    return {name.substr(0, start), std::stoi(name.substr(start))};
}

void NameTable::add(Node& node)
{
    Bucket& bucket = m_buckets[node.name()];
    if (bucket.nodes.empty()) {
        const NumberedName split = splitNumber(node.name());
        if (split.number >= 0)
            m_numbers[split.stem].insert(split.number);
    }
    node.m_nameSlot = bucket.nodes.size();
    bucket.nodes.push_back(&node);
    bucket.dependencyNodes += !node.asDag();
}

void NameTable::remove(Node& node)
{
    const auto found = m_buckets.find(node.name());
    Bucket& bucket = found->second;
    bucket.nodes.back()->m_nameSlot = node.m_nameSlot;
    bucket.nodes.eraseUnordered(node.m_nameSlot);
    bucket.dependencyNodes -= !node.asDag();
    if (!bucket.nodes.empty())
        return;
    m_buckets.erase(found);
    const NumberedName split = splitNumber(node.name());
    if (split.number >= 0)
        m_numbers[split.stem].erase(split.number);
}

const NameTable::Holders& NameTable::nodesNamed(const std::string& name) const
{
    static const Holders none{};
    const auto found = m_buckets.find(name);
    return found == m_buckets.end() ? none : found->second.nodes;
}

bool NameTable::isTakenByDependencyNode(const std::string& name) const
{
    const auto found = m_buckets.find(name);
    return found != m_buckets.end() && found->second.dependencyNodes > 0;
}

std::string NameTable::nextFree(const std::string& name) const
{
    const NumberedName split = splitNumber(name);
    return freeFrom(split.stem, split.number < 0 ? 1 : split.number + 1);
}

std::string NameTable::firstFree(const std::string& stem) const
{
    return freeFrom(stem, 1);
}

std::string NameTable::freeFrom(const std::string& stem, int number) const
{
    const auto numbers = m_numbers.find(stem);
    return stem + std::to_string(numbers == m_numbers.end() ? number : numbers->second.firstFree(number));
}

std::size_t NameTable::SiblingHash::operator()(const Sibling& sibling) const
{
    return std::hash<const void*>()(sibling.parent) * 31 ^ std::hash<std::string_view>()(sibling.name);
}

void NameTable::addChild(const DagNode& parent, DagNode& child)
{
    m_siblings[{&parent, child.name()}] = &child;
}

void NameTable::removeChild(const DagNode& parent, const DagNode& child)
{
    const auto found = m_siblings.find({&parent, child.name()});
    if (found != m_siblings.end() && found->second == &child)
        m_siblings.erase(found);
}

DagNode* NameTable::childNamed(const DagNode& parent, std::string_view name) const
{
    const auto found = m_siblings.find({&parent, name});
    return found == m_siblings.end() ? nullptr : found->second;
}

void NameTable::clear()
{
    m_buckets.clear();
    m_numbers.clear();
    m_siblings.clear();
}

} // namespace tvxhost::engine
