#include "openapi/text.h"

#include <cstring>   // std::memcpy
#include <limits>    // std::numeric_limits
#include <stdexcept> // std::length_error
#include <utility>   // std::exchange

namespace specloom::openapi {

Text::Text(std::string_view text) : length_(static_cast<std::uint32_t>(text.size())), owned_(!text.empty()) {
    if (text.size() > std::numeric_limits<std::uint32_t>::max())
        throw std::length_error("Text is too long");
    if (!owned_) {
        data_ = "";
        return;
    }
    char* copy = new char[text.size()];
    std::memcpy(copy, text.data(), text.size());
    data_ = copy;
}

Text::Text(Text&& other) noexcept
    : data_(std::exchange(other.data_, nullptr)), length_(std::exchange(other.length_, 0)),
      owned_(std::exchange(other.owned_, false)) {}

Text& Text::operator=(Text&& other) noexcept {
    if (this != &other) {
        release();
        data_ = std::exchange(other.data_, nullptr);
        length_ = std::exchange(other.length_, 0);
        owned_ = std::exchange(other.owned_, false);
    }
    return *this;
}

Text Text::borrow(std::string_view text) noexcept {
    Text result;
    result.data_ = text.data() == nullptr ? "" : text.data();
    result.length_ = static_cast<std::uint32_t>(text.size());
    return result;
}

} // namespace specloom::openapi
