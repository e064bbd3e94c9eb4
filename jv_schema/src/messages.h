#pragma once

#include "jv/jv.h"

#include <cstddef>     // std::size_t
#include <span>        // std::span
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::jv::schema {

/// `text` between single quotes, clipped to a length that a message can bear.
[[nodiscard]] std::string quoted(std::string_view text);

/// A value as messages show it: the text of a scalar, strings in single quotes, or "an array" and "an
/// object".
[[nodiscard]] std::string described(const JV& value);

/// "1 item", "2 items".
[[nodiscard]] std::string counted(std::size_t count, std::string_view one, std::string_view many);

/// "a, b or c".
[[nodiscard]] std::string alternatives(std::span<const std::string_view> names);

/// "integer" for a number without a fraction, else the name of the kind.
[[nodiscard]] std::string_view typeOf(const JV& value);

/// The texts for fmt.
namespace message {

// Faults of schemas.
inline constexpr const char* noSchema = "schema is neither an object nor a boolean, but of type {}";
inline constexpr const char* keywordType = "'{}' must be of type {}, not {}";
inline constexpr const char* unresolvable = "cannot resolve '{}' to {}";
inline constexpr char endlessReference[] = "'$ref' leads back to itself";
inline constexpr const char* unknownMetaSchema = "meta-schema {} is not known";
inline constexpr const char* unknownVocabulary =
    "meta-schema {} requires the vocabulary {}, which is not known";
inline constexpr const char* unknownType = "{} is no type";
inline constexpr const char* invalidPattern = "invalid pattern {}: {}";
inline constexpr const char* notPositive = "'{}' must be greater than 0";
inline constexpr const char* notCount = "'{}' must be an integer of at least 0";
inline constexpr const char* longDivisor = "'{}' has more digits than can be decided";

// Refusals.
inline constexpr const char* tooDeep = "schema is nested more than {} levels deep";
inline constexpr const char* endless = "schema refers to itself without end";
inline constexpr const char* tooLong = "schema takes more than {} steps";
inline constexpr const char* costlyPattern = "pattern {} takes too many steps";

// Faults of instances.
inline constexpr const char* type = "expected {}, found {}";
inline constexpr const char* constant = "expected {}, found {}";
inline constexpr const char* choice = "expected one of {}, found {}";
inline constexpr const char* missingProperty = "missing property {}";
inline constexpr const char* missingDependency = "missing property {}, which {} requires";
inline constexpr const char* tooFew = "must have at least {}, has {}";
inline constexpr const char* tooMany = "must have at most {}, has {}";
inline constexpr const char* tooSmall = "must be at least {}, is {}";
inline constexpr const char* tooLarge = "must be at most {}, is {}";
inline constexpr const char* notAbove = "must be greater than {}, is {}";
inline constexpr const char* notBelow = "must be less than {}, is {}";
inline constexpr const char* noMultiple = "must be a multiple of {}, is {}";
inline constexpr const char* pattern = "must match pattern {}";
inline constexpr const char* format = "must have format {}, is {}";
inline constexpr const char* unknownProperty = "unknown property {}";
inline constexpr const char* propertyName = "property name {} is not allowed: {}";
inline constexpr const char* surplusItem = "item is not allowed";
inline constexpr const char* noValue = "no value is allowed";
inline constexpr const char* containsNone = "must contain at least {}, contains {}";
inline constexpr const char* containsMany = "must contain at most {}, contains {}";
inline constexpr const char* duplicate = "items {} and {} are equal";
inline constexpr const char* severalBranches =
    "must match exactly one alternative, matches those at {} and {}";
inline constexpr const char* noBranch = "matches none of the alternatives";
inline constexpr const char* negation = "must not match the schema of 'not'";

} // namespace message

} // namespace specloom::jv::schema
