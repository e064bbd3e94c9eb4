#pragma once

#include "foundation/case_style.h"
#include "number/number.h"

#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view

// What several rules ask of texts and names.
namespace specloom::openapi_lint {

/// Whether a text says something: it is there, has at least `minimumLength` bytes, is not white space alone
/// (space, \t, \n, \v, \f, \r), and is not "TODO", "FIXME" or "TBD" in any case of letters.
[[nodiscard]] bool isMeaningfulText(std::optional<std::string_view> text,
                                    const number::Number& minimumLength);

/// A way to write names that a rule can demand; convertCase() gives a name in it.
using NamingConvention = CaseStyle;

/// "camel", "const", "kebab", "pascal", "header" or "snake". Throws RuleConfigurationError "Unknown naming
/// convention: {}" with the text.
[[nodiscard]] NamingConvention parseNamingConvention(std::string_view text, std::string_view ruleId);

// Parts of URL templates (OpenAPI 3.1.0, section 4.8.8) brought into one form.

/// The path with "{}" in place of each match of the regular expression `\{[^}]*\}`.
[[nodiscard]] std::string withoutTemplateNames(std::string_view path);
/// The path with one slash for each run of slashes.
[[nodiscard]] std::string withoutRepeatedSlashes(std::string_view path);
/// The path without one slash at its end.
[[nodiscard]] std::string_view withoutTrailingSlash(std::string_view path);

} // namespace specloom::openapi_lint
