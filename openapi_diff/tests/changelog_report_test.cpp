// What a changelog takes from the changes between two documents, and that it takes no others.

#include "openapi_diff/reports/changelog.h"

#include <memory>      // std::unique_ptr
#include <sstream>     // std::ostringstream
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "jv/deser.h"
#include "openapi/reader.h"
#include "openapi_diff/diff_context.h"
#include "openapi_diff/diffs/openapi_diff.h"
#include "openapi_diff/formatters/changelog_events.h"

namespace specloom::openapi_diff {
namespace {

using enum ChangeKind;
using enum ChangeLevel;
using enum ConfigKey;

const auto anyFormat = std::make_shared<const openapi::SchemaFormatRegistry>();

/// An OpenAPI 3.1 document with these members.
std::unique_ptr<openapi::ReadResult> document(std::string_view members) {
    const bool hasPaths = members.starts_with("paths:") || members.find("\npaths:") != std::string_view::npos;
    return openapi::read(jv::parseDocument(fmt::format("openapi: 3.1.0\ninfo: {{title: t, version: v}}\n{}{}",
                                                       hasPaths ? "" : "paths: {}\n", members),
                                           {.format = jv::DocumentFormat::Yaml, .refLoader = {}}),
                         anyFormat);
}

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

struct ExpectedRow {
    const char* what;
    const char* before;
    const char* after;
    ChangeLevel level;
    const char* events;
};

TEST(ChangelogReport, takesWhatConcernsUsers) {
    const std::vector<ExpectedRow> rows = {
        {"a new path weighs no more than a new path", "",
         "paths: {/a: {get: {operationId: i, responses: {'200': {description: d}}}}}", NonBreaking,
         "added get /a non-breaking\n"},
        {"a new operation is added, whatever it holds", "paths: {/a: {get: {responses: {}}}}",
         "paths: {/a: {get: {responses: {}}, put: {deprecated: true, summary: s, security: [], parameters: "
         "[{name: p, in: query, schema: {}}], requestBody: {content: {}}, responses: {'200': {description: "
         "d}}}}}",
         NonBreaking, "added put /a non-breaking\n"},
        {"paths that refer to a shared item bring and take its operations",
         "paths: {/a: {$ref: '#/components/pathItems/I'}}\n"
         "components: {pathItems: {I: {get: {responses: {}}, put: {responses: {}}}}}",
         "paths: {/b: {$ref: '#/components/pathItems/I'}}\n"
         "components: {pathItems: {I: {get: {responses: {}}, put: {responses: {}}}}}",
         Breaking,
         "added get /b non-breaking\nadded put /b non-breaking\n"
         "removed get /a breaking\nremoved put /a breaking\n"},
        {"shared items that come and go mean nothing",
         "components: {pathItems: {I: {get: {responses: {'200': {description: d}}}}}}",
         "components: {pathItems: {J: {get: {responses: {'200': {description: d}}}}}}", None, ""},
        {"a path may turn to another shared item",
         "paths: {/a: {$ref: '#/components/pathItems/I'}}\n"
         "components: {pathItems: {I: {get: {responses: {}}}, J: {put: {responses: {'2XX': {description: "
         "d}}}}}}",
         "paths: {/a: {$ref: '#/components/pathItems/J'}}\n"
         "components: {pathItems: {I: {get: {responses: {}}}, J: {put: {responses: {'2XX': {description: "
         "d}}}}}}",
         Breaking, "added put /a non-breaking\n"},
        {"operations of callbacks are part of the one that calls back",
         "paths: {/a: {get: {callbacks: {c: {e: {post: {summary: s, responses: {}}, put: {summary: s, "
         "responses: {}}}}}, responses: {}, security: []}, post: {summary: s, responses: {}}}}",
         "paths: {/a: {get: {callbacks: {c: {e: {post: {summary: t, responses: {}}, get: {summary: s, "
         "responses: {}}}}}, responses: {}, security: [{}]}, post: {summary: t, responses: {}}}}",
         Breaking,
         "modified get /a breaking\n  security breaking\n"
         "modified post /a non-functional\n  metadata non-functional\n"},
        {"shared callbacks stand in no path",
         "components: {callbacks: {c: {e: {post: {summary: s, responses: {}}}}}}",
         "components: {callbacks: {c: {e: {post: {summary: t, responses: {}}}}}}", None, ""},
        {"a callback may turn to another shared path item",
         "paths: {/a: {get: {callbacks: {c: {e: {$ref: '#/components/pathItems/I'}}}, responses: {}}}}\n"
         "components: {pathItems: {I: {get: {summary: s, responses: {}}}, J: {get: {summary: t, responses: "
         "{}}}}}",
         "paths: {/a: {get: {callbacks: {c: {e: {$ref: '#/components/pathItems/J'}}}, responses: {}}}}\n"
         "components: {pathItems: {I: {get: {summary: s, responses: {}}}, J: {get: {summary: t, responses: "
         "{}}}}}",
         Breaking, "modified get /a breaking\n"},
        {"webhooks are known by their names",
         "webhooks: {a: {post: {summary: s, responses: {}}}, b: {post: {summary: s, responses: {}}}}",
         "webhooks: {a: {post: {summary: t, responses: {}}}, c: {post: {summary: s, responses: {}}}}",
         Breaking,
         "added post c non-breaking\nremoved post b breaking\n"
         "modified post a non-functional\n  metadata non-functional\n"},
        {"the document's own security has no row behind an operation's",
         "paths: {/a: {get: {summary: s, responses: {}}}}\n"
         "security: []\ncomponents: {securitySchemes: {k: {type: http, scheme: basic}}}",
         "paths: {/a: {get: {summary: t, responses: {}}}}\n"
         "security: [{k: []}]\ncomponents: {securitySchemes: {k: {type: http, scheme: basic}}}",
         NonFunctional, "modified get /a non-functional\n  metadata non-functional\n"},
        {"extensions are told by the nodes that hold them",
         "x-a: 1\nservers: [{url: /, x-a: 1}]\npaths: {/a: {x-a: 1, get: {x-a: 1, responses: {}}}}",
         "x-a: 2\nservers: [{url: /, x-a: 2}]\npaths: {/a: {x-a: 2, get: {x-a: 2, responses: {}}}}",
         NonFunctional, "modified get /a non-functional\n"},
        {"an operation may be deprecated no more", "paths: {/a: {get: {deprecated: true, responses: {}}}}",
         "paths: {/a: {get: {responses: {}}}}", NonBreaking,
         "deprecated get /a non-breaking\nmodified get /a non-breaking\n"},
        {"what has no row has no effect", "tags: [{name: t}]\ncomponents: {schemas: {S: {type: string}}}",
         "components: {schemas: {S: {type: integer}}}", None, ""},
        {"parameters of a path count with the path",
         "paths: {/a: {parameters: [{name: p, in: query, schema: {}}], get: {responses: {}}}}",
         "paths: {/a: {get: {responses: {}}}}", Breaking, ""},
    };
    const Configuration configuration = Configuration::recommended();
    for (const ExpectedRow& row : rows) {
        SCOPED_TRACE(row.what);
        const auto before = document(row.before);
        const auto after = document(row.after);
        ChangelogReport report;
        DiffContext context(configuration, *before, *after, report);
        OpenAPIDiff().diff(&before->root(), &after->root(), context);
        EXPECT_EQ(report.level(), row.level);
        EXPECT_EQ(eventsOf(report), row.events);
    }
}

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
        document("servers: [{url: /}]\npaths: {/a: {get: {security: [{}], responses: {}}}}");
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
