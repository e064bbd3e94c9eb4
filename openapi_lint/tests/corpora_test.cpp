// The documents of the corpora: all rules run over each that reads, and fixing a second time changes no byte.

#include "openapi_lint/linter.h"

#include <filesystem> // std::filesystem
#include <ostream>    // std::ostream
#include <string>     // std::string
#include <vector>     // std::vector

#include <gtest/gtest.h>
#include <unistd.h> // getpid

#include "test_support/corpora.h"
#include "test_support/read_tree.h"

namespace specloom::openapi_lint {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> documents() {
    std::vector<fs::path> paths;
    for (const char* folder : {"openapi", "pairs"})
        for (const char* suffix : {".json", ".yaml"})
            for (fs::path& path : test_support::filesBelow(test_support::corporaFolder() / folder, suffix))
                paths.push_back(std::move(path));
    return paths;
}

/// What is left of the document in `path` after all its rules fixed what they can.
std::string fixed(const fs::path& path) {
    const test_support::ReadTree tree = test_support::readTree(path);
    if (tree.result == nullptr) {
        ADD_FAILURE() << "cannot be read: " << tree.refusal;
        return "";
    }
    std::ostream nowhere(nullptr);
    Linter linter(nowhere);
    const std::unique_ptr<jv::JV> config = jv::JV::newObject();
    jv::JV* rulesets = config->setArray("extends");
    for (const char* name : {"all", "json-api"}) // every rule is in one of them
        rulesets->appendString(name);
    linter.configure(config.get());
    linter.setAutoFix(true);
    linter.run(*tree.result, path.string());
    const LintContext& context = linter.context();
    EXPECT_EQ(context.errorCount + context.warningCount, context.results.size());
    return test_support::fileBytes(path);
}

TEST(Corpora, areFixedOnce) {
    SPECLOOM_NEEDS_CORPORA();
    const fs::path folder = fs::path(testing::TempDir()) / ("lint_corpora_" + std::to_string(getpid()));
    fs::create_directories(folder);
    std::size_t count = 0;
    for (const fs::path& path : documents()) {
        SCOPED_TRACE(path);
        if (test_support::readTree(path).result == nullptr)
            continue; // that it has to be refused is the reader's to show
        ++count;
        const fs::path copy = folder / ("document" + path.extension().string());
        fs::copy_file(path, copy, fs::copy_options::overwrite_existing);
        const std::string once = fixed(copy);
        EXPECT_TRUE(fixed(copy) == once);
    }
    EXPECT_GT(count, 20u);
    fs::remove_all(folder);
}

} // namespace
} // namespace specloom::openapi_lint
