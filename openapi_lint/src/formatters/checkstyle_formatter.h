#pragma once

#include "openapi_lint/formatter.h"

namespace specloom::openapi_lint {

/// XML that tools for Checkstyle reports read. Names and messages stand in attributes as they are, so that a
/// quote, a less-than sign or an ampersand in one of them makes the report ill-formed. What is no UTF-8
/// becomes U+FFFD.
class CheckstyleFormatter final : public Formatter {
  public:
    using Formatter::Formatter;
    void format(const LintContext& context) override;
};

} // namespace specloom::openapi_lint
