#include "openapi_lint/text_pattern.h"

#if defined(__GNUC__) && !defined(__clang__) && __GNUC__ < 13
// g++ 12 with sanitizers takes a part of the library's own automaton for uninitialized (GCC bug 105562).
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif

#include <regex>     // std::regex
#include <stdexcept> // std::runtime_error

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

std::regex compile(const std::string& pattern) {
    if (pattern.size() > TextPattern::maximumPatternLength)
        throw std::runtime_error(
            fmt::format("Pattern is longer than {} bytes", TextPattern::maximumPatternLength));
#ifdef __GLIBCXX__
    // GNU's library can follow all alternatives side by side instead of one after the other with
    // backtracking, so that no pattern takes more than polynomial time. It cannot do so for a pattern with
    // back references.
    try {
        return std::regex(pattern, std::regex_constants::ECMAScript | std::regex_constants::__polynomial);
    } catch (const std::regex_error& error) {
        if (error.code() != std::regex_constants::error_complexity)
            throw std::runtime_error(fmt::format("Pattern is not a regular expression: {}", pattern));
    }
#endif
    try {
        return std::regex(pattern, std::regex_constants::ECMAScript);
    } catch (const std::regex_error&) {
        throw std::runtime_error(fmt::format("Pattern is not a regular expression: {}", pattern));
    }
}

} // namespace

struct TextPattern::Compiled {
    std::regex expression;
};

TextPattern::TextPattern(const std::string& pattern)
    : compiled_(std::make_unique<Compiled>(Compiled{compile(pattern)})) {}

TextPattern::~TextPattern() = default;

bool TextPattern::matchesWhole(std::string_view text) const {
    return text.size() <= maximumTextLength &&
           std::regex_match(text.begin(), text.end(), compiled_->expression);
}

} // namespace specloom::openapi_lint
