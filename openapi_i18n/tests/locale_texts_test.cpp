#include "openapi/reader.h"
#include "openapi_i18n/extractor.h"
#include "openapi_i18n/locale_texts.h"
#include "openapi_i18n/site_texts.h"
#include "openapi_i18n/texts.h"
#include "test_support/failure.h"
#include "test_support/golden.h"

#include <memory>      // std::make_shared
#include <set>         // std::set
#include <sstream>     // std::ostringstream
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi_i18n {
namespace {

using jv::DocumentFormat;

TEST(TranslatableTexts, areThoseThatReadersSeeInTheOrderOfTheDocument) {
    const std::string folder = SPECLOOM_SOURCE_DIR "/openapi/tests/golden/";
    for (const char* name : {"every-member-3.0.yaml", "every-member-3.1.yaml"}) {
        const auto document =
            openapi::readFile(folder + name, std::make_shared<openapi::SchemaFormatRegistry>());
        std::string lines;
        for (const std::string_view text : translatableTexts(*document))
            lines.append(text).append("\n");
        test_support::expectGolden(lines, std::string(SPECLOOM_TEST_DIR "/tests/golden/") + name + ".txt");
    }
}

TEST(Extractor, writesTheTextsOfADocumentAndOfASite) {
    std::ostringstream out;
    std::ostringstream notes;
    Extractor(out, Notes(&notes)).run(SPECLOOM_SOURCE_DIR "/examples/bookshop-3.1.yaml");
    test_support::expectGolden(out.str(), SPECLOOM_TEST_DIR "/tests/golden/bookshop-3.1.json");
}

std::string updated(const std::vector<std::string_view>& sources, const std::vector<LocaleText>& existing,
                    bool dropsObsolete = false) {
    const UpdatedTexts result = updateTexts(sources, existing, dropsObsolete);
    std::string text;
    for (const LocaleText& each : result.texts)
        text += each.source + "=" + each.translation + " ";
    return text + std::to_string(result.fresh) + std::to_string(result.kept) +
           std::to_string(result.obsolete);
}

TEST(UpdateTexts, keepsWhatIsTranslated) {
    EXPECT_EQ(updated({}, {}), "000");
    EXPECT_EQ(updated({"b", "a", "b"}, {}), "b=b a=a 200");
    EXPECT_EQ(updated({"b", "a"}, {{"a", "A"}, {"z", "Z"}, {"c", ""}}), "b=b a=A z=Z c= 112");
    EXPECT_EQ(updated({"a"}, {{"z", "Z"}, {"a", ""}}, true), "a= 011");
}

/// Texts that JSON and YAML write in different ways.
const std::vector<LocaleText> awkward = {
    {"Two\nlines: \"a\" 'b' \\ #c\n", "- d\n\n  e\t"},
    {std::string(2000, 'x') + ": y", "yes"},
    {"no", "null"},
    {"~", "2001-12-14"},
    {"1.5", "007"},
    {"{a}", "[b]"},
    {"ü\u2028\u0001", "? *c &d !e %f @g"},
    {" blank ", ""},
};

TEST(LocaleFile, isReadBackAsItWasWritten) {
    for (const DocumentFormat format : {DocumentFormat::Json, DocumentFormat::Yaml}) {
        jv::LoadOptions options;
        options.format = format;
        const std::string text = localeFileText(awkward, format);
        const std::vector<LocaleText> again = readLocaleTexts(*jv::parseDocument(text, options));
        ASSERT_EQ(again.size(), awkward.size()) << text;
        for (std::size_t i = 0; i < awkward.size(); ++i) {
            EXPECT_EQ(again[i].source, awkward[i].source);
            EXPECT_EQ(again[i].translation, awkward[i].translation);
        }
        EXPECT_EQ(localeFileText(again, format), text);
    }
    EXPECT_EQ(localeFileText({}, DocumentFormat::Json), "{}\n");
}

TEST(LocaleFile, isAnObjectOfTexts) {
    const std::pair<std::string_view, std::string_view> rows[] = {
        {"[]", "Invalid locale data"},
        {"null", "Invalid locale data"},
        {R"({"a": "b", "c": 1})", "Invalid literal for key: c"},
    };
    jv::LoadOptions options;
    options.format = DocumentFormat::Json;
    for (const auto& [text, failure] : rows)
        EXPECT_EQ(test_support::failureOf(
                      [&, &json = text] { return readLocaleTexts(*jv::parseDocument(json, options)); }),
                  failure);
}

TEST(SiteTexts, standOnce) {
    EXPECT_EQ(std::set<std::string_view>(siteTexts().begin(), siteTexts().end()).size(), siteTexts().size());
}

} // namespace
} // namespace specloom::openapi_i18n
