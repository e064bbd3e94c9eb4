#pragma once

#include "regex/classes.h"
#include "regex/syntax.h"

#include <cstdint> // std::uint32_t
#include <vector>  // std::vector

namespace specloom::regex {

/// The order in which an automaton meets the characters of a text.
enum class Direction : std::uint8_t { Forward, Backward };

struct Instruction {
    enum class Code : std::uint8_t {
        Match,
        Split,      // to next and to other
        Character,  // of the class `other`, then next
        Set,        // of a class in the set `other`, then next
        ScanStart,  // holds before the first character in the automaton's direction
        ScanEnd,    // holds behind the last one
        Boundary,   // between a word character and another; the opposite when negated
        Lookaround, // `other` holds at this place; the opposite when negated
    };
    Code code;
    bool negated = false;
    std::uint32_t next = 0;
    std::uint32_t other = 0;
};
static_assert(sizeof(Instruction) == 12);

/// A nondeterministic automaton (Thompson's construction) for an expression or its mirror image.
struct Automaton {
    std::vector<Instruction> instructions{};
    std::uint32_t start = 0;
    Direction direction = Direction::Forward;
    bool hasBoundaries = false;
    /// Boundary, Lookaround or ScanEnd: what cannot be decided before the next character is known.
    bool hasConditions = false;
};

/// All of a pattern's automata over one alphabet.
struct AutomatonSet {
    CharacterClasses classes;
    /// Whether a class is of word characters; all false when nobody asks.
    std::vector<bool> wordClasses{};
    /// Of the bodies of lookaheads, which are met backward, and lookbehinds, by their numbers in
    /// the tree.
    std::vector<Automaton> lookarounds{};
    Automaton main{};
};

/// Throws SyntaxError with "Pattern is too large".
[[nodiscard]] AutomatonSet compile(const SyntaxTree& tree);

} // namespace specloom::regex
