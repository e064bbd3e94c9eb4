#include "jv/json_lexer.h"

#include "foundation/ascii.h"
#include "foundation/utf8.h"
#include "jv/string_scan.h"

#include <algorithm> // std::min
#include <cstring>   // std::memcmp
#include <limits>    // std::numeric_limits
#include <utility>   // std::pair

namespace specloom::jv {

// ---- chunks and positions

void JSONLexer::feed(std::string_view chunk) {
    base_ += tokenStart_ - begin_;
    if (tokenStart_ == end_) {
        buffer_.clear();
        begin_ = chunk.data();
        end_ = begin_ + chunk.size();
    } else {
        // What is left stands in the buffer, see cut().
        buffer_.erase(0, static_cast<std::size_t>(tokenStart_ - begin_));
        buffer_ += chunk;
        begin_ = buffer_.data();
        end_ = begin_ + buffer_.size();
    }
    cursor_ = tokenStart_ = begin_;
}

Pos JSONLexer::pos() const noexcept {
    constexpr std::int64_t largest = std::numeric_limits<std::int32_t>::max();
    const std::int64_t column = offsetOf(tokenStart_) - lineStart_ + 1;
    return {line_, static_cast<std::int32_t>(std::min(column, largest))};
}

void JSONLexer::endLine(const char* lastByte) noexcept {
    const std::int64_t offset = offsetOf(lastByte);
    const bool secondOfPair = *lastByte == '\n' && afterCarriageReturn_ && offset == lineStart_;
    if (!secondOfPair && line_ < std::numeric_limits<std::int32_t>::max())
        ++line_;
    lineStart_ = offset + 1;
    afterCarriageReturn_ = *lastByte == '\r';
}

void JSONLexer::skipWhiteSpace() noexcept {
    const char* p = cursor_;
    for (; p != end_ && static_cast<unsigned char>(*p) <= ' '; ++p) {
        if (*p == ' ')
            p = skipBlanks(p, end_) - 1;
        else if (*p == '\n' || *p == '\r')
            endLine(p);
        else if (*p != '\t' && *p != '\v' && *p != '\f')
            break;
    }
    cursor_ = p;
}

// ---- tokens

JSONLexer::Token JSONLexer::fail(Error error) noexcept {
    error_ = error;
    return Token::Error;
}

/// The chunk ended inside a token: its bytes are kept, and it starts anew when more has come.
JSONLexer::Token JSONLexer::cut() {
    if (begin_ != buffer_.data()) {
        base_ += tokenStart_ - begin_;
        buffer_.assign(tokenStart_, end_);
        begin_ = tokenStart_ = buffer_.data();
        end_ = begin_ + buffer_.size();
    }
    cursor_ = end_;
    return Token::EndOfChunk;
}

JSONLexer::Token JSONLexer::single(Token token) noexcept {
    ++cursor_;
    return token;
}

JSONLexer::Token JSONLexer::next() {
    for (;;) {
        skipWhiteSpace();
        tokenStart_ = cursor_;
        if (cursor_ == end_)
            return Token::EndOfChunk;
        switch (*cursor_) {
        case '"':
            return scanString();
        case ',':
            return single(Token::Comma);
        case ':':
            return single(Token::Colon);
        case '[':
            return single(Token::LeftBracket);
        case ']':
            return single(Token::RightBracket);
        case '{':
            return single(Token::LeftBrace);
        case '}':
            return single(Token::RightBrace);
        case 't':
            return scanWord("true", Token::Boolean);
        case 'f':
            return scanWord("false", Token::Boolean);
        case 'n':
            return scanWord("null", Token::Null);
        case '/':
            if (const Token token = scanComment(); token != Token::Comment)
                return token;
            continue;
        default:
            if (*cursor_ == '-' || ascii::isDigit(*cursor_))
                return scanNumber();
            return fail(Error::InvalidCharacter);
        }
    }
}

JSONLexer::Token JSONLexer::scanWord(std::string_view word, Token token) {
    const auto available = std::min(word.size(), static_cast<std::size_t>(end_ - cursor_));
    if (std::memcmp(cursor_, word.data(), available) != 0)
        return fail(Error::InvalidWord);
    if (available < word.size())
        return cut();
    textStart_ = cursor_;
    textEnd_ = cursor_ += word.size();
    return token;
}

JSONLexer::Token JSONLexer::scanNumber() {
    const char* p = cursor_;
    const auto skipDigits = [&] {
        while (p != end_ && ascii::isDigit(*p))
            ++p;
    };
    if (*p == '-' && ++p == end_)
        return cut();
    if (!ascii::isDigit(*p))
        return fail(Error::MissingDigitAfterMinus);
    if (*p == '0')
        ++p;
    else
        skipDigits();
    Token token = Token::Integer;
    if (p != end_ && *p == '.') {
        token = Token::Double;
        if (++p != end_ && !ascii::isDigit(*p))
            return fail(Error::MissingDigitAfterDecimalPoint);
        skipDigits();
    }
    if (p != end_ && (*p == 'e' || *p == 'E')) {
        token = Token::Double;
        if (++p != end_ && (*p == '+' || *p == '-'))
            ++p;
        if (p != end_ && !ascii::isDigit(*p))
            return fail(Error::MissingDigitInExponent);
        skipDigits();
    }
    if (p == end_)
        return cut(); // more digits may come
    textStart_ = cursor_;
    textEnd_ = cursor_ = p;
    return token;
}

JSONLexer::Token JSONLexer::scanComment() {
    if (!allowComments_)
        return fail(Error::CommentNotAllowed);
    const char* p = cursor_ + 1;
    if (p == end_)
        return cut();
    if (*p != '/' && *p != '*')
        return fail(Error::InvalidCharacter);
    const std::int64_t line = line_;
    const auto [oldLineStart, oldAfter] = std::pair(lineStart_, afterCarriageReturn_);
    const bool block = *p++ == '*';
    for (; p != end_; ++p) {
        if (block && *p == '*' && p + 1 != end_ && p[1] == '/') {
            cursor_ = p + 2;
            return Token::Comment;
        }
        if (*p == '\n' || *p == '\r') {
            if (!block) {
                cursor_ = p;
                return Token::Comment;
            }
            endLine(p);
        }
    }
    // Cut: its lines are counted when it comes again.
    line_ = static_cast<std::int32_t>(line);
    lineStart_ = oldLineStart;
    afterCarriageReturn_ = oldAfter;
    return cut();
}

// ---- strings

JSONLexer::Token JSONLexer::scanString() {
    bool escapes = resumeEscapes_;
    const char* p = resumeAt_ != 0 ? tokenStart_ + resumeAt_ : tokenStart_ + 1;
    resumeAt_ = 0;
    resumeEscapes_ = false;
    for (;;) {
        p = validateUtf8_ ? findSpecial<true>(p, end_) : findSpecial<false>(p, end_);
        const char* special = p;
        Step step = Step::Cut;
        if (p != end_) {
            if (*p == '"')
                return finishString(p, escapes);
            if (static_cast<unsigned char>(*p) < 32)
                return fail(Error::InvalidCharacterInString);
            const bool isEscape = *p == '\\';
            step = isEscape ? scanEscape(p) : scanMultiByte(p);
            escapes |= isEscape && step == Step::Good;
        }
        if (step == Step::Bad)
            return Token::Error;
        if (step == Step::Cut) {
            resumeAt_ = static_cast<std::size_t>(special - tokenStart_);
            resumeEscapes_ = escapes;
            return cut();
        }
    }
}

JSONLexer::Token JSONLexer::finishString(const char* closingQuote, bool escapes) noexcept {
    textStart_ = tokenStart_ + 1;
    textEnd_ = closingQuote;
    cursor_ = closingQuote + 1;
    return escapes ? Token::StringWithEscapes : Token::String;
}

/// Moves `p` from a backslash behind the escape.
JSONLexer::Step JSONLexer::scanEscape(const char*& p) noexcept {
    if (++p == end_)
        return Step::Cut;
    if (*p != 'u') {
        if (std::string_view("\"\\/bfnrt").find(*p) == std::string_view::npos) {
            error_ = Error::InvalidEscapedCharacter;
            return Step::Bad;
        }
        ++p;
        return Step::Good;
    }
    ++p;
    for (int digits = 0; digits < 4; ++digits, ++p) {
        if (p == end_)
            return Step::Cut;
        if (!ascii::isHexDigit(*p)) {
            error_ = Error::InvalidHexDigit;
            return Step::Bad;
        }
    }
    return Step::Good;
}

/// Moves `p` behind a sequence of two to four bytes; only the form is checked, lead byte and continuation
/// bytes.
JSONLexer::Step JSONLexer::scanMultiByte(const char*& p) noexcept {
    const auto lead = static_cast<unsigned char>(*p);
    const int continuations = (lead & 0xe0) == 0xc0   ? 1
                              : (lead & 0xf0) == 0xe0 ? 2
                              : (lead & 0xf8) == 0xf0 ? 3
                                                      : 0;
    bool good = continuations != 0;
    ++p;
    for (int i = 0; good && i < continuations; ++i, ++p) {
        if (p == end_)
            return Step::Cut;
        good = isContinuationByte(*p);
    }
    if (!good)
        error_ = Error::InvalidUtf8;
    return good ? Step::Good : Step::Bad;
}

} // namespace specloom::jv
