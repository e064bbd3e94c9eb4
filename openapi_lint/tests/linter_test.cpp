#include "jv/yaml_reader.h"
#include "openapi_lint/disabling.h"
#include "openapi_lint/formatter_registry.h"
#include "openapi_lint/linter.h"
#include "openapi_lint/rule_configuration_error.h"
#include "openapi_lint/rule_registry.h"
#include "openapi_lint/rulesets.h"
#include "test_support/corpora.h"
#include "test_support/failure.h"
#include "test_support/golden.h"
#include "test_support/read_text.h"

#include <filesystem>  // std::filesystem
#include <fstream>     // std::ofstream
#include <map>         // std::map
#include <memory>      // std::unique_ptr
#include <optional>    // std::optional
#include <set>         // std::set
#include <sstream>     // std::ostringstream
#include <stdexcept>   // std::runtime_error
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace specloom::openapi_lint {
namespace {

namespace fs = std::filesystem;
using test_support::failureOf;
using test_support::readText;

constexpr const char* wordless = "{openapi: 3.1.0, info: {title: Tides, version: 1.0.0}, paths: {}}";

/// A linter with everything that it printed.
struct Session {
    std::ostringstream out;
    Linter linter{out};

    /// The text of the exception with which it ended, with the rule that it names.
    std::string configure(std::string_view yaml) {
        const std::unique_ptr<jv::JVDocument> config = jv::parseYAML(yaml);
        try {
            linter.configure(config->root());
        } catch (const RuleConfigurationError& error) {
            return fmt::format("{}: {}", error.ruleId(), error.what());
        } catch (const jv::JVError& error) {
            return fmt::format("JVError: {}", error.what());
        }
        return "";
    }
    [[nodiscard]] std::map<std::string, Severity> severities() const {
        std::map<std::string, Severity> result;
        for (const auto& [id, rule] : linter.rules())
            result.emplace(id, rule->severity());
        return result;
    }
};

/// Reports once about the root.
class StubRule final : public Rule {
  public:
    StubRule(std::string_view id, Severity severity) : Rule(id, severity) {}
    void check(LintContext& context) override { report(context, "found", context.root()); }
};

TEST(Configuration, takesRulesFromRulesetsAndOneByOne) {
    constexpr Severity warning = Severity::Warning;
    constexpr Severity error = Severity::Error;
    struct Row {
        std::string config;
        std::string id;
        std::optional<Severity> severity; // none when the rule is off
    };
    const std::vector<Row> rows = {
        {"{}", "info-defined", std::nullopt},
        {"{extends: []}", "info-defined", std::nullopt},
        {"{extends: [recommended]}", "info-defined", error},
        {"{extends: [recommended], rules: {info-defined: warn}}", "info-defined", warning},
        {"{extends: [recommended], rules: {info-defined: warning}}", "info-defined", warning},
        {"{extends: [recommended], rules: {info-defined: err}}", "info-defined", error},
        {"{extends: [recommended], rules: {info-defined: [warn, null]}}", "info-defined", warning},
        {"{extends: [recommended], rules: {info-defined: [warn, {}, more]}}", "info-defined", warning},
        {"{extends: [recommended], rules: {info-defined: 'off'}}", "info-defined", std::nullopt},
        {"{extends: [recommended], rules: {info-defined: ['off', {}]}}", "info-defined", std::nullopt},
        {"{extends: [json-api]}", "info-defined", std::nullopt},
        {"{extends: [json-api, strict]}", "info-defined", error},
        {"{rules: {info-defined: warn}}", "info-defined", warning},
        {"{rules: {no-such-rule: 'off'}}", "no-such-rule", std::nullopt},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.config);
        Session run;
        EXPECT_EQ(run.configure(row.config), "");
        EXPECT_EQ(run.out.str(), "");
        const auto severities = run.severities();
        const auto found = severities.find(row.id);
        EXPECT_EQ(found == severities.end() ? std::nullopt : std::optional(found->second), row.severity);
    }
}

TEST(Configuration, tellsWhatItCannotUse) {
    struct Row {
        std::string config;
        std::string out;
        std::string failure;
    };
    const std::vector<Row> rows = {
        {"{extends: [none, recommended]}", "Cannot load ruleset: Ruleset not found: none\n", ""},
        {"{extends: recommended}", "", "JVError: An array value is expected for 'extends'."},
        {"{extends: [none, 1]}", "", "JVError: A string value is expected for 'extends'."},
        {"{rules: [info-defined]}", "", "JVError: An object value is expected for 'rules'."},
        {"{rules: {no-such-rule: error}}", "Cannot load rule: Rule not found: no-such-rule\n",
         "no-such-rule: Invalid rule configuration"},
        {"{rules: {info-defined: Error}}", "Cannot load rule: Invalid severity\n",
         "info-defined: Invalid rule configuration"},
        {"{rules: {info-defined: 1}}", "Cannot load rule: Invalid rule configuration\n",
         "info-defined: Invalid rule configuration"},
        {"{rules: {info-defined: {severity: error}}}", "Cannot load rule: Invalid rule configuration\n",
         "info-defined: Invalid rule configuration"},
        {"{rules: {info-defined: [error]}}",
         "Cannot load rule: A rule's array must hold a severity and options\n",
         "info-defined: Invalid rule configuration"},
        {"{rules: {paths-max-count: [error, many]}}", "Cannot load rule: Options must be a number\n",
         "paths-max-count: Options must be a number"},
        {"{rules: {info-defined: [1, {}]}}",
         "Cannot load rule: A string value is expected for 'info-defined'.\n",
         "info-defined: Invalid rule configuration"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.config);
        Session run;
        EXPECT_EQ(run.configure(row.config), row.failure);
        EXPECT_EQ(run.out.str(), row.out);
    }
}

TEST(Configuration, isEmptyFromNullAndRecommendedByDefault) {
    Session run;
    run.linter.configure(nullptr);
    EXPECT_TRUE(run.linter.rules().empty());
    run.linter.configureDefaults();
    Session recommended;
    EXPECT_EQ(recommended.configure("{extends: [recommended]}"), "");
    EXPECT_EQ(run.severities(), recommended.severities());
    EXPECT_FALSE(run.linter.rules().empty());
}

TEST(Registries, refuseUnknownNames) {
    std::ostringstream out;
    EXPECT_EQ(failureOf<std::runtime_error>([&] { (void)findFormatter("xml", out); }),
              "Formatter not found: xml");
    EXPECT_EQ(failureOf<std::runtime_error>([] { (void)findRule("InfoDefined", Severity::Error); }),
              "Rule not found: InfoDefined");
    EXPECT_EQ(failureOf<std::runtime_error>([] { (void)findRuleset("Strict"); }),
              "Ruleset not found: Strict");
}

/// The table of the manual, with a link for each rule that there is.
std::string rulesetTable() {
    std::map<std::string, std::map<std::string, std::string>> severities;
    for (const std::string_view name : rulesetNames()) {
        const std::unique_ptr<Ruleset> ruleset = findRuleset(name);
        for (const auto& [id, entry] : ruleset->entries())
            severities[id][std::string(name)] = severityName(entry.severity);
    }
    std::string table = "| Rule | `all` | `recommended` | `strict` | `json-api` |\n|---|---|---|---|---|\n";
    for (auto& [id, inRuleset] : severities) {
        table +=
            isRuleKnown(id) ? fmt::format("| [`{}`](rules/{}.md) |", id, id) : fmt::format("| `{}` |", id);
        for (const char* ruleset : {"all", "recommended", "strict", "json-api"})
            table += fmt::format(" {} |", inRuleset[ruleset].empty() ? "-" : inRuleset[ruleset]);
        table += '\n';
    }
    return table;
}

/// With SPECLOOM_UPDATE_GOLDEN set the table is written anew.
TEST(Rulesets, areWhatTheManualSays) {
    const fs::path page = fs::path(SPECLOOM_SOURCE_DIR) / "docs/linting.md";
    const std::string manual = test_support::fileBytes(page);
    const std::size_t begin = manual.find("| Rule | `all` |");
    ASSERT_NE(begin, std::string::npos);
    const std::size_t end = manual.find("\n\n", begin) + 1;
    if (test_support::isUpdatingGolden())
        std::ofstream(page, std::ios::binary)
            << manual.substr(0, begin) << rulesetTable() << manual.substr(end);
    EXPECT_EQ(manual.substr(begin, end - begin), rulesetTable()) << page;
}

TEST(Rulesets, holdEveryRuleAndNoOther) {
    std::set<std::string_view> held;
    std::vector<std::unique_ptr<Ruleset>> rulesets;
    for (const std::string_view name : rulesetNames()) {
        rulesets.push_back(findRuleset(name));
        for (const auto& [id, entry] : rulesets.back()->entries())
            held.insert(id);
    }
    const std::vector<std::string_view> registered = ruleIds();
    EXPECT_EQ(held, std::set<std::string_view>(registered.begin(), registered.end()));
    EXPECT_EQ(registered.size(), 53U);
}

TEST(Rulesets, giveOptionsToSchemaConstraintsAlone) {
    for (const std::string_view name : rulesetNames()) {
        const std::unique_ptr<Ruleset> ruleset = findRuleset(name);
        for (const auto& [id, entry] : ruleset->entries())
            EXPECT_EQ(entry.options != nullptr, name == "recommended" && id == "schema-constraints")
                << name << ": " << id;
    }
    const auto expected =
        jv::parseYAML("{integer: false, number: true, string: true, array: false, object: false}");
    const std::unique_ptr<Ruleset> recommended = findRuleset("recommended");
    EXPECT_TRUE(recommended->entries().at("schema-constraints").options->equals(*expected->root()));
}

TEST(Severities, haveTwoSpellingsToReadAndTwoToWrite) {
    EXPECT_EQ(severityName(parseSeverity("err")), "error");
    EXPECT_EQ(capitalizedSeverityName(parseSeverity("warn")), "Warning");
    EXPECT_DEATH((void)severityName(static_cast<Severity>(2)),
                 "Unreachable code at openapi_lint/src/types:26");
}

TEST(Context, countsAndPlacesFindings) {
    const auto document = readText(wordless, jv::DocumentFormat::Yaml);
    LintContext context;
    context.document = document.get();
    context.setFilename("a.yaml");
    const auto fixable = findRule("info-defined", Severity::Error);
    StubRule warning("warning", Severity::Warning);
    warning.check(context);
    warning.check(context);
    fixable->check(context);
    openapi::Server* made = document->root().createServer("https://example.com");
    warning.report(context, "made in code", *made);

    ASSERT_EQ(context.results.size(), 5u);
    EXPECT_EQ(context.warningCount, 3u);
    EXPECT_EQ(context.errorCount, 2u);
    EXPECT_EQ(context.fixableErrorCount + context.fixableWarningCount, 0u);
    const LintResult& info = context.results[2];
    EXPECT_EQ(info.ruleId, "info-defined");
    EXPECT_EQ(info.filename, "a.yaml");
    EXPECT_EQ(info.line, 0u);
    EXPECT_EQ(info.column, 23u);
    EXPECT_FALSE(context.results[4].hasPosition());
    EXPECT_FALSE(context.results[4].pos().isKnown());

    const StubRule broken("broken", static_cast<Severity>(2));
    EXPECT_DEATH(broken.report(context, "", document->root()),
                 "Unreachable code at openapi_lint/src/result:51");
}

TEST(Context, groupsByFileAndOrdersByPlace) {
    LintContext context;
    const auto add = [&](std::string_view file, std::uint64_t line, std::uint64_t column) {
        LintResult result;
        result.filename = file;
        result.line = line;
        result.column = column;
        context.results.push_back(result);
    };
    add("b", 7, 9);
    add("a", LintResult::unknown, LintResult::unknown);
    add("b", 7, 2);
    add("a", 0, 9);
    add("b", 7, 9);
    add("a", 0, 2); // columns do not count in line 0
    add("b", 3, 50);
    const ResultsByFile expected = {{"a", {3, 5, 1}}, {"b", {6, 2, 0, 4}}};
    EXPECT_EQ(context.groupByFile(), expected);
}

TEST(Disabling, looksUpwards) {
    struct Row {
        std::string info;
        std::string root;
        bool disabled;
    };
    const std::vector<Row> rows = {
        {"", "", false},
        {"x-lint-disable: [other, stub]", "", true},
        {"x-specloom-lint-disable: [stub]", "", true},
        {"", "x-lint-disable: [stub]", true},
        {"x-lint-disable: [other]", "x-lint-disable: [stub]", true},
        {"x-lint-disable: []", "", false},
        {"x-lint-disable: stub", "", false},
        {"x-lint-disable: {stub: true}", "", false},
        {"x-lint-disable: ['*', 1, null, stu]", "", false},
        {"x-lint-disable: [[stub]]", "", false},
        {"x-lint-disable: [1, stub]", "", true},
        {"x-specloom-lint-disable: [other], x-lint-disable: [stub]", "", false},
        {"x-specloom-lint-disable: null, x-lint-disable: [stub]", "", false},
        {"x-specloom-lint-disable: [other], x-lint-disable: [stub]", "x-lint-disable: [stub]", true},
    };
    const StubRule rule("stub", Severity::Error);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.info + " / " + row.root);
        const auto document = readText(fmt::format("{{openapi: 3.1.0, info: {{title: T, version: '1', "
                                                   "contact: {{}}, {}}}, paths: {{}}, {}}}",
                                                   row.info, row.root),
                                       jv::DocumentFormat::Yaml);
        const openapi::OpenAPI& root = document->root();
        EXPECT_EQ(isDisabled(rule, &root.info()), row.disabled);
        EXPECT_EQ(isDisabled(rule, root.info().contact()), row.disabled);
        EXPECT_EQ(isDisabled(rule, nullptr, &root.paths(), &root.info()), row.disabled);
        EXPECT_EQ(isDisabled(rule, &root.paths()), !row.root.empty());
    }
    EXPECT_FALSE(isDisabled(rule, nullptr, nullptr));
}

TEST(Linter, needsAFileToFix) {
    Session run;
    run.linter.configureDefaults();
    run.linter.setAutoFix(true);
    const auto document = readText(wordless, jv::DocumentFormat::Yaml);
    EXPECT_EQ(failureOf<std::runtime_error>([&] { run.linter.check(*document); }),
              "Cannot auto-fix: filename is not set");
    EXPECT_FALSE(run.linter.context().results.empty());
    EXPECT_EQ(run.out.str(), "");
}

} // namespace
} // namespace specloom::openapi_lint
