#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `schema-example-defined`: holds the place of a check for examples of schemas.
///
/// Finds nothing, whatever its configuration. The id stands in rulesets, so it is known, takes a severity,
/// and is silent.
class SchemaExampleDefined final : public Rule {
  public:
    static constexpr std::string_view ruleId = "schema-example-defined";
    explicit SchemaExampleDefined(Severity severity);
};

} // namespace specloom::openapi_lint
