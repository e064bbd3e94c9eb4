#pragma once

#include "regex/pattern.h"

#include <array>       // std::array
#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::regex {

/// A pattern that knows shortcuts: the shapes that nearly all schemas use are decided without the engine,
/// to the same effect.
class TextMatcher {
  public:
    using Outcome = Pattern::Outcome;

    /// Throws PatternError.
    explicit TextMatcher(std::string_view source);

    [[nodiscard]] Outcome search(std::string_view text) const {
        if (first_ != '\0' && (text.empty() || text.front() != first_))
            return Outcome::NoMatch;
        return searchShape(text);
    }

  private:
    enum class Shape {
        Anything, ///< "" and ".*"
        Prefix,   ///< "^x-"
        Choice,   ///< "^x$", "^(x|y)$"
        Bytes,    ///< "^[a-z]+$", "^[a-z]*$"
        General,
    };

    [[nodiscard]] Outcome searchShape(std::string_view text) const;
    [[nodiscard]] bool readPrefixOrChoice(std::string_view source);
    [[nodiscard]] bool readBytes(std::string_view source);

    Shape shape_ = Shape::General;
    char first_ = '\0'; ///< the byte that every match begins with, if there is one
    std::vector<std::string> texts_;
    std::array<bool, 256> bytes_{};
    bool mayBeEmpty_ = false;
    std::unique_ptr<const Pattern> pattern_;
};

} // namespace specloom::regex
