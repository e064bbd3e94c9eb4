#include "openapi_diff/diff_context.h"

#include "jv/deser.h"
#include "openapi/reader.h"

#include <functional>  // std::function
#include <memory>      // std::unique_ptr
#include <optional>    // std::optional
#include <sstream>     // std::ostringstream
#include <stdexcept>   // std::runtime_error
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::pair
#include <vector>      // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::openapi_diff {
namespace {

using openapi::Node;
using testing::ElementsAre;
using enum ConfigKey;
using namespace std::string_view_literals;

/// Writes each change on a line: kind, field with name or index, level, what else is not as usual, and place.
class ContextLines : public Report {
  public:
    void add(const Change& change) override {
        std::ostringstream line;
        line << changeKindText(change.kind) << ' ' << configKeyText(change.key);
        if (!change.name.empty())
            line << '(' << change.name << ')';
        if (change.index != -1)
            line << '[' << change.index << ']';
        line << ' ' << changeLevelText(change.level);
        if (change.weight != change.level)
            line << ", weighs " << changeLevelText(change.weight);
        if (change.isPart)
            line << ", part";
        line << (change.side == DocumentSide::Source ? " source " : " ") << change.pos.line;
        lines.push_back(line.str());
    }
    std::vector<std::string> lines;
};

std::unique_ptr<openapi::ReadResult> read(std::string_view text) {
    static const auto formats = std::make_shared<const openapi::SchemaFormatRegistry>();
    return openapi::read(jv::parseDocument(text, {.format = jv::DocumentFormat::Json, .refLoader = {}}),
                         formats);
}

/// Two documents whose info stands in line 2 of the source and line 12 of the destination.
class DiffContextTest : public testing::Test {
  protected:
    using Script = std::function<void(DiffContext&)>;

    static constexpr const char* text = R"({"openapi": "3.1.0", "paths": {}, "x-root": 1,
        "info": {"title": "t", "version": "1", "x-a": 1}})";

    /// What is reported of a comparison.
    std::vector<std::string> linesOf(const Script& script) {
        ContextLines report;
        DiffContext context(configuration, *source, *destination, report);
        script(context);
        return report.lines;
    }

    const std::unique_ptr<openapi::ReadResult> source = read(text);
    const std::unique_ptr<openapi::ReadResult> destination = read(std::string(10, '\n').append(text));
    const Node* const before = &source->root().info();
    const Node* const after = &destination->root().info();
    Configuration configuration = Configuration::recommended();
};

TEST_F(DiffContextTest, changesOutsideOfScopes) {
    EXPECT_THAT(
        linesOf([&](DiffContext& context) {
            context.compare(InfoTitle, *before, *after, "a"sv, "b"sv);
            context.compare(InfoTitle, *before, *after, "a"sv, "a"sv);
            context.compare(InfoVersion, *before, *after, "1"sv, "2"sv);
            context.removed(InfoSummary, *before, std::optional("a"sv));
            context.removed(InfoSummary, *before, std::optional<std::string_view>());
            context.compare(InfoSummary, *before, *after, std::optional<std::string_view>(),
                            std::optional("b"sv));
            context.compare(OperationDeprecated, *before, *after, true, false);
            context.added(RequestBodyRequired, *after, true);
            context.added(RequestBodyRequired, *after, false);
            context.extensionAdded(*after, "x-a");
            context.extensionRemoved(*before, "x-a");
        }),
        ElementsAre("property_modified title breaking 12", "property_removed summary non-functional source 2",
                    "property_added summary non-functional 12",
                    "property_modified deprecated non-breaking 12", "property_added required breaking 12",
                    "extension_added openapi(x-a) non-functional 12",
                    "extension_removed openapi(x-a) non-functional source 2"))
        << "those without a level are dropped";
}

