#pragma once

#include "openapi_lint/rule.h"

#include <cstdint> // std::uint8_t

namespace specloom::openapi_lint {

/// `standard-response-errors`: errors are reported in one standard form.
///
/// Finds responses under a code that begins with 4 or 5 that do not offer the media type of the convention,
/// or whose schema there lacks the members of such a report; each response once. The convention is Problem
/// JSON (RFC 9457, section 3.1) or JSON:API (version 1.1, "Errors"). Can be disabled on the response and on
/// the responses of the operation.
///
/// Fails: `"404": {description: Not found}`.
/// Passes: `"404"` with `application/problem+json` and a schema with `type`, `title`, `status`, `detail` and
/// `instance`.
class StandardResponseErrors final : public Rule {
  public:
    static constexpr std::string_view ruleId = "standard-response-errors";
    explicit StandardResponseErrors(Severity severity) : Rule(ruleId, severity) {}
    /// The name of a convention, "problem-json" or "json-api". Throws RuleConfigurationError "Options cannot
    /// be null", "Options must be a string" and "Unknown convention: {}" with the text.
    void configure(const jv::JV* options) override;
    void check(LintContext& context) override;

    enum class Convention : std::uint8_t { ProblemJson, JsonApi };
    [[nodiscard]] Convention convention() const noexcept { return convention_; }

  private:
    Convention convention_ = Convention::ProblemJson;
};

} // namespace specloom::openapi_lint
