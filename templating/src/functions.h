#pragma once

#include <span>        // std::span
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::templating {

/// A function that makes a text of a text.
struct TextFunction {
    std::string_view name;
    std::string (*call)(std::string_view text);
};

/// The functions that every template has beside those of the language.
[[nodiscard]] std::span<const TextFunction> textFunctions() noexcept;

} // namespace specloom::templating
