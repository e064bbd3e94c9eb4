#pragma once

#include <cstddef>     // std::size_t
#include <memory>      // std::unique_ptr
#include <stdexcept>   // std::runtime_error
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::jv::schema {

/// A text that is no pattern, or one with a feature that the matcher does not have.
class PatternError : public std::runtime_error {
  public:
    PatternError(const std::string& message, std::size_t offset)
        : std::runtime_error(message), offset_(offset) {}
    /// Of the fault in the pattern, in bytes, counted from 0.
    [[nodiscard]] std::size_t offset() const noexcept { return offset_; }

  private:
    std::size_t offset_;
};

/// A regular expression of ECMA-262, section 22.2, with the flag "u", compiled once and matched often.
class Pattern {
  public:
    enum class Outcome { Match, NoMatch, TooCostly };

    /// Takes UTF-8. Throws PatternError.
    explicit Pattern(std::string_view source);
    Pattern(Pattern&&) noexcept;
    Pattern& operator=(Pattern&&) noexcept;
    ~Pattern();

    /// Whether the expression matches anywhere in a text of UTF-8.
    [[nodiscard]] Outcome search(std::string_view text) const;

  private:
    struct Program;
    std::unique_ptr<const Program> program_;
};

} // namespace specloom::jv::schema
