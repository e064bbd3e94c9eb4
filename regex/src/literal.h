#pragma once

#include "regex/syntax.h"

#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::regex {

/// A pattern that is but a text, at one end of what is searched or anywhere in it, as "^x-" is.
struct PatternLiteral {
    std::string text;
    bool atStart = false;
    bool atEnd = false;

    [[nodiscard]] bool matches(std::string_view searched) const;
};

/// Nothing for all other patterns.
[[nodiscard]] std::optional<PatternLiteral> literalOf(const PatternNode& root);

} // namespace specloom::regex
