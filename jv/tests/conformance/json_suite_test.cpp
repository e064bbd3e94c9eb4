// The public suite of JSON parsing cases: "y_" must be read, "n_" refused, "i_" either.

#include "jv/deser.h"
#include "jv/json_reader.h"
#include "test_support/corpora.h"
#include "test_support/documents.h"
#include "test_support/exact_decimal.h"
#include "test_support/failure.h"
#include "test_support/parsers.h"

#include <algorithm> // std::sort
#include <map>       // std::map
#include <memory>    // std::unique_ptr

#include <gtest/gtest.h>

namespace specloom::jv {
namespace {

using test_support::KeyOrder;
using test_support::Tree;

/// The cases that we read although they are to be refused: a form feed is white space for our lexer.
const std::vector<std::string> readAllTheSame = {"n_structure_whitespace_formfeed.json"};

/// The open cases that we refuse: what is not UTF-8, and a byte order mark.
const std::vector<std::string> openAndRefused = {
    "i_string_UTF-16LE_with_BOM.json",
    "i_string_UTF-8_invalid_sequence.json",
    "i_string_invalid_utf-8.json",
    "i_string_iso_latin_1.json",
    "i_string_lone_utf8_continuation_byte.json",
    "i_string_overlong_sequence_6_bytes.json",
    "i_string_overlong_sequence_6_bytes_null.json",
    "i_string_truncated-utf-8.json",
    "i_string_utf16BE_no_BOM.json",
    "i_string_utf16LE_no_BOM.json",
    "i_structure_UTF-8_BOM_empty_object.json",
};

/// The open cases that we read but do not write as YAML, with the error: UTF-8 by form alone, which passes
/// our JSON reader, and a number beyond the largest exponent, which becomes an infinity.
const std::map<std::string, std::string> notForYaml = {
    {"i_number_huge_exp.json", "Failed to initialize number scalar event"},
    {"i_string_UTF8_surrogate_U+D800.json", "Failed to initialize string scalar event"},
    {"i_string_not_in_unicode_range.json", "Failed to initialize string scalar event"},
    {"i_string_overlong_sequence_2_bytes.json", "Failed to initialize string scalar event"},
};

/// Null when the text is refused; any refusal but the one text fails.
std::unique_ptr<JVDocument> read(const std::string& text) {
    try {
        return parseJSON(text);
    } catch (const JSONReaderError& error) {
        EXPECT_STREQ(error.what(), "JSON parse error");
        return nullptr;
    }
}

void expectReadBack(const JVDocument& document, DocumentFormat format) {
    for (const int indent : {0, 2, 7}) {
        const std::string text = documentToText(document, {.format = format, .indent = indent, .sorter = {}});
        const auto again = parseDocument(text, {.format = format, .refLoader = {}});
        EXPECT_EQ(test_support::firstDifference(document, *again), "") << text;
    }
}

/// Writes in both formats, where the format can hold the document, and reads back.
void expectRoundTrip(const JVDocument& document) {
    const JV& root = *document.root();
    // JSON output of a big number ends the process, and a depth above 128 is refused.
    if (!test_support::hasBigNumber(root) && test_support::depthOf(root) <= 128)
        expectReadBack(document, DocumentFormat::Json);
    // Neither a scalar on its own nor an empty key is something for the YAML reader.
    if ((root.isArray() || root.isObject()) && !test_support::hasEmptyKey(root))
        expectReadBack(document, DocumentFormat::Yaml);
}

/// Calls `check(name, text)` for the cases whose names start with `prefix`; returns how many there are.
template <typename Check>
int forEachCase(std::string_view prefix, Check check) {
    int count = 0;
    for (const auto& path : test_support::filesBelow(test_support::corporaFolder() / "json", ".json")) {
        const std::string name = path.filename().string();
        if (!name.starts_with(prefix))
            continue;
        SCOPED_TRACE(name);
        check(name, test_support::fileBytes(path));
        ++count;
    }
    return count;
}

TEST(JsonSuite, readsWhatIsJson) {
    SPECLOOM_NEEDS_CORPORA();
    const int count = forEachCase("y_", [](const std::string&, const std::string& text) {
        const auto document = read(text);
        ASSERT_NE(document, nullptr);
        // The values are those that another parser sees, numbers to the last digit.
        const Tree expected = test_support::parseJsonIndependently(text);
        for (const auto& difference :
             test_support::differences(expected, test_support::treeOf(*document), KeyOrder::Matters))
            ADD_FAILURE() << test_support::describe(difference);
        expectRoundTrip(*document);
    });
    EXPECT_EQ(count, 95);
}

TEST(JsonSuite, refusesWhatIsNot) {
    SPECLOOM_NEEDS_CORPORA();
    std::vector<std::string> acceptedNames;
    const int count = forEachCase("n_", [&](const std::string& name, const std::string& text) {
        if (read(text) != nullptr)
            acceptedNames.push_back(name);
    });
    EXPECT_EQ(acceptedNames, readAllTheSame);
    EXPECT_EQ(count, 188);
}

/// What the writer says against a document as YAML; "" when it writes it.
std::string yamlError(const JVDocument& document) {
    return test_support::failureOf([&] { return documentToText(document, DocumentFormat::Yaml); });
}

TEST(JsonSuite, answersWhatIsLeftOpen) {
    SPECLOOM_NEEDS_CORPORA();
    std::vector<std::string> refused;
    std::map<std::string, std::string> yamlErrors;
    const int count = forEachCase("i_", [&](const std::string& name, const std::string& text) {
        const auto document = read(text);
        if (document == nullptr)
            refused.push_back(name);
        else if (const std::string error = yamlError(*document); !error.empty())
            yamlErrors[name] = error;
        else
            expectRoundTrip(*document);
    });
    std::sort(refused.begin(), refused.end());
    EXPECT_EQ(refused, openAndRefused);
    EXPECT_EQ(yamlErrors, notForYaml);
    EXPECT_EQ(count, 35);
}

TEST(JsonSuite, keepsEveryDigitOfNumbersBeyondTheMachine) {
    SPECLOOM_NEEDS_CORPORA();
    int compared = 0;
    forEachCase("i_number_", [&](const std::string& name, const std::string& text) {
        if (name == "i_number_huge_exp.json")
            return; // its exponent has more digits than any number of ours
        const std::string source = text.substr(1, text.find(']') - 1);
        const std::string ours = read(text)->root()->elements()[0]->number().toString();
        EXPECT_TRUE(test_support::sameNumber(source, ours)) << source << " became " << ours;
        ++compared;
    });
    EXPECT_EQ(compared, 9);
}

} // namespace
} // namespace specloom::jv
