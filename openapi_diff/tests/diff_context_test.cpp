#include "openapi_diff/diff_context.h"
#include "test_support/read_text.h"

#include <functional>  // std::function
#include <memory>      // std::unique_ptr
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

    const std::unique_ptr<openapi::ReadResult> source = test_support::readText(text);
    const std::unique_ptr<openapi::ReadResult> destination =
        test_support::readText(std::string(10, '\n').append(text));
    const Node* const before = &source->root().info();
    const Node* const after = &destination->root().info();
    Configuration configuration = Configuration::recommended();
};

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
