#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `server-urls`: servers are reached by HTTPS, under URLs in lower case.
///
/// Finds each server of the document whose URL begins neither with "https://" nor with "http://" and a name
/// of the local machine, and each whose URL holds a letter in upper case: readers compare URLs byte by byte.
/// Can be disabled on the document.
///
/// Fails: `servers: [{url: "http://tides.example"}]`.
/// Passes: `servers: [{url: "https://tides.example/v1"}, {url: "http://localhost:8080"}]`.
class ServerURLs final : public Rule {
  public:
    static constexpr std::string_view ruleId = "server-urls";
    explicit ServerURLs(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
