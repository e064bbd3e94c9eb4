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

void JSONWriter::write(const JVDocument& document) {
    if (state_ != State::Start) {
        throw JSONWriterError(state_ == State::Complete ? JSONWriterError::GenerationComplete
                                                        : JSONWriterError::InErrorState);
    }
    document_ = &document;
    state_ = State::Error; // until the end is reached
    // About twice the source holds any indented form of it. What is not used costs no memory, while growing
    // step by step would hold the text twice.
    output_.reserve(document.sourceSize() * 2 + 64);
    const JV nothing;
    writeValue(document.root() != nullptr ? *document.root() : nothing);
    if (indent_ > 0)
        output_ += '\n';
    state_ = State::Complete;
}

void JSONWriter::writeValue(const JV& value) {
    switch (value.kind()) {
    case Kind::Null:
        output_ += "null";
        break;
    case Kind::Boolean:
        output_ += value.boolean() ? "true" : "false";
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
    number.appendTo(output_);
}

// ---- strings

void JSONWriter::writeString(std::string_view text) {
    const bool solidus = (flags_ & escapeSolidus) != 0;
    const char* p = text.data();
    const char* end = p + text.size();
    output_ += '"';
    while (p != end) {
        const char* special = findSpecial<false>(p, end);
        if (solidus)
            special = std::find(p, special, '/');
        output_.append(p, special);
        if (special == end)
            break;
        p = special + 1;
        const char c = *special;
        switch (c) {
        case '\b':
            output_ += "\\b";
            break;
        case '\t':
            output_ += "\\t";
            break;
        case '\n':
            output_ += "\\n";
            break;
        case '\f':
            output_ += "\\f";
            break;
        case '\r':
            output_ += "\\r";
            break;
        case '"':
        case '\\':
        case '/':
            output_ += '\\';
            output_ += c;
            break;
        default:
            output_ += "\\u00";
            output_ += "0123456789abcdef"[c >> 4 & 0xf];
            output_ += "0123456789abcdef"[c & 0xf];
        }
    }
    output_ += '"';
}

// ---- containers

void JSONWriter::lineEnd() {
    if (indent_ > 0)
        output_ += '\n';
}

void JSONWriter::open(char bracket) {
    if (++depth_ > deepest)
        throw JSONWriterError(JSONWriterError::MaxDepthExceeded);
    output_ += bracket;
    lineEnd();
}

/// In indented text an empty container thus has an empty line inside.
void JSONWriter::close(char bracket) {
    --depth_;
    lineEnd();
    output_.append(depth_ * indent_, ' ');
    output_ += bracket;
}

void JSONWriter::startItem(bool isFirst) {
    if (!isFirst) {
        output_ += ',';
        lineEnd();
    }
    output_.append(depth_ * indent_, ' ');
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
    output_ += ':';
    if (indent_ > 0)
        output_ += ' ';
    writeValue(value);
}

} // namespace specloom::jv
