#pragma once

#include "openapi_lint/formatter.h"

namespace specloom::openapi_lint {

/// One line of JSON (RFC 8259): an object with an array of findings for each file. What is no UTF-8 in names
/// and messages becomes U+FFFD.
class JSONFormatter final : public Formatter {
  public:
    using Formatter::Formatter;
    void format(const LintContext& context) override;
};

} // namespace specloom::openapi_lint
