#pragma once

#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::markdown {

/// Whether a link or an image may lead there from a page of documentation: a reference without a scheme
/// (RFC 3986, section 4.2), or one with the scheme http, https, mailto or tel. `destination` has its
/// character references resolved.
[[nodiscard]] bool isSafeDestination(std::string_view destination);

/// What a text holds that a page should not run.
struct UnsafeContent {
    bool html = false; ///< raw HTML
    /// The destination of the first link or image that is not safe, as it is written; it holds no line feed.
    std::optional<std::string> destination;
};

/// Of a text in CommonMark, in time in proportion to it.
[[nodiscard]] UnsafeContent unsafeContentOf(std::string_view text);

} // namespace specloom::markdown
