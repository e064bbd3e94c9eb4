#pragma once

#include "regex/syntax.h"

#include <cstdint>     // std::uint64_t
#include <memory>      // std::unique_ptr
#include <string_view> // std::string_view

namespace specloom::regex {

/// A regular expression of ECMA-262, section 22.2, with the flag "u", compiled once and matched often.
///
/// The matcher is an automaton and never goes back: its time is at most proportional to the product of the
/// sizes of pattern and text, its stack bounded. It knows all of section 22.2 but
/// - backreferences (\1, \k<name>), which no automaton can follow,
/// - the groups with flags, as (?i:...), and the classes of flag "v",
/// - properties of \p{...} other than General_Category, Script, Script_Extensions, Any, Assigned, ASCII,
///   Alphabetic, Lowercase, Uppercase, ID_Start, ID_Continue, White_Space, Hex_Digit, ASCII_Hex_Digit,
///   Ideographic, Emoji, Emoji_Presentation and Extended_Pictographic (Unicode 15.0).
/// Of Annex B.1.2 it takes what has one meaning only, since documents have it: a backslash before anything
/// but letters and digits of ASCII ("\-", "\_", "\@"), brackets and braces that close or open nothing ("]",
/// "}", "{a}"), a class as bound of a range ("[\w-.]"), repeated lookaheads. What flag "u" forbids otherwise
/// is an error: octal escapes, unknown letters ("\Z"), half a quantifier ("a{1", "a{,2}"). A name may be
/// given to several groups.
///
/// A pattern has at most maxInstructions, of which 12 bytes each are kept, and maxNesting.
class Pattern {
  public:
    enum class Outcome { Match, NoMatch, TooCostly };

    /// Steps of one search before it is TooCostly, which take less than a second: instructions looked at, one
    /// for each of the states that the automaton is in at a place of the text. What is remembered of earlier
    /// places and searches is free, so that common patterns take a text of any length. With lookarounds, and
    /// with more than 1,000 classes of characters, nothing is remembered, and the bytes of the text times the
    /// lookarounds and one may not be more than this either.
    static constexpr std::uint64_t maxSteps = 100'000'000;

    /// Takes UTF-8. Throws SyntaxError.
    explicit Pattern(std::string_view source);
    Pattern(Pattern&&) noexcept;
    Pattern& operator=(Pattern&&) noexcept;
    ~Pattern();

    /// Whether the expression matches anywhere in a text of UTF-8. A byte that is not UTF-8 is one U+FFFD.
    /// May be called by several threads at once.
    [[nodiscard]] Outcome search(std::string_view text) const {
        if (first_ != '\0' && (text.empty() || text.front() != first_))
            return Outcome::NoMatch;
        return searchProgram(text);
    }

  private:
    struct Program;

    [[nodiscard]] Outcome searchProgram(std::string_view text) const;

    std::unique_ptr<const Program> program_;
    char first_; ///< the byte that every text with a match begins with; '\0' for none
};

} // namespace specloom::regex
