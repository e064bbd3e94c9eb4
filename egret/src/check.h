#pragma once

#include "egret/strings.h"

#include <cstddef>     // std::size_t
#include <span>        // std::span
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::egret {

/// What else is said of the texts that a pattern is for.
struct PatternUse {
    Lengths lengths{};
    std::span<const std::string> enumeration{}; ///< the texts that are allowed; none for all
    std::string_view format{};                  ///< the name of their format; empty for none
};

/// A likely mistake in a pattern.
struct Warning {
    std::string_view id; ///< of the check, in kebab case: its page is docs/pattern-checks/ID.md
    std::string message; ///< a sentence without a full stop; what it quotes of the pattern is clipped
    std::size_t offset;  ///< of the byte in the pattern where it begins, from 0
};

/// The likely mistakes of a pattern in the order of their places, a few for each check. What they cost is
/// bounded whatever the pattern. Takes UTF-8. Throws regex::SyntaxError.
[[nodiscard]] std::vector<Warning> check(std::string_view pattern, const PatternUse& use = {});

/// The ids of all checks, in byte-wise order.
[[nodiscard]] std::vector<std::string_view> checkIds();

} // namespace specloom::egret
