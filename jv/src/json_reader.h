#pragma once

#include "foundation/message.h"
#include "jv/handler.h"
#include "jv/json_lexer.h"
#include "jv/jv_document.h"

#include <cstdint>     // std::uint32_t
#include <exception>   // std::exception
#include <iosfwd>      // std::istream
#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::jv {

/// A text is no JSON, or parse events came in an order that makes no document.
class JSONReaderError : public std::exception {
  public:
    explicit JSONReaderError(Message message) : message_(std::move(message)) {}
    [[nodiscard]] const char* what() const noexcept override { return message_.composed().c_str(); }

  private:
    Message message_;
};

/// Reads a document: no comments, UTF-8 checked, nothing behind the value. Throws JSONReaderError with "JSON
/// parse error" for any fault of the text, and std::runtime_error with "Failed to read input" when the stream
/// breaks.
[[nodiscard]] std::unique_ptr<JVDocument> readJSON(std::istream& stream);
/// The same for a text.
[[nodiscard]] std::unique_ptr<JVDocument> parseJSON(std::string_view text);

/// Turns a JSON text (RFC 8259) into events, chunk by chunk, with a stack of its own: only memory bounds
/// nesting.
class JSONReader {
  public:
    enum Flag : std::uint32_t {
        AllowComments = 1,        ///< "//" and "/*" comments are white space
        DoNotValidateStrings = 2, ///< strings need not be UTF-8
        AllowTrailingGarbage = 4, ///< stop silently after the first value
        AllowMultipleValues = 8,  ///< read on after a value
        AllowPartialValues = 16,  ///< the text may end inside a value
    };
    enum class Status : std::uint8_t { Good = 0, Stopped = 1, Error = 2 };
    enum class ParseError : std::uint8_t {
        None = 0,
        IntegerOverflow = 1,
        MissingSeparator = 2,
        PrematureEnd = 3,
        TrailingGarbage = 4,
        UnexpectedToken = 5,
    };

    /// `handler` is not owned and must outlive the reader.
    explicit JSONReader(Handler& handler, std::uint32_t flags = 0);

    /// Parses the next chunk. Stopped when the handler returned false. What the handler throws passes
    /// through.
    [[nodiscard]] Status parse(std::string_view chunk);
    /// Ends the input.
    [[nodiscard]] Status finish();

    [[nodiscard]] ParseError parseError() const noexcept { return parseError_; }
    [[nodiscard]] JSONLexer::Error lexicalError() const noexcept { return lexer_.error(); }

  private:
    enum class State : std::uint8_t {
        Start,
        ParseComplete,
        ParseError,
        LexicalError,
        MapStart,
        MapSep,
        MapNeedValue,
        MapGotValue,
        MapNeedKey,
        ArrayStart,
        ArrayGotValue,
        ArrayNeedValue,
        GotValue,
    };
    enum class Outcome : std::uint8_t { GoOn, EndOfChunk, Stopped, Error };
    using Token = JSONLexer::Token;

    [[nodiscard]] State& top() noexcept { return states_.back(); }
    [[nodiscard]] Outcome fail(ParseError error) noexcept;
    [[nodiscard]] Outcome unexpected(Token token, ParseError error) noexcept;
    [[nodiscard]] Outcome step();
    [[nodiscard]] Outcome stepComplete();
    [[nodiscard]] Outcome stepKey();
    [[nodiscard]] Outcome stepMapSeparator();
    [[nodiscard]] Outcome stepMapNext();
    [[nodiscard]] Outcome stepArrayNext();
    [[nodiscard]] Outcome stepValue();
    [[nodiscard]] Outcome closed(bool goOn);
    [[nodiscard]] bool deliverNumber(Token token, Outcome& outcome);
    [[nodiscard]] std::string_view decoded(Token token);

    Handler& handler_;
    std::uint32_t flags_;
    JSONLexer lexer_;
    ParseError parseError_ = ParseError::None;
    std::string decodeBuffer_;
    std::vector<State> states_{State::Start}; ///< never empty
};

} // namespace specloom::jv
