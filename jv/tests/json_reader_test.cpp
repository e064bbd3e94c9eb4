#include "jv/default_handler.h"
#include "jv/json_reader.h"
#include "test_support/failure.h"

#include <sstream> // std::istringstream
#include <string>  // std::string
#include <vector>  // std::vector

#include <gtest/gtest.h>

namespace specloom::jv {
namespace {

using test_support::failureOf;

/// Writes events down, each with its position.
class Recorder : public Handler {
  public:
    explicit Recorder(bool rawNumbers = false) : Handler(rawNumbers) {}

    bool onString(std::string_view text, Pos pos) override {
        return note("string " + std::string(text), pos);
    }
    bool onInteger(std::int64_t value, Pos pos) override {
        return note("integer " + std::to_string(value), pos);
    }
    bool onDouble(double value, Pos pos) override { return note("double " + std::to_string(value), pos); }
    bool onNumber(std::string_view text, Pos pos) override {
        return note("number " + std::string(text), pos);
    }
    bool onStartObject(Pos pos) override { return note("{", pos); }
    bool onKey(std::string_view text, Pos pos) override { return note("key " + std::string(text), pos); }
    bool onEndObject(Pos pos) override { return note("}", pos); }
    bool onStartArray(Pos pos) override { return note("[", pos); }
    bool onEndArray(Pos pos) override { return note("]", pos); }
    bool onBoolean(bool value, Pos pos) override { return note(value ? "true" : "false", pos); }
    bool onNull(Pos pos) override { return note("null", pos); }

    std::vector<std::string> events;
    std::string stopAt = "none";

  private:
    bool note(const std::string& event, Pos pos) {
        events.push_back(event + " @" + std::to_string(pos.line) + ":" + std::to_string(pos.column));
        return event != stopAt;
    }
};

/// What the public suite does not ask.
TEST(JsonReader, refusesWithOneText) {
    const auto refusal = [](std::string_view text) { return failureOf([&] { return parseJSON(text); }); };
    for (const char* text : {"", " ", "[1] // no", "[1] /* no */", "1 2", "\xef\xbb\xbf{}", "{\"a\":1} x"})
        EXPECT_EQ(refusal(text), "JSON parse error") << text;
    for (const char* text : {"0", "12", "-0", "null", "\f{}\v", "[1]\n"})
        EXPECT_EQ(refusal(text), "") << text;
}

TEST(JsonReader, decodesEscapes) {
    struct Case {
        const char* json;
        std::string text;
    };
    const std::vector<Case> cases = {
        {R"("\"\\\/\b\f\n\r\t")", "\"\\/\b\f\n\r\t"},
        {R"("\u0041\u00e9\u20ac")", "A\xc3\xa9\xe2\x82\xac"},
        {R"("\ud83d\ude00")", "\xf0\x9f\x98\x80"},
        {R"("\ud83d")", "?"},
        {R"("\ud83dx")", "?x"},
        {R"("\ude00")", "?"},
        {R"("\ud83d\u0041")", "?A"},
        {R"("\ud83d\n")", "?\n"},
        {R"("\u0000")", std::string("\0", 1)},
        {"\"plain \xf0\x9f\x98\x80 text that is longer than one block\\u0021\"",
         "plain \xf0\x9f\x98\x80 text that is longer than one block!"},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.json);
        EXPECT_EQ(parseJSON(test.json)->root()->text(), test.text);
    }
}

TEST(JsonReader, countsLinesAndByteColumns) {
    const auto document = parseJSON("{\r\n\t\"a\":\r[1,\n\n  {\"\xc3\xa9\": true}]\r\r}");
    struct Case {
        const char* pointer;
        Pos pos;
    };
    for (const auto& [pointer, pos] : std::vector<Case>{
             {"", {1, 1}}, {"/a", {3, 1}}, {"/a/0", {3, 2}}, {"/a/1", {5, 3}}, {"/a/1/\xc3\xa9", {5, 10}}}) {
        SCOPED_TRACE(pointer);
        EXPECT_EQ(document->lookup(pointer)->pos(), pos);
    }
    EXPECT_EQ(parseJSON("[\r\n   1]")->lookup("/0")->pos(), (Pos{2, 4}));
}

TEST(JsonReader, keepsEveryDigit) {
    for (const char* text :
         {"12345678901234567890123456789012", "-9223372036854775808", "18446744073709551615",
          "18446744073709551616", "0.000011726012417057063", "1.5", "1e+999"})
        EXPECT_EQ(parseJSON(text)->root()->number().toString(), text);
}

