#pragma once

#include "regex/charset.h"

#include <cstdint>     // std::uint32_t
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::regex {

/// No upper bound of a repetition.
inline constexpr std::uint32_t unbounded = UINT32_MAX;

/// One part of a pattern and what stands below it, at most as deep as groups may nest.
struct PatternNode {
    enum class Kind : std::uint8_t {
        Sequence,     // of the children, none of them for the empty expression
        Choice,       // of the children
        Repeat,       // of the child, min to max times
        Character,    // value
        Set,          // sets[value]
        TextStart,    // ^
        TextEnd,      // $
        WordBoundary, // \b, \B when negated
        LookAhead,    // lookarounds[value]
        LookBehind,
    };
    Kind kind = Kind::Sequence;
    bool negated = false;
    /// Whether it consumes nothing, whatever the text.
    bool zeroWidth = true;
    std::uint32_t value = 0;
    std::uint32_t min = 0;
    std::uint32_t max = 0;
    /// Instructions it takes.
    std::uint32_t size = 0;
    std::vector<PatternNode> children{};
};

struct PatternSyntax {
    PatternNode root;
    /// Normalized, each there once.
    std::vector<CharSet> sets;
    /// The bodies of lookaheads and lookbehinds, inner ones before those they stand in.
    std::vector<PatternNode> lookarounds;
};

/// Throws PatternError, see Pattern.
[[nodiscard]] PatternSyntax parsePattern(std::string_view source);

} // namespace specloom::regex
