#pragma once

#include "openapi_diff/formatters/plain_status.h"
#include "openapi_diff/reports/changelog.h"
#include "openapi_diff/reports/detailed.h"

namespace specloom::openapi_diff {

class StylishStatusFormatter final : public PlainStatusFormatter {
  public:
    using PlainStatusFormatter::PlainStatusFormatter;
};

/// For people at a terminal: a table of level, place, kind and text, one row for each event. No row for a
/// modified operation itself: its parts have theirs.
class StylishChangelogFormatter final : public BasicFormatter<ChangelogReport> {
  public:
    using BasicFormatter::BasicFormatter;
    void write(const ChangelogReport& report) override;
};

/// The same table with a row for each change.
class StylishDetailsFormatter final : public BasicFormatter<DetailedReport> {
  public:
    using BasicFormatter::BasicFormatter;
    void write(const DetailedReport& report) override;
};

} // namespace specloom::openapi_diff
