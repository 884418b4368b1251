// The tables beside the scenes that real Maya wrote: what they hold, told by others. TVX_SCENES_DIR names the
// folder.
#pragma once

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace tvxhost::test {

/// The fields of each row, without the row of headings; none when there is no such table.
inline std::vector<std::vector<std::string>> tableRows(const std::string& name)
{
    std::vector<std::vector<std::string>> rows;
    std::ifstream table(std::string(TVX_SCENES_DIR) + "/" + name);
    std::string line;
    std::getline(table, line);
    while (std::getline(table, line)) {
        std::istringstream fields(line);
        rows.emplace_back();
        for (std::string field; std::getline(fields, field, '\t');)
            rows.back().push_back(field);
    }
    return rows;
}

} // namespace tvxhost::test