/// Where a node was marked, its change comes first and is named by the scope.
TEST_F(DiffContextTest, markedScopes) {
    struct Case {
        const char* name;
        Script script;
        std::vector<std::string> lines;
    };
    const auto title = [&](DiffContext& context) {
        context.compare(InfoTitle, *before, *after, "a"sv, "b"sv);
    };
    const auto version = [&](DiffContext& context) {
        context.compare(InfoVersion, *before, *after, "a"sv, "b"sv);
    };
    const std::vector<Case> cases = {
        {"nothing below",
         [&](DiffContext& context) {
             const auto both = context.enter(before, after, OpenAPIInfo);
             context.mark(before, after);
             const auto added = context.enterKey(nullptr, after, Paths, "/a");
             context.mark(nullptr, after);
             const auto none = context.enterKey(nullptr, nullptr, Paths, "/b");
             context.mark(nullptr, nullptr);
         },
         {}},
        {"as bad as the worst below",
         [&](DiffContext& context) {
             const auto scope = context.enter(before, after, OpenAPIInfo);
             context.mark(before, after);
             context.removed(InfoSummary, *before, "a"sv);
             title(context);
             version(context);
             context.extensionModified(*after, "x-a");
         },
         {"property_modified info breaking 12", "property_removed summary non-functional source 2",
          "property_modified title breaking 12", "property_modified version none 12",
          "extension_modified info(x-a) non-functional 12"}},
        {"nothing bad below",
         [&](DiffContext& context) {
             const auto scope = context.enter(before, after, OpenAPIInfo);
             context.mark(before, after);
             version(context);
         },
         {}},
        {"a field of the level none silences what is below",
         [&](DiffContext& context) {
             const auto outer = context.enter(before, after, OpenAPIInfo);
             context.mark(before, after);
             {
                 const auto silent = context.enter(nullptr, after, OpenAPIJsonSchemaDialect);
                 context.mark(nullptr, after);
                 const auto inner = context.enterKey(before, after, ComponentsSchemas, "A");
                 context.mark(before, after);
                 title(context);
             }
             context.compare(InfoSummary, *before, *after, "a"sv, "b"sv);
         },
         {"property_modified info non-functional 12", "property_modified summary non-functional 12"}},
        {"a level of its own stays, however bad the fields",
         [&](DiffContext& context) {
             const auto scope = context.enter(before, after, OperationExternalDocs);
             context.mark(before, after);
             title(context);
         },
         {"property_modified externalDocs non-functional 12", "property_modified title breaking 12"}},
        {"entries of maps",
         [&](DiffContext& context) {
             const auto outer = context.enter(before, after, OpenAPIPaths);
             context.mark(before, after);
             const std::vector<std::pair<const Node*, const Node*>> pairs{
                 {nullptr, after}, {before, nullptr}, {before, after}};
             for (const auto& [a, b] : pairs) {
                 const auto scope = context.enterKey(a, b, Paths, "/a");
                 context.mark(a, b);
                 context.extensionModified(b != nullptr ? *b : *a, "x-a");
             }
         },
         {"property_modified paths breaking 12", "key_added paths(/a) non-breaking 12",
          "extension_modified paths(x-a) non-functional, part 12", "key_removed paths(/a) breaking source 2",
          "extension_modified paths(x-a) non-functional, part source 2",
          "key_modified paths(/a) non-functional 12", "extension_modified paths(x-a) non-functional 12"}},
        {"an entry may have an empty key",
         [&](DiffContext& context) {
             const auto scope = context.enterKey(before, after, ComponentsSchemas, "");
             context.mark(before, after);
             title(context);
         },
         {"key_modified schemas breaking 12", "property_modified title breaking 12"}},
        {"elements of lists",
         [&](DiffContext& context) {
             const auto first = context.enterIndex(before, after, OpenAPIServers, 0);
             context.mark(before, after);
             title(context);
         },
         {"element_modified servers[0] breaking 12", "property_modified title breaking 12"}},
    };
    for (const Case& expected : cases) {
        SCOPED_TRACE(expected.name);
        EXPECT_EQ(linesOf(expected.script), expected.lines);
    }
}

TEST_F(DiffContextTest, scopesWithoutMark) {
    struct Case {
        const char* name;
        Script script;
        std::vector<std::string> lines;
    };
    const auto entry = [&](auto... changes) {
        return [this, changes...](DiffContext& context) {
            const auto scope = context.enterKey(before, after, SchemaRequired, "a");
            (changes(context), ...);
        };
    };
    const auto add = [&](DiffContext& context) { context.added(SchemaRequired, *after, "a"sv); };
    const auto remove = [&](DiffContext& context) { context.removed(SchemaRequired, *before, "a"sv); };
    const auto modifySummary = [&](DiffContext& context) {
        context.compare(InfoSummary, *before, *after, "a"sv, "b"sv);
    };
    const auto modifyTitle = [&](DiffContext& context) {
        context.compare(InfoTitle, *before, *after, "a"sv, "b"sv);
    };
    const std::vector<Case> cases = {
        {"one addition", entry(add), {"key_added required(a) breaking 12"}},
        {"one removal", entry(remove), {"key_removed required(a) breaking 12"}},
        {"additions of all kinds",
         entry(add, [&](DiffContext& context) { context.extensionAdded(*after, "x-b"); }),
         {"key_added required(a) breaking 12"}},
        {"mixed kinds are one change, as bad as the worst",
         entry(modifySummary, add, modifyTitle),
         {"key_modified required(a) breaking 12"}},
        {"an addition behind a removal", entry(remove, add), {"key_modified required(a) breaking 12"}},
        {"the first one is classified as an item, which titles are not",
         entry(modifyTitle),
         {"key_modified required(a) none 12"}},
        {"the ones behind it by their field",
         entry(modifyTitle, modifySummary),
         {"key_modified required(a) non-functional 12"}},
        {"an element on one side",
         [&](DiffContext& context) {
             const auto scope = context.enterIndex(before, nullptr, OperationTags, 3);
             context.removed(OperationTags, *before, "a"sv);
         },
         {"element_removed tags[3] non-breaking source 2"}},
        {"fields forward what they hold",
         [&](DiffContext& context) {
             const auto scope = context.enter(before, after, OpenAPIInfo);
             modifyTitle(context);
             modifyTitle(context);
             modifySummary(context);
         },
         {"property_modified title none 12", "property_modified title breaking 12",
          "property_modified summary non-functional 12"}},
        {"what is forwarded to an entry is told by it",
         [&](DiffContext& context) {
             const auto outer = context.enterKey(before, after, ComponentsSchemas, "A");
             const auto inner = context.enterIndex(before, after, OpenAPIServers, 0);
             context.mark(before, after);
             modifySummary(context);
         },
         {"key_modified schemas(A) non-functional 12"}},
        {"nothing", entry(), {}},
    };
    for (const Case& expected : cases) {
        SCOPED_TRACE(expected.name);
        EXPECT_EQ(linesOf(expected.script), expected.lines);
    }
}

