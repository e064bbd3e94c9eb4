#include "jv/jv_pointer.h"

#include "foundation/message.h"

#include <algorithm> // std::ranges::equal, std::ranges::find

namespace specloom::jv {

void JVPointer::parse(std::string_view text) {
    clear();
    if (text.empty())
        return;
    if (text.front() != '/')
        throw JVPointerError(formatMessage("{} does not represent a valid JSON pointer", text));
    for (const std::string_view token : splitString(text.substr(1), '/'))
        push_back(unescapeToken(token));
}

std::string JVPointer::toString() const {
    std::string text;
    for (const std::string& token : *this) {
        text += '/';
        escapeToken(token, text);
    }
    return text;
}

JVPointer JVPointer::parent() const {
    if (empty())
        throw JVPointerError("JSON pointer has no parent");
    return JVPointer(begin(), end() - 1);
}

void JVPointer::escapeToken(std::string_view token, std::string& out) {
    for (const char c : token) {
        if (c == '~')
            out += "~0";
        else if (c == '/')
            out += "~1";
        else
            out += c;
    }
}

std::string JVPointer::unescapeToken(std::string_view token) {
    std::string text;
    text.reserve(token.size());
    for (std::size_t i = 0; i < token.size(); ++i) {
        if (token[i] != '~') {
            text += token[i];
            continue;
        }
        ++i;
        if (i == token.size() || (token[i] != '0' && token[i] != '1'))
            throw JVPointerError("Invalid JSON pointer");
        text += token[i] == '0' ? '~' : '/';
    }
    return text;
}

void childPointer(std::string& out, std::string_view base, std::string_view key) {
    // `base` may be a view of `out`.
    std::string text(base);
    text += '/';
    JVPointer::escapeToken(key, text);
    out = std::move(text);
}

void childPointer(std::string& out, std::string_view base, std::size_t index) {
    childPointer(out, base, std::string_view(std::to_string(index)));
}

std::vector<std::string_view> splitString(std::string_view text, char separator) {
    std::vector<std::string_view> pieces;
    for (;;) {
        const std::size_t end = text.find(separator);
        pieces.push_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return pieces;
        text.remove_prefix(end + 1);
    }
}

} // namespace specloom::jv
