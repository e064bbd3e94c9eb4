#pragma once

#include "regex/charset.h"
#include "regex/syntax_error.h"

#include <cstddef>     // std::size_t
#include <cstdint>     // std::uint32_t
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::regex {

/// Instructions that a pattern may be compiled to: about one for each character and class, times the counts
/// of the quantifiers around it. ".{0,65535}" has room.
inline constexpr std::uint32_t maxInstructions = 250'000;
/// Groups and lookarounds within one another.
inline constexpr std::size_t maxNesting = 250;
/// No upper bound of a repetition.
inline constexpr std::uint32_t unbounded = UINT32_MAX;

/// One part of a pattern and what stands below it. The tree is at most four levels deep for the whole and
/// for each group around one another (Alternation, Sequence, Repetition, and what is repeated), so that it
/// may be walked by recursion.
struct Node {
    enum class Kind : std::uint8_t {
        Sequence,     ///< its children, one behind the other; none for the empty expression, never just one
        Alternation,  ///< one of its children, which are at least two
        Repetition,   ///< its child, `min` to `max` times
        Group,        ///< its child in parentheses; `value` is the group's number, counted from 1, or 0 when
                      ///< it captures nothing
        Character,    ///< the code point `value`; one of a surrogate alone stands in no text
        Class,        ///< a code point of SyntaxTree::sets[value]: "[...]", "\d" and its like, "."
        TextStart,    ///< "^"
        TextEnd,      ///< "$"
        WordBoundary, ///< "\b", or "\B" when negated
        LookAhead,    ///< its child, or nothing of the kind when negated, follows the place; `value` counts
                      ///< the lookarounds of either direction from 0, inner ones before the outer ones
        LookBehind,   ///< the same in front of the place
    };
    Kind kind = Kind::Sequence;
    bool negated = false;
    /// Of a repetition: whether more rounds are tried before fewer. It matters to nobody who only asks
    /// whether there is a match.
    bool greedy = true;
    /// Whether it consumes nothing, whatever the text.
    bool zeroWidth = true;
    std::uint32_t value = 0;
    std::uint32_t min = 0;
    std::uint32_t max = 0; ///< at least `min`, or unbounded
    /// Instructions that it is compiled to, without those of the bodies of lookarounds.
    std::uint32_t size = 0;
    /// Of its text in the pattern, in bytes from 0; `end` is behind it. A repetition's holds its quantifier.
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
    std::vector<Node> children{};
};

struct SyntaxTree {
    Node root;
    /// Normalized, each there once, and none of just one code point: that is a Character.
    std::vector<CharSet> sets;
    /// Of the capturing groups, by their numbers less one; empty for a group without a name.
    std::vector<std::string> groupNames;
};

/// How a pattern is spelt where its tree only says what is meant. All lists are in the order of the pattern,
/// and all offsets count bytes from 0; an `end` is behind the text.
struct Spelling {
    /// A member of a class: a character, a range, or a class such as \d.
    struct ClassEntry {
        std::uint32_t begin;
        std::uint32_t end;
        char32_t first = 0; ///< of a character or range
        char32_t last = 0;
        CharSet named{}; ///< of an escape for a class; empty for a character or range
    };
    /// A text in brackets.
    struct Class {
        std::uint32_t begin;
        std::uint32_t end;
        bool negated;
        std::vector<ClassEntry> entries{};
    };
    /// A backslash in front of a character that is no letter and no digit.
    struct IdentityEscape {
        std::uint32_t begin;
        bool inClass;
    };
    std::vector<Class> classes{};
    std::vector<IdentityEscape> escapes{};
};

/// Reads a pattern as Pattern describes it. Takes UTF-8. Throws SyntaxError.
[[nodiscard]] SyntaxTree parse(std::string_view source);

/// The same, and tells how it is spelt.
[[nodiscard]] SyntaxTree parse(std::string_view source, Spelling& spelling);

} // namespace specloom::regex
