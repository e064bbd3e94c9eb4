#pragma once

#include "regex/syntax.h"

#include <array>       // std::array
#include <cstddef>     // std::size_t
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view
#include <variant>     // std::variant
#include <vector>      // std::vector

namespace specloom::regex {

/// What a pattern asks of a text, for the forms that nearly all schemas use: they are decided without an
/// automaton, to the same effect.
class Shortcut {
  public:
    /// Nothing for a pattern of another form.
    [[nodiscard]] static std::optional<Shortcut> of(const SyntaxTree& tree);

    [[nodiscard]] bool matches(std::string_view searched) const;
    /// The byte that every text with a match begins with; '\0' when there is no such byte.
    [[nodiscard]] char firstByte() const;

  private:
    /// One of a few texts, perhaps at an end: "^x-", "foo", "^(?:x|y)$", "^x-.*".
    struct Texts {
        std::vector<std::string> texts;
        bool atStart = false;
        bool atEnd = false;
    };
    /// Only some of the characters of ASCII, and so many of them: "^[a-z]+$", "^\d{1,9}$".
    struct Bytes {
        std::array<bool, 256> accepted{};
        std::size_t min = 0;
        std::size_t max = 0;
    };

    explicit Shortcut(std::variant<Texts, Bytes> form) : form_(std::move(form)) {}
    [[nodiscard]] static std::optional<Bytes> bytesOf(const Node& node, const SyntaxTree& tree);

    std::variant<Texts, Bytes> form_;
};

} // namespace specloom::regex
