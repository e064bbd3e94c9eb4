#pragma once

#include <optional>    // std::optional
#include <string_view> // std::string_view

namespace specloom {

/// What the speakers of a language call it ("Deutsch" for "de"), in UTF-8; nothing for a text that is no
/// two-letter code of a language (ISO 639-1) in lower case.
[[nodiscard]] std::optional<std::string_view> languageName(std::string_view code) noexcept;

} // namespace specloom
