// Strings of regular expressions: the first line of the input is one.

#include "egret/strings.h"
#include "fuzz/check.h"
#include "regex/pattern.h"
#include "regex/utf8.h"

#include <optional> // std::optional

namespace {

using specloom::egret::Draw;
using specloom::egret::Lengths;
using specloom::egret::Strings;
using specloom::fuzz::require;
using specloom::regex::Pattern;

std::uint64_t charactersOf(std::string_view text) {
    std::uint64_t count = 0;
    for (; !text.empty(); ++count)
        text.remove_prefix(specloom::regex::decodeCharacter(text).length);
    return count;
}

/// Numbers without a rule that a pattern could know, beginning with `state`.
Draw drawingFrom(std::uint64_t state) {
    return [state](std::uint64_t bound) mutable {
        state = state * 6364136223846793005U + 1442695040888963407U;
        return (state >> 33U) % bound;
    };
}

void checkText(const Pattern& pattern, const Lengths& lengths, const std::string& text) {
    require(pattern.search(text) == Pattern::Outcome::Match, "a string matches");
    const std::uint64_t length = charactersOf(text);
    require(length >= lengths.min && length <= lengths.max, "a string has a length that was asked for");
}

void checkLengths(const Pattern& pattern, std::string_view source, const Lengths& lengths,
                  std::uint64_t seed) {
    const Strings strings(source);
    const auto drawn = strings.random(lengths, drawingFrom(seed));
    if (drawn)
        checkText(pattern, lengths, *drawn);
    require(strings.random(lengths, drawingFrom(seed)) == drawn, "the same draws give the same string");
    for (const std::string& text : strings.covering(lengths))
        checkText(pattern, lengths, text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input = specloom::fuzz::textOf(data, size);
    const std::string_view source = input.substr(0, input.find('\n'));
    std::optional<Pattern> pattern;
    try {
        pattern.emplace(source);
    } catch (const specloom::regex::SyntaxError&) {
        return 0;
    }
    const std::uint64_t seed = specloom::fuzz::drawFrom(input);
    checkLengths(*pattern, source, {}, seed);
    checkLengths(*pattern, source, {seed % 40, seed % 40 + seed / 64 % 9}, seed);
    return 0;
}
