#pragma once

#include <span>        // std::span
#include <string_view> // std::string_view

/// The names that the validators know, in the order of their tables.
namespace specloom {

/// Two-letter language codes in lower case, sorted.
[[nodiscard]] std::span<const std::string_view> languageCodes() noexcept;

/// Top-level media types, "*" among them.
[[nodiscard]] std::span<const std::string_view> mediaTypes() noexcept;

/// Media subtypes, "*" among them. Some stand in it twice.
[[nodiscard]] std::span<const std::string_view> mediaSubtypes() noexcept;

/// Content transfer encodings (RFC 2045, section 6.1, and RFC 4648).
[[nodiscard]] std::span<const std::string_view> transferEncodings() noexcept;

} // namespace specloom
