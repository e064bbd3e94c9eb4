#include "jv/json_reader.h"
#include "jv/json_writer.h"
#include "jv/yaml_reader.h"
#include "jv/yaml_writer.h"
#include "test_support/failure.h"
#include "test_support/texts.h"

#include <sstream>   // std::istringstream
#include <stdexcept> // std::runtime_error
#include <string>    // std::string
#include <vector>    // std::vector

#include <gtest/gtest.h>

namespace specloom::jv {
namespace {

using test_support::failureOf;

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

TEST(YamlReader, decidesKindsByText) {
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

TEST(YamlReader, refusesWithOneText) {
    const std::vector<std::string> texts = {"",
                                            "just text",
                                            "--- 1",
                                            "*x",
                                            "a: [1",
                                            "a: 'b",
                                            "\t- a",
                                            "a: b: c",
                                            "- \xff",
                                            "# nothing\n",
                                            std::string(10001, '[')};
    for (const std::string& text : texts)
        EXPECT_EQ(failureOf<std::runtime_error>([&] { return parseYAML(text); }), "Failed to parse YAML")
            << text.substr(0, 20);
}

TEST(YamlReader, onlyContainersHavePositionsCountedFromZero) {
    const auto document = parseYAML("a:\n  b: [1]\n  c: {d: e}\n");
    EXPECT_EQ(document->lookup("")->pos(), (Pos{0, 0}));
    EXPECT_EQ(document->lookup("/a")->pos(), (Pos{1, 2}));
    EXPECT_EQ(document->lookup("/a/b")->pos(), (Pos{1, 5}));
    EXPECT_EQ(document->lookup("/a/c")->pos(), (Pos{2, 5}));
    EXPECT_EQ(document->lookup("/a/b/0")->pos(), (Pos{-1, -1}));
    EXPECT_EQ(document->lookup("/a/c/d")->pos(), (Pos{-1, -1}));
}

TEST(YamlReader, recordsKeysThatGotNoValue) {
    const auto document = parseYAML("a: *x\nb: 1");
    EXPECT_EQ(document->keysOf(document->root()), (std::vector<std::string_view>{"a", "1"}));
    EXPECT_EQ(toJSON(*document), R"({"a":"b"})");
}

TEST(YamlWriter, writesBlockAndFlow) {
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

TEST(YamlWriter, quotesWhatWouldReadBackAsAnotherKind) {
    const auto written = [](const std::string& text) {
        JVDocument document;
        document.makeRoot(Kind::Array)->appendString(text);
        return toYAML(document);
    };
    // Other readers know more spellings than ours; theirs count too.
    std::vector<std::string> quoted = test_support::wordsOf(
        "1 1.5 -7 +1.50 null true false #a *a ~ Null NULL True FALSE yes No ON off y N = << "
        "1. .5 -.5 +.5e3 1.e3 .5E-3 1_000 1_0.5 0x1F -0x1_f 0o17 0b1010 007 .inf -.INF .nan "
        "12:30 -1:2:3 12:30:45.5 2001-12-14 2001-1-1 2001-12-14T21:59:43.10-05:00");
    quoted.insert(quoted.end(), {"", "2001-12-14 21:59:43Z", "2001-12-14t1:59:43 +1"});
    for (const std::string& text : quoted) {
        const std::string expected = "- \"" + text + "\"\n";
        EXPECT_EQ(written(text), expected);
        EXPECT_EQ(toYAML(*parseYAML(expected)), expected);
    }
    const std::vector<std::string> plain = {"1.5.1",    "1e5",    "1e+5", "1e",       "2019-1-1-1",
                                            "yes, but", "12:3:x", "0xg",  ".infinite"};
    for (const std::string& text : plain)
        EXPECT_EQ(written(text), "- " + text + "\n");
    EXPECT_EQ(written("-"), "- '-'\n"); // libyaml's choice
    const std::string numbers =
        "[123456789012345678901234567890, 0.000011726012417057063, 18446744073709551616, 1.0, 1e+999]\n";
    EXPECT_EQ(toYAML(*parseJSON(numbers), 0), numbers);
}

TEST(YamlWriter, leavesPlainWhatWasPlain) {
    const std::string text = "a: no\n"
                             "b: ~\n"
                             "c: True\n"
                             "d: 2001-12-14\n"
                             "e: 0x1F\n"
                             "f:\n"
                             "- yes\n"
                             "- off\n"
                             "- g: null\n"
                             "  h: \"\"\n";
    const auto document = parseYAML(text);
    EXPECT_EQ(toYAML(*document), text);
    EXPECT_TRUE(document->lookup("/a")->isPlainScalar());
    EXPECT_FALSE(document->lookup("/f/2/h")->isPlainScalar());
    EXPECT_EQ(toYAML(*parseYAML("- !!str ~")), "- \"~\"\n") << "a tag makes it a string for all";
    const std::string empties = "a:\nb:\n- ~\n-\n";
    const std::string flow = "{a: \"\", b: [~, \"\"]}\n";
    EXPECT_EQ(toYAML(*parseYAML(empties)), "a: \"\"\nb:\n- ~\n- \"\"\n") << "what is empty is always quoted";
    EXPECT_EQ(toYAML(*parseYAML(empties), 0), flow);
    EXPECT_EQ(toYAML(*parseYAML(empties), -1), flow);
    EXPECT_EQ(toYAML(*parseYAML(flow), 0), flow);
    JV* value = document->lookup("/b");
    value->setString("~");
    EXPECT_FALSE(value->isPlainScalar()) << "what is set in code was not plain";
}

TEST(YamlWriter, refusesWhatCannotBeReadBack) {
    const auto messageFor = [](const JVDocument& document) {
        return failureOf<std::runtime_error>([&] { return toYAML(document); });
    };
    JVDocument broken;
    broken.makeRoot(Kind::Array)->appendString("\xff");
    EXPECT_EQ(messageFor(broken), "Failed to initialize string scalar event");
    const auto deep = parseJSON(std::string(10001, '[') + std::string(10001, ']'));
    EXPECT_EQ(messageFor(*deep), "MaxDepthExceeded");
}

} // namespace
} // namespace specloom::jv