/// A path that was added counts as such, whatever its parts would mean by themselves.
TEST_F(DiffContextTest, additionsWeighAsAWhole) {
    EXPECT_THAT(linesOf([&](DiffContext& context) {
                    const auto paths = context.enter(before, after, OpenAPIPaths);
                    context.mark(before, after);
                    const auto path = context.enterKey(nullptr, after, Paths, "/a");
                    context.mark(nullptr, after);
                    const auto operation = context.enterKey(nullptr, after, PathItemOperations, "get");
                    context.mark(nullptr, after);
                    context.added(OperationOperationId, *after, "id"sv);
                    const auto required = context.enterIndex(nullptr, after, OperationSecurity, 0);
                    context.added(SecurityRequirement, *after, "s"sv);
                }),
                ElementsAre("property_modified paths breaking, weighs non-breaking 12",
                            "key_added paths(/a) non-breaking 12",
                            "key_added operations(get) non-breaking, part 12",
                            "property_added operationId breaking, part 12",
                            "element_added security[0] breaking, part 12"));

    EXPECT_THAT(linesOf([&](DiffContext& context) {
                    const auto contact = context.enter(nullptr, after, InfoContact);
                    context.mark(nullptr, after);
                    context.added(ContactName, *after, "n"sv);
                }),
                ElementsAre("property_added contact non-breaking 12", "property_added name non-breaking 12"))
        << "nested: its fields are not parts, but what it weighs";
}

TEST_F(DiffContextTest, comparisonsAreMadeOnceAndIncluded) {
    const auto compared = [&](DiffContext& context, ConfigKey key, const Comparison* included) {
        return context.collect(*before, *after, [&] {
            context.mark(before, after);
            context.compare(key, *before, *after, "a"sv, "b"sv);
            if (key == InfoTitle)
                context.extensionModified(*after, "x-a");
            if (included != nullptr)
                context.include(*included, true);
        });
    };
    EXPECT_THAT(
        linesOf([&](DiffContext& context) {
            const Comparison inner = compared(context, InfoTitle, nullptr);
            const Comparison outer = compared(context, InfoSummary, &inner);
            const Comparison none = compared(context, InfoVersion, nullptr);
            EXPECT_EQ(outer.level, ChangeLevel::Breaking);
            EXPECT_EQ(none.level, ChangeLevel::None);
            const auto use = [&](std::string_view name, const Comparison& found, bool listed) {
                const auto scope = context.enterKey(before, after, SchemaProperties, name);
                context.mark(before, after);
                context.include(found, listed);
            };
            const auto scope = context.enter(before, after, OpenAPIComponents);
            context.mark(before, after);
            use("place", outer, false);
            use("list", outer, true);
            use("none", none, true);
        }),
        ElementsAre("property_modified components breaking 12", "key_modified properties(place) breaking 12",
                    "key_modified properties(list) breaking 12",
                    "property_modified summary non-functional 12", "property_modified title breaking 12",
                    "extension_modified properties(x-a) non-functional 12"));
}

TEST_F(DiffContextTest, scopesCloseWhenAnExceptionPasses) {
    ContextLines report;
    DiffContext context(configuration, *source, *destination, report);
    EXPECT_THROW(
        {
            const auto outer = context.enter(before, after, OpenAPIInfo);
            const auto inner = context.enter(before, after, InfoContact);
            throw std::runtime_error("stop");
        },
        std::runtime_error);
    context.compare(InfoTitle, *before, *after, "a"sv, "b"sv);
    EXPECT_THAT(report.lines, ElementsAre("property_modified title breaking 12")) << "no scope is open";
}

} // namespace
} // namespace specloom::openapi_diff
