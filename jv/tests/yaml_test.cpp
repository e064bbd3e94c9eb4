#include "jv/json_reader.h"
#include "jv/json_writer.h"
#include "jv/yaml_reader.h"
#include "jv/yaml_writer.h"

#include <gtest/gtest.h>
#include <sstream>   // std::istringstream
#include <stdexcept> // std::runtime_error
#include <string>    // std::string
#include <vector>    // std::vector

namespace specloom::jv {
namespace {

std::string toJSON(const JVDocument& document) {
    JSONWriter writer;
    writer.write(document);
    return writer.output();
}

std::string toYAML(const JVDocument& document, std::int64_t indent = 2) {
    YAMLWriter writer;
    writer.setIndent(indent);
    writer.write(document);
    return writer.output();
}

TEST(YamlReader, DecidesKindsByText) {
    struct Case {
        const char* yaml;
        const char* json;
    };
    const std::vector<Case> cases = {
        {"a: 1", R"({"a":1})"},
        {"a: \"1\"\nb: '1'\nc: |\n  1", R"({"a":"1","b":"1","c":"1"})"},
        {"[null, 'null', ~, Null, NULL, '']", R"([null,"null","~","Null","NULL",""])"},
        {"[true, false, True, yes, on]", R"([true,false,"True","yes","on"])"},
        {"[0x10, 1_000, .5, 1., 1e, +5, 007, 1E+2, -0, 1.0, .inf]",
         R"(["0x10","1_000",".5","1.","1e",5,7,100.0,0,1.0,".inf"])"},
        {"[2019-01-01, 12:30, 1.5.1]", R"(["2019-01-01","12:30","1.5.1"])"},
        {"a:", R"({"a":""})"},
        {"[!!str 123, !!str '123', ! '123']", R"([123,123,123])"},
        {"1: x\ntrue: y\n\"null\": z", R"({"1":"x","true":"y","null":"z"})"},
        {"b: 1\na: 2", R"({"b":1,"a":2})"},
        {"a: 1\nb: 2\na: 3", R"({"a":3,"b":2})"},
        {"- first\n---\n- second", R"(["second"])"},
        // An alias yields no value, so the next scalar takes its place.
        {"b: &x 1\na: *x\nc: 2", R"({"b":1,"a":"c"})"},
        {"[&x 1, *x, 2]", "[1,2]"},
        {"a: *x", "{}"},
        // An empty key counts as none, so the pairing shifts.
        {"\"\": 1\nb: 2", R"({"1":"b"})"},
        {"? [1]\n: a\n? {b: 2}\n: c", R"({"a":{"b":2},"":[1]})"},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.yaml);
        EXPECT_EQ(toJSON(*parseYAML(test.yaml)), test.json);
        std::istringstream stream(test.yaml);
        EXPECT_EQ(toJSON(*readYAML(stream)), test.json);
    }
}

TEST(YamlReader, RefusesWithOneText) {
    for (const std::string& text :
         {std::string(), std::string("just text"), std::string("--- 1"), std::string("*x"),
          std::string("a: [1"), std::string("a: 'b"), std::string("\t- a"), std::string("a: b: c"),
          std::string("- \xff"), std::string(10001, '['), std::string("# nothing\n")}) {
        SCOPED_TRACE(text.substr(0, 20));
        try {
            static_cast<void>(parseYAML(text));
            FAIL();
        } catch (const std::runtime_error& error) {
            EXPECT_STREQ(error.what(), "Failed to parse YAML");
        }
    }
}

TEST(YamlReader, OnlyContainersHavePositionsCountedFromZero) {
    const auto document = parseYAML("a:\n  b: [1]\n  c: {d: e}\n");
    EXPECT_EQ(document->lookup("")->pos(), (Pos{0, 0}));
    EXPECT_EQ(document->lookup("/a")->pos(), (Pos{1, 2}));
    EXPECT_EQ(document->lookup("/a/b")->pos(), (Pos{1, 5}));
    EXPECT_EQ(document->lookup("/a/c")->pos(), (Pos{2, 5}));
    EXPECT_EQ(document->lookup("/a/b/0")->pos(), (Pos{-1, -1}));
    EXPECT_EQ(document->lookup("/a/c/d")->pos(), (Pos{-1, -1}));
}

TEST(YamlReader, RecordsKeysThatGotNoValue) {
    const auto document = parseYAML("a: *x\nb: 1");
    EXPECT_EQ(document->keysOf(document->root()), (std::vector<std::string_view>{"a", "1"}));
    EXPECT_EQ(toJSON(*document), R"({"a":"b"})");
}

TEST(YamlWriter, WritesBlockAndFlow) {
    const auto document = parseJSON(R"({"b":{"list":[1,[2,{}],{"x":null,"y":true}]},"a":"two\nlines"})");
    EXPECT_EQ(toYAML(*document), R"(b:
  list:
  - 1
  - - 2
    - {}
  - x: null
    y: true
a: 'two

  lines'
)");
    EXPECT_EQ(toYAML(*document, 4).substr(0, 20), "b:\n    list:\n    - 1");
    EXPECT_EQ(toYAML(*parseJSON(R"({"b":{"list":[1,[2,{}]]},"a":[]})"), 0),
              "{b: {list: [1, [2, {}]]}, a: []}\n");
}

TEST(YamlWriter, QuotesWhatWouldReadBackAsAnotherKind) {
    struct Case {
        const char* json;
        const char* yaml;
    };
    const std::vector<Case> cases = {
        {R"("1")", "\"1\""},
        {R"("1.5")", "\"1.5\""},
        {R"("-7")", "\"-7\""},
        {R"("+1.50")", "\"+1.50\""},
        {R"("1.5.1")", "1.5.1"},
        {R"("1e5")", "1e5"},
        {R"("1.")", "1."},
        {R"(".5")", ".5"},
        {R"("")", "\"\""},
        {R"("null")", "\"null\""},
        {R"("true")", "\"true\""},
        {R"("false")", "\"false\""},
        {R"("~")", "~"},
        {R"("yes")", "yes"},
        {R"("#a")", "\"#a\""},
        {R"("*a")", "\"*a\""},
        {R"("2019-01-01")", "2019-01-01"},
        {"123456789012345678901234567890", "123456789012345678901234567890"},
        {"0.000011726012417057063", "0.000011726012417057063"},
        {"18446744073709551616", "18446744073709551616"},
        {"1.0", "1.0"},
        {"1e999", "1e+999"},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.json);
        EXPECT_EQ(toYAML(*parseJSON("[" + std::string(test.json) + "]")),
                  "- " + std::string(test.yaml) + "\n");
    }
}

TEST(YamlWriter, RefusesWhatCannotBeReadBack) {
    const auto messageFor = [](const JVDocument& document) -> std::string {
        try {
            return toYAML(document);
        } catch (const std::runtime_error& error) {
            return error.what();
        }
    };
    JVDocument broken;
    broken.makeRoot(Kind::Array)->appendString("\xff");
    EXPECT_EQ(messageFor(broken), "Failed to initialize string scalar event");
    const auto deep = parseJSON(std::string(10001, '[') + std::string(10001, ']'));
    EXPECT_EQ(messageFor(*deep), "MaxDepthExceeded");
}

} // namespace
} // namespace specloom::jv
