#include "foundation/utf8.h"

#include <algorithm>  // std::count_if
#include <functional> // std::not_fn
#include <iterator>   // std::back_inserter
#include <stdexcept>  // std::runtime_error

#include <utf8cpp/utf8.h>

namespace specloom {

std::size_t utf8Length(std::string_view text) {
    try {
        return static_cast<std::size_t>(utf8::distance(text.begin(), text.end()));
    } catch (const utf8::not_enough_room&) {
        throw std::runtime_error("Not enough space");
    } catch (const utf8::exception&) {
        // The library tells sequences of code points that do not exist from other bad ones; here they are
        // alike.
        throw std::runtime_error("Invalid UTF-8");
    }
}

bool isValidUtf8(std::string_view text) noexcept {
    return utf8::is_valid(text.begin(), text.end());
}

std::string toValidUtf8(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    utf8::replace_invalid(text.begin(), text.end(), std::back_inserter(result));
    return result;
}

std::size_t columnsOf(std::string_view text) noexcept {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), std::not_fn(isContinuationByte)));
}

std::size_t bytesOfColumns(std::string_view text, std::size_t columns) noexcept {
    std::size_t at = 0;
    for (; at < text.size(); ++at)
        if (!isContinuationByte(text[at]) && columns-- == 0)
            break;
    return at;
}

std::size_t wholeCodePoints(std::string_view text, std::size_t size) noexcept {
    while (size > 0 && isContinuationByte(text[size]))
        --size;
    return size;
}

void appendUtf8(char32_t codePoint, std::string& text) {
    utf8::unchecked::append(codePoint, std::back_inserter(text));
}

} // namespace specloom
