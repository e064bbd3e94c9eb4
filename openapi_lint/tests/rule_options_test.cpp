// What each rule says to options that it does not take.

#include "jv/deser.h"
#include "openapi_lint/rule_configuration_error.h"
#include "openapi_lint/rule_registry.h"

#include <memory> // std::unique_ptr
#include <string> // std::string
#include <vector> // std::vector

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace specloom::openapi_lint {
namespace {

/// The failure of options that are written as JSON, or of a null pointer for no text at all.
std::string failureOf(const std::string& id, const std::string& options) {
    std::unique_ptr<jv::JVDocument> document;
    if (!options.empty())
        document = jv::parseDocument(options, {.format = jv::DocumentFormat::Json, .refLoader = {}});
    try {
        findRule(id, Severity::Error)->configure(document == nullptr ? nullptr : document->root());
    } catch (const RuleConfigurationError& error) {
        return fmt::format("{}: {}", error.ruleId(), error.what());
    } catch (const jv::JVError& error) {
        return fmt::format("JVError: {}", error.what());
    }
    return "";
}

TEST(RuleOptions, areRefusedWithOneText) {
    struct Row {
        std::vector<std::string> rules;
        std::string options;
        std::string message; ///< "{}" stands for the rule
    };
    const std::vector<std::string> lengths = {"operation-description-defined",
                                              "parameter-description-defined", "tag-description-defined"};
    const std::vector<std::string> maxima = {"paths-max-count", "paths-max-depth"};
    const std::vector<std::string> naming = {"parameter-naming"};
    const std::vector<std::string> schemaNaming = {"schema-enum-naming", "schema-property-naming"};
    const std::vector<std::string> suffix = {"schema-datetime-suffix"};
    const std::vector<std::string> constraints = {"schema-constraints"};
    const std::vector<std::string> errors = {"standard-response-errors"};
    const std::vector<std::string> id = {"id-defined"};
    const std::vector<std::string> spelling = {"spell-check"};
    const std::vector<Row> rows = {
        {lengths, "", "{}: Options must not be null"},
        {lengths, "null", "{}: Options must be a string or an object"},
        {lengths, "{}", "{}: Options must be a string or an object"},
        {lengths, "\"10\"", "JVError: A numeric value is expected for '{}'."},
        {lengths, "0", "{}: Minimal description length must be a positive number"},
        {lengths, "-0.5", "{}: Minimal description length must be a positive number"},
        {lengths, "0.5", ""},
        {lengths, "1e400", ""},
        {maxima, "", "{}: Options must not be null"},
        {maxima, "null", "{}: Options must be a number"},
        {maxima, "\"8\"", "{}: Options must be a number"},
        {maxima, "[8]", "{}: Options must be a number"},
        {maxima, "0", "{}: Max path count must be a positive number"},
        {maxima, "-1", "{}: Max path count must be a positive number"},
        {maxima, "1", ""},
        {naming, "", "{}: Options must not be null"},
        {naming, "null", "{}: Options must be a string or an object"},
        {naming, "[]", "{}: Options must be a string or an object"},
        {naming, "\"Camel\"", "{}: Unknown naming convention: Camel"},
        {naming, "{\"default\": \"\"}", "{}: Unknown naming convention: "},
        {naming, "{\"default\": \"snake\", \"cookie\": \"train\"}", "{}: Unknown naming convention: train"},
        {naming, "{\"path\": 1}", "JVError: A string value is expected for 'path'."},
        {naming, "{\"default\": null}", "JVError: A string value is expected for 'default'."},
        {naming, "{\"body\": 1}", ""},
        {naming, "{}", ""},
        {schemaNaming, "", "{}: Options must not be null"},
        {schemaNaming, "null", "{}: Options must be a string"},
        {schemaNaming, R"({"default": "camel"})", "{}: Options must be a string"},
        {schemaNaming, "\"camelCase\"", "{}: Unknown naming convention: camelCase"},
        {schemaNaming, "\"header\"", ""},
        {suffix, "", "{}: Options must not be null"},
        {suffix, "null", "{}: Options must be a string"},
        {suffix, "\"\"", "{}: Options must not be empty"},
        {suffix, "\"T\"", ""},
        {constraints, "", "{}: Options must be an object"},
        {constraints, "[]", "{}: Options must be an object"},
        {constraints, R"({"integer": 1})", "JVError: A boolean value is expected for 'integer'."},
        {constraints, R"({"number": true, "object": "no"})",
         "JVError: A boolean value is expected for 'object'."},
        {constraints, R"({"array": false, "more": true})",
         "{}: At least one of integer, number, string, array or object must be true"},
        {constraints, R"({"array": true})", ""},
        {errors, "", "{}: Options cannot be null"},
        {errors, "null", "{}: Options must be a string"},
        {errors, "\"problem\"", "{}: Unknown convention: problem"},
        {errors, "\"problem-json\"", ""},
        {id, "", "{}: Options must not be null"},
        {id, "null", "{}: Options must be an object"},
        {id, "\"x-id\"", "{}: Options must be an object"},
        {id, R"({"attribute": ""})", "{}: Attribute name must not be empty"},
        {id, R"({"attribute": "id"})", "{}: Attribute name must start with 'x-'"},
        {id, R"({"attribute": 1})", "JVError: A string value is expected for 'attribute'."},
        {id, R"({"pattern": ""})", "{}: Pattern must not be empty"},
        {id, R"({"pattern": []})", "JVError: A string value is expected for 'pattern'."},
        {id, R"({"pattern": "(a"})", "{}: Pattern is not a regular expression: (a (Unterminated group)"},
        {id, R"({"pattern": "a)(b"})", "{}: Pattern is not a regular expression: a)(b (Unmatched ')')"},
        {id, R"({"attribute": "x-", "pattern": "UUID", "more": 1})", ""},
        {spelling, "", "{}: Options must not be null"},
        {spelling, "null", "{}: Options must be an object"},
        {spelling, "[]", "{}: Options must be an object"},
        {spelling, R"({"dictionaries": 1})", "{}: Unknown option: dictionaries"},
        {spelling, R"({"affix": 1, "dictionary": "a"})", "{}: Option 'affix' must be a string"},
        {spelling, R"({"affix": "a", "dictionary": null})", "{}: Option 'dictionary' must be a string"},
        {spelling, R"({"affix": "a"})", "{}: Options 'affix' and 'dictionary' must be given together"},
        {spelling, R"({"dictionary": "a"})", "{}: Options 'affix' and 'dictionary' must be given together"},
        {spelling, R"({"affix": "/no/a", "dictionary": "/"})", "{}: Affix file cannot be read: /no/a"},
        {spelling, R"({"affix": "/dev/null", "dictionary": "/"})", "{}: Dictionary file cannot be read: /"},
        {spelling, R"({"affix": "/dev/null", "dictionary": "/dev/null"})",
         "{}: Dictionary file does not begin with its number of words: /dev/null"},
        {spelling, R"({"words": "a"})", "{}: Option 'words' must be an array of strings"},
        {spelling, R"({"words": ["a", 1]})", "{}: Option 'words' must be an array of strings"},
        {spelling, R"({"word_files": {}})", "{}: Option 'word_files' must be an array of strings"},
        {spelling, R"({"word_files": ["/no/a"]})", "{}: Word file cannot be read: /no/a"},
        {spelling, "{}", ""},
    };
    for (const Row& row : rows)
        for (const std::string& rule : row.rules) {
            SCOPED_TRACE(rule + " with " + row.options);
            EXPECT_EQ(failureOf(rule, row.options), fmt::format(fmt::runtime(row.message), rule));
        }
}

} // namespace
} // namespace specloom::openapi_lint
