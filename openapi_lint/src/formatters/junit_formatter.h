#pragma once

#include "openapi_lint/formatter.h"

namespace specloom::openapi_lint {

/// XML that tools for JUnit reports read: a test suite for each file, a failed test case for each finding. As
/// with CheckstyleFormatter texts stand there as they are, and what is no UTF-8 becomes U+FFFD.
class JUnitFormatter final : public Formatter {
  public:
    using Formatter::Formatter;
    void format(const LintContext& context) override;
};

} // namespace specloom::openapi_lint
