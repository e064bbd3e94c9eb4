#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `json-api/content-type`: bodies are offered in the media type of JSON:API.
///
/// Finds request bodies, and responses with content, that do not offer `application/vnd.api+json`; each once.
/// A response without content has no body to be in any format. Can be disabled on the request body and on the
/// response.
///
/// Fails: `requestBody: {content: {application/json: {}}}`.
/// Passes: `requestBody: {content: {application/vnd.api+json: {}}}`.
class JSONAPIContentType final : public Rule {
  public:
    static constexpr std::string_view ruleId = "json-api/content-type";
    explicit JSONAPIContentType(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
