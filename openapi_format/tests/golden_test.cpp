// Whole documents under golden/, each with its keys out of order, against what they have to become. With
// SPECLOOM_UPDATE_GOLDEN set the expected files are written anew, for review.

#include "openapi_format/formatter.h"
#include "test_support/golden.h"

#include <filesystem> // std::filesystem::path
#include <string>     // std::string

#include <gtest/gtest.h>

namespace specloom::openapi_format {
namespace {

const std::filesystem::path folder = std::filesystem::path(SPECLOOM_TEST_DIR) / "tests/golden";

class Golden : public testing::TestWithParam<const char*> {};

TEST_P(Golden, becomesTheExpectedText) {
    const std::filesystem::path source = folder / GetParam();
    std::filesystem::path expected = source;
    expected.replace_extension(".expected" + source.extension().string());

    const Formatter formatter;
    const jv::LoadedDocument loaded = jv::loadDocument(source.string());
    const std::string text = formatter.text(*loaded.document, loaded.format);
    test_support::expectGolden(text, expected);

    const jv::LoadedDocument again = jv::loadDocument(expected.string());
    EXPECT_EQ(formatter.text(*again.document, again.format), text) << "a second run changes the text";
}

INSTANTIATE_TEST_SUITE_P(Documents, Golden, testing::Values("orchard-3.0.yaml", "tides-3.1.json"));

} // namespace
} // namespace specloom::openapi_format
