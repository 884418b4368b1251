// All paths to one node, and which of them continues a path best.
#pragma once

#include <maya/MDagPath.h>
#include <maya/MDagPathArray.h>
#include <maya/MObject.h>
#include <maya/MString.h>

#include <cstddef>
#include <map>
#include <string_view>
#include <vector>

namespace tarvox::crowd {

/// The paths to a node, in Maya's order, with an index by the names of the nodes on the way.
class InstancePaths
{
public:
    /// So many leading characters are compared.
    static constexpr std::size_t kComparedLength = 10000;

    explicit InstancePaths(const MObject& node);
    InstancePaths(const InstancePaths&) = delete; // the index looks into the names
    InstancePaths& operator=(const InstancePaths&) = delete;

    /// Of the paths whose full name shares most leading characters with `parent`, where a "|" after the whole
    /// of it counts as one more, the first; null when there is no path.
    const MDagPath* bestFor(const MString& parent) const;

private:
    /// A node on the way down to the one that is sought.
    struct Step
    {
        unsigned int firstPath; ///< of those that lead through here
        std::map<std::string_view, std::size_t> below;
    };

    void addToIndex(unsigned int path);
    const MDagPath* firstThrough(const MString& parent) const;
    const MDagPath* bestByScore(const MString& parent) const;

    MDagPathArray m_paths;
    std::vector<MString> m_names;
    std::vector<Step> m_steps; ///< the first is the world
};

} // namespace tarvox::crowd
