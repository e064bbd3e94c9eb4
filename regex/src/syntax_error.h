#pragma once

#include <cstddef>   // std::size_t
#include <stdexcept> // std::runtime_error
#include <string>    // std::string

namespace specloom::regex {

/// A text that is no pattern, or one with a feature that the matcher does not have. The texts:
///   "Backreferences are not supported"
///   "Incomplete quantifier"
///   "Invalid escape"
///   "Invalid group"
///   "Invalid name of a group"
///   "Nothing to repeat"
///   "Numbers of a quantifier are out of order"
///   "Octal escapes are not supported"
///   "Pattern ends with a backslash"
///   "Pattern is nested too deeply"
///   "Pattern is not UTF-8"
///   "Pattern is too large"
///   "Quantifier has no lower bound"
///   "Range of a character class is out of order"
///   "Unknown Unicode property"
///   "Unmatched ')'"
///   "Unterminated character class"
///   "Unterminated group"
class SyntaxError : public std::runtime_error {
  public:
    SyntaxError(const std::string& message, std::size_t offset)
        : std::runtime_error(message), offset_(offset) {}
    /// Of the fault in the pattern, in bytes, counted from 0.
    [[nodiscard]] std::size_t offset() const noexcept { return offset_; }

  private:
    std::size_t offset_;
};

} // namespace specloom::regex
