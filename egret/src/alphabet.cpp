#include "egret/alphabet.h"

#include "regex/classes.h"
#include "regex/syntax_error.h"

#include <algorithm> // std::ranges::sort, std::unique
#include <cstddef>   // std::size_t
#include <optional>  // std::optional
#include <span>      // std::span

namespace specloom::egret {

namespace {

/// Of all labels together.
constexpr std::size_t mostSymbolsOfLabels = std::size_t{1} << 22U;

bool isSurrogate(char32_t codePoint) {
    return codePoint >= 0xD800 && codePoint <= 0xDFFF;
}

regex::CharSet withoutSurrogates(const regex::CharSet& set) {
    regex::CharSet outside = set.complement();
    outside.add(0xD800, 0xDFFF);
    outside.normalize();
    return outside.complement();
}

Alphabet oneSymbolForEachLabel(const Nfa& nfa) {
    Alphabet alphabet;
    for (const regex::CharSet& label : nfa.labels) {
        const regex::CharSet symbol = withoutSurrogates(label);
        alphabet.ofLabel.emplace_back();
        if (symbol.ranges().empty())
            continue;
        alphabet.ofLabel.back().push_back(static_cast<std::uint32_t>(alphabet.symbols.size()));
        alphabet.symbols.push_back(symbol);
    }
    alphabet.isWord.resize(alphabet.symbols.size());
    return alphabet;
}

/// Where the segments begin that no set parts.
std::vector<char32_t> segmentsOf(std::span<const regex::CharSet> sets) {
    std::vector<char32_t> begins{0};
    for (const regex::CharSet& set : sets) {
        for (const regex::CodePointRange& range : set.ranges()) {
            begins.push_back(range.first);
            if (range.last < regex::lastCodePoint)
                begins.push_back(range.last + 1);
        }
    }
    std::ranges::sort(begins);
    begins.erase(std::unique(begins.begin(), begins.end()), begins.end());
    return begins;
}

std::optional<Alphabet> partition(const Nfa& nfa) {
    std::vector<regex::CharSet> sets = nfa.labels;
    const auto words = static_cast<std::uint32_t>(sets.size());
    const auto surrogates = words + 1;
    sets.push_back(nfa.hasBoundaries ? regex::wordSet() : regex::CharSet());
    sets.push_back({{0xD800, 0xDFFF}});
    std::optional<regex::CharacterClasses> classes;
    try {
        classes.emplace(sets, std::span<const char32_t>());
    } catch (const regex::SyntaxError&) {
        return std::nullopt; // too many
    }
    const std::uint32_t count = classes->count();
    std::vector<std::uint32_t> symbolOf(count, 0);
    Alphabet alphabet{.isPartition = true};
    for (std::uint32_t i = 0; i < count; ++i) {
        if (classes->contains(surrogates, i))
            continue;
        symbolOf[i] = static_cast<std::uint32_t>(alphabet.symbols.size());
        alphabet.symbols.emplace_back();
        alphabet.isWord.push_back(classes->contains(words, i));
    }
    const std::vector<char32_t> begins = segmentsOf(sets);
    for (std::size_t i = 0; i < begins.size(); ++i) {
        const char32_t last = i + 1 == begins.size() ? regex::lastCodePoint : begins[i + 1] - 1;
        if (!isSurrogate(last))
            alphabet.symbols[symbolOf[classes->of(begins[i])]].add(begins[i], last);
    }
    std::size_t total = 0;
    for (std::uint32_t label = 0; label < words; ++label) {
        std::vector<std::uint32_t>& symbols = alphabet.ofLabel.emplace_back();
        for (std::uint32_t i = 0; i < count; ++i) {
            if (classes->contains(label, i) && !classes->contains(surrogates, i))
                symbols.push_back(symbolOf[i]);
        }
        total += symbols.size();
        if (total > mostSymbolsOfLabels)
            return std::nullopt;
    }
    return alphabet;
}

} // namespace

Alphabet alphabetOf(const Nfa& nfa) {
    if (nfa.hasBoundaries || !nfa.lookarounds.empty()) {
        if (std::optional<Alphabet> alphabet = partition(nfa))
            return *alphabet;
    }
    return oneSymbolForEachLabel(nfa);
}

} // namespace specloom::egret
