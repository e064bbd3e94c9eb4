// What a changelog takes from the changes between two documents, and that it takes no others.

#include "document_pairs.h"
#include "openapi_diff/formatters/changelog_events.h"
#include "openapi_diff/reports/changelog.h"
#include "test_support/golden.h"

#include <filesystem>  // std::filesystem::path
#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::openapi_diff {
namespace {

using enum ChangeKind;
using enum ChangeLevel;
using enum ConfigKey;

std::string eventsOf(const ChangelogReport& report) {
    constexpr EventFormats eventFormats{
        "metadata {3}\n",         "added {4} {5} {3}\n",  "removed {4} {5} {3}\n", "deprecated {4} {5} {3}\n",
        "modified {4} {5} {3}\n", "  metadata {3}\n",     "  + {4} {5} {3}\n",     "  - {4} {5} {3}\n",
        "  ~ {4} {5} {3}\n",      "  request body {3}\n", "  + {4} {3}\n",         "  - {4} {3}\n",
        "  ~ {4} {3}\n",          "  security {3}\n"};
    std::string events;
    forEachEvent(report, eventFormats,
                 [&](const ChangelogEntry& /*entry*/, std::string_view text) { events += text; });
    return events;
}

/// Folders of documents with the level of their changelog and its events.
class Changelogs : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(Changelogs, takeWhatConcernsUsers) {
    ChangelogReport report;
    compareFolder(GetParam(), report);
    test_support::expectGolden(fmt::format("{}\n{}", changeLevelText(report.level()), eventsOf(report)),
                               GetParam() / "changelog.txt");
}

INSTANTIATE_TEST_SUITE_P(Documents, Changelogs, testing::ValuesIn(foldersIn("changelogs")), nameOfFolder);

class HandMadeChanges : public testing::Test {
  protected:
    [[nodiscard]] Change path(ChangeKind kind) {
        const openapi::PathItem* item = root.paths().find("/a");
        pathItem = {Paths, "/a", kind == KeyAdded ? nullptr : item, kind == KeyRemoved ? nullptr : item};
        return {.kind = kind,
                .weight = NonBreaking,
                .key = Paths,
                .node = item,
                .name = "/a",
                .pathItem = &pathItem};
    }
    [[nodiscard]] Change operation(ChangeKind kind) const {
        return {.kind = kind,
                .weight = NonBreaking,
                .key = PathItemOperations,
                .node = get(),
                .name = "get",
                .pathItem = pathItem.name.empty() ? nullptr : &pathItem,
                .operation = &enclosing};
    }
    [[nodiscard]] const openapi::Operation* get() const {
        return root.paths().find("/a")->operation(openapi::OperationType::Get);
    }
    static void add(const std::vector<Change>& changes) {
        ChangelogReport report;
        for (const Change& change : changes)
            report.add(change);
    }

    const std::unique_ptr<openapi::ReadResult> read =
        test_support::readText("openapi: 3.1.0\ninfo: {title: t, version: v}\nservers: [{url: /}]\n"
                               "paths: {/a: {get: {security: [{}], responses: {}}}}",
                               jv::DocumentFormat::Yaml);
    const openapi::OpenAPI& root = read->root();
    EnclosingEntry pathItem{};
    const EnclosingEntry enclosing{PathItemOperations, "get", get(), get()};
};

TEST_F(HandMadeChanges, mustBeOnesOfAComparison) {
    const char* place = "Unreachable code at openapi_diff/src/reports/changelog";
    const char* missing = "Unreachable code: \\(Not implemented yet\\) at openapi_diff/src/reports/changelog";
    const Change server{
        .kind = PropertyModified, .key = OpenAPIServers, .node = root.servers().front().get()};
    EXPECT_DEATH(add({server}), missing);
    EXPECT_DEATH(add({path(ElementAdded)}), missing);
    EXPECT_DEATH(add({path(KeyModified), operation(PropertyAdded)}), missing);
    EXPECT_DEATH(add({operation(KeyAdded)}), place);
    EXPECT_DEATH(add({path(KeyRemoved), operation(KeyAdded)}), place);
    EXPECT_DEATH(add({path(KeyAdded), operation(KeyRemoved)}), place);
    add({path(KeyModified), operation(KeyAdded), operation(KeyRemoved), operation(KeyModified)});
}

TEST_F(HandMadeChanges, wrapTheCountersOfSecurityRequirements) {
    ChangelogReport report;
    report.add(path(KeyModified));
    report.add(operation(KeyModified));
    const Change requirement{.kind = ElementAdded,
                             .weight = Breaking,
                             .key = SecurityRequirement,
                             .node = get()->security()[0].get(),
                             .operation = &enclosing};
    for (int i = 0; i < 256; ++i)
        report.add(requirement);
    EXPECT_EQ(report.modified().front().security.get(ElementAdded), 0);
    EXPECT_EQ(report.modified().front().security.get(ElementRemoved), 0);
    EXPECT_EQ(report.count(Breaking), 256u);
    EXPECT_THAT(eventsOf(report), testing::HasSubstr("security breaking"));
    report.add(requirement);
    EXPECT_EQ(report.modified().front().security.get(ElementAdded), 1);
}

} // namespace
} // namespace specloom::openapi_diff
