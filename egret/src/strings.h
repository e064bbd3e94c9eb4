#pragma once

#include <cstdint>     // std::uint64_t
#include <functional>  // std::function
#include <memory>      // std::unique_ptr
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::egret {

/// How many code points a string may have, both included.
struct Lengths {
    std::uint64_t min = 0;
    std::uint64_t max = UINT64_MAX;
};

/// Draws a number from 0 to one below its argument, which is at least 1, each as likely as the others.
using Draw = std::function<std::uint64_t(std::uint64_t bound)>;

/// Strings that a regular expression matches, in the dialect of regex::Pattern. All strings are UTF-8 and
/// hold the match as a whole text: what regex::Pattern::search() finds.
class Strings {
  public:
    /// Takes UTF-8. Throws regex::SyntaxError.
    explicit Strings(std::string_view pattern);
    Strings(Strings&&) noexcept;
    Strings& operator=(Strings&&) noexcept;
    ~Strings();

    /// Strings that together go through every edge of the pattern's automaton that a string of these lengths
    /// can go through; the shortest ones first. Empty when none was found.
    [[nodiscard]] std::vector<std::string> covering(const Lengths& lengths = {}) const;

    /// One of the strings, drawn: legible where the pattern leaves the choice. Empty when none was found. The
    /// same draws give the same string on every platform.
    [[nodiscard]] std::optional<std::string> random(const Lengths& lengths, const Draw& draw) const;

  private:
    struct Impl;

    std::unique_ptr<const Impl> impl_;
};

} // namespace specloom::egret
