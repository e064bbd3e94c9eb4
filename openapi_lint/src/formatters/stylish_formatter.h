#pragma once

#include "openapi_lint/formatter.h"

namespace specloom::openapi_lint {

/// For people at a terminal: the findings of each file in aligned columns, and a summary. Line numbers are
/// aligned right, all else left; each file has widths of its own. Messages of more than 200 columns stand
/// unpadded, and no other is padded beyond that.
class StylishFormatter final : public Formatter {
  public:
    using Formatter::Formatter;
    void format(const LintContext& context) override;
};

} // namespace specloom::openapi_lint
