#pragma once

#include <cstddef>     // std::size_t
#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_lint {

/// A regular expression that a configuration sets for texts of documents (ECMAScript's, as ECMA-262, section
/// 22.2 has them, with the deviations of std::regex).
class TextPattern {
  public:
    /// Longer texts, in bytes, do not match: matching takes time and stack by the text, and the text is not
    /// the user's own.
    static constexpr std::size_t maximumTextLength = 1024;
    /// Longer patterns, in bytes, are refused, since compiling one recurses with its length.
    static constexpr std::size_t maximumPatternLength = 1024;

    /// Throws std::runtime_error "Pattern is longer than 1024 bytes", or "Pattern is not a regular
    /// expression: " with the pattern.
    explicit TextPattern(const std::string& pattern);
    ~TextPattern();
    TextPattern(const TextPattern&) = delete;
    TextPattern& operator=(const TextPattern&) = delete;

    /// Whether the expression matches the text from its first to its last byte.
    [[nodiscard]] bool matchesWhole(std::string_view text) const;

  private:
    struct Compiled;
    std::unique_ptr<Compiled> compiled_;
};

} // namespace specloom::openapi_lint
