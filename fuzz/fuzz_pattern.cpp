// Patterns: the first line of the input is a regular expression, the rest the text that is searched.

#include "fuzz/check.h"
#include "regex/pattern.h"

#include <algorithm> // std::min
#include <optional>  // std::optional

namespace {

using specloom::fuzz::require;
using specloom::regex::Pattern;
using specloom::regex::SyntaxError;

std::optional<Pattern> compile(std::string_view source) {
    try {
        return Pattern(source);
    } catch (const SyntaxError& error) {
        require(error.offset() <= source.size(), "a fault lies in its pattern");
        return std::nullopt;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input = specloom::fuzz::textOf(data, size);
    const std::size_t lineEnd = std::min(input.find('\n'), input.size());
    const std::string_view source = input.substr(0, lineEnd);
    const std::string_view text = input.substr(std::min(lineEnd + 1, input.size()));

    const auto pattern = compile(source);
    if (!pattern)
        return 0;
    const auto outcome = pattern->search(text);
    require(pattern->search(text) == outcome, "what is remembered changes no outcome");
    // With a lookahead nothing is remembered: the same question goes another way.
    const auto other = compile("(?:" + std::string(source) + ")(?=)");
    if (!other)
        return 0;
    const auto otherOutcome = other->search(text);
    require(outcome == otherOutcome || outcome == Pattern::Outcome::TooCostly ||
                otherOutcome == Pattern::Outcome::TooCostly,
            "both ways lead to one outcome");
    return 0;
}
