#pragma once

#include "openapi_diff/formatters/plain_status.h"

namespace specloom::openapi_diff {

class VisualStudioStatusFormatter final : public PlainStatusFormatter {
  public:
    using PlainStatusFormatter::PlainStatusFormatter;
};

/// A line for each event, "FILE(LINE,COLUMN): level: TEXT."
class VisualStudioChangelogFormatter final : public BasicFormatter {
  public:
    explicit VisualStudioChangelogFormatter(std::ostream& stream) : BasicFormatter(stream) {}
    void format(const Report& report) override;
};

/// A line for each change, place and level only. The place of a text before the full stop stays empty:
/// "FILE(LINE,COLUMN): level: ."
class VisualStudioDetailsFormatter final : public BasicFormatter {
  public:
    explicit VisualStudioDetailsFormatter(std::ostream& stream) : BasicFormatter(stream) {}
    void format(const Report& report) override;
};

} // namespace specloom::openapi_diff
