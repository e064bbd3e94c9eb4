// Published documents in an older and a newer version each, in all pairs of report and format.
//
// The figures were written down after at least 20 changes of each pair, over all kinds and keys, had been
// looked up in both documents; the operations were counted in the documents by other means, with every
// reference followed.

#include "document_pairs.h"
#include "openapi_diff/formatter.h"
#include "openapi_diff/reports/reports.h"
#include "test_support/corpora.h"
#include "test_support/parsers.h"
#include "test_support/read_tree.h"

#include <algorithm>   // std::count
#include <array>       // std::array
#include <cstddef>     // std::size_t
#include <iterator>    // std::size
#include <memory>      // std::unique_ptr
#include <sstream>     // std::istringstream, std::ostringstream
#include <string>      // std::string, std::getline
#include <string_view> // std::string_view

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace specloom::openapi_diff {
namespace {

using nlohmann::json;
using test_support::ReadTree;

/// By level: none, non-functional, non-breaking, breaking.
using Counts = std::array<std::size_t, 4>;

struct Pair {
    std::string name;
    std::string extension;
    Counts changelog;
    Counts detailed;   ///< and of the status report
    std::size_t added; ///< operations, as the three below
    std::size_t removed;
    std::size_t deprecated;
    std::size_t modified; ///< with a difference in anything that the differ knows
};

const Pair pairs[] = {
    {"adyen-checkout", ".yaml", {0, 6, 15, 10}, {1, 94, 60, 166}, 0, 0, 0, 9},
    {"discord", ".json", {0, 0, 155, 171}, {16, 39, 707, 3400}, 21, 0, 0, 102},
    {"github-enterprise", ".json", {0, 1353, 40, 18}, {3, 3230, 139, 392}, 8, 0, 0, 670},
    {"meilisearch", ".json", {0, 0, 34, 462}, {8, 311, 178, 2077}, 17, 12, 0, 95},
    {"spotify", ".yaml", {0, 71, 13, 237}, {3, 198, 95, 933}, 8, 0, 48, 76},
    {"twilio-lookups", ".json", {0, 16, 14, 3}, {15, 455, 326, 941}, 9, 0, 0, 1},
    {"xero-projects", ".yaml", {0, 31, 0, 0}, {0, 67, 0, 0}, 0, 0, 0, 11},
};

ReadTree readSide(const std::string& name, const char* side, const std::string& extension) {
    return test_support::readTree(test_support::corporaFolder() / "pairs" / (name + side + extension));
}

Counts countsOf(const Report& report) {
    return {report.count(ChangeLevel::None), report.count(ChangeLevel::NonFunctional),
            report.count(ChangeLevel::NonBreaking), report.count(ChangeLevel::Breaking)};
}

ChangeLevel worstOf(const Counts& counts) {
    std::size_t level = counts.size() - 1;
    while (level > 0 && counts[level] == 0)
        --level;
    return static_cast<ChangeLevel>(level);
}

std::string render(std::string_view format, std::string_view name, const Report& report) {
    std::ostringstream out;
    createFormatter(format, name, out)->format(report);
    return out.str();
}

/// The entries of a deprecated operation open with one element and close with another, which is meant.
std::string mended(const std::string& page) {
    const std::string end = "</li>";
    std::istringstream lines(page);
    std::string result;
    for (std::string line; std::getline(lines, line); result += line + '\n')
        if (line.find("<div class=") != std::string::npos)
            if (const std::size_t at = line.find(end); at != std::string::npos)
                line.replace(at, end.size(), "</div>");
    return result;
}

std::size_t sizeOf(const json& lists) {
    return lists.at("added").size() + lists.at("removed").size() + lists.at("modified").size();
}

/// How many events the JSON of a changelog tells, without "Operation modified".
std::size_t eventsOf(const json& changelog) {
    std::size_t events = changelog.at("metadata").at("severity") == "none" ? 0 : 1;
    for (const char* list : {"added", "removed", "deprecated"})
        events += changelog.at(list).size();
    for (const json& operation : changelog.at("modified")) {
        const json& metadata = operation.at("metadata");
        const bool hasMetadata = metadata.contains("summary") || metadata.contains("description") ||
                                 operation.at("operationId") == true;
        events += (hasMetadata ? 1U : 0U) + (sizeOf(operation.at("request_body")) != 0 ? 1U : 0U) +
                  (operation.at("security").at("severity") == "none" ? 0U : 1U) +
                  sizeOf(operation.at("parameters")) + sizeOf(operation.at("responses"));
    }
    return events;
}

struct LineForms {
    std::size_t stylish;
    std::size_t compiler; ///< of the forms that compilers write
    std::size_t markdown; ///< list items
};

void expectLines(const LineForms& lines, std::string_view name, const Report& report) {
    const auto linesOf = [&](std::string_view format) {
        const std::string text = render(format, name, report);
        return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    };
    EXPECT_EQ(linesOf("stylish"), lines.stylish);
    EXPECT_EQ(linesOf("unix"), lines.compiler);
    EXPECT_EQ(linesOf("visualstudio"), lines.compiler);
    std::istringstream markdown(render("markdown", name, report));
    std::size_t items = 0;
    for (std::string line; std::getline(markdown, line);)
        items += line.starts_with("- ") ? 1U : 0U;
    EXPECT_EQ(items, lines.markdown);
    EXPECT_EQ(test_support::markupFault(mended(render("html", name, report))), "");
}

void expectChangelog(const Pair& pair, const Report& report) {
    const json changelog = json::parse(render("json", "changelog", report));
    EXPECT_EQ(changelog.at("added").size(), pair.added);
    EXPECT_EQ(changelog.at("removed").size(), pair.removed);
    EXPECT_EQ(changelog.at("deprecated").size(), pair.deprecated);
    EXPECT_EQ(changelog.at("modified").size(), pair.modified);
    const std::size_t events = eventsOf(changelog);
    expectLines({.stylish = events,
                 .compiler = events + pair.modified,
                 .markdown = pair.added + pair.removed + pair.deprecated + pair.modified},
                "changelog", report);
}

void expectDetails(const Report& report) {
    std::size_t changes = 0;
    for (const std::size_t count : countsOf(report))
        changes += count;
    EXPECT_EQ(json::parse(render("json", "detailed", report)).size(), changes);
    const std::size_t silent = report.count(ChangeLevel::None); // of no interest to people
    expectLines({.stylish = changes, .compiler = changes, .markdown = changes - silent}, "detailed", report);
}

void expectStatus(const Report& report) {
    EXPECT_EQ(json::parse(render("json", "status", report)),
              json({{"status", changeLevelText(report.level())}}));
    for (const char* format : {"stylish", "unix", "visualstudio"})
        EXPECT_EQ(render(format, "status", report), std::string(changeLevelHeading(report.level())) + '\n');
    expectLines({.stylish = 1, .compiler = 1, .markdown = 3}, "status", report);
}

TEST(Pairs, areReportedInFull) {
    SPECLOOM_NEEDS_CORPORA();
    for (const Pair& pair : pairs) {
        const ReadTree before = readSide(pair.name, "-old", pair.extension);
        const ReadTree after = readSide(pair.name, "-new", pair.extension);
        ASSERT_TRUE(before.result != nullptr && after.result != nullptr) << pair.name;
        for (const std::string_view name : reportNames()) {
            SCOPED_TRACE(fmt::format("{} {}", pair.name, name));
            const std::unique_ptr<Report> report = createReport(name);
            compareDocuments(*before.result, *after.result, *report);
            const bool isChangelog = name == ChangelogReport::name;
            const Counts& counts = isChangelog ? pair.changelog : pair.detailed;
            EXPECT_EQ(countsOf(*report), counts);
            EXPECT_EQ(report->level(), worstOf(counts));
            if (isChangelog)
                expectChangelog(pair, *report);
            else if (name == DetailedReport::name)
                expectDetails(*report);
            else
                expectStatus(*report);
        }
    }
}

// All pairs that are there are in the table, but for one whose documents have aliases of YAML anchors for
// schemas.
TEST(Pairs, areAllInTheTable) {
    SPECLOOM_NEEDS_CORPORA();
    EXPECT_EQ(test_support::filesBelow(test_support::corporaFolder() / "pairs", "").size(),
              2 * (std::size(pairs) + 1));
    for (const char* side : {"-old", "-new"}) {
        const ReadTree tree = readSide("openai", side, ".yaml");
        EXPECT_EQ(tree.result, nullptr);
        EXPECT_TRUE(tree.refusal.starts_with("Schema must be an object or boolean at (")) << tree.refusal;
    }
}

} // namespace
} // namespace specloom::openapi_diff
