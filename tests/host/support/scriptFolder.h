// A folder of scripts, each beside the file of what it prints.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace tvxhost::test {

/// The scripts of a folder without their ending, sorted.
inline std::vector<std::string> scriptNames(const std::filesystem::path& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".mel")
            names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

inline std::string contentOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream) << file;
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

} // namespace tvxhost::test
