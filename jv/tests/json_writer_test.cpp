#include "jv/json_reader.h"
#include "jv/json_writer.h"
#include "test_support/failure.h"

#include <string> // std::string
#include <vector> // std::vector

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

TEST(JsonWriter, escapesWhatMustBe) {
    JVDocument document;
    document.makeRoot(Kind::String)
        ->setString(std::string("\b\t\n\f\r\"\\/ \x01\x1f\x7f\0", 13) + "\xc3\xa9\xff");
    EXPECT_EQ(written(document, 0), "\"\\b\\t\\n\\f\\r\\\"\\\\/ \\u0001\\u001f\x7f\\u0000\xc3\xa9\xff\"");
    EXPECT_EQ(written(*parseJSON(R"(["/a/b"])"), 0, JSONWriter::escapeSolidus), R"(["\/a\/b"])");
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
