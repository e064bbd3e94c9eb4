// The documents of the corpora: every ruleset runs over each that reads, and fixing a second time changes no
// byte.

#include "openapi_lint/linter.h"
#include "openapi_lint/rulesets.h"
#include "test_support/corpora.h"
#include "test_support/read_tree.h"
#include "test_support/sanitizers.h"
#include "test_support/temporary_folder.h"

#include <cstdint>    // std::uint64_t
#include <filesystem> // std::filesystem
#include <map>        // std::map
#include <memory>     // std::unique_ptr
#include <ostream>    // std::ostream
#include <string>     // std::string
#include <vector>     // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi_lint {
namespace {

namespace fs = std::filesystem;

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
    const test_support::TemporaryFolder folder;
    std::size_t count = 0;
    for (const fs::path& path : test_support::affordableCorpusDocuments()) {
        SCOPED_TRACE(path);
        const test_support::ReadTree tree = test_support::readTree(path);
        if (tree.result == nullptr || tree.result->source().losses() != jv::ReadingLosses())
            continue; // that it has to be refused is shown elsewhere
        ++count;
        const fs::path copy = folder.path() / ("document" + path.extension().string());
        fs::copy_file(path, copy, fs::copy_options::overwrite_existing);
        const std::string once = fixed(copy);
        EXPECT_TRUE(fixed(copy) == once);
    }
    EXPECT_GT(count, 20u);
}

struct Place {
    std::uint64_t line;
    std::uint64_t column;
    std::string message;
    Severity severity;
};

/// The findings of a ruleset by rule.
std::map<std::string, std::vector<Place>> findingsOf(openapi::ReadResult& document, const char* ruleset) {
    std::ostream nowhere(nullptr);
    Linter linter(nowhere);
    const std::unique_ptr<jv::JV> config = jv::JV::newObject();
    config->setArray("extends")->appendString(ruleset);
    linter.configure(config.get());
    linter.check(document);
    std::map<std::string, std::vector<Place>> findings;
    for (const auto& [id, rule] : linter.rules())
        findings[id];
    for (const LintResult& result : linter.context().results)
        findings[std::string(result.ruleId)].push_back(
            {result.line, result.column, result.message, result.severity});
    return findings;
}

/// A rule finds the same whichever ruleset names it, with the severity that the ruleset gives it. Only where
/// the ruleset gives the rule options, as "recommended" does for schema-constraints, it is asked for
/// something else, and its findings are not compared.
TEST(Corpora, giveTheSameFindingsInEveryRuleset) {
    SPECLOOM_NEEDS_CORPORA();
    std::size_t total = 0;
    for (const fs::path& path : test_support::affordableCorpusDocuments()) {
        SCOPED_TRACE(path);
        const test_support::ReadTree tree = test_support::readTree(path);
        if (tree.result == nullptr)
            continue;
        const auto all = findingsOf(*tree.result, "all");
        for (const char* ruleset : {"recommended", "strict"}) {
            SCOPED_TRACE(ruleset);
            const auto entries = findRuleset(ruleset);
            for (const auto& [id, places] : findingsOf(*tree.result, ruleset)) {
                SCOPED_TRACE(id);
                if (entries->entries().at(id).options != nullptr)
                    continue;
                const std::vector<Place>& expected = all.at(id);
                ASSERT_EQ(places.size(), expected.size());
                for (std::size_t i = 0; i < places.size(); ++i) {
                    EXPECT_EQ(places[i].line, expected[i].line);
                    EXPECT_EQ(places[i].column, expected[i].column);
                    EXPECT_EQ(places[i].message, expected[i].message);
                    EXPECT_EQ(places[i].severity, entries->entries().at(id).severity);
                }
                total += places.size();
            }
        }
    }
    EXPECT_GT(total, test_support::hasAddressSanitizer ? 1'000u : 10'000u);
}

} // namespace
} // namespace specloom::openapi_lint
