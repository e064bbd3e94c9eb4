// Every real document: read, written with the key order of its source, and compared with that. What differs
// differs because the tree or the writer want it so.

#include "openapi/writer.h"
#include "test_support/corpora.h"
#include "test_support/documents.h"
#include "test_support/read_tree.h"
#include "test_support/write_back.h"

#include <algorithm> // std::count, std::find_if, std::replace_if
#include <cctype>    // std::isalnum
#include <iostream>  // std::cout
#include <map>       // std::map
#include <vector>    // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi {
namespace {

using test_support::WriteBackClass;

struct Refused {
    const char* document;
    const char* refusal; ///< how the report begins
    const char* reason;
};

constexpr Refused refusedDocuments[] = {
    {"openapi/digitalocean-3.0.yaml", "A string value is expected for 'description'.",
     "lies in several files: a `$ref` to one of them stands in place of a text, and in most other places"},
    {"openapi/ogc-features-3.1.yaml", "Expected string or array value for schema type at (308, 22)\n",
     "has null, without quotes, for the name of a type"},
    {"openapi/openai-3.1.yaml", "Expected numeric value at (35078, 18)\n",
     "has `exclusiveMinimum: true`, which OpenAPI 3.1 no longer knows"},
    {"pairs/openai-new.yaml", "Schema must be an object or boolean at (8044, 14)\n",
     "has aliases of YAML anchors for schemas"},
    {"pairs/openai-old.yaml", "Schema must be an object or boolean at (5926, 8)\n",
     "has aliases of YAML anchors for schemas"},
};

std::vector<std::string> documentNames() {
    std::vector<std::string> names;
    for (const auto& path : test_support::corpusDocuments())
        names.push_back(path.parent_path().filename().string() + "/" + path.filename().string());
    return names;
}

class WriteBackCorpora : public testing::TestWithParam<std::string> {
  protected:
    const std::string name = GetParam();
    const Refused* const refused = [this] {
        const auto* const found = std::find_if(std::begin(refusedDocuments), std::end(refusedDocuments),
                                               [this](const Refused& row) { return name == row.document; });
        return found == std::end(refusedDocuments) ? nullptr : found;
    }();
    const test_support::ReadTree document = test_support::readTree(test_support::corporaFolder() / name);
};

TEST_P(WriteBackCorpora, comesBackButForWhatIsMeantToBeLost) {
    EXPECT_EQ(document.refusal.find("Unknown format"), std::string::npos)
        << "the first report was not complete";
    if (refused != nullptr) {
        EXPECT_TRUE(document.refusal.starts_with(refused->refusal))
            << document.refusal << "\nbut it " << refused->reason;
        return;
    }
    ASSERT_NE(document.result, nullptr) << document.refusal;
    const ReadResult& result = *document.result;
    auto written = Writer(result).write(result.root());

    std::map<std::string_view, int> counts;
    for (const auto& difference : test_support::compareWriteBack(result.source(), *written)) {
        ++counts[difference.kind];
        if (difference.kind == WriteBackClass::defect)
            ADD_FAILURE() << difference;
    }
    std::cout << name << ":";
    for (const auto& [kind, count] : counts)
        std::cout << " " << count << " " << kind << ";";
    std::cout << "\n";

    // What was written once has nothing more to lose.
    const auto again = read(std::move(written), document.formats);
    EXPECT_EQ(test_support::firstDifference(again->source(), *Writer(*again).write(again->root())), "");
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(WriteBackCorpora);
INSTANTIATE_TEST_SUITE_P(Documents, WriteBackCorpora, testing::ValuesIn(documentNames()),
                         [](const auto& test) {
                             std::string name = test.param;
                             std::replace_if(
                                 name.begin(), name.end(),
                                 [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
                             return name;
                         });

TEST(WriteBackCorporaTable, namesDocumentsThatExist) {
    SPECLOOM_NEEDS_CORPORA();
    const std::vector<std::string> names = documentNames();
    EXPECT_GE(names.size(), 55U);
    for (const Refused& refused : refusedDocuments)
        EXPECT_EQ(std::count(names.begin(), names.end(), refused.document), 1) << refused.document;
}

} // namespace
} // namespace specloom::openapi
