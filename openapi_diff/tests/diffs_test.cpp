#include "document_pairs.h"
#include "openapi_diff/report.h"
#include "openapi_format/formatter.h"
#include "test_support/corpora.h"
#include "test_support/documents.h"
#include "test_support/golden.h"
#include "test_support/read_tree.h"

#include <filesystem>  // std::filesystem::path
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::move

#include <fmt/format.h> // fmt::format
#include <gtest/gtest.h>

namespace specloom::openapi_diff {
namespace {

/// Writes each change on a line: kind, section and field with name or index, level, an asterisk for a part of
/// another change, what it weighs where that is not its level, and the line of the node, after a minus where
/// that is in the source.
class ChangeLines : public Report {
  public:
    void add(const Change& change) override {
        ++count;
        text += fmt::format("{} {}.{}", changeKindText(change.kind), configField(change.key).section,
                            configKeyText(change.key));
        if (!change.name.empty())
            text += fmt::format("({})", change.name);
        if (change.index != -1)
            text += fmt::format("[{}]", change.index);
        text += fmt::format(" {}{}", changeLevelText(change.level), change.isPart ? "*" : "");
        if (change.weight != change.level)
            text += fmt::format("({})", changeLevelText(change.weight));
        text += fmt::format(" {}{}\n", change.side == DocumentSide::Source ? "-" : "", change.pos.line);
    }
    std::string text;
    std::size_t count = 0;
};

using test_support::readText;

/// Folders of documents with the lines of their changes.
class Diffs : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(Diffs, findTheChanges) {
    ChangeLines report;
    compareFolder(GetParam(), report);
    test_support::expectGolden(report.text, GetParam() / "changes.txt");
}

INSTANTIATE_TEST_SUITE_P(Documents, Diffs, testing::ValuesIn(foldersIn("diffs")), nameOfFolder);

/// A document whose component `A<i>` refers to the next one, and the last to the first if it is a circle.
std::string chain(std::string_view name, int length, bool isCircle, std::string_view title) {
    std::string text =
        R"({"openapi": "3.1.0", "info": {"title": "t", "version": "1"}, "components": {"schemas": {)";
    const auto refer = [&](int to) {
        return fmt::format(R"("items": {{"$ref": "#/components/schemas/{}{:05}"}})", name, to);
    };
    for (int i = 0; i < length; ++i) {
        const std::string titleMember = fmt::format(R"("title": "{}")", i == length / 2 ? title : "t");
        const std::string next = i + 1 < length ? ", " + refer(i + 1) : isCircle ? ", " + refer(0) : "";
        text += fmt::format(R"({}"{}{:05}": {{{}{}}})", i == 0 ? "" : ",", name, i, titleMember, next);
    }
    return text + R"(}}, "paths": {"/p": {"parameters": [{"name": "p", "in": "query", "schema": {)" +
           fmt::format(R"("$ref": "#/components/schemas/{}00000")", name) + "}}]}}}";
}

/// The work grows with the number of components, whatever their names and wherever the references begin.
TEST(DiffsTest, longChainsOfReferences) {
    constexpr int length = 50'000;
    for (const bool isCircle : {false, true}) {
        SCOPED_TRACE(isCircle);
        const auto source = readText(chain("A", length, isCircle, "t"));
        const auto same = readText(chain("A", length, isCircle, "u"));
        const auto renamed = readText(chain("B", length, isCircle, "u"));
        // The title, each component that leads to it with its reference, `components`, and the four of the
        // use.
        const std::size_t affected = isCircle ? length : length / 2 + 1;
        const std::size_t references = isCircle ? length : length / 2;
        ChangeLines report;
        EXPECT_EQ(compareDocuments(*source, *same, report).count, affected + references + 1 + 1 + 4);
        ChangeLines renamedReport;
        EXPECT_GT(compareDocuments(*source, *renamed, renamedReport).count, 5U * length);
        EXPECT_TRUE(renamedReport.text.starts_with("property_modified openapi.paths breaking 1\n"));
    }
}

/// Two circles whose lengths have no common divisor would bring each component together with each.
TEST(DiffsTest, circlesThatNeverAgree) {
    ChangeLines report;
    compareDocuments(*readText(chain("A", 20'000, true, "t")), *readText(chain("B", 19'999, true, "u")),
                     report);
    EXPECT_GT(report.count, 200'000U);
    EXPECT_LT(report.count, 2'000'000U);
}

TEST(DiffsTest, manyChangesAndLongLists) {
    const auto document = [](int shift) {
        std::string text =
            R"({"openapi": "3.1.0", "info": {"title": "t", "version": "1"}, "paths": {}, "components": {"schemas": {"A": {"properties": {)";
        for (int i = 0; i < 50'000; ++i)
            text += fmt::format(R"({}"p{}": {{"minimum": {}}})", i == 0 ? "" : ",", i, i + shift);
        text += R"(}}, "B": {"oneOf": [)";
        for (int i = 0; i < 10'000; ++i)
            text += fmt::format(R"({}{{"maximum": {}}})", i == 0 ? "" : ",", (i + shift) % 10'000);
        return text + "]}}}}";
    };
    ChangeLines report;
    EXPECT_EQ(compareDocuments(*readText(document(0)), *readText(document(1)), report).count, 100'000U + 2)
        << "two for each property, none for the moved schemas";
}

/// A document does not differ from itself in either format, in its own order of keys or in the canonical one.
/// Only the extension that it gets there does, which keeps the comparison from ending before it began.
TEST(DiffsTest, realDocumentsDoNotDifferFromThemselves) {
    SPECLOOM_NEEDS_CORPORA();
    const openapi_format::Formatter formatter(openapi_format::Configuration::recommended());
    std::size_t compared = 0;
    for (const auto& path : test_support::affordableCorpusDocuments()) {
        const test_support::ReadTree tree = test_support::readTree(path);
        if (tree.result == nullptr)
            continue; // the tests of the reader tell which and why
        SCOPED_TRACE(path.string());
        const jv::JVDocument& source = tree.result->source();
        const auto format = jv::formatFromPath(path.string()).value();
        for (const auto other : {jv::DocumentFormat::Json, jv::DocumentFormat::Yaml}) {
            if (other == jv::DocumentFormat::Json && test_support::hasBigNumber(*source.root()))
                continue; // which JSON cannot be written with
            const bool isProbed = other != format;
            const std::string text = isProbed
                                         ? jv::documentToText(source, other)
                                         : formatter.text(*jv::loadDocument(path.string()).document, other);
            auto document = jv::parseDocument(text, {.format = other, .refLoader = {}});
            if (isProbed)
                document->root()->setBoolean("x-probe", true);
            const auto copy = openapi::read(std::move(document), tree.formats);
            ChangeLines report;
            EXPECT_EQ(compareDocuments(*tree.result, *copy, report).text,
                      isProbed ? fmt::format("extension_added openapi.openapi(x-probe) "
                                             "non-functional {}\n",
                                             other == jv::DocumentFormat::Json ? 1 : 0)
                               : "");
        }
        ++compared;
    }
    EXPECT_GT(compared, 30U);
}

} // namespace
} // namespace specloom::openapi_diff
