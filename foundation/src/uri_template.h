#pragma once

#include "foundation/uri_template_syntax.h"

#include <cstddef>     // std::size_t
#include <functional>  // std::less
#include <map>         // std::map
#include <stdexcept>   // std::runtime_error
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::pair
#include <variant>     // std::variant, std::monostate
#include <vector>      // std::vector

/// URI templates of all four levels (RFC 6570).
namespace specloom {

using UriTemplateList = std::vector<std::string>;
/// Names and values of an associative array, in the order in which they are to expand.
using UriTemplatePairs = std::vector<std::pair<std::string, std::string>>;

/// What a variable stands for; std::monostate is undefined. An empty list and an empty array are undefined as
/// well (RFC 6570, section 2.3), and undefined members of either are to be left out. Texts are UTF-8; bytes
/// that are not are percent-encoded like the others.
using UriTemplateValue = std::variant<std::monostate, std::string, UriTemplateList, UriTemplatePairs>;

/// Values by the names as templates write them: percent-encoded triplets of names are not decoded. A variable
/// without a value here is undefined.
using UriTemplateVariables = std::map<std::string, UriTemplateValue, std::less<>>;

/// A text is no URI template, or values do not fit it.
class UriTemplateError : public std::runtime_error {
  public:
    explicit UriTemplateError(const UriTemplateFaultPlace& place);

    [[nodiscard]] UriTemplateFault fault() const noexcept { return place_.fault; }
    /// In the template, in bytes from 0.
    [[nodiscard]] std::size_t offset() const noexcept { return place_.offset; }

  private:
    UriTemplateFaultPlace place_;
};

/// A template that was read once and can be expanded many times.
///
///     UriTemplate("/pets{/id}{?fields*}").expand({{"id", "7"}, {"fields", UriTemplateList{"name", "age"}}})
///
/// is "/pets/7?fields=name&fields=age". Reading takes time and space in proportion to the text, expansion
/// time in proportion to the template and the result.
class UriTemplate {
  public:
    /// Throws UriTemplateError with "Invalid URI template at byte {}: " and the first fault:
    ///   "the text is not UTF-8"
    ///   "this character may not stand in a URI"
    ///   "two hexadecimal digits are expected behind '%'"
    ///   "'}' without a '{' before it"
    ///   "'{' without a '}' behind it"
    ///   "this operator is reserved for extensions"
    ///   "a variable name is expected"
    ///   "this character may not stand in a variable name"
    ///   "a dot may only stand between two other characters of a variable name"
    ///   "a prefix length from 1 to 9999 is expected"
    ///   "',' or '}' is expected behind a modifier"
    explicit UriTemplate(std::string text);

    [[nodiscard]] const std::string& text() const noexcept { return text_; }

    /// The URI reference that the template stands for with these values (RFC 6570, section 3). The names of
    /// an exploded array of pairs are encoded like literals where values stand behind their names
    /// (section 3.2.1): reserved characters of such a name stay, and "%26" is the way to have an ampersand.
    ///
    /// Throws UriTemplateError with "Invalid URI template at byte {}: a prefix length does not apply to lists
    /// and associative arrays", and std::length_error with "URI template expands to more than {} bytes" for
    /// results beyond `largest`, which a short template can reach by naming a long value many times.
    [[nodiscard]] std::string expand(const UriTemplateVariables& variables,
                                     std::size_t largest = std::size_t{64} << 20) const;

  private:
    std::string text_;
    UriTemplateSyntax syntax_;
};

/// Whether `text` is a URI template; reads up to the first fault and allocates nothing.
[[nodiscard]] bool isValidUriTemplate(std::string_view text);

} // namespace specloom
