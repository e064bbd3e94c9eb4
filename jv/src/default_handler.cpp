#include "jv/default_handler.h"

#include "foundation/message.h"
#include "jv/json_reader.h"

#include <string> // std::string

namespace specloom::jv {

void DefaultHandler::requireNoKeyDue(Kind kind) const {
    if (keyDue()) {
        throw JSONReaderError(
            formatMessage("context_add_value: Object key is not a string ({})", typeName(kind)));
    }
}

bool DefaultHandler::onString(std::string_view text, Pos pos) {
    if (keyDue())
        builder_.addKey(text);
    else
        builder_.addString(text, pos);
    return true;
}

bool DefaultHandler::onKey(std::string_view text, Pos pos) {
    return onString(text, pos);
}

bool DefaultHandler::onInteger(std::int64_t value, Pos pos) {
    requireNoKeyDue(Kind::Number);
    builder_.addNumber(number::Number(value), pos);
    return true;
}

bool DefaultHandler::onDouble(double value, Pos pos) {
    requireNoKeyDue(Kind::Number);
    builder_.addNumber(number::Number(value), pos);
    return true;
}

bool DefaultHandler::onNumber(std::string_view text, Pos pos) {
    requireNoKeyDue(Kind::Number);
    builder_.addNumber(number::Number::fromText(text), pos);
    return true;
}

bool DefaultHandler::onBoolean(bool value, Pos pos) {
    requireNoKeyDue(Kind::Boolean);
    builder_.addBoolean(value, pos);
    return true;
}

bool DefaultHandler::onNull(Pos pos) {
    requireNoKeyDue(Kind::Null);
    builder_.addNull(pos);
    return true;
}

bool DefaultHandler::onStartObject(Pos pos) {
    requireNoKeyDue(Kind::Object);
    builder_.startObject(pos);
    return true;
}

bool DefaultHandler::onStartArray(Pos pos) {
    requireNoKeyDue(Kind::Array);
    builder_.startArray(pos);
    return true;
}

bool DefaultHandler::onEndObject(Pos) {
    return endContainer();
}
bool DefaultHandler::onEndArray(Pos) {
    return endContainer();
}

bool DefaultHandler::endContainer() {
    if (!builder_.hasOpenContainer())
        throw JSONReaderError("context_pop: Bottom of stack reached prematurely");
    builder_.end();
    return true;
}

} // namespace specloom::jv
