#pragma once

#include <filesystem>  // std::filesystem::path
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::test_support {

/// The folder of public documents and test suites, which are too large to be part of this repository: that of
/// the environment variable SPECLOOM_CORPORA, else ../shared/corpora beside the source tree. Empty when there
/// is none.
[[nodiscard]] std::filesystem::path corporaFolder();

/// Whether a run without the corpora counts as failed: the environment variable SPECLOOM_REQUIRE_CORPORA is
/// set.
[[nodiscard]] bool corporaRequired();

/// All files below `folder`, at any depth, whose name ends with `suffix`, sorted by path.
[[nodiscard]] std::vector<std::filesystem::path> filesBelow(const std::filesystem::path& folder,
                                                            std::string_view suffix);

/// The OpenAPI documents of the corpora, by folder, in the order of their paths; none without corpora.
[[nodiscard]] std::vector<std::filesystem::path> corpusDocuments();
/// The same for what takes long: the sanitizers slow everything down tenfold, so in their builds documents of
/// at most a megabyte stand for all.
[[nodiscard]] std::vector<std::filesystem::path> affordableCorpusDocuments();

/// The bytes of a file. Throws std::runtime_error with "Cannot read " and the path.
[[nodiscard]] std::string fileBytes(const std::filesystem::path& path);

} // namespace specloom::test_support

/// First statement of a test that reads the corpora. Without them it is skipped, or fails where they are
/// required.
#define SPECLOOM_NEEDS_CORPORA()                                                                             \
    if (::specloom::test_support::corporaFolder().empty()) {                                                 \
        if (::specloom::test_support::corporaRequired())                                                     \
            FAIL() << "The corpora are required: set SPECLOOM_CORPORA to their folder";                      \
        GTEST_SKIP() << "No corpora: set SPECLOOM_CORPORA to their folder";                                  \
    }                                                                                                        \
    static_assert(true, "wants a semicolon")
