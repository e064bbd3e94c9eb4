#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `json-api/resource-type-unique`: holds the place of a check that no two resources of JSON:API share a
/// type.
///
/// Finds nothing. The id stands in the ruleset "json-api", so it is known, takes a severity, and is silent.
class ResourceTypeUnique final : public Rule {
  public:
    static constexpr std::string_view ruleId = "json-api/resource-type-unique";
    explicit ResourceTypeUnique(Severity severity);
};

} // namespace specloom::openapi_lint
