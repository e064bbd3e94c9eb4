#pragma once

#include "test_support/corpora.h"

#include <cstdlib>    // std::getenv
#include <filesystem> // std::filesystem::path
#include <fstream>    // std::ofstream
#include <string>     // std::string

#include <gtest/gtest.h>

namespace specloom::test_support {

/// Whether expected files are to be written anew, for review: SPECLOOM_UPDATE_GOLDEN is set.
[[nodiscard]] inline bool isUpdatingGolden() {
    return std::getenv("SPECLOOM_UPDATE_GOLDEN") != nullptr;
}

/// Compares a text with that of a file, or writes the file anew, which fails the test.
inline void expectGolden(const std::string& text, const std::filesystem::path& file) {
    if (isUpdatingGolden()) {
        std::ofstream(file, std::ios::binary) << text;
        ADD_FAILURE() << "written anew: " << file;
        return;
    }
    EXPECT_EQ(text, fileBytes(file)) << file;
}

} // namespace specloom::test_support
