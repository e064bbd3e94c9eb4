// Every rule of the registry on the documents of its folder rules/ID:
//
//   failing*.yaml      with its findings in failing*.expected, a line "line:column message" for each, in the
//                      order of the reports; inert rules have none
//   passing*.yaml      without findings
//   STEM.options.yaml  options for the document STEM.yaml; options.yaml for all that have none of their own
//   STEM.fixed.yaml    what the rule's fix makes of STEM.yaml
//
// Documents may be .json too. And the registry, the folders and the pages of docs/rules against each other.
// With SPECLOOM_UPDATE_GOLDEN set the expected files are written anew, for review.

#include "foundation/strings.h"
#include "jv/deser.h"
#include "openapi/reader.h"
#include "openapi/writer.h"
#include "openapi_lint/lint_context.h"
#include "openapi_lint/rule_registry.h"
#include "reporting/place.h"
#include "source_edit/apply.h"
#include "test_support/corpora.h"
#include "test_support/golden.h"

#include <algorithm>   // std::replace
#include <filesystem>  // std::filesystem
#include <memory>      // std::unique_ptr
#include <set>         // std::set
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace specloom::openapi_lint {
namespace {

namespace fs = std::filesystem;
using test_support::expectGolden;
using test_support::fileBytes;

const fs::path ruleFolders = fs::path(SPECLOOM_TEST_DIR) / "tests/rules";
const fs::path rulePages = fs::path(SPECLOOM_SOURCE_DIR) / "docs/rules";

/// Registered, listed in rulesets, and silent on purpose.
const std::set<std::string_view> inertRules = {"json-api/resource-type-unique", "json-api/schema-validation",
                                               "openapi-json-schema-validation", "schema-example-defined"};
/// These do not ask whether they are disabled.
const std::set<std::string_view> alwaysOn = {"json-schema-validation"};
const std::set<std::string_view> fixableRules = {
    "id-defined",        "path-parameters-on-items",  "paths-sorted",
    "paths-well-formed", "schema-enum-no-duplicates", "spell-check",
    "tags-sorted"};

/// The documents of a rule whose names begin with `prefix`.
std::vector<fs::path> documentsOf(std::string_view id, std::string_view prefix) {
    std::vector<fs::path> documents;
    if (!fs::is_directory(ruleFolders / id))
        return documents;
    for (const auto& entry : fs::directory_iterator(ruleFolders / id)) {
        const std::string stem = entry.path().stem().string();
        if (jv::formatFromPath(entry.path().string()) && stem.starts_with(prefix) &&
            stem.find('.') == std::string::npos)
            documents.push_back(entry.path());
    }
    std::sort(documents.begin(), documents.end());
    return documents;
}

fs::path beside(const fs::path& document, const std::string& extension) {
    return fs::path(document).replace_extension(extension);
}

/// A rule as it stands in a configuration beside the document, and the document that it is to look at.
class Bench {
  public:
    Bench(std::string_view id, const fs::path& path)
        : path_(path), rule_(findRule(id, Severity::Error)),
          document_(
              openapi::readFile(path.string(), std::make_shared<const openapi::SchemaFormatRegistry>())) {
        context_.document = document_.get();
        for (const fs::path& options : {beside(path, ".options.yaml"), path.parent_path() / "options.yaml"}) {
            if (!fs::exists(options))
                continue;
            // As the element of a list, because a scalar alone is no document to the YAML reader.
            options_ = jv::parseDocument("-" + indentLines(fileBytes(options), 2).substr(1),
                                         {.format = jv::DocumentFormat::Yaml, .refLoader = {}});
            rule_->configure(options_->root()->elements()[0]);
            break;
        }
    }

    [[nodiscard]] std::string findings() {
        context_.results.clear();
        context_.freeze(); // as a run does it
        rule_->check(context_);
        context_.release();
        std::string text;
        for (const LintResult& result : context_.results)
            text += fmt::format("{} {}\n", reporting::printedPos(result.pos()), result.message);
        return text;
    }
    void disable() {
        const std::unique_ptr<jv::JV> ids = jv::JV::newArray();
        ids->appendString(rule_->id());
        document_->root().replaceExtension("x-lint-disable", openapi::Value(*ids));
    }
    /// The text after the fix; the tree says the same.
    [[nodiscard]] std::string fixed(jv::DocumentFormat format) {
        rule_->fix(context_);
        const auto edited = source_edit::applyEdits(fileBytes(path_), format, context_.edits());
        if (!edited) {
            ADD_FAILURE() << "cannot be edited";
            return "";
        }
        const auto again = openapi::read(jv::parseDocument(edited->text, {.format = format, .refLoader = {}}),
                                         std::make_shared<const openapi::SchemaFormatRegistry>());
        EXPECT_TRUE(openapi::Writer()
                        .write(again->root())
                        ->root()
                        ->equals(*openapi::Writer().write(document_->root())->root()));
        return edited->text;
    }
    [[nodiscard]] const Rule& rule() const { return *rule_; }

  private:
    fs::path path_;
    std::unique_ptr<jv::JVDocument> options_;
    std::unique_ptr<Rule> rule_;
    std::unique_ptr<openapi::ReadResult> document_;
    LintContext context_;
};

class EveryRule : public testing::TestWithParam<std::string_view> {};

TEST_P(EveryRule, findsWhatItShouldInFailingDocuments) {
    const std::vector<fs::path> documents = documentsOf(GetParam(), "failing");
    EXPECT_EQ(documents.empty(), inertRules.contains(GetParam()));
    for (const fs::path& document : documents) {
        SCOPED_TRACE(document);
        Bench bench(GetParam(), document);
        const std::string findings = bench.findings();
        EXPECT_NE(findings, "");
        expectGolden(findings, beside(document, ".expected"));
        EXPECT_EQ(bench.findings(), findings) << "another document would be judged by the first one's state";
        if (!alwaysOn.contains(GetParam())) {
            bench.disable();
            EXPECT_EQ(bench.findings(), "") << "disabled at the root";
        }
    }
}

TEST_P(EveryRule, findsNothingInPassingDocuments) {
    const std::vector<fs::path> documents = documentsOf(GetParam(), "passing");
    EXPECT_FALSE(documents.empty());
    for (const fs::path& document : documents) {
        SCOPED_TRACE(document);
        EXPECT_EQ(Bench(GetParam(), document).findings(), "");
    }
}

TEST_P(EveryRule, fixesWhatItSays) {
    for (const fs::path& document : documentsOf(GetParam(), "")) {
        const fs::path fixed = beside(document, ".fixed" + document.extension().string());
        if (!fs::exists(fixed))
            continue;
        SCOPED_TRACE(document);
        const jv::DocumentFormat format = *jv::formatFromPath(document.string());
        expectGolden(Bench(GetParam(), document).fixed(format), fixed);
        EXPECT_EQ(Bench(GetParam(), fixed).fixed(format), fileBytes(fixed)) << "fixed a second time";
    }
    const auto rule = findRule(GetParam(), Severity::Error);
    EXPECT_EQ(rule->isFixable(), fixableRules.contains(GetParam()));
    EXPECT_EQ(rule->id(), GetParam());
}

/// The page shows the documents failing.yaml and passing.yaml as they are.
TEST_P(EveryRule, hasAPageWithItsDocuments) {
    const fs::path page = rulePages / (std::string(GetParam()) + ".md");
    ASSERT_TRUE(fs::exists(page)) << page;
    const std::string text = fileBytes(page);
    EXPECT_TRUE(text.starts_with(fmt::format("# {}\n", GetParam()))) << page;
    for (const char* name : {"failing.yaml", "passing.yaml"}) {
        if (name == std::string_view("failing.yaml") && inertRules.contains(GetParam()))
            continue;
        const fs::path document = ruleFolders / GetParam() / name;
        EXPECT_NE(text.find("```yaml\n" + fileBytes(document) + "```\n"), std::string::npos)
            << page << " does not show " << document;
    }
}

std::string testName(const testing::TestParamInfo<std::string_view>& id) {
    std::string name(id.param);
    for (const char separator : {'-', '/'})
        std::replace(name.begin(), name.end(), separator, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Rules, EveryRule, testing::ValuesIn(ruleIds()), testName);

TEST(RuleFiles, belongToARule) {
    for (const auto& entry : fs::recursive_directory_iterator(rulePages)) {
        if (entry.is_directory())
            continue;
        const fs::path id = entry.path().lexically_relative(rulePages).replace_extension();
        EXPECT_TRUE(isRuleKnown(id.generic_string())) << entry.path();
    }
    for (const auto& entry : fs::recursive_directory_iterator(ruleFolders)) {
        if (entry.is_directory())
            continue;
        const fs::path id = entry.path().parent_path().lexically_relative(ruleFolders);
        EXPECT_TRUE(isRuleKnown(id.generic_string())) << entry.path();
    }
}

/// A file pair by the rule's name: the id with "_" for every other separator.
TEST(RuleFiles, haveTheNameOfTheirRule) {
    const fs::path sources = fs::path(SPECLOOM_TEST_DIR) / "src/rules";
    std::set<std::string> expected;
    for (const std::string_view id : ruleIds()) {
        const std::string name = testName({id, 0});
        expected.insert({name + ".h", name + ".cpp"});
    }
    std::set<std::string> present;
    for (const auto& entry : fs::directory_iterator(sources))
        present.insert(entry.path().filename().string());
    EXPECT_EQ(present, expected);
}

} // namespace
} // namespace specloom::openapi_lint
