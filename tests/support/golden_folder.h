#pragma once

#include "test_support/golden.h"

#include <filesystem> // std::filesystem::path
#include <map>        // std::map
#include <string>     // std::string

namespace specloom::test_support {

/// The bytes of all files below `folder`, by their paths from it.
[[nodiscard]] inline std::map<std::string, std::string> filesOf(const std::filesystem::path& folder) {
    std::map<std::string, std::string> files;
    if (std::filesystem::exists(folder))
        for (const std::filesystem::path& file : filesBelow(folder, ""))
            files.emplace(file.lexically_relative(folder).string(), fileBytes(file));
    return files;
}

/// Compares all files below two folders, carriage returns included, or makes the expected one anew, which
/// fails the test.
inline void expectGoldenFolder(const std::filesystem::path& folder, const std::filesystem::path& golden) {
    if (isUpdatingGolden()) {
        std::filesystem::remove_all(golden);
        std::filesystem::create_directories(golden.parent_path());
        std::filesystem::copy(folder, golden, std::filesystem::copy_options::recursive);
        ADD_FAILURE() << "written anew: " << golden;
        return;
    }
    EXPECT_EQ(filesOf(folder), filesOf(golden)) << golden;
}

} // namespace specloom::test_support
