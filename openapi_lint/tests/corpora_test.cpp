// The documents of the corpora: every ruleset runs over each that reads, a fix changes what its rule says and
// nothing else, and fixing a second time changes no byte.

#include "jv/jv_pointer.h"
#include "openapi/node_visitor.h"
#include "openapi/schema.h"
#include "openapi/writer.h"
#include "openapi_lint/linter.h"
#include "openapi_lint/rule_registry.h"
#include "openapi_lint/rulesets.h"
#include "test_support/corpora.h"
#include "test_support/read_tree.h"
#include "test_support/temporary_folder.h"
#include "test_support/write_back.h"

#include <algorithm>   // std::none_of, std::stable_sort
#include <cstdint>     // std::uint64_t
#include <filesystem>  // std::filesystem
#include <map>         // std::map
#include <ostream>     // std::ostream
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::move
#include <vector>      // std::vector

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
        if (test_support::readTree(path).result == nullptr)
            continue; // that it has to be refused is the reader's to show
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
    EXPECT_GT(total, 10'000u);
}

/// What a path becomes: one slash in front and between, lower case; a path whose name is taken keeps its own.
std::string wellFormed(std::string_view path) {
    std::string result = "/";
    for (const char c : path) {
        if (c != '/' || result.back() != '/')
            result += static_cast<char>(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c);
    }
    return result;
}

using Differences = std::vector<test_support::WriteBackDifference>;

void expectOnlyBelow(const Differences& differences, std::string_view pointer) {
    for (const auto& difference : differences)
        EXPECT_TRUE(difference.pointer == pointer ||
                    difference.pointer.starts_with(std::string(pointer) + '/'))
            << difference;
}

void expectSortedTags(const jv::JV& before, const jv::JV& after) {
    const jv::JV* tags = before.get("tags");
    if (tags == nullptr)
        return;
    std::vector<const jv::JV*> sorted(tags->elements().begin(), tags->elements().end());
    std::stable_sort(sorted.begin(), sorted.end(), [](const jv::JV* first, const jv::JV* second) {
        return first->get("name")->text() < second->get("name")->text();
    });
    ASSERT_EQ(after.get("tags")->size(), sorted.size());
    for (std::size_t i = 0; i < sorted.size(); ++i)
        EXPECT_TRUE(after.get("tags")->elements()[i]->equals(*sorted[i])) << i;
}

void expectWellFormedPaths(const jv::JV& before, const jv::JV& after) {
    const jv::JV& paths = *after.get("paths");
    ASSERT_EQ(paths.size(), before.get("paths")->size());
    for (const jv::Member& path : before.get("paths")->members()) {
        const jv::JV* renamed = paths.get(wellFormed(path.key));
        if (renamed == nullptr || !renamed->equals(*path.value))
            renamed = paths.get(path.key); // the name was taken
        EXPECT_TRUE(renamed != nullptr && renamed->equals(*path.value)) << path.key;
    }
}

/// Lets every `enum` say twice what it says, because published ones hold no repeats.
void plantRepeats(const openapi::OpenAPI& root) {
    struct : openapi::NodeVisitHandler {
        using NodeVisitHandler::visit;
        void visit(const openapi::Schema& schema) override {
            if (!schema.enumeration().empty())
                found.push_back(&schema);
        }
        std::vector<const openapi::Schema*> found;
    } schemas;
    openapi::NodeVisitor(schemas).visit(root);
    for (const openapi::Schema* schema : schemas.found) {
        std::vector<openapi::Value> values;
        for (int times = 0; times < 2; ++times)
            for (const openapi::Value& value : schema->enumeration())
                values.emplace_back(*value);
        const_cast<openapi::Schema*>(schema)->setEnumeration(std::move(values));
    }
}

/// Differences are only in values under `enum`, and what is there now is what was there without repeats.
void expectDistinctEnums(const Differences& differences, const jv::JV& before, const jv::JV& after) {
    for (const auto& difference : differences) {
        const std::size_t end = difference.pointer.rfind("/enum");
        ASSERT_NE(end, std::string::npos) << difference;
        jv::JVPointer pointer;
        pointer.parse(difference.pointer.substr(0, end + 5));
        const jv::JV* values = before.resolve(pointer);
        const jv::JV* left = after.resolve(pointer);
        ASSERT_TRUE(values != nullptr && values->isArray() && left != nullptr && left->isArray())
            << difference;
        std::vector<const jv::JV*> distinct;
        for (const jv::JV* value : values->elements())
            if (std::none_of(distinct.begin(), distinct.end(),
                             [&](const jv::JV* kept) { return kept->equals(*value); }))
                distinct.push_back(value);
        ASSERT_EQ(left->size(), distinct.size()) << difference;
        for (std::size_t i = 0; i < distinct.size(); ++i)
            EXPECT_TRUE(left->elements()[i]->equals(*distinct[i])) << difference;
    }
}

TEST(Corpora, areFixedInNothingButWhatTheRuleSays) {
    SPECLOOM_NEEDS_CORPORA();
    std::map<std::string, std::size_t> changed;
    for (const fs::path& path : test_support::affordableCorpusDocuments()) {
        SCOPED_TRACE(path);
        const test_support::ReadTree tree = test_support::readTree(path);
        if (tree.result == nullptr)
            continue;
        LintContext context;
        context.document = tree.result.get();
        plantRepeats(tree.result->root());
        const openapi::Writer writer(*tree.result);
        auto before = writer.write(tree.result->root());
        for (const char* id : {"id-defined", "path-parameters-on-items", "paths-sorted", "paths-well-formed",
                               "schema-enum-no-duplicates", "spell-check", "tags-sorted"}) {
            SCOPED_TRACE(id);
            const auto rule = findRule(id, Severity::Error);
            ASSERT_TRUE(rule->isFixable());
            rule->fix(context);
            auto after = writer.write(tree.result->root());

            const Differences differences = test_support::compareWriteBack(*before, *after);
            changed[id] += differences.empty() ? 0 : 1;
            if (rule->id() == "id-defined") {
                expectOnlyBelow(differences, "/info/x-id");
            } else if (rule->id() == "tags-sorted") {
                expectOnlyBelow(differences, "/tags");
                expectSortedTags(*before->root(), *after->root());
            } else if (rule->id() == "paths-well-formed") {
                expectOnlyBelow(differences, "/paths");
                expectWellFormedPaths(*before->root(), *after->root());
            } else if (rule->id() == "schema-enum-no-duplicates") {
                expectDistinctEnums(differences, *before->root(), *after->root());
            } else {
                EXPECT_TRUE(differences.empty()) << differences.front();
            }
            before = std::move(after);
        }
    }
    for (const char* id : {"id-defined", "paths-well-formed", "schema-enum-no-duplicates", "tags-sorted"})
        EXPECT_GT(changed[id], 5u) << id;
}

} // namespace
} // namespace specloom::openapi_lint
