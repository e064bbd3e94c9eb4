#pragma once

#include "openapi_lint/formatter.h"

namespace specloom::openapi_lint {

/// Test Anything Protocol, version 14: a test for each file that was linted, which fails when the file has
/// findings and then holds them as a YAML block. What is no UTF-8 in messages becomes U+FFFD there.
class TAPFormatter final : public Formatter {
  public:
    using Formatter::Formatter;
    void format(const LintContext& context) override;
};

} // namespace specloom::openapi_lint
