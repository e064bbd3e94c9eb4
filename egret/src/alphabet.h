#pragma once

#include "egret/nfa.h"
#include "regex/charset.h"

#include <algorithm> // std::ranges::binary_search
#include <cstdint>   // std::uint32_t
#include <vector>    // std::vector

namespace specloom::egret {

/// What the edges of a search stand for: sets of characters, which are symbols by their place in `symbols`.
/// None is empty, and none holds a surrogate, which stands in no text.
struct Alphabet {
    std::vector<regex::CharSet> symbols{};
    /// Whether a symbol's characters are those of words; false for all when no boundary asks.
    std::vector<bool> isWord{};
    /// The symbols that make up each label of the automaton, in ascending order.
    std::vector<std::vector<std::uint32_t>> ofLabel{};
    /// Whether symbols are apart from one another, so that they decide what lookarounds and boundaries ask.
    /// They are not where nobody asks, and where there would be too many.
    bool isPartition = false;

    [[nodiscard]] bool contains(std::uint32_t label, std::uint32_t symbol) const {
        return std::ranges::binary_search(ofLabel[label], symbol);
    }
};

[[nodiscard]] Alphabet alphabetOf(const Nfa& nfa);

} // namespace specloom::egret
