// What documents beside the rules cannot show of the rules for the document's own objects and its texts:
// random identifiers, failures, files of the test's own, and texts of a megabyte.

#include "jv/json_reader.h"
#include "openapi_lint/lint_context.h"
#include "openapi_lint/rule_registry.h"
#include "openapi_lint/spdx.h"
#include "test_support/corpora.h"
#include "test_support/failure.h"
#include "test_support/read_text.h"
#include "test_support/temporary_folder.h"
#include "test_support/texts.h"

#include <cstddef> // std::size_t
#include <memory>  // std::unique_ptr
#include <set>     // std::set
#include <string>  // std::string
#include <vector>  // std::vector

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::openapi_lint {
namespace {

using test_support::failureOf;
using testing::ElementsAre;

/// A document whose info object has these further members.
std::unique_ptr<openapi::ReadResult> readInfo(const std::string& members) {
    return test_support::readText(R"({"openapi":"3.1.0","info":{"title":"Tides","version":"1")" + members +
                                  R"(},"paths":{}})");
}

/// The messages of a rule with these options, if there are any.
std::vector<std::string> findings(openapi::ReadResult& document, const std::string& id,
                                  const std::string& options = "") {
    const std::unique_ptr<Rule> rule = findRule(id, Severity::Error);
    if (!options.empty())
        rule->configure(jv::parseJSON(options)->root());
    LintContext context;
    context.document = &document;
    rule->check(context);
    std::vector<std::string> messages;
    for (LintResult& result : context.results)
        messages.push_back(std::move(result.message));
    return messages;
}

TEST(IdDefined, replacesWrongIdentifiersByRandomOnes) {
    constexpr const char* valid = "7c0f7e0e-3f6e-4b2c-9f57-0d7f3f2f8a11";
    struct Row {
        std::string members;
        bool isReplaced;
        std::string options = "{}";
        std::string attribute = "x-id";
    };
    const std::vector<Row> rows = {
        {"", true},
        {R"(,"x-id":"tides")", true},
        {R"(,"x-id":{})", true},
        {R"(,"x-id":"tides")", true, R"({"pattern":"uuid"})"},
        {R"(,"x-key":"tides")", true, R"({"attribute":"x-key"})", "x-key"},
        {fmt::format(R"(,"x-id":"{}")", valid), false},
        {R"(,"x-id":"7")", false, R"({"pattern":"[a-z]+"})"},
        {R"(,"x-id":"7","x-lint-disable":["id-defined"])", false},
    };
    std::set<std::string> made;
    std::size_t replaced = 0;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.members + row.options);
        const auto document = readInfo(row.members);
        const auto rule = findRule("id-defined", Severity::Error);
        rule->configure(jv::parseJSON(row.options)->root());
        LintContext context;
        context.document = document.get();
        rule->fix(context);
        const jv::JV* identifier = document->root().info().findExtension(row.attribute);
        ASSERT_NE(identifier, nullptr);
        const std::string text(identifier->text());
        EXPECT_EQ(identifier == document->root().info().source()->get(row.attribute), !row.isReplaced);
        if (!row.isReplaced)
            continue;
        EXPECT_THAT(text, testing::MatchesRegex("[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-"
                                                "[0-9a-f]{12}"));
        EXPECT_THAT(findings(*document, "id-defined", row.options), ElementsAre());
        made.insert(text);
        ++replaced;
    }
    EXPECT_EQ(made.size(), replaced) << "an identifier was given twice";
}

TEST(AudienceDefined, endsWithAnAudienceOfAnotherKind) {
    const auto document = readInfo(R"(,"x-audience":["public"])");
    EXPECT_EQ(failureOf<jv::JVError>([&] { return findings(*document, "audience-defined"); }),
              "A string value is expected for 'x-audience'.");
}

TEST(Spdx, knowsEveryIdentifierOfTheListAndNothingElse) {
    for (const char* known :
         {"0BSD", "389-exception", "AAL", "ADSL", "AFL-1.1", "AFL-1.2", "zlib-acknowledgement"})
        EXPECT_TRUE(isSpdxIdentifier(known)) << known;
    for (const char* unknown : {"", "mit", "MIT ", "MI", "MIT OR ISC", "389-", "zzz"})
        EXPECT_FALSE(isSpdxIdentifier(unknown)) << unknown;
    EXPECT_FALSE(isSpdxIdentifier("MIT\n")) << "the lines are not cut properly";

    SPECLOOM_NEEDS_CORPORA();
    std::size_t count = 0;
    for (const auto& [file, list, member] :
         {std::tuple("licenses.json", "licenses", "licenseId"),
          std::tuple("exceptions.json", "exceptions", "licenseExceptionId")}) {
        const auto document =
            jv::parseJSON(test_support::fileBytes(test_support::corporaFolder() / "spdx" / file));
        for (const jv::JV* entry : document->root()->getArray(list)->elements()) {
            EXPECT_TRUE(isSpdxIdentifier(entry->getString(member)->text()))
                << entry->getString(member)->text();
            ++count;
        }
    }
    EXPECT_EQ(count, 811u);
}

