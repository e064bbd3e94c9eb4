#pragma once

#include "openapi_lint/formatter.h"

namespace specloom::openapi_lint {

/// A line for each finding as that editor's list of errors reads it.
class VisualStudioFormatter final : public Formatter {
  public:
    using Formatter::Formatter;
    void format(const LintContext& context) override;
};

} // namespace specloom::openapi_lint
