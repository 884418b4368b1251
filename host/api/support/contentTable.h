// The files of a node, by key: what both tables of external content hold.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace tvxhost::api {

struct ContentTable
{
    struct Entry
    {
        std::string location; ///< as the node has it
        std::string resolved; ///< where it was found; empty when it was not
        std::string context;  ///< the full name of the node that relative paths belong to
        std::vector<std::string> roles;
    };
    std::map<std::string, Entry> entries;

    using Place = std::map<std::string, Entry>::const_iterator;
    /// The entry at an index, or the end.
    Place at(unsigned int index) const
    {
        return index < entries.size() ? std::next(entries.begin(), index) : entries.end();
    }
};

} // namespace tvxhost::api
