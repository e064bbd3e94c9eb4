#pragma once

#include "openapi_diff/diff_context.h"
#include "openapi_diff/diffs/openapi_diff.h"
#include "test_support/corpora.h"
#include "test_support/read_text.h"

#include <algorithm>   // std::replace, std::sort
#include <filesystem>  // std::filesystem
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi_diff {

/// Reports the changes between two documents as the recommended configuration classifies them; returns the
/// report.
template <typename AnyReport>
AnyReport& compareDocuments(const openapi::ReadResult& before, const openapi::ReadResult& after,
                            AnyReport& report) {
    static const Configuration configuration = Configuration::recommended();
    DiffContext context(configuration, before, after, report);
    OpenAPIDiff().diff(&before.root(), &after.root(), context);
    return report;
}

/// The same between before.yaml and after.yaml of a folder.
inline void compareFolder(const std::filesystem::path& folder, Report& report) {
    const auto read = [&](const char* name) {
        return test_support::readText(test_support::fileBytes(folder / name), jv::DocumentFormat::Yaml);
    };
    compareDocuments(*read("before.yaml"), *read("after.yaml"), report);
}

/// The folders in a folder of the tests, sorted.
inline std::vector<std::filesystem::path> foldersIn(std::string_view name) {
    std::vector<std::filesystem::path> folders;
    const std::filesystem::path all = std::filesystem::path(SPECLOOM_TEST_DIR) / "tests" / name;
    for (const auto& entry : std::filesystem::directory_iterator(all))
        folders.push_back(entry.path());
    std::sort(folders.begin(), folders.end());
    return folders;
}

inline std::string nameOfFolder(const testing::TestParamInfo<std::filesystem::path>& folder) {
    std::string name = folder.param.filename().string();
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

} // namespace specloom::openapi_diff
