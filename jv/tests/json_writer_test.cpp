#include "jv/json_reader.h"
#include "jv/json_writer.h"
#include "jv/tree_builder.h"
#include "test_support/failure.h"

#include <memory>  // std::make_unique
#include <string>  // std::string
#include <utility> // std::as_const
#include <vector>  // std::vector

#include <gtest/gtest.h>

namespace specloom::jv {
namespace {

using test_support::failureOf;

std::string written(const JVDocument& document, std::int64_t indent, std::uint32_t flags = 0) {
    JSONWriter writer(flags);
    writer.setIndent(indent);
    writer.write(document);
    return writer.output();
}

TEST(JsonWriter, writesEachShape) {
    struct Case {
        const char* json;
        std::int64_t indent;
        const char* expected;
    };
    const std::vector<Case> cases = {
        {R"({"a":[1]})", 2, "{\n  \"a\": [\n    1\n  ]\n}\n"},
        {R"({"a":[1,{"b":null}],"c":true})", 4,
         "{\n    \"a\": [\n        1,\n        {\n            \"b\": null\n        }\n    ],\n    \"c\": "
         "true\n}\n"},
        {R"([[],{}])", 2, "[\n  [\n\n  ],\n  {\n\n  }\n]\n"},
        {"[]", 2, "[\n\n]\n"},
        {R"({"a": [1, {"b": null}], "c": true})", 0, R"({"a":[1,{"b":null}],"c":true})"},
        {R"([1, 2])", -3, "[1,2]"},
        {"1", 2, "1\n"},
        {"\"x\"", 0, "\"x\""},
        {"[1.0, 1e3, -0, 1.5e-7, 18446744073709551615]", 0, "[1.0,1000.0,0,1.5e-07,18446744073709551615]"},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.json);
        EXPECT_EQ(written(*parseJSON(test.json), test.indent), test.expected);
    }
}

TEST(JsonWriter, writesAnArrayItemByItem) {
    for (const char* const json : {"[]", "[1]", R"([{"a":[1]},[],"x"])"}) {
        const auto whole = parseJSON(json);
        for (const std::int64_t indent : {0, 2, 9}) {
            TreeBuilder item(std::make_unique<JVDocument>());
            JSONWriter writer;
            writer.setIndent(indent);
            writer.startArray();
            for (const JV* element : std::as_const(*whole->root()).elements()) {
                item.restart();
                item.addCopy(*element);
                writer.writeItem(item.document());
            }
            writer.endArray();
            EXPECT_EQ(writer.output(), written(*whole, indent));
        }
    }
}

TEST(TreeBuilder, takesBackWhatWasAdded) {
    TreeBuilder builder(std::make_unique<JVDocument>());
    builder.startObject({});
    builder.addKey("a");
    const TreeBuilder::Checkpoint atValue = builder.checkpoint();
    builder.startArray({});
    builder.addString("a text that is longer than sixteen bytes", {});
    builder.rollBack(atValue); // with an open container
    builder.addNumber(1, {});
    builder.rollBack(atValue); // with a value under the key
    builder.addBoolean(true, {});
    const TreeBuilder::Checkpoint atKey = builder.checkpoint();
    builder.addKey("b");
    builder.rollBack(atKey);
    builder.addKey("c");
    builder.addCopy(
        *parseJSON(R"({"y":[null,{"x":"a text that is longer than sixteen bytes"}],"z":{}})")->root());
    builder.end();
    EXPECT_EQ(written(builder.document(), 0),
              R"({"a":true,"c":{"y":[null,{"x":"a text that is longer than sixteen bytes"}],"z":{}}})");
}

TEST(JsonWriter, escapesWhatMustBe) {
    JVDocument document;
    document.makeRoot(Kind::String)
        ->setString(std::string("\b\t\n\f\r\"\\/ \x01\x1f\x7f\0", 13) + "\xc3\xa9\xff");
    EXPECT_EQ(written(document, 0), "\"\\b\\t\\n\\f\\r\\\"\\\\/ \\u0001\\u001f\x7f\\u0000\xc3\xa9\xff\"");
    EXPECT_EQ(written(*parseJSON(R"(["/a/b"])"), 0, JSONWriter::escapeSolidus), R"(["\/a\/b"])");
    // Wherever it stands in a text of any length.
    for (std::size_t size = 1; size <= 40; ++size) {
        for (std::size_t at = 0; at < size; ++at) {
            for (const char special : {'"', '\\'}) {
                std::string text(size, '\x7f');
                text[at] = special;
                document.root()->setString(text);
                EXPECT_EQ(written(document, 0), '"' + text.insert(at, 1, '\\') + '"');
            }
        }
    }
}

TEST(JsonWriter, refusesDepthAndInfinity) {
    const std::string brackets(10000, '[');
    const auto deep = parseJSON(brackets + std::string(10000, ']'));
    const auto failure = [](const JVDocument& document) {
        JSONWriter writer;
        std::string text = failureOf<JSONWriterError>([&] { writer.write(document); });
        EXPECT_NE(failureOf<JSONWriterError>([&] { writer.write(document); }), ""); // InErrorState
        return text;
    };
    EXPECT_EQ(failure(*deep), "MaxDepthExceeded");
    EXPECT_NO_THROW(static_cast<void>(written(*parseJSON(std::string(128, '[') + std::string(128, ']')), 2)));
    EXPECT_EQ(failure(*parseJSON(std::string(129, '[') + std::string(129, ']'))), "MaxDepthExceeded");

    JVDocument infinite;
    infinite.makeRoot(Kind::Number)->setDouble(1.0 / 0.0);
    EXPECT_EQ(failure(infinite), "InvalidNumber");

    JSONWriter writer;
    writer.write(*parseJSON("1"));
    EXPECT_EQ(failureOf<JSONWriterError>([&] { writer.write(*parseJSON("1")); }), "GenerationComplete");
}

TEST(JsonWriterDeathTest, bigNumberEndsTheProcess) {
    const auto document = parseJSON(R"({"a": [{"b/c": 123456789012345678901}]})");
    EXPECT_DEATH(
        static_cast<void>(written(*document, 0)),
        "^Unreachable code: \\(the number 123456789012345678901 at '/a/0/b~1c' cannot be written as JSON\\) "
        "at .*json_writer");
}

} // namespace
} // namespace specloom::jv
