#pragma once

#include <optional>    // std::optional
#include <span>        // std::span
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::move

namespace specloom::code_morph::astro {

/// An array literal of texts: ["a", "b"].
[[nodiscard]] std::string toArrayLiteral(std::span<const std::string> texts);
/// The same of literals.
[[nodiscard]] std::string joinLiterals(std::span<const std::string> literals);

/// An object literal: {"name": "value"}.
class ObjectLiteral {
  public:
    ObjectLiteral& text(std::string_view name, std::string_view value);
    /// Nothing for a text that is absent.
    ObjectLiteral& textIf(std::string_view name, std::optional<std::string_view> value);
    /// With a literal of any kind.
    ObjectLiteral& literal(std::string_view name, std::string_view value);

    [[nodiscard]] std::string take() { return std::move(members_ += '}'); }

  private:
    std::string members_ = "{";
};

/// The attributes of an element, each with a blank before it. Names are ours, values a document's.
class Attributes {
  public:
    /// name={"value"}
    Attributes& text(std::string_view name, std::string_view value);
    /// Nothing for a text that is absent.
    Attributes& textIf(std::string_view name, std::optional<std::string_view> value);
    /// The name alone, or nothing.
    Attributes& flag(std::string_view name, bool isSet);
    /// name={literal}
    Attributes& literal(std::string_view name, std::string_view value);

    [[nodiscard]] const std::string& view() const noexcept { return attributes_; }
    [[nodiscard]] std::string take() { return std::move(attributes_); }

  private:
    void begin(std::string_view name);

    std::string attributes_;
};

} // namespace specloom::code_morph::astro
