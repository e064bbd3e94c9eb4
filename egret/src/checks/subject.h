#pragma once

#include "egret/analysis/tree.h"
#include "egret/check.h"
#include "regex/syntax.h"

#include <cstddef>     // std::size_t
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::egret::checks {

/// What a check looks at.
struct Subject {
    std::string_view source;
    const regex::SyntaxTree& tree;
    const regex::Spelling& spelling;
    const PatternUse& use;
    const ShortestLengths& shortest; ///< of the tree

    /// How a node, an entry of a class or another part of the pattern is spelt.
    template <typename Part>
    [[nodiscard]] std::string_view textOf(const Part& part) const {
        return source.substr(part.begin, part.end - part.begin);
    }
};

/// What a check has found.
class Findings {
  public:
    /// Of a place in the pattern, in bytes from 0. What was said before is not said again, nor is more said
    /// of one pattern than helps.
    void add(std::size_t offset, const std::string& message) {
        if (warnings_.size() == enough)
            return;
        for (const Warning& warning : warnings_)
            if (warning.message == message)
                return;
        warnings_.push_back({{}, message, offset});
    }
    [[nodiscard]] const std::vector<Warning>& warnings() const noexcept { return warnings_; }

  private:
    static constexpr std::size_t enough = 5;

    std::vector<Warning> warnings_;
};

} // namespace specloom::egret::checks
