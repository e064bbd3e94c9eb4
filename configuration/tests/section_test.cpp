#include "configuration/section.h"
#include "jv/deser.h"

#include <functional>  // std::function
#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::configuration {
namespace {

using jv::Pos;

/// As a plugin of a generator reads its section.
struct Options {
    bool tests = true;
    bool pages = true;
    std::string prefix = "none";
    std::variant<bool, std::string_view> schema = false;
    int layout = 0;
    std::vector<std::string_view> grouping;
    std::int32_t depth = 7;
};

Options readOptions(const jv::JV& root) {
    constexpr Choices<int, 2> layouts{{{"flat", 1}, {"deep", 2}}};
    Options options;
    const Section section = pluginSection(root, "docs");
    options.tests = section.boolean("tests").value_or(options.tests);
    options.pages = section.section("site").boolean("pages").value_or(options.pages);
    options.prefix = section.textIfString("prefix").value_or(options.prefix);
    options.schema = section.booleanOrText("schema", "schema must be a boolean or a string").value_or(false);
    options.layout = section.choice("layout", layouts, "Unknown layout: {}").value_or(options.layout);
    if (const jv::JV* grouping = section.get("grouping"); grouping != nullptr)
        options.grouping = textsOf(*grouping, "grouping must be a string or an array");
    options.depth = section.integer("depth", 9, "Depth must be at most 9").value_or(options.depth);
    section.requireKnown({"tests", "site", "prefix", "schema", "layout", "grouping", "depth"});
    return options;
}

std::unique_ptr<jv::JVDocument> parse(const std::string& json) {
    return jv::parseDocument(json, {.format = jv::DocumentFormat::Json, .refLoader = {}});
}

TEST(Section, givesWhatIsThere) {
    for (const char* absent : {"{}", R"({"commands": 1})", R"({"commands": {"generate": {"docs": {}}}})"}) {
        const auto document = parse(absent);
        const Options options = readOptions(*document->root());
        EXPECT_TRUE(options.tests && options.pages && options.grouping.empty()) << absent;
        EXPECT_EQ(options.prefix, "none");
        EXPECT_EQ(options.depth, 7);
    }
    const auto document = parse(R"({"commands": {"generate": {"docs": {"tests": false, "prefix": "p",
        "site": {"pages": false}, "schema": "s", "layout": "deep", "grouping": ["a", "b"], "depth": 2.0}}}})");
    const Options options = readOptions(*document->root());
    EXPECT_FALSE(options.tests || options.pages);
    EXPECT_EQ(options.prefix, "p");
    EXPECT_EQ(std::get<std::string_view>(options.schema), "s");
    EXPECT_EQ(options.layout, 2);
    EXPECT_EQ(options.grouping, (std::vector<std::string_view>{"a", "b"}));
    EXPECT_EQ(options.depth, 2);
}

TEST(Section, saysWhichValueIsAtFault) {
    struct Row {
        std::string members;
        std::string text; ///< empty where there is no fault
        Pos pos;
        bool isConfigError = true;
    };
    constexpr Pos section{1, 36};
    const std::vector<Row> rows = {
        {R"({"tests": 1})", "A boolean value is expected for 'tests'.", section, false},
        {R"({"site": []})", "An object value is expected for 'site'.", section, false},
        {R"({"layout": 1})", "A string value is expected for 'layout'.", section, false},
        {R"({"depth": 1.5})", "An integer value is expected for 'depth'.", section, false},
        {R"({"prefix": 1, "schema": true, "grouping": "a"})", "", {}},
        {R"({"schema": []})", "schema must be a boolean or a string", {1, 47}},
        {R"({"layout": "wide"})", "Unknown layout: wide", {1, 47}},
        {R"({"grouping": 1})", "grouping must be a string or an array", {1, 49}},
        {R"({"grouping": ["a", null]})", "grouping must be a string or an array", {1, 55}},
        {R"({"depth": 10})", "Depth must be at most 9", {1, 46}},
        {R"({"tests": true, "test": true})", "Unexpected properties", {1, 60}},
        {R"(["tests"])", "An object is expected for 'docs'", section},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.members);
        const auto document = parse(R"({"commands": {"generate": {"docs": )" + row.members + "}}}");
        try {
            static_cast<void>(readOptions(*document->root()));
            EXPECT_EQ(row.text, "");
        } catch (const jv::JVError& error) {
            EXPECT_EQ(error.what(), row.text);
            EXPECT_EQ(document->locationOf(error.value()).pos, row.pos);
            EXPECT_EQ(dynamic_cast<const ConfigError*>(&error) != nullptr, row.isConfigError);
        }
    }
}

} // namespace
} // namespace specloom::configuration