TEST(JsonReader, chunksMakeNoDifference) {
    const std::string text = "{\"key\\u0041\": [12.5e-3, -7, true,\r\n false, null, \"t\xc3\xa9xt \\n\"], /* "
                             "a\nb */ \"o\":{}} // end";
    Recorder whole(true);
    JSONReader reader(whole, JSONReader::AllowComments);
    ASSERT_EQ(reader.parse(text), JSONReader::Status::Good);
    ASSERT_EQ(reader.finish(), JSONReader::Status::Good);
    ASSERT_EQ(whole.events.size(), 14u);
    EXPECT_EQ(whole.events.back(), "} @3:12");
    EXPECT_EQ(whole.events[1], "key keyA @1:2");

    for (std::size_t size = 1; size < text.size(); ++size) {
        SCOPED_TRACE(size);
        Recorder pieces(true);
        JSONReader chunked(pieces, JSONReader::AllowComments);
        for (std::size_t at = 0; at < text.size(); at += size)
            ASSERT_EQ(chunked.parse(text.substr(at, size)), JSONReader::Status::Good);
        ASSERT_EQ(chunked.finish(), JSONReader::Status::Good);
        EXPECT_EQ(pieces.events, whole.events);
    }
}

TEST(JsonReader, flagsWidenWhatIsTaken) {
    struct Case {
        std::uint32_t flags;
        const char* text;
        JSONReader::Status status;
        JSONReader::ParseError parseError;
        JSONLexer::Error lexicalError;
    };
    using enum JSONReader::Flag;
    using Status = JSONReader::Status;
    using Fault = JSONReader::ParseError;
    using Lexical = JSONLexer::Error;
    const std::vector<Case> cases = {
        {0, "[] 1", Status::Error, Fault::TrailingGarbage, Lexical::None},
        {AllowTrailingGarbage, "[] x", Status::Good, Fault::None, Lexical::None},
        {AllowMultipleValues, "[] 1 {}", Status::Good, Fault::None, Lexical::None},
        {AllowPartialValues, "[1, {\"a\"", Status::Good, Fault::None, Lexical::None},
        {0, "[1, {\"a\"", Status::Error, Fault::PrematureEnd, Lexical::None},
        {DoNotValidateStrings, "\"\xff\"", Status::Good, Fault::None, Lexical::None},
        {0, "\"\xff\"", Status::Error, Fault::None, Lexical::InvalidUtf8},
        {0, "/* */ 1", Status::Error, Fault::None, Lexical::CommentNotAllowed},
        {AllowComments, "/* * / */ 1 // x", Status::Good, Fault::None, Lexical::None},
        {AllowComments, "1 /x", Status::Error, Fault::None, Lexical::InvalidCharacter},
        {0, "[1 2]", Status::Error, Fault::UnexpectedToken, Lexical::None},
        {0, "{\"a\" 2}", Status::Error, Fault::MissingSeparator, Lexical::None},
        {0, "{\"a\":1 2}", Status::Error, Fault::MissingSeparator, Lexical::None},
        {0, "9223372036854775808", Status::Error, Fault::IntegerOverflow, Lexical::None},
        {0, "[1e400]", Status::Error, Fault::None, Lexical::None},
        {0, "\"\\q\"", Status::Error, Fault::None, Lexical::InvalidEscapedCharacter},
        {0, "\"\\u00x0\"", Status::Error, Fault::None, Lexical::InvalidHexDigit},
        {0, "\"\n\"", Status::Error, Fault::None, Lexical::InvalidCharacterInString},
        {0, "trux", Status::Error, Fault::None, Lexical::InvalidWord},
        {0, "1.x", Status::Error, Fault::None, Lexical::MissingDigitAfterDecimalPoint},
        {0, "1ex", Status::Error, Fault::None, Lexical::MissingDigitInExponent},
        {0, "-x", Status::Error, Fault::None, Lexical::MissingDigitAfterMinus},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.text);
        Recorder recorder;
        JSONReader reader(recorder, test.flags);
        Status status = reader.parse(test.text);
        if (status == Status::Good)
            status = reader.finish();
        EXPECT_EQ(status, test.status);
        EXPECT_EQ(reader.parseError(), test.parseError);
        EXPECT_EQ(reader.lexicalError(), test.lexicalError);
    }
}

TEST(JsonReader, handlerCanStop) {
    for (const char* event : {"{", "key a", "[", "integer 1", "null", "]", "}"}) {
        SCOPED_TRACE(event);
        Recorder recorder;
        recorder.stopAt = event;
        JSONReader reader(recorder);
        EXPECT_EQ(reader.parse(R"({"a": [1, null]})"), JSONReader::Status::Stopped);
        EXPECT_EQ(reader.parse(" "), JSONReader::Status::Error);
    }
}

TEST(DefaultHandler, refusesEventsThatMakeNoDocument) {
    const auto messageOf = [](auto drive) {
        DefaultHandler handler(std::make_unique<JVDocument>());
        return failureOf<JSONReaderError>([&] { drive(handler); });
    };
    EXPECT_EQ(messageOf([](Handler& handler) { handler.onEndArray({}); }),
              "context_pop: Bottom of stack reached prematurely");
    EXPECT_EQ(messageOf([](Handler& handler) {
                  handler.onStartObject({});
                  handler.onNull({});
              }),
              "context_add_value: Object key is not a string (null)");
}

TEST(JsonReader, reportsABrokenStream) {
    std::istringstream stream("[]");
    stream.setstate(std::ios::failbit);
    EXPECT_THROW(static_cast<void>(readJSON(stream)), std::runtime_error);
}

} // namespace
} // namespace specloom::jv
