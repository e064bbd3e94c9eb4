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

/// Strings that a regular expression matches, in the dialect of regex::Pattern: whole texts in UTF-8 that
/// regex::Pattern::search() finds a match in, each of which was asked for before it is given out. The match
/// is the whole text where it can be; where lengths, boundaries of words or lookarounds ask for more there is
/// text around it.
///
/// Anchors, boundaries and lookarounds are decided, not tried, and so are lengths: where none is found there
/// is none, as long as the pattern stays within the limits of docs/security.md. Beyond them strings are tried
/// out, a fixed number of times. Nothing depends on the clock.
///
/// What was found out about the pattern, and about the lengths that random() was asked for last, is kept: so
/// it is cheap to ask for the same lengths again. Of one thread.
class Strings {
  public:
    /// Takes UTF-8. Throws regex::SyntaxError.
    explicit Strings(std::string_view pattern);
    Strings(Strings&&) noexcept;
    Strings& operator=(Strings&&) noexcept;
    ~Strings();

    /// Strings that together go through every edge of the pattern's automaton that a string of these lengths
    /// can go through; the shortest ones first, none twice. An edge of a counted repetition is one for all of
    /// its rounds: none, the first, a further one, leaving before the last, leaving behind the last. Empty
    /// when none was found. The same on every platform.
    [[nodiscard]] std::vector<std::string> covering(const Lengths& lengths = {}) const;

    /// One of the strings, drawn: legible where the pattern leaves the choice, and by alternatives, not by
    /// their numbers of strings. No longer than it has to be to reach any of the alternatives, but for a few
    /// rounds of repetitions. Empty when none was found. The same draws give the same string on every
    /// platform.
    [[nodiscard]] std::optional<std::string> random(const Lengths& lengths, const Draw& draw) const;

  private:
    struct Impl;

    std::unique_ptr<const Impl> impl_;
};

} // namespace specloom::egret
