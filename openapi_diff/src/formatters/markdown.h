#pragma once

#include "openapi_diff/formatter.h"
#include "openapi_diff/reports/changelog.h"
#include "openapi_diff/reports/detailed.h"
#include "openapi_diff/reports/status.h"

namespace specloom::openapi_diff {

/// The heading of the level, and how many changes there are of each.
class MarkdownStatusFormatter final : public BasicFormatter<StatusReport> {
  public:
    using BasicFormatter::BasicFormatter;
    void write(const StatusReport& report) override;
};

/// A list of operations for each thing that can happen to one; nothing where nothing happened. Of modified
/// operations it tells the level alone, which is meant.
class MarkdownChangelogFormatter final : public BasicFormatter<ChangelogReport> {
  public:
    using BasicFormatter::BasicFormatter;
    void write(const ChangelogReport& report) override;
};

/// A list of the changes of each level, the worst first. Those that the configuration calls "none" are left
/// out.
class MarkdownDetailsFormatter final : public BasicFormatter<DetailedReport> {
  public:
    using BasicFormatter::BasicFormatter;
    void write(const DetailedReport& report) override;
};

} // namespace specloom::openapi_diff
