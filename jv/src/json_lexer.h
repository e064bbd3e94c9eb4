#pragma once

#include "jv/pos.h"

#include <cstdint>     // std::int64_t, std::uint8_t
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::jv {

/// Cuts a JSON text (RFC 8259) that arrives in chunks into tokens. White space also takes in the vertical tab
/// and the form feed. Numbers and strings are checked here; strings keep their escapes.
class JSONLexer {
  public:
    enum class Token : std::uint8_t {
        Boolean,
        Colon,
        Comma,
        EndOfChunk,
        Error,
        LeftBracket,
        LeftBrace,
        Null,
        RightBracket,
        RightBrace,
        Integer,
        Double,
        String,
        StringWithEscapes,
        Comment,
    };

    enum class Error : std::uint8_t {
        None = 0,
        InvalidUtf8 = 1,
        InvalidEscapedCharacter = 2,
        InvalidCharacterInString = 3,
        InvalidHexDigit = 4,
        InvalidCharacter = 5,
        InvalidWord = 6,
        MissingDigitAfterDecimalPoint = 7,
        MissingDigitInExponent = 8,
        MissingDigitAfterMinus = 9,
        CommentNotAllowed = 10,
    };

    JSONLexer(bool allowComments, bool validateUtf8) noexcept
        : allowComments_(allowComments), validateUtf8_(validateUtf8) {}

    /// Continues with the next chunk; the former one must be used up. `chunk` must live until it is used up
    /// too.
    void feed(std::string_view chunk);
    /// The next token that is not white space. After EndOfChunk call feed(): a token that the chunk's end cut
    /// in two is kept and continued.
    [[nodiscard]] Token next();
    /// Makes next() return the last token again.
    void unread() noexcept { cursor_ = tokenStart_; }
    /// Skips what is left of the chunk.
    void discard() noexcept { cursor_ = tokenStart_ = end_; }

    /// The bytes of the last token, without quotes for a string; good until the next call.
    [[nodiscard]] std::string_view text() const noexcept {
        return {textStart_, static_cast<std::size_t>(textEnd_ - textStart_)};
    }
    /// Where the last token began: line and column counted from 1, columns in bytes. Lines end at "\r\n",
    /// "\r" and "\n".
    [[nodiscard]] Pos pos() const noexcept;
    [[nodiscard]] Error error() const noexcept { return error_; }

  private:
    [[nodiscard]] std::int64_t offsetOf(const char* place) const noexcept { return base_ + (place - begin_); }
    void skipWhiteSpace() noexcept;
    void endLine(const char* lastByte) noexcept;
    [[nodiscard]] Token fail(Error error) noexcept;
    [[nodiscard]] Token cut();
    [[nodiscard]] Token single(Token token) noexcept;
    [[nodiscard]] Token scanWord(std::string_view word, Token token);
    [[nodiscard]] Token scanNumber();
    [[nodiscard]] Token scanString();
    [[nodiscard]] Token scanComment();
    [[nodiscard]] Token finishString(const char* closingQuote, bool escapes) noexcept;
    enum class Step : std::uint8_t { Good, Cut, Bad };
    [[nodiscard]] Step scanEscape(const char*& p) noexcept;
    [[nodiscard]] Step scanMultiByte(const char*& p) noexcept;

    bool allowComments_;
    bool validateUtf8_;
    Error error_ = Error::None;

    std::string buffer_; ///< a token that was cut by the end of a chunk, and what followed it
    const char* begin_ = nullptr;
    const char* cursor_ = nullptr;
    const char* end_ = nullptr;
    const char* tokenStart_ = nullptr;
    const char* textStart_ = nullptr;
    const char* textEnd_ = nullptr;

    // Progress inside a string that was cut, so that a long one is not scanned anew for each chunk.
    std::size_t resumeAt_ = 0; ///< bytes behind tokenStart_; 0 when there is none
    bool resumeEscapes_ = false;

    std::int64_t base_ = 0;      ///< offset of begin_ in the whole text
    std::int64_t lineStart_ = 0; ///< offset of the current line in the whole text
    std::int32_t line_ = 1;
    bool afterCarriageReturn_ = false; ///< the current line began behind a "\r"
};

} // namespace specloom::jv
