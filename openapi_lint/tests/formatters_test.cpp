// Every formatter on three sets of findings: one that is easy on the reader, whose reports are the samples of
// docs/lint-formats.md; one that tries to break them, and none at all, whose reports are golden/hostile.NAME
// and golden/nothing.NAME. With SPECLOOM_UPDATE_GOLDEN set pages and files are written anew, for review.

#include "foundation/site.h"
#include "foundation/strings.h"
#include "foundation/utf8.h"
#include "openapi_lint/formatter_registry.h"
#include "openapi_lint/lint_context.h"
#include "test_support/corpora.h"
#include "test_support/parsers.h"

#include <cstdlib>     // std::getenv
#include <filesystem>  // std::filesystem
#include <fstream>     // std::ofstream
#include <sstream>     // std::ostringstream
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace specloom::openapi_lint {
namespace {

namespace fs = std::filesystem;
using namespace std::string_view_literals;
using test_support::fileBytes;
using test_support::markupFault;

constexpr std::uint64_t nowhere = LintResult::unknown;
using enum Severity;

struct Finding {
    std::uint64_t line;
    std::uint64_t column;
    Severity severity;
    bool fixable;
    const char* ruleId;
    std::string_view message;
};
struct File {
    const char* name;
    std::vector<Finding> findings; // by place, as a report must have them
};

const std::vector<File> plain = {
    {"/srv/api/bookshop.yaml",
     {{8, 4, Error, true, "paths-sorted", "Paths are not sorted"},
      {12, 6, Error, false, "operation-description-defined", "Operation description is missing or empty"},
      {107, 8, Warning, false, "operation-tags-defined", "Operation has no tags"}}},
    {"/srv/api/harbour.json", {{3, 11, Warning, true, "spell-check", "Possible spelling mistake: 'harbor'"}}},
    {"/srv/api/orchard.yaml", {}},
};
const std::vector<File> hostile = {
    {"/srv/api/<b> & \"c\" {{ files }}.json",
     {{1, 2, Error, false, "json-api/content-type", "quotes \" ' and <script>alert(1)</script> & &amp; ]]>"},
      {2, 14, Warning, false, "tags-unique", "{{ files }} {% for x in files %} {# gone? #} { }"},
      {100000, 1, Error, true, "paths-sorted", "## {{"},
      {nowhere, nowhere, Warning, true, "spell-check", ""}}},
    {"/srv/api/clean \xe6\xb8\xaf.yaml", {}},
    {"/srv/api/\xff.yaml",
     {{0, 0, Warning, false, "spell-check",
       "H\xc3\xa4"
       "fen \xe6\xb8\xaf \xf0\x9f\x9a\xa2"},
      {1, 0, Warning, false, "spell-check",
       "a line\r\nfeed,\ta bell\x07, \x1b[31mcolours, \xc2\x9b"
       "31m and \x7f"},
      {2, 0, Warning, false, "spell-check", "no UTF-8: \xff \xed\xa0\x80 \xc3"}}},
    {"::error::x # SKIP y\\.json", {}},
    {"::warning::x.json", {{1, 1, Warning, false, "tags-unique", "::error::x"}}},
    {"##vso[task]\n::error::\xe2\x80\xae.json",
     {{1, 1, Error, false, "tags-unique", "a\n::error::b ##[group] c ##vso[task.complete] d"},
      {2, 1, Error, false, "tags-unique", "NUL \0 and U+FFFF \xef\xbf\xbf"sv},
      {3, 1, Error, false, "tags-unique",
       "\xe2\x80\xa8 \xe2\x80\xa9 \xe2\x80\xaa\xe2\x80\xae \xe2\x81\xa6\xe2\x81\xa9"}}},
};
const std::vector<File> nothing = {{"/srv/api/a.yaml", {}}, {"/srv/api/b.json", {}}};

void fill(LintContext& context, const std::vector<File>& files) {
    for (const File& file : files) {
        context.setFilename(file.name);
        for (const Finding& finding : file.findings) {
            context.results.push_back({.ruleId = finding.ruleId,
                                       .severity = finding.severity,
                                       .fixable = finding.fixable,
                                       .filename = context.filename(),
                                       .line = finding.line,
                                       .column = finding.column,
                                       .message = std::string(finding.message)});
            ++(finding.severity == Error ? context.errorCount : context.warningCount);
            if (finding.fixable)
                ++(finding.severity == Error ? context.fixableErrorCount : context.fixableWarningCount);
        }
    }
}

/// As a build without a host of its own writes it.
std::string report(std::string_view formatter, const std::vector<File>& files) {
    LintContext context;
    fill(context, files);
    std::ostringstream out;
    findFormatter(formatter, out)->format(context);
    std::string text = out.str();
    replaceAll(text, documentationSite, "https://specloom.example/techdocs");
    return text;
}

bool updating() {
    return std::getenv("SPECLOOM_UPDATE_GOLDEN") != nullptr;
}

TEST(Formatters, writeWhatTheGoldenFilesHold) {
    const fs::path folder = fs::path(SPECLOOM_TEST_DIR) / "tests/golden";
    for (const std::string_view name : formatterNames())
        for (const auto& [set, files] : {std::pair("hostile", &hostile), std::pair("nothing", &nothing)}) {
            const fs::path golden = folder / fmt::format("{}.{}", set, name);
            const std::string text = report(name, *files);
            if (updating())
                std::ofstream(golden, std::ios::binary) << text;
            EXPECT_EQ(text, fileBytes(golden)) << golden;
        }
}

/// What the page shows of a report: all of it, and the body of the one that is a page itself.
std::string sample(std::string_view formatter) {
    std::string text = report(formatter, plain);
    replaceAll(text, "\r\n", "\n");
    if (formatter != "html")
        return text;
    const std::size_t begin = text.find("  <body>");
    return text.substr(begin, text.find("</html>") - begin);
}

TEST(Formatters, areShownByTheManual) {
    const fs::path page = fs::path(SPECLOOM_SOURCE_DIR) / "docs/lint-formats.md";
    std::string manual = fileBytes(page);
    for (const std::string_view name : formatterNames()) {
        const std::size_t section = manual.find(fmt::format("\n## {}\n", name));
        ASSERT_NE(section, std::string::npos) << name;
        const std::size_t begin = manual.find('\n', manual.find("\n```", section) + 1) + 1;
        const std::size_t end = manual.find("```\n", begin);
        ASSERT_NE(end, std::string::npos) << name;
        const std::string expected = sample(name);
        if (updating())
            manual.replace(begin, end - begin, expected);
        else
            EXPECT_EQ(manual.substr(begin, end - begin), expected) << name;
    }
    if (updating())
        std::ofstream(page, std::ios::binary) << manual;
}

TEST(Formatters, writeWellFormedMarkup) {
    for (const char* name : {"checkstyle", "junit", "html"})
        for (const auto* files : {&plain, &nothing})
            EXPECT_EQ(markupFault(report(name, *files)), "") << name;
    // Control characters, which no XML may hold, aside, texts cannot spoil the page.
    EXPECT_EQ(markupFault(report("html", {hostile[0], hostile[1]})), "");
    EXPECT_NE(markupFault(report("junit", {hostile[0]})), "") << "attributes hold the texts as they are";
}

/// A text that its attribute and element hold as it is, so that a fault is none of the texts' markup.
std::vector<File> withoutMarkup(std::vector<File> files) {
    for (File& file : files)
        for (Finding& finding : file.findings)
            if (finding.message.find('<') != std::string_view::npos)
                finding.message = "";
    files.erase(files.begin());
    return files;
}

TEST(Formatters, writeNothingThatActs) {
    for (const char* name : {"checkstyle", "junit", "html"})
        EXPECT_EQ(markupFault(report(name, withoutMarkup(hostile))), "") << name;
    for (const std::string_view name : formatterNames()) {
        if (name == "json")
            continue; // has escapes of its own, and reads back as it was
        const std::string text = "\n" + report(name, hostile);
        EXPECT_EQ(text, toValidUtf8(text)) << name;
        for (const std::string_view acting : {"\n::", "##vso[", "##[", "\x1b", "\xc2\x9b", "\xe2\x80\xae",
                                              "\xe2\x80\xa8", "\xe2\x81\xa6", "\xef\xbf\xbf"})
            EXPECT_EQ(text.find(acting), std::string::npos) << name << ": " << acting;
        EXPECT_EQ(text.find('\0'), std::string::npos) << name;
    }
}

/// What a reader of TAP 14 makes of the test lines: the name with its escapes resolved, behind "not " when it
/// failed and behind the directive when there is one.
std::vector<std::string> readTap(const std::string& text) {
    std::vector<std::string> tests;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t dash = line.find(" - ");
        if (!line.starts_with("ok") && !line.starts_with("not ok"))
            continue;
        std::string name = line.starts_with("not") ? "not " : "";
        for (std::size_t at = dash + 3; at < line.size(); ++at) {
            if (line[at] == '#') {
                name.insert(0, line.substr(at) + " ");
                break;
            }
            at += line[at] == '\\' ? 1 : 0;
            name += line.substr(at, 1);
        }
        tests.push_back(name);
    }
    return tests;
}

TEST(Formatters, writeNamesThatAreNoDirectives) {
    const std::vector<File> files = {{"a # TODO", {}},
                                     {"b\\# SKIP\n", {{1, 1, Error, false, "tags-unique", ""}}}};
    EXPECT_EQ(readTap(report("tap", files)), (std::vector<std::string>{"a # TODO", "not b\\# SKIP\\n"}));
}

TEST(Formatters, writeJsonThatReadsBack) {
    const nlohmann::json read = nlohmann::json::parse(report("json", hostile));
    EXPECT_EQ(read.size(), 4u);
    for (const File& file : hostile)
        for (std::size_t index = 0; index < file.findings.size(); ++index) {
            const Finding& finding = file.findings[index];
            const nlohmann::json expected = {{"line", finding.line == nowhere ? 0 : finding.line},
                                             {"column", finding.column == nowhere ? 0 : finding.column},
                                             {"severity", severityName(finding.severity)},
                                             {"ruleId", finding.ruleId},
                                             {"message", toValidUtf8(finding.message)}};
            EXPECT_EQ(read.at(toValidUtf8(file.name)).at(index), expected);
        }
}

TEST(Formatters, knowTwoSeverities) {
    const std::vector<File> files = {{"a", {{1, 1, static_cast<Severity>(2), false, "rule", ""}}}};
    EXPECT_DEATH((void)report("stylish", files), "Unreachable code at openapi_lint/src/formatters/stylish:");
    EXPECT_DEATH((void)report("tap", files), "Unreachable code at openapi_lint/src/formatters/tap:");
    EXPECT_DEATH((void)report("unix", files), "Unreachable code at openapi_lint/src/types:26");
}

} // namespace
} // namespace specloom::openapi_lint
