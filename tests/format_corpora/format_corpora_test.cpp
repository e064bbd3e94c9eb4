// Every real document, from and to JSON and YAML: what we write holds the values of the source, both as
// parsers see them that have nothing in common with ours.

#include "format_corpora/known_differences.h"
#include "jv/deser.h"
#include "openapi_format/formatter.h"
#include "test_support/corpora.h"
#include "test_support/parsers.h"

#include <algorithm> // std::any_of, std::count_if, std::replace_if
#include <cctype>    // std::isalnum
#include <charconv>  // std::from_chars

#include <gtest/gtest.h>

namespace specloom::format_corpora {
namespace {

using jv::DocumentFormat;
using test_support::Difference;
using test_support::KeyOrder;
using test_support::Tree;

std::vector<std::string> documentNames() {
    std::vector<std::string> names;
    if (const auto corpora = test_support::corporaFolder(); !corpora.empty())
        for (const char* extension : {".json", ".yaml"})
            for (const auto& path : test_support::filesBelow(corpora / "openapi", extension))
                names.push_back(path.filename().string());
    return names;
}

std::string pathOf(const std::string& document) {
    return (test_support::corporaFolder() / "openapi" / document).string();
}

bool hasBigNumber(const std::string& document) {
    const auto isOfDocument = [&](const BigNumber& big) { return big.document == document; };
    return std::any_of(bigNumbers().begin(), bigNumbers().end(), isOfDocument);
}

/// The formats in which the document can be written.
std::vector<DocumentFormat> targetsOf(const std::string& document) {
    if (hasBigNumber(document))
        return {DocumentFormat::Yaml};
    return {DocumentFormat::Json, DocumentFormat::Yaml};
}

/// Compares by the judges' eyes; what is not a known difference, and a known one that is missing, fails.
void expectSameValues(const std::string& document, const Tree& source, const std::string& written,
                      DocumentFormat target, KeyOrder order) {
    const Tree result = target == DocumentFormat::Json ? test_support::parseJsonIndependently(written)
                                                       : test_support::parseYamlIndependently(written);
    DifferenceCounts counts;
    for (const Difference& difference : test_support::differences(source, result, order)) {
        const std::string name = classOf(difference);
        if (name.empty())
            ADD_FAILURE() << test_support::describe(difference);
        else
            ++counts[name];
    }
    EXPECT_EQ(counts, knownDifferences(document, target));
}

class FormatCorpora : public testing::TestWithParam<std::string> {
  protected:
    const std::string document = GetParam();
};

TEST_P(FormatCorpora, readingAndWritingKeepsValuesAndKeyOrder) {
    const Tree source = test_support::parseFileIndependently(pathOf(document));
    const jv::LoadedDocument loaded = jv::loadDocument(pathOf(document));
    for (const DocumentFormat target : targetsOf(document)) {
        SCOPED_TRACE(jv::extensionOf(target));
        expectSameValues(document, source, jv::documentToText(*loaded.document, target), target,
                         KeyOrder::Matters);
    }
}

TEST_P(FormatCorpora, formattingKeepsValuesAndSettles) {
    const openapi_format::Formatter formatter;
    const Tree source = test_support::parseFileIndependently(pathOf(document));
    for (const DocumentFormat target : targetsOf(document)) {
        SCOPED_TRACE(jv::extensionOf(target));
        const jv::LoadedDocument loaded = jv::loadDocument(pathOf(document));
        const std::string once = formatter.text(*loaded.document, target);
        expectSameValues(document, source, once, target, KeyOrder::Free);

        const auto runAgain = [&](const std::string& text) {
            return formatter.text(*jv::parseDocument(text, {.format = target, .refLoader = {}}), target);
        };
        const std::string twice = runAgain(once);
        if (knownDifferences(document, target).contains("exponent form is left plain")) {
            // The string has become a number, and a number has a spelling of its own.
            EXPECT_NE(twice, once);
            EXPECT_EQ(runAgain(twice), twice);
        } else {
            EXPECT_TRUE(twice == once) << "the second run changes something";
        }
    }
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(FormatCorpora);
INSTANTIATE_TEST_SUITE_P(Documents, FormatCorpora, testing::ValuesIn(documentNames()), [](const auto& test) {
    std::string name = test.param;
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
    return name;
});

TEST(FormatCorporaTables, nameDocumentsThatExist) {
    SPECLOOM_NEEDS_CORPORA();
    const std::vector<std::string> names = documentNames();
    EXPECT_GE(names.size(), 37u);
    std::vector<std::string> tabled = documentsWithKnownDifferences();
    for (const BigNumber& big : bigNumbers())
        tabled.push_back(big.document);
    for (const std::string& name : tabled)
        EXPECT_EQ(std::count(names.begin(), names.end(), name), 1) << name;
}

// ---- big numbers

/// By the text alone: 21 digits and more, or an integer beyond 64 bits.
bool isBig(const std::string& text) {
    const std::string mantissa = text.substr(0, text.find_first_of("eE"));
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (std::count_if(mantissa.begin(), mantissa.end(), isDigit) >= 21)
        return true;
    if (text.find_first_of(".eE") != std::string::npos)
        return false;
    std::int64_t asSigned = 0;
    std::uint64_t asUnsigned = 0;
    const char* end = text.data() + text.size();
    return std::from_chars(text.data(), end, asSigned).ec != std::errc() &&
           std::from_chars(text.data(), end, asUnsigned).ec != std::errc();
}

void collectBigNumbers(const std::string& document, const std::string& pointer, const Tree& tree,
                       std::vector<BigNumber>& found) {
    if (tree.kind == Tree::Kind::Number && isBig(tree.text))
        found.push_back({document, pointer, tree.text});
    for (std::size_t i = 0; i < tree.elements.size(); ++i)
        collectBigNumbers(document, test_support::childPointer(pointer, tree, i), tree.elements[i], found);
}

TEST_P(FormatCorpora, hasTheBigNumbersOfTheTable) {
    std::vector<BigNumber> found;
    collectBigNumbers(document, "", test_support::parseFileIndependently(pathOf(document)), found);
    std::vector<BigNumber> expected;
    for (const BigNumber& big : bigNumbers())
        if (big.document == document)
            expected.push_back(big);
    EXPECT_EQ(found, expected);
}

TEST(FormatCorporaDeathTest, jsonOutputOfBigNumbersEndsTheProcess) {
    SPECLOOM_NEEDS_CORPORA();
    for (const char* document : {"mistral-3.1.yaml", "openai-3.1.yaml"}) {
        const jv::LoadedDocument loaded = jv::loadDocument(pathOf(document));
        const openapi_format::Formatter formatter;
        EXPECT_DEATH(static_cast<void>(formatter.text(*loaded.document, DocumentFormat::Json)),
                     "Unreachable code");
    }
}

// ---- the judge

TEST(Judge, dropsALineFeed) {
    // YAML 1.2.2, section 7.3.2: in a quoted scalar the first of several line breaks goes, the others stay.
    const std::string text = "a: 'text\n\n\n  '\nb: 'text\n\n\n  end'\nc: '\n\n  '\n";
    const auto ours = jv::parseDocument(text, {.format = DocumentFormat::Yaml, .refLoader = {}});
    const Tree right = test_support::treeOf(*ours);
    const Tree judged = test_support::parseYamlIndependently(text);
    const auto texts = [](const Tree& object) {
        std::vector<std::string> all;
        for (const Tree& value : object.elements)
            all.push_back(value.text);
        return all;
    };
    EXPECT_EQ(texts(right), (std::vector<std::string>{"text\n\n", "text\n\nend", "\n"}));
    EXPECT_EQ(texts(judged), (std::vector<std::string>{"text\n", "text\n\nend", ""}));
}

TEST(Judge, tellsKindsByTheCoreSchema) {
    const Tree judged = test_support::parseYamlIndependently(
        "[null, ~, Null, NULL, 'null', true, True, TRUE, false, 'true', yes, 0, -12, +12, 0o17, 0x1F, 1.5, "
        ".5, 1., "
        "1e5, -1.5E-3, .inf, -.Inf, .nan, '1', 1.5.1, 1_000, 2020-01-01, 0x, e5, +, text]");
    std::string kinds;
    for (const Tree& element : judged.elements)
        kinds += "0bnsao"[static_cast<int>(element.kind)];
    EXPECT_EQ(kinds, "0000s"
                     "bbbbs"
                     "s"
                     "nnnnnnnnnnnnn"
                     "ssss"
                     "ssss");
}

} // namespace
} // namespace specloom::format_corpora
