#pragma once

#include "openapi_lint/formatter.h"

namespace specloom::openapi_lint {

/// A page for people, complete in itself. Names and messages are escaped: they come from documents of unknown
/// origin, and the page is opened in a browser. What is no UTF-8 becomes U+FFFD.
class HTMLFormatter final : public Formatter {
  public:
    using Formatter::Formatter;
    void format(const LintContext& context) override;
};

} // namespace specloom::openapi_lint
