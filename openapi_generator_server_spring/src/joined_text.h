#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_generator::server_spring {

/// Appends a text to those that `texts` has, with the separator between them. None of them is empty.
inline void appendBehind(std::string_view separator, std::string_view text, std::string& texts) {
    if (!texts.empty())
        texts += separator;
    texts += text;
}

} // namespace specloom::openapi_generator::server_spring
