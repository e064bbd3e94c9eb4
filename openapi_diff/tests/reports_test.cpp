// All pairs of report and format over three pairs of documents: golden/before.yaml and golden/after.yaml,
// which differ in everything that a report tells, in golden/changes.REPORT.FORMAT; documents from no file
// whose texts try to break the reports, in golden/hostile.txt, and a file name that does, in
// golden/hostile_name.txt; and one that stays the same, in
// golden/nothing.txt. With SPECLOOM_UPDATE_GOLDEN set they are written anew, for review.

#include "jv/deser.h"
#include "openapi/reader.h"
#include "openapi_diff/differ.h"
#include "openapi_diff/formatters/utils.h"
#include "test_support/corpora.h"

#include <algorithm>   // std::ranges::sort
#include <cstdlib>     // std::getenv
#include <filesystem>  // std::filesystem
#include <fstream>     // std::ofstream
#include <functional>  // std::function
#include <memory>      // std::unique_ptr
#include <sstream>     // std::ostringstream
#include <stdexcept>   // std::runtime_error
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <md4c.h>

namespace specloom::openapi_diff {
namespace {

namespace fs = std::filesystem;
using Document = std::unique_ptr<openapi::ReadResult>;

const fs::path golden = fs::path(SPECLOOM_TEST_DIR) / "tests/golden";
const auto standardFormats = std::make_shared<const openapi::SchemaFormatRegistry>();

Document fromText(std::string_view text) {
    return openapi::read(jv::parseDocument(text, {.format = jv::DocumentFormat::Yaml, .refLoader = {}}),
                         standardFormats);
}

Document fromFile(const char* name) {
    Document document = openapi::readFile((golden / name).string(), standardFormats);
    document->setSourcePath(name); // wherever the checkout stands
    return document;
}

std::string render(std::string_view report, std::string_view format, const Document& source,
                   const Document& destination) {
    std::ostringstream out;
    Differ differ(out);
    differ.setReport(report);
    differ.setFormatter(format, report);
    (void)differ.run(*source, *destination);
    return out.str();
}

void expectGolden(const std::string& name, const std::string& text) {
    if (std::getenv("SPECLOOM_UPDATE_GOLDEN") != nullptr)
        std::ofstream(golden / name, std::ios::binary) << text;
    EXPECT_EQ(text, test_support::fileBytes(golden / name)) << name;
}

std::string renderAll(const Document& source, const Document& destination) {
    std::string all;
    std::vector<std::string_view> reports = reportNames();
    std::ranges::sort(reports);
    for (const std::string_view report : reports)
        for (const std::string_view format : formatNames())
            all += fmt::format("==== {} {}\n{}", report, format, render(report, format, source, destination));
    return all;
}

TEST(Reports, tellEverythingThatHappens) {
    const Document before = fromFile("before.yaml");
    const Document after = fromFile("after.yaml");
    for (const std::string_view report : reportNames())
        for (const std::string_view format : formatNames())
            expectGolden(fmt::format("changes.{}.{}", report, format), render(report, format, before, after));
}

TEST(Reports, tellNothingWhenNothingHappened) {
    const Document document = fromFile("before.yaml");
    expectGolden("nothing.txt", renderAll(document, document));
}

// Neither of the documents has a name.
TEST(Reports, keepTextsOfDocumentsInTheirPlace) {
    const Document before = fromText("{openapi: 3.1.0, info: {title: a, version: v}, paths: {}}");
    const Document after = fromText(R"(
openapi: 3.1.0
info: {title: "<b>", version: v, x-a: 1}
paths:
  "/`a`|b*_c_d_e\n# <script>{{ added }}{% for %}\x1b[31m\xff\\":
    get:
      "x-\"<i>\n": 1
      "x-@user www.a.b https://a.b me@a.b #1 !1 GH-1 /@/ ##vso[task.complete]": 1
      "x-\0 \u2028 \u202e\u2066 \uffff \e[2J ::error::": 1
      parameters:
        - {name: "n\n<u>", in: query, schema: {}}
      responses: {default: {description: d}}
)");
    expectGolden("hostile.txt", renderAll(before, after));
    // A name as the command line has it.
    after->setSourcePath("::error::\n##vso[task]\xff\xe2\x80\xae.yaml");
    std::string lines;
    for (const std::string_view format : {"unix", "visualstudio"})
        lines += render("changelog", format, before, after) + render("detailed", format, before, after);
    expectGolden("hostile_name.txt", lines);
}

/// How many links, images and pieces of HTML a reader of Markdown finds that makes links of bare addresses.
int actingParts(const std::string& markdown) {
    MD_PARSER parser{};
    parser.flags = MD_DIALECT_GITHUB;
    parser.enter_block = parser.leave_block = [](MD_BLOCKTYPE type, void*, void* count) {
        *static_cast<int*>(count) += type == MD_BLOCK_HTML ? 1 : 0;
        return 0;
    };
    parser.enter_span = [](MD_SPANTYPE type, void*, void* count) {
        *static_cast<int*>(count) += type == MD_SPAN_A || type == MD_SPAN_IMG ? 1 : 0;
        return 0;
    };
    parser.leave_span = [](MD_SPANTYPE, void*, void*) { return 0; };
    parser.text = [](MD_TEXTTYPE type, const MD_CHAR*, MD_SIZE, void* count) {
        *static_cast<int*>(count) += type == MD_TEXT_HTML ? 1 : 0;
        return 0;
    };
    int count = 0;
    EXPECT_EQ(md_parse(markdown.data(), static_cast<MD_SIZE>(markdown.size()), &parser, &count), 0);
    return count;
}

TEST(Reports, haveNoLinksInMarkdown) {
    const Document before = fromText("{openapi: 3.1.0, info: {title: a, version: v}, paths: {}}");
    const Document after = fromText(R"(
openapi: 3.1.0
info: {title: a, version: v}
paths:
  "/www.a.b WWW.a.b http://a.b (https://a.b) ftp://a.b me@a.b mailto:me@a.b [a](b) <a@b.c> <i>":
    get:
      responses: {default: {description: d}}
)");
    ASSERT_GT(actingParts("www.a.b"), 0);
    for (const std::string_view name : {"changelog", "detailed"}) {
        const std::string text = render(name, "markdown", before, after);
        EXPECT_NE(text.find("/www"), std::string::npos) << text;
        EXPECT_EQ(actingParts(text), 0) << text;
    }
}

TEST(Reports, areFoundByName) {
    const auto textOf = [](const std::function<void()>& run) -> std::string {
        try {
            run();
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return "nothing thrown";
    };
    std::ostringstream out;
    EXPECT_EQ(textOf([] { (void)createReport("all"); }), "Result not found: all");
    EXPECT_EQ(textOf([&] { (void)createFormatter("xml", "status", out); }),
              "Invalid formatter (xml) or report (status) name");
    EXPECT_EQ(textOf([&] { (void)createFormatter("json", "details", out); }),
              "Invalid formatter (json) or report (details) name");
}

TEST(Reports, areFormattedOnlyByFormattersOfTheirOwn) {
    std::ostringstream out;
    const auto formatter = createFormatter("stylish", "changelog", out);
    EXPECT_DEATH(formatter->format(*createReport("detailed")), "The formatter is for another report");
}

TEST(Reports, tellWebhooksFromPaths) {
    const Document document = fromFile("before.yaml");
    const openapi::OpenAPI& root = document->root();
    EXPECT_EQ(nodeKindText(root), "openapi");
    EXPECT_EQ(nodeKindText(*root.findWebhook("arrival")), "webhook");
    EXPECT_EQ(nodeKindText(*root.components().pathItem("Maps")), "path_item");
}

} // namespace
} // namespace specloom::openapi_diff
