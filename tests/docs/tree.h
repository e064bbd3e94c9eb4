#pragma once

#include "test_support/corpora.h"

#include <filesystem> // std::filesystem
#include <map>        // std::map
#include <string>     // std::string

// The repository, as the tests of this folder read it.
namespace specloom::docs_tests {

inline const std::filesystem::path root = SPECLOOM_SOURCE_DIR;

inline std::string textOf(const std::filesystem::path& path) {
    return test_support::fileBytes(path);
}

/// The texts of the headers and sources of all modules, by their paths from the root.
inline std::map<std::string, std::string> readSources() {
    std::map<std::string, std::string> sources;
    for (const auto& module : std::filesystem::directory_iterator(root)) {
        if (!std::filesystem::is_directory(module.path() / "src"))
            continue;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(module.path() / "src"))
            if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h")
                sources[std::filesystem::relative(entry.path(), root).string()] = textOf(entry.path());
    }
    return sources;
}

} // namespace specloom::docs_tests
