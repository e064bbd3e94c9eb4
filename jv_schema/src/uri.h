#pragma once

#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::jv::schema {

/// A URI reference in its two halves: before the first "#", and behind it if there is one.
struct SplitUri {
    std::string_view uri;
    std::optional<std::string_view> fragment;
};

[[nodiscard]] SplitUri splitFragment(std::string_view reference) noexcept;

/// The absolute form of `reference`, which has no fragment, against `base` (RFC 3986, section 5.2). An empty
/// base gives the reference as it stands.
[[nodiscard]] std::string resolveUri(std::string_view base, std::string_view reference);

/// `text` with its percent-encoded bytes decoded (RFC 3986, section 2.1); a stray percent sign stays.
[[nodiscard]] std::string percentDecoded(std::string_view text);

} // namespace specloom::jv::schema