/// A folder with a dictionary.
class SpellCheck : public testing::Test {
  protected:
    /// The options that name a dictionary with these two files, without the braces around them.
    [[nodiscard]] std::string dictionary(std::string_view affix, std::string_view words) const {
        return fmt::format(R"("affix":"{}","dictionary":"{}")", folder.write("small.aff", affix),
                           folder.write("small.dic", words));
    }
    const test_support::TemporaryFolder folder;
};

TEST_F(SpellCheck, asksInTheEncodingOfTheDictionary) {
    const std::string options = "{" + dictionary("SET ISO8859-1\n", "3\ntides\ncaf\xE9\nna\xEFve\n") + "}";
    EXPECT_THAT(
        findings(*readInfo(R"(,"description":"Naïve café, cafè naΐve tides")"), "spell-check", options),
        ElementsAre("Possible spelling mistake: 'cafè'", "Possible spelling mistake: 'naΐve'"));
}

TEST_F(SpellCheck, refusesDictionariesOfUnknownEncodings) {
    const std::string options = "{" + dictionary("SET ISCII-NOWHERE\n", "1\ntides\n") + "}";
    EXPECT_EQ(failureOf<std::runtime_error>([&] { return findings(*readInfo(""), "spell-check", options); }),
              "Affix file has an unknown encoding: ISCII-NOWHERE");
}

TEST_F(SpellCheck, acceptsTheWordsOfFiles) {
    const std::string small = dictionary("SET UTF-8\n", "1\ntides\n");
    const auto document = readInfo(R"(,"description":"Ebb ebb's Ebbe neap-tides Émile")");
    const std::string first = folder.write("first.txt", "\xEF\xBB\xBF"
                                                        "ebb\r\n\r\nneap-flood");
    const std::string second = folder.write("second.txt", "  émile  \n");
    EXPECT_THAT(findings(*document, "spell-check",
                         fmt::format(R"({{{},"word_files":["{}","{}"]}})", small, first, second)),
                ElementsAre("Possible spelling mistake: 'Ebbe'"));
    EXPECT_THAT(
        findings(*document, "spell-check", fmt::format(R"({{"words":["x"],"word_files":["{}"]}})", first)),
        ElementsAre())
        << "there is nothing to check against";
    EXPECT_THROW(
        (void)findings(*document, "spell-check",
                       fmt::format(R"({{"word_files":["{}"]}})", folder.write("latin.txt", "caf\xE9\n"))),
        std::runtime_error);
}

TEST_F(SpellCheck, andSafeMarkdownTakeLongTextsAsTheyCome) {
    const std::string options = "{" + dictionary("SET UTF-8\n", "1\ntides\n") + "}";
    struct Row {
        std::string unit;
        std::size_t htmlAndLinks;
        std::size_t mistakes;
    };
    const std::vector<Row> rows = {
        {" ", 0, 0},      {"\\n", 0, 0},  {"a", 0, 0},     {"[", 0, 0},
        {"[a](", 0, 0},   {"![", 0, 0},   {"*a_ ", 0, 0},  {"> ", 0, 0},
        {"- <b", 0, 0},   {"<b> ", 1, 0}, {"<!-- ", 1, 0}, {"[ebb](data:x) ", 1, 1},
        {"tides ", 0, 0}, {"ebb ", 0, 1}, {"-ebb", 0, 1},  {"&amp;", 0, 0},
        {"a@b", 0, 0},    {"`", 0, 0},    {"'ebb", 0, 0},  {"\\\\", 0, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.unit);
        const std::string text = test_support::repeated(row.unit, 1'000'000 / row.unit.size() + 1);
        const auto document = readInfo(fmt::format(R"(,"description":"{}")", text));
        EXPECT_EQ(findings(*document, "safe-markdown").size(), row.htmlAndLinks);
        EXPECT_EQ(findings(*document, "spell-check", options).size(), row.mistakes);
    }
}

} // namespace
} // namespace specloom::openapi_lint
