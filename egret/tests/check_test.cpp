// Every check on the examples of its page in docs/pattern-checks, which are lists of schemas: those behind
// "Warns:" and those behind "Does not warn:". What all checks say of all of them stands in
// golden/warnings.txt; with SPECLOOM_UPDATE_GOLDEN set it is written anew, for review. And the table of
// checks against the pages.

#include "egret/check.h"
#include "jv/deser.h"
#include "regex/syntax_error.h"
#include "test_support/failure.h"
#include "test_support/golden.h"
#include "test_support/texts.h"

#include <algorithm>   // std::ranges::any_of, std::replace
#include <filesystem>  // std::filesystem
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace specloom::egret {
namespace {

namespace fs = std::filesystem;

const fs::path checkPages = fs::path(SPECLOOM_SOURCE_DIR) / "docs/pattern-checks";

struct Example {
    std::string pattern;
    Lengths lengths{};
    std::string format{};
    std::vector<std::string> enumeration{};

    [[nodiscard]] std::vector<Warning> warnings() const {
        return check(pattern, {.lengths = lengths, .enumeration = enumeration, .format = format});
    }
    [[nodiscard]] bool isWarnedOf(std::string_view id) const {
        return std::ranges::any_of(warnings(), [&](const Warning& warning) { return warning.id == id; });
    }
};

std::string pageOf(std::string_view id) {
    return test_support::fileBytes(checkPages / (std::string(id) + ".md"));
}

/// The schemas in the block of YAML behind a heading of a page.
std::vector<Example> examplesBehind(const std::string& page, const std::string& heading) {
    const std::string opening = "\n" + heading + ":\n\n```yaml\n";
    const std::size_t begin = page.find(opening);
    EXPECT_NE(begin, std::string::npos) << heading;
    const std::size_t end = page.find("```\n", begin + opening.size());
    const std::string block = page.substr(begin + opening.size(), end - begin - opening.size());
    const auto document = jv::parseDocument(block, {.format = jv::DocumentFormat::Yaml, .refLoader = {}});
    std::vector<Example> examples;
    for (const jv::JV* schema : document->root()->elements()) {
        Example example{.pattern = std::string(schema->getRequiredString("pattern")->text())};
        if (const jv::JV* length = schema->get("minLength"))
            example.lengths.min = std::stoull(std::string(length->number().toString()));
        if (const jv::JV* length = schema->get("maxLength"))
            example.lengths.max = std::stoull(std::string(length->number().toString()));
        if (const jv::JV* format = schema->get("format"))
            example.format = format->text();
        if (const jv::JV* values = schema->get("enum"))
            for (const jv::JV* value : values->elements())
                example.enumeration.emplace_back(value->text());
        examples.push_back(std::move(example));
    }
    return examples;
}

class EveryCheck : public testing::TestWithParam<std::string_view> {};

TEST_P(EveryCheck, warnsWhereItsPageSaysSoAndNowhereElse) {
    const std::string page = pageOf(GetParam());
    EXPECT_TRUE(page.starts_with(fmt::format("# {}\n", GetParam())));
    const std::vector<Example> failing = examplesBehind(page, "Warns");
    const std::vector<Example> passing = examplesBehind(page, "Does not warn");
    EXPECT_FALSE(failing.empty());
    EXPECT_FALSE(passing.empty());
    for (const Example& example : failing)
        EXPECT_TRUE(example.isWarnedOf(GetParam())) << example.pattern;
    for (const Example& example : passing)
        EXPECT_FALSE(example.isWarnedOf(GetParam())) << example.pattern;
}

std::string testNameOf(const testing::TestParamInfo<std::string_view>& id) {
    std::string name(id.param);
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Checks, EveryCheck, testing::ValuesIn(checkIds()), testNameOf);

TEST(CheckPages, areListedInTheManual) {
    std::string rows;
    for (const std::string_view id : checkIds()) {
        const std::string page = pageOf(id);
        const std::size_t begin = page.find("\n\n") + 2;
        rows += fmt::format("| [`{0}`](pattern-checks/{0}.md) | {1} |\n", id,
                            page.substr(begin, page.find('\n', begin) - begin));
    }
    const std::string manual = test_support::fileBytes(checkPages.parent_path() / "pattern-checks.md");
    EXPECT_EQ(manual.substr(manual.find("| [")), rows);
    EXPECT_EQ(std::distance(fs::directory_iterator(checkPages), {}),
              static_cast<std::ptrdiff_t>(checkIds().size()));
}

TEST(Check, saysWhatItFoundAndWhere) {
    std::string text;
    for (const std::string_view id : checkIds()) {
        text += fmt::format("{}\n", id);
        const std::string page = pageOf(id);
        for (const char* heading : {"Warns", "Does not warn"})
            for (const Example& example : examplesBehind(page, heading)) {
                text += fmt::format("  {}\n", example.pattern);
                for (const Warning& warning : example.warnings())
                    text += fmt::format("    {} {}: {}\n", warning.offset, warning.id, warning.message);
            }
    }
    test_support::expectGolden(text, fs::path(SPECLOOM_TEST_DIR) / "tests/golden/warnings.txt");
}

TEST(Check, countsOffsetsInBytesAndWarnsInTheirOrder) {
    const std::vector<Warning> warnings = check("^é[1.1][A-z]$");
    ASSERT_EQ(warnings.size(), 2u);
    EXPECT_EQ(warnings[0].offset, 6u);
    EXPECT_EQ(warnings[1].offset, 9u);
    EXPECT_EQ(test_support::failureOf<regex::SyntaxError>([] { return check("^(a$"); }),
              "Unterminated group");
}

TEST(Check, quotesNothingThatActsAndLittle) {
    const std::vector<Warning> warnings = check("^[\x1B" + std::string(500, 'a') + "]$");
    ASSERT_EQ(warnings.size(), 1u);
    EXPECT_EQ(warnings[0].message.find('\x1B'), std::string::npos);
    EXPECT_LT(warnings[0].message.size(), 200u);
}

/// All budgets are spent on some of these: what is found is found without automata, or in a small one.
TEST(Check, endsOnPatternsThatAreMadeToBeCostly) {
    using test_support::repeated;
    const std::vector<std::pair<std::string, std::size_t>> cases = {
        {"^(?:" + repeated("a{0,99}b|", 500) + "c)*$", 1}, // an alternative stands there 500 times
        {"^(?:(?:.{0,300}a){0,300}b)*$", 0},
        {"^" + repeated("(?:a|", 249) + "b" + repeated(")*", 249) + "$", 6}, // repeats of repeats
        {"^(?:" + repeated("[\\p{L}\\d]?", 3000) + ")$", 0},
        {"^" + repeated("\\@", 100'000) + "$", 1},
        {"^" + repeated("[aa]", 50'000) + "$", 1},
        {"^" + repeated("(?=", 250) + repeated(")", 250) + "$", 2}, // takes the empty text alone
    };
    for (const auto& [pattern, count] : cases)
        EXPECT_EQ(
            check(pattern, {.lengths = {100'000, 1'000'000}, .enumeration = {}, .format = "uri"}).size(),
            count)
            << pattern.substr(0, 60);
}

} // namespace
} // namespace specloom::egret
