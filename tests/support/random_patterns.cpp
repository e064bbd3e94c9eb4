#include "test_support/random_patterns.h"

#include <array> // std::array

namespace specloom::test_support {

std::string RandomPatterns::next() {
    std::string pattern = alternation(3);
    if (below(2) == 0)
        pattern = "^(?:" + pattern + ")$";
    return pattern;
}

std::string RandomPatterns::alternation(int depth) {
    std::string result = sequence(depth);
    for (std::uint32_t more = below(4); more > 1; --more)
        result += "|" + sequence(depth);
    return result;
}

std::string RandomPatterns::sequence(int depth) {
    std::string result;
    for (std::uint32_t parts = below(4); parts > 0; --parts)
        result += atom(depth);
    return result;
}

std::string RandomPatterns::atom(int depth) {
    static constexpr std::array characters = {"a",   "b",   "-", "[ab]",  "[^a]",
                                              "\\w", "\\W", ".", "[a-c]", "[-c]"};
    static constexpr std::array places = {"^", "$", "\\b", "\\B"};
    static constexpr std::array openings = {"(?=", "(?!", "(?<=", "(?<!"};
    const std::uint32_t kind = below(depth > 0 ? 10 : 7);
    if (kind < 6)
        return characters[below(characters.size())] + quantifier();
    if (kind == 6)
        return places[below(places.size())];
    if (kind == 7)
        return openings[below(openings.size())] + alternation(depth - 1) + ")";
    return "(?:" + alternation(depth - 1) + ")" + quantifier();
}

std::string RandomPatterns::quantifier() {
    static constexpr std::array quantifiers = {"*", "+", "?", "{2}", "{1,2}", "{0,3}", "{2,}"};
    return below(3) > 0 ? "" : quantifiers[below(quantifiers.size())];
}

} // namespace specloom::test_support
