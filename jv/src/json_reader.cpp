#include "jv/json_reader.h"

#include "jv/default_handler.h"
#include "jv/json_unescape.h"
#include "jv/read_stream.h"

#include <charconv> // std::from_chars
#include <cmath>    // std::isinf
#include <cstdlib>  // std::strtod

namespace specloom::jv {

namespace {
constexpr char parseErrorText[] = "JSON parse error";
}

std::unique_ptr<JVDocument> readJSON(std::istream& stream) {
    const StreamText text = readStream(stream);
    return parseJSON(text.view());
}

std::unique_ptr<JVDocument> parseJSON(std::string_view text) {
    auto fresh = std::make_unique<JVDocument>();
    fresh->setSourceSize(text.size());
    DefaultHandler handler(std::move(fresh));
    JSONReader reader(handler);
    if (reader.parse(text) != JSONReader::Status::Good || reader.finish() != JSONReader::Status::Good)
        throw JSONReaderError(parseErrorText);
    return handler.takeDocument();
}

JSONReader::JSONReader(Handler& handler, std::uint32_t flags)
    : handler_(handler), flags_(flags),
      lexer_((flags & AllowComments) != 0, (flags & DoNotValidateStrings) == 0) {}

JSONReader::Status JSONReader::parse(std::string_view chunk) {
    lexer_.feed(chunk);
    for (;;) {
        switch (step()) {
        case Outcome::GoOn:
            break;
        case Outcome::EndOfChunk:
            return Status::Good;
        case Outcome::Stopped:
            return Status::Stopped;
        case Outcome::Error:
            return Status::Error;
        }
    }
}

JSONReader::Status JSONReader::finish() {
    // A space ends a number that stands at the very end.
    if (const Status status = parse(" "); status != Status::Good)
        return status;
    if (top() == State::ParseComplete || top() == State::GotValue || (flags_ & AllowPartialValues) != 0)
        return Status::Good;
    parseError_ = ParseError::PrematureEnd;
    return Status::Error;
}

JSONReader::Outcome JSONReader::fail(ParseError error) noexcept {
    parseError_ = error;
    top() = State::ParseError;
    return Outcome::Error;
}

/// A token that has no place here; the end of a chunk and a lexical fault are not that.
JSONReader::Outcome JSONReader::unexpected(Token token, ParseError error) noexcept {
    if (token == Token::EndOfChunk)
        return Outcome::EndOfChunk;
    if (token != Token::Error)
        return fail(error);
    top() = State::LexicalError;
    return Outcome::Error;
}

/// One token, or the few of a member or element: what must follow is tried at once, but the state is always
/// set first, so that a chunk may end anywhere.
JSONReader::Outcome JSONReader::step() {
    switch (top()) {
    case State::Start:
    case State::GotValue:
    case State::MapNeedValue:
    case State::ArrayNeedValue:
    case State::ArrayStart:
        return stepValue();
    case State::MapStart:
    case State::MapNeedKey:
        return stepKey();
    case State::MapSep:
        return stepMapSeparator();
    case State::MapGotValue:
        return stepMapNext();
    case State::ArrayGotValue:
        return stepArrayNext();
    case State::ParseComplete:
        return stepComplete();
    case State::ParseError:
    case State::LexicalError:
        break;
    }
    return Outcome::Error;
}

JSONReader::Outcome JSONReader::stepComplete() {
    if ((flags_ & AllowMultipleValues) != 0) {
        top() = State::GotValue;
        return Outcome::GoOn;
    }
    if ((flags_ & AllowTrailingGarbage) != 0) {
        lexer_.discard();
        return Outcome::EndOfChunk;
    }
    return unexpected(lexer_.next(), ParseError::TrailingGarbage);
}

JSONReader::Outcome JSONReader::stepKey() {
    const Token token = lexer_.next();
    if (token == Token::String || token == Token::StringWithEscapes) {
        top() = State::MapSep;
        if (handler_.onKey(decoded(token), lexer_.pos()))
            return stepMapSeparator();
        top() = State::ParseError;
        return Outcome::Stopped;
    }
    // A comma before the closing brace is not accepted.
    if (token == Token::RightBrace && top() == State::MapStart)
        return closed(handler_.onEndObject(lexer_.pos()));
    return unexpected(token, ParseError::UnexpectedToken);
}

JSONReader::Outcome JSONReader::stepMapSeparator() {
    const Token token = lexer_.next();
    if (token != Token::Colon)
        return unexpected(token, ParseError::MissingSeparator);
    top() = State::MapNeedValue;
    return stepValue();
}

JSONReader::Outcome JSONReader::stepMapNext() {
    const Token token = lexer_.next();
    if (token == Token::Comma) {
        top() = State::MapNeedKey;
        return stepKey();
    }
    if (token == Token::RightBrace)
        return closed(handler_.onEndObject(lexer_.pos()));
    if (token != Token::EndOfChunk)
        lexer_.unread();
    return unexpected(token, ParseError::MissingSeparator);
}

JSONReader::Outcome JSONReader::stepArrayNext() {
    const Token token = lexer_.next();
    if (token == Token::Comma) {
        top() = State::ArrayNeedValue;
        return stepValue();
    }
    if (token == Token::RightBracket)
        return closed(handler_.onEndArray(lexer_.pos()));
    return unexpected(token, ParseError::UnexpectedToken);
}

/// A container ended: the state below it, which advanced when the container began, is the current one again.
JSONReader::Outcome JSONReader::closed(bool goOn) {
    states_.pop_back();
    if (goOn)
        return Outcome::GoOn;
    top() = State::ParseError;
    return Outcome::Stopped;
}

JSONReader::Outcome JSONReader::stepValue() {
    const Token token = lexer_.next();
    State inner = State::Start; // what to push for a container
    bool goOn = true;
    switch (token) {
    case Token::String:
    case Token::StringWithEscapes:
        goOn = handler_.onString(decoded(token), lexer_.pos());
        break;
    case Token::Boolean:
        goOn = handler_.onBoolean(lexer_.text() == "true", lexer_.pos());
        break;
    case Token::Null:
        goOn = handler_.onNull(lexer_.pos());
        break;
    case Token::LeftBrace:
        goOn = handler_.onStartObject(lexer_.pos());
        inner = State::MapStart;
        break;
    case Token::LeftBracket:
        goOn = handler_.onStartArray(lexer_.pos());
        inner = State::ArrayStart;
        break;
    case Token::Integer:
    case Token::Double: {
        Outcome outcome = Outcome::GoOn;
        goOn = deliverNumber(token, outcome);
        if (outcome != Outcome::GoOn)
            return outcome;
        break;
    }
    case Token::RightBracket:
        if (top() == State::ArrayStart)
            return closed(handler_.onEndArray(lexer_.pos()));
        [[fallthrough]];
    default:
        return unexpected(token, ParseError::UnexpectedToken);
    }
    if (!goOn) {
        top() = State::ParseError;
        return Outcome::Stopped;
    }
    if (top() == State::Start || top() == State::GotValue)
        top() = State::ParseComplete;
    else
        top() = top() == State::MapNeedValue ? State::MapGotValue : State::ArrayGotValue;
    if (inner != State::Start)
        states_.push_back(inner);
    return Outcome::GoOn;
}

/// Hands a number over in the form that the handler wants; `outcome` tells when it does not fit that form.
bool JSONReader::deliverNumber(Token token, Outcome& outcome) {
    const std::string_view text = lexer_.text();
    if (handler_.rawNumbers())
        return handler_.onNumber(text, lexer_.pos());
    if (token == Token::Integer) {
        std::int64_t value = 0;
        if (std::from_chars(text.data(), text.data() + text.size(), value).ec == std::errc())
            return handler_.onInteger(value, lexer_.pos());
        outcome = fail(ParseError::IntegerOverflow);
        return false;
    }
    // The standard conversion, whose answer out of range tells infinity from zero.
    decodeBuffer_ = text;
    const double value = std::strtod(decodeBuffer_.c_str(), nullptr);
    if (!std::isinf(value))
        return handler_.onDouble(value, lexer_.pos());
    outcome = fail(ParseError::None);
    return false;
}

std::string_view JSONReader::decoded(Token token) {
    if (token == Token::String)
        return lexer_.text();
    decodeBuffer_.clear();
    unescapeJSON(lexer_.text(), decodeBuffer_);
    return decodeBuffer_;
}

} // namespace specloom::jv
