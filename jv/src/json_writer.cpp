#include "jv/json_writer.h"

#include "foundation/message.h"
#include "foundation/unreachable.h"
#include "jv/string_scan.h"

#include <algorithm> // std::find

namespace specloom::jv {

namespace {
// Nesting is bounded, so the functions below may call each other.
constexpr std::size_t deepest = 128;
} // namespace

const char* JSONWriterError::what() const noexcept {
    switch (code_) {
    case KeyMustBeStrings:
        return "KeyMustBeStrings";
    case MaxDepthExceeded:
        return "MaxDepthExceeded";
    case InErrorState:
        return "InErrorState";
    case GenerationComplete:
        return "GenerationComplete";
    case InvalidNumber:
        return "InvalidNumber";
    case InvalidString:
        return "InvalidString";
    }
    return "<unknown>";
}

void JSONWriter::begin() {
    if (state_ != State::Start) {
        throw JSONWriterError(state_ == State::Complete ? JSONWriterError::GenerationComplete
                                                        : JSONWriterError::InErrorState);
    }
    state_ = State::Error; // until the end is reached
}

void JSONWriter::finish() {
    lineEnd();
    output_.resize(used_);
    state_ = State::Complete;
}

/// In steps that fit into caches, since what is added is filled first; capacity doubles when it is used up.
void JSONWriter::grow(std::size_t bytes) {
    constexpr std::size_t step = std::size_t{32} * 1024;
    output_.resize(used_ + (bytes < step ? step : bytes));
}

void JSONWriter::write(const JVDocument& document) {
    begin();
    // About twice the source holds any indented form of it. What is not used costs no memory, while growing
    // step by step would hold the text twice.
    output_.reserve(document.sourceSize() * 2 + 64);
    writeRoot(document);
    finish();
}

void JSONWriter::startArray() {
    begin();
    open('[');
}

void JSONWriter::expectItems(std::uint64_t count) {
    constexpr std::size_t tooMuch = std::size_t{1} << 40; // no text is so large
    if (items_ == 0 || count <= items_ || count > tooMuch / (used_ + 1))
        return;
    const std::size_t expected = used_ / items_ * count;
    output_.reserve(expected + expected / 8);
}

void JSONWriter::writeItem(const JVDocument& item) {
    startItem(items_ == 0);
    ++items_;
    writeRoot(item);
}

void JSONWriter::endArray() {
    close(']');
    finish();
}

void JSONWriter::writeRoot(const JVDocument& document) {
    document_ = &document;
    const JV nothing;
    writeValue(document.root() != nullptr ? *document.root() : nothing);
}

void JSONWriter::writeValue(const JV& value) {
    switch (value.kind()) {
    case Kind::Null:
        put("null");
        break;
    case Kind::Boolean:
        put(value.boolean() ? "true" : "false");
        break;
    case Kind::Number:
        writeNumber(value);
        break;
    case Kind::String:
        writeString(value.text());
        break;
    case Kind::Array:
        writeArray(value);
        break;
    case Kind::Object:
        writeObject(value);
        break;
    }
}

void JSONWriter::writeNumber(const JV& value) {
    const number::Number number = value.number();
    if (number.kind() == number::NumberKind::Big) {
        const Message reason = formatMessage("the number {} at '{}' cannot be written as JSON",
                                             number.toString(), value.pointer());
        SPECLOOM_UNREACHABLE(reason.composed().c_str());
    }
    if (number.isInfinite() || number.isNaN())
        throw JSONWriterError(JSONWriterError::InvalidNumber);
    numberText_.clear();
    number.appendTo(numberText_);
    put(numberText_);
}

// ---- strings

void JSONWriter::writeString(std::string_view text) {
    const bool solidus = (flags_ & escapeSolidus) != 0;
    const char* const end = text.data() + text.size();
    if (solidus || findSpecial<false>(text.data(), end) != end) {
        writeEscaped(text);
        return;
    }
    char* const target = room(text.size() + 2);
    target[0] = '"';
    text.copy(target + 1, text.size());
    target[text.size() + 1] = '"';
    used_ += text.size() + 2;
}

void JSONWriter::writeEscaped(std::string_view text) {
    const bool solidus = (flags_ & escapeSolidus) != 0;
    const char* p = text.data();
    const char* end = p + text.size();
    put('"');
    while (p != end) {
        const char* special = findSpecial<false>(p, end);
        if (solidus)
            special = std::find(p, special, '/');
        put({p, static_cast<std::size_t>(special - p)});
        if (special == end)
            break;
        p = special + 1;
        writeEscape(*special);
    }
    put('"');
}

void JSONWriter::writeEscape(char byte) {
    switch (byte) {
    case '\b':
        return put("\\b");
    case '\t':
        return put("\\t");
    case '\n':
        return put("\\n");
    case '\f':
        return put("\\f");
    case '\r':
        return put("\\r");
    case '"':
    case '\\':
    case '/':
        put('\\');
        return put(byte);
    default:
        put("\\u00");
        put("0123456789abcdef"[byte >> 4 & 0xf]);
        put("0123456789abcdef"[byte & 0xf]);
    }
}

// ---- containers

void JSONWriter::lineEnd() {
    if (indent_ > 0)
        put('\n');
}

void JSONWriter::open(char bracket) {
    if (++depth_ > deepest)
        throw JSONWriterError(JSONWriterError::MaxDepthExceeded);
    put(bracket);
    lineEnd();
}

/// In indented text an empty container thus has an empty line inside.
void JSONWriter::close(char bracket) {
    --depth_;
    lineEnd();
    put(gap(true));
    put(bracket);
}

/// What stands in front of an item at the depth that was reached.
std::string_view JSONWriter::gap(bool isFirst) {
    constexpr std::size_t bytesOfEnd = 2; // the comma and the line feed
    if (indent_ == 0)
        return isFirst ? "" : ",";
    const std::size_t bytes = bytesOfEnd + depth_ * indent_;
    if (gaps_.size() < bytes) {
        gaps_ = ",\n";
        gaps_.append(bytes - bytesOfEnd, ' ');
    }
    const std::size_t skipped = isFirst ? bytesOfEnd : 0;
    return std::string_view(gaps_).substr(skipped, bytes - skipped);
}

void JSONWriter::startItem(bool isFirst) {
    put(gap(isFirst));
}

void JSONWriter::writeArray(const JV& array) {
    open('[');
    bool isFirst = true;
    for (const JV* element : array.elements()) {
        startItem(isFirst);
        isFirst = false;
        writeValue(*element);
    }
    close(']');
}

void JSONWriter::writeObject(const JV& object) {
    open('{');
    writeMembers(object);
    close('}');
}

void JSONWriter::writeMembers(const JV& object) {
    bool isFirst = true;
    const auto write = [&](const Member& member) {
        writeMember(member.key, *member.value, isFirst);
        isFirst = false;
    };
    if (sorter_) {
        for (const Member& member : sorter_(&object))
            write(member);
    } else {
        document_->forEachOrdered(&object, write);
    }
}

void JSONWriter::writeMember(std::string_view key, const JV& value, bool isFirst) {
    startItem(isFirst);
    writeString(key);
    put(indent_ > 0 ? ": " : ":");
    writeValue(value);
}

} // namespace specloom::jv
