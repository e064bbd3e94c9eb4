#pragma once

#include "openapi_diff/formatters/plain_status.h"
#include "openapi_diff/reports/changelog.h"
#include "openapi_diff/reports/detailed.h"

namespace specloom::openapi_diff {

class VisualStudioStatusFormatter final : public PlainStatusFormatter {
  public:
    using PlainStatusFormatter::PlainStatusFormatter;
};

/// A line for each event, "FILE(LINE,COLUMN): level: TEXT."
class VisualStudioChangelogFormatter final : public BasicFormatter<ChangelogReport> {
  public:
    using BasicFormatter::BasicFormatter;
    void write(const ChangelogReport& report) override;
};

/// A line for each change, place and level only. The place of a text before the full stop stays empty:
/// "FILE(LINE,COLUMN): level: ."
class VisualStudioDetailsFormatter final : public BasicFormatter<DetailedReport> {
  public:
    using BasicFormatter::BasicFormatter;
    void write(const DetailedReport& report) override;
};

} // namespace specloom::openapi_diff
