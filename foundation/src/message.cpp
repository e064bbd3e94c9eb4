#include "foundation/message.h"

#include "foundation/printable.h"
#include "foundation/utf8.h"

namespace specloom {

Message::Message(const std::exception& error) : text_(printableLines(error.what())) {}

std::string messageArgument(std::string_view text) {
    // A code point takes four bytes at most, so this loses none that counts; and it bounds what is no UTF-8.
    const std::string valid = toValidUtf8(text.substr(0, 4 * longestMessageArgument));
    const std::size_t length = bytesOfColumns(valid, longestMessageArgument);
    std::string result = printable(std::string_view(valid).substr(0, length));
    if (length < valid.size() || text.size() > 4 * longestMessageArgument)
        result += "\xE2\x80\xA6"; // an ellipsis
    return result;
}

Message composeMessage(std::string_view text) {
    Message message;
    message.text_ = printableLines(text);
    return message;
}

} // namespace specloom
