#pragma once

#include "jv/jv.h"
#include "number/number.h"
#include "openapi_lint/rule_configuration_error.h"
#include "openapi_lint/texts.h"

#include <string_view> // std::string_view

// What the rules' configure() functions share.
namespace specloom::openapi_lint {

/// The options themselves. Throws RuleConfigurationError "Options must not be null" for a null pointer; a
/// value of the kind null passes.
[[nodiscard]] const jv::JV& requireOptions(const jv::JV* options, std::string_view ruleId);

/// The text of a string. Throws configuration::ConfigError "A string value is expected for '{}'." with `name`
/// for a value of another kind.
[[nodiscard]] std::string_view textOf(const jv::JV& value, std::string_view name);

/// A naming convention by its name. Throws RuleConfigurationError with
///   "Options must not be null"  for a null pointer,
///   "Options must be a string"  for a value of another kind,
/// and what parseNamingConvention() throws.
[[nodiscard]] NamingConvention optionsNamingConvention(const jv::JV* options, std::string_view ruleId);

/// The least length of a text as an option: a number above 0. Throws RuleConfigurationError with
///   "Options must not be null"                            for a null pointer,
///   "Options must be a string or an object"               for a value that is neither number nor string,
///   "Minimal description length must be a positive number",
/// and jv::JVError "A numeric value is expected for '{}'." with the rule's id for a string. (The second text
/// names other kinds than those that are accepted.)
[[nodiscard]] number::Number optionsPositiveNumber(const jv::JV* options, std::string_view ruleId);

/// The most that a rule about paths allows: a number above 0. Throws RuleConfigurationError with
///   "Options must not be null"     for a null pointer,
///   "Options must be a number"     for a value of another kind,
///   "Max path count must be a positive number".
[[nodiscard]] number::Number optionsMaximumForPaths(const jv::JV* options, std::string_view ruleId);

} // namespace specloom::openapi_lint
