#pragma once

#include "openapi_lint/formatter.h"

namespace specloom::openapi_lint {

/// A line for each finding as compilers write it, "FILE:LINE:COLUMN: MESSAGE. [Severity/rule]", and their
/// number.
class UnixFormatter final : public Formatter {
  public:
    using Formatter::Formatter;
    void format(const LintContext& context) override;
};

} // namespace specloom::openapi_lint
