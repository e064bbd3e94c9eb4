#include "jv/deser.h"
#include "openapi/reader.h"
#include "openapi_generator/action_naming.h"
#include "openapi_generator/config_error.h"
#include "openapi_generator/issue.h"
#include "openapi_generator/operation_grouper.h"
#include "test_support/failure.h"

#include <memory>    // std::make_shared, std::unique_ptr
#include <sstream>   // std::ostringstream
#include <stdexcept> // std::runtime_error
#include <string>    // std::string
#include <utility>   // std::pair

#include <gtest/gtest.h>

namespace specloom::openapi_generator {
namespace {

using test_support::failureOf;

std::unique_ptr<jv::JVDocument> parse(std::string_view yaml) {
    return jv::parseDocument(yaml, {.format = jv::DocumentFormat::Yaml, .refLoader = {}});
}

/// Every way in which an operation can be named and left out; items behind a reference, and a webhook.
std::unique_ptr<openapi::ReadResult> readShop() {
    return openapi::read(parse(R"(
openapi: 3.1.0
info: {title: Shop, version: "1"}
tags: [{name: a}, {name: b}]
paths:
  /z/{id}:
    x-specloom: {codegen: {controller-name: Zoo}}
    trace: {tags: [b, a], x-specloom: {codegen: {action-name: follow}}, responses: {}}
    get: {operationId: getZ, tags: [unknown], responses: {}}
  /a:
    $ref: '#/components/pathItems/A'
  /off:
    x-specloom: {codegen: {disabled: true}}
    get: {deprecated: true, responses: {}}
    put: {x-specloom: {codegen: {disabled: false, controller-name: Own}}, responses: {}}
webhooks:
  hook: {post: {tags: [a], responses: {}}}
components:
  pathItems:
    A: {get: {tags: [a], responses: {}}, x-specloom: {codegen: {disabled: 1}}}
)"),
                         std::make_shared<openapi::SchemaFormatRegistry>());
}

std::string placesOf(const std::vector<openapi::OperationRef>& refs) {
    std::string result;
    for (const openapi::OperationRef& ref : refs)
        result.append(" ").append(openapi::operationKey(ref.method)).append(" ").append(ref.path);
    return result;
}

/// A line for each group, "-" being the operations that are in none.
std::string groupsOf(const OperationGrouper& grouper) {
    std::string result;
    for (const auto& [name, refs] : grouper.groups())
        result += name + ":" + placesOf(refs) + "\n";
    return result + "-:" + placesOf(grouper.ungrouped()) + "\n";
}

TEST(OperationGrouper, groups) {
    using enum GroupingCriterion;
    const auto shop = readShop();
    const std::pair<std::vector<GroupingCriterion>, std::string> cases[] = {
        {{}, "-: get /a get /off put /off get /z/{id} trace /z/{id}\n"},
        {{Tag}, "a: get /a\nb: trace /z/{id}\n-: get /off put /off get /z/{id}\n"},
        {{Tag, Url}, "a: get /a\nb: trace /z/{id}\noff: get /off put /off\nzId: get /z/{id}\n-:\n"},
        {{Extension}, "Own: put /off\nZoo: get /z/{id} trace /z/{id}\n-: get /a get /off\n"},
    };
    for (const auto& [criteria, expected] : cases) {
        OperationGrouper grouper;
        for (const GroupingCriterion criterion : criteria)
            grouper.addCriterion(criterion);
        grouper.group(shop->root());
        EXPECT_EQ(groupsOf(grouper), expected);
    }
}

TEST(OperationGrouper, leavesOut) {
    const auto shop = readShop();
    OperationGrouper used;
    used.setSkipDeprecated(true);
    used.group(shop->root());
    EXPECT_EQ(groupsOf(used), "-: get /a put /off get /z/{id} trace /z/{id}\n");

    OperationGrouper enabled;
    enabled.setSkipDisabled(true);
    EXPECT_EQ(failureOf<std::runtime_error>([&] { enabled.group(shop->root()); }),
              "Extension '/codegen/disabled' does not represent a boolean");
}

TEST(ActionNaming, theFirstSourceThatYieldsAName) {
    using enum NameSource;
    const auto shop = readShop();
    const auto names = [&](const std::vector<NameSource>& sources) {
        std::string result;
        for (const openapi::OperationRef& ref : openapi::operationsOf(shop->root()))
            result += actionName(sources, ref).value_or("-") + " ";
        return result;
    };
    EXPECT_EQ(names({}), "- - - - - ");
    EXPECT_EQ(names({Extension, Id}), "- - - getZ follow ");
    EXPECT_EQ(names({Id, Url, Extension}), "get_/a get_/off put_/off getZ trace_/z/{id} ");
}

TEST(ActionNaming, readsSources) {
    const auto read = [](const std::string& yaml) {
        std::vector<NameSource> sources{NameSource::Id};
        const auto document = parse("names: " + yaml);
        const std::string text =
            failureOf<std::runtime_error>([&] { readNameSources(*document->root()->get("names"), sources); });
        return text + ", " + std::to_string(sources.size());
    };
    EXPECT_EQ(read("url"), ", 2");
    EXPECT_EQ(read("[url, extension]"), ", 3");
    EXPECT_EQ(read("[url, id]"), "Element already exists, 2");
    EXPECT_EQ(read("Url"), "Invalid name source: 'Url', 1");
    EXPECT_EQ(read("{}"), "Name sources must be a string or an array thereof, 1");
    EXPECT_EQ(read("[[url]]"), "Name sources must be a string or an array thereof, 1");
    EXPECT_EQ(parseGroupingCriterion("url"), GroupingCriterion::Url);
    EXPECT_EQ(failureOf<std::runtime_error>([] { static_cast<void>(parseGroupingCriterion("urls")); }),
              "Unknown grouping criterium: urls");
}

TEST(Issues, areListedInTheOrderOfPlaces) {
    const std::vector<Issue> issues = {
        {IssueSeverity::Fatal, "worst", {10, 2}},
        {IssueSeverity::Info, "second\nof the place", {10, 2}},
        {IssueSeverity::Info, "third of the place", {10, 2}},
        {IssueSeverity::Warning, "earlier", {9, 100}},
        {IssueSeverity::Error, "nowhere", {}},
    };
    std::ostringstream out;
    reportIssues(issues, out, false);
    EXPECT_EQ(out.str(), "-1:-1 Error   nowhere\n"
                         "9:100 Warning earlier\n"
                         "10:2  Info    second\\nof the place\n"
                         "10:2  Info    third of the place\n"
                         "10:2  Fatal   worst\n");
    std::ostringstream coloured;
    reportIssues({issues[3]}, coloured, true);
    EXPECT_EQ(coloured.str(), "\x1b[33m9:100 Warning earlier\n\x1b[0m");
}

} // namespace
} // namespace specloom::openapi_generator
