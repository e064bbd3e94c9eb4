// Holds the table of limits in docs/security.md to the constants of the program, both ways.

#include "code_morph/generated_path.h"
#include "egret/analysis/budget.h"
#include "foundation/input_file.h"
#include "foundation/message.h"
#include "jv/yaml_reader.h"
#include "jv_generator/generator.h"
#include "jv_schema/schema.h"
#include "markdown/containers.h"
#include "markdown/parser.h"
#include "number/number.h"
#include "openapi/reader.h"
#include "openapi_diff/component_comparisons.h"
#include "openapi_format/configuration.h"
#include "openapi_lint/lint_context.h"
#include "regex/pattern.h"
#include "source_edit/line_script.h"
#include "tree.h"

#include <cstdint>  // std::uint64_t
#include <iterator> // std::next
#include <map>      // std::map
#include <optional> // std::optional
#include <regex>    // std::regex, on our own texts
#include <set>      // std::set
#include <string>   // std::string, std::stoull

#include <gtest/gtest.h>

namespace specloom::docs_tests {
namespace {

/// Numbers by "path constant", the path from the root of the repository.
using Limits = std::map<std::string, std::uint64_t>;

/// Those that a header of a module declares.
const Limits declared = {
    {"code_morph/src/generated_path.h longestFileName", code_morph::base::longestFileName},
    {"code_morph/src/generated_path.h longestFilePath", code_morph::base::longestFilePath},
    {"egret/src/analysis/budget.h mostCheckSteps", egret::checks::mostCheckSteps},
    {"foundation/src/input_file.h largestInput", largestInput},
    {"foundation/src/message.h longestMessageArgument", longestMessageArgument},
    {"jv/src/yaml_reader.h deepestYaml", jv::deepestYaml},
    {"jv/src/yaml_reader.h longestTagPrefix", jv::longestTagPrefix},
    {"jv/src/yaml_reader.h mostTagDirectives", jv::mostTagDirectives},
    {"jv_generator/src/generator.h deepestValue", jv_generator::deepestValue},
    {"jv_generator/src/generator.h mostAttempts", jv_generator::mostAttempts},
    {"jv_generator/src/generator.h mostGenerated", jv_generator::mostGenerated},
    {"jv_schema/src/schema.h deepestEvaluation", jv::schema::deepestEvaluation},
    {"jv_schema/src/schema.h longestEvaluation", jv::schema::longestEvaluation},
    {"jv_schema/src/schema.h mostErrorBytes", jv::schema::mostErrorBytes},
    {"jv_schema/src/schema.h mostErrors", jv::schema::mostErrors},
    {"markdown/src/containers.h deepestContainer", markdown::deepestContainer},
    {"markdown/src/parser.h mostFilledCells", markdown::mostFilledCells},
    {"markdown/src/parser.h mostReferenceBytes", markdown::mostReferenceBytes},
    {"number/src/number.h bigPrecision", number::bigPrecision},
    {"openapi/src/reader.h maxNodeDepth", openapi::maxNodeDepth},
    {"openapi_diff/src/component_comparisons.h comparisonsOfAll",
     openapi_diff::ComponentComparisons::comparisonsOfAll},
    {"openapi_format/src/configuration.h largestIndent", openapi_format::Configuration::largestIndent},
    {"openapi_lint/src/lint_context.h mostFindings", openapi_lint::LintContext::mostFindings},
    {"regex/src/pattern.h maxSteps", regex::Pattern::maxSteps},
    {"regex/src/syntax.h maxInstructions", regex::maxInstructions},
    {"regex/src/syntax.h maxNesting", regex::maxNesting},
    {"source_edit/src/line_script.h mostDifferingLines", source_edit::mostDifferingLines},
};

/// Those that are read out of the text: they stand in one source alone, in a function, or in a module that
/// this test does without.
const std::set<std::string> inSources = {
    "cli/src/process.cpp enough",
    "cli/src/process.cpp margin",
    "egret/src/alphabet.cpp mostSymbolsOfLabels",
    "egret/src/contexts.cpp mostContextSteps",
    "egret/src/graph.cpp mostEdges",
    "egret/src/graph.cpp mostNodes",
    "egret/src/lengths.cpp mostLengthParts",
    "egret/src/lengths.cpp mostLengthSteps",
    "egret/src/path_search.h longestString",
    "egret/src/strings.cpp mostCoveringCharacters",
    "egret/src/strings.cpp mostJudgingSteps",
    "code_morph_java/src/spring/names.h longestName",
    "code_morph_java/src/string_literal.cpp longestConstant",
    "foundation/src/sibling_file.cpp mostLinks",
    "foundation/src/sibling_file.cpp mostTries",
    "foundation/src/validators/uri.cpp longest",
    "jv/src/json_writer.cpp deepest",
    "jv/src/key_pool.cpp longestProbe",
    "jv/src/yaml_writer.cpp freeGrowth",
    "jv/src/yaml_writer.cpp mostGrowth",
    "openapi_generator_doc_html/src/document/json_text.h deepestIndented",
    "openapi_generator_doc_html/src/document/properties.h deepestPropertyTable",
    "openapi_generator_doc_html/src/document/type_text.cpp deepestTypeText",
    "openapi_generator_doc_html/src/document/type_text.cpp longestItemsText",
    "openapi_generator_doc_html/src/document/type_text.cpp mostSchemasOfType",
    "openapi_generator_doc_html/src/document/type_text.cpp mostTypesAllowed",
    "openapi_generator_server_spring/src/context.h mostArguments",
    "openapi_generator_server_spring/src/controller_constants.h mostConstants",
    "openapi_generator_server_spring/src/schema_visitor_handler.cpp deepestList",
    "openapi_lint/src/formatters/stylish_formatter.cpp widestMessage",
    "openapi_lint/src/rules/standard_response_errors.cpp maximumParts",
    "openapi_lint/src/words.cpp longestWord",
    "regex/src/classes.cpp maxCells",
};

/// Constants with a name like that of a limit which no input meets as one, each with its reason.
const std::set<std::string> noLimits = {
    "egret/src/contexts.cpp mostComparedContexts",         // what is kept; more changes no result
    "egret/src/path_search.cpp mostComparedEdges",         // which of several good ways is taken
    "foundation/src/validators/hostname.cpp longestLabel", // what a host name is
    "markdown/src/raw_html.cpp longestReference",          // no name of HTML is longer
    "jv_generator/src/array_part.cpp mostSpread",          // no schema tells more of them apart
    "jv_generator/src/decimal.cpp mostDecimals",           // the looks of numbers
    "jv_generator/src/decimal.cpp mostDigits",             // no float has more
    "jv_generator/src/gen_factory.cpp mostDemands",        // how far is looked ahead
    "jv_generator/src/gen_factory.cpp mostExplored",       // the same
    "jv_generator/src/gen_factory.cpp mostKindsOfTypes",   // the looks of values
    "jv_generator/src/generator.cpp mostFailures",         // of one attempt; another follows
    "jv_generator/src/generator.cpp mostKeptDemands",      // what is remembered; forgetting changes no value
    "jv_generator/src/generator.cpp mostNestedChoices",    // of one attempt; another follows
    "jv_generator/src/number_part.cpp mostScale",          // the looks of numbers
    "jv_generator/src/texts.cpp longestWord",              // the looks of texts
    "jv_schema/src/evaluation.cpp mostAnswers",            // what is remembered; forgetting changes no result
    "jv_schema/src/keywords/constants.cpp mostShown",      // the wording of a message
    "jv_schema/src/messages.cpp longestQuotation",         // the same
    "number/src/big_float_round.cpp largestExponent",      // beyond it is infinity
    "number/src/exact_numbers.cpp mostBits",               // no number has more
    "regex/src/matcher.cpp maxCachedClasses",              // what is remembered
    "regex/src/matcher.cpp maxKept",                       // the same
    "regex/src/matcher.cpp maxTransitions",                // the same
    "regex/src/shortcut.cpp maxTexts",                     // which of two ways is taken
};

std::uint64_t numberOf(std::string digits) {
    std::erase_if(digits, [](char c) { return c == ',' || c == '\''; });
    return std::stoull(digits);
}

/// The value of the only constant of that name in the source: a number, or one that is shifted.
std::optional<std::uint64_t> valueIn(const std::string& path, const std::string& name) {
    const std::regex declaration("\\bconstexpr [\\w:]+ " + name +
                                 R"( = (?:[\w:]+\{)?([\d']+)\}?(?: << (\d+)U?)?;)");
    const std::string text = textOf(root / path);
    const std::sregex_iterator found(text.begin(), text.end(), declaration);
    if (found == std::sregex_iterator() || std::next(found) != std::sregex_iterator())
        return std::nullopt;
    const std::string shift = (*found)[2];
    return numberOf((*found)[1]) << (shift.empty() ? 0 : std::stoull(shift));
}

Limits limitsOfTheProgram() {
    Limits limits = declared;
    for (const std::string& place : inSources) {
        const std::size_t blank = place.find(' ');
        const auto value = valueIn(place.substr(0, blank), place.substr(blank + 1));
        EXPECT_TRUE(value) << "no such constant, or several, or of another form: " << place;
        limits[place] = value.value_or(0);
    }
    return limits;
}

/// The rows "| what | number | what happens | `constant` in `path` |" of the page.
Limits limitsOfThePage() {
    std::string page = textOf(root / "docs/security.md");
    const std::size_t begin = page.find("\n| Limit | Number |");
    EXPECT_NE(begin, std::string::npos);
    page = page.substr(begin + 1);
    page.resize(page.find("\n\n") + 1);
    const std::regex row(
        R"(\| [^|\n]+ \| ([\d,]+)(?: (KiB|MiB|GiB))?(?: [^|\n]+)? \| [^|\n]+ \| `(\w+)` in `([^`\n]+)` \|\n)");
    const std::map<std::string, unsigned> shifts = {{"", 0}, {"KiB", 10}, {"MiB", 20}, {"GiB", 30}};
    Limits limits;
    std::size_t count = 0;
    for (std::sregex_iterator found(page.begin(), page.end(), row), end; found != end; ++found, ++count)
        limits[(*found)[4].str() + " " + (*found)[3].str()] = numberOf((*found)[1]) << shifts.at((*found)[2]);
    EXPECT_EQ(count, limits.size()) << "a constant has two rows";
    EXPECT_EQ(std::regex_replace(page, row, ""),
              "| Limit | Number | Beyond it | Constant |\n|---|---|---|---|\n")
        << "lines of another form";
    return limits;
}

TEST(Limits, standInThePageAsTheProgramHasThem) {
    const Limits program = limitsOfTheProgram();
    const Limits page = limitsOfThePage();
    for (const auto& [place, number] : program) {
        const auto found = page.find(place);
        if (found == page.end())
            ADD_FAILURE() << "no row for " << place;
        else
            EXPECT_EQ(found->second, number) << place;
    }
    for (const auto& [place, number] : page)
        EXPECT_TRUE(program.contains(place)) << "no limit that this test knows: " << place;
}

TEST(Limits, thatTheSourcesNameAsSuchAreAllKnown) {
    const std::regex constant(
        R"(\bconstexpr [\w:]+ ((?:most|deepest|longest|largest|widest|max|maximum)[A-Z]\w*) = )");
    std::set<std::string> met;
    for (const auto& [path, text] : readSources())
        for (std::sregex_iterator found(text.begin(), text.end(), constant), end; found != end; ++found)
            met.insert(path + " " + (*found)[1].str());
    for (const std::string& place : met)
        EXPECT_TRUE(declared.contains(place) || inSources.contains(place) || noLimits.contains(place))
            << place << ": a row of docs/security.md and a line here, or a reason why it is none";
    for (const std::string& place : noLimits)
        EXPECT_TRUE(met.contains(place)) << place << " is not met any more";
}

} // namespace
} // namespace specloom::docs_tests
