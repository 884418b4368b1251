// Components: some of the components of one kind that a shape has, by their numbers.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tvxhost::engine {

class DagNode;

/// A set of numbers of one kind ("f", "vtx", "cv"), kept as runs in ascending order with gaps between them.
class Components
{
public:
    struct Run
    {
        int first;
        int last; ///< included
    };

    Components() = default;
    explicit Components(std::string kind) : m_kind(std::move(kind)) {}

    const std::string& kind() const { return m_kind; }
    const std::vector<Run>& runs() const { return m_runs; }
    bool empty() const { return m_runs.empty(); }
    std::size_t count() const;

    void add(Run run);

    // What is in one, in both, in the first only; of two kinds nothing is in both.
    Components joined(const Components& other) const;
    Components common(const Components& other) const;
    Components without(const Components& other) const;

    /// "f[0:3]", "f[7]": one per run.
    std::vector<std::string> texts() const;

private:
    std::string m_kind;
    std::vector<Run> m_runs;
};

/// How many components of a kind a shape has: vertices, edges and faces of meshes, control and edit points of
/// curves. Empty for another kind or another shape.
std::optional<int> componentCount(DagNode& shape, std::string_view kind);

/// All components of a kind that a shape has.
Components allComponents(DagNode& shape, const std::string& kind);

/// The components that a text like "f[0:3] f[7]", "vtx[*]" or "e" means, whether or not the shape has them;
/// of those with a star the ones that it has. Empty for a text that is none, for two kinds, and for a kind
/// that such shapes do not have.
std::optional<Components> parseComponents(DagNode& shape, std::string_view text);

} // namespace tvxhost::engine
