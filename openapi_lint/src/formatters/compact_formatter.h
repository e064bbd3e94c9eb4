#pragma once

#include "openapi_lint/formatter.h"

namespace specloom::openapi_lint {

/// A line for each finding that says what each number is, and their number.
class CompactFormatter final : public Formatter {
  public:
    using Formatter::Formatter;
    void format(const LintContext& context) override;
};

} // namespace specloom::openapi_lint
