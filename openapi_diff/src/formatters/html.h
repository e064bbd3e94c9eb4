#pragma once

#include "openapi_diff/formatter.h"
#include "openapi_diff/reports/changelog.h"
#include "openapi_diff/reports/detailed.h"
#include "openapi_diff/reports/status.h"

namespace specloom::openapi_diff {

/// A page with the level and how many changes there are.
class HTMLStatusFormatter final : public BasicFormatter<StatusReport> {
  public:
    using BasicFormatter::BasicFormatter;
    void write(const StatusReport& report) override;
};

/// A page with what happened to the metadata and the operations.
class HTMLChangelogFormatter final : public BasicFormatter<ChangelogReport> {
  public:
    using BasicFormatter::BasicFormatter;
    void write(const ChangelogReport& report) override;
};

/// A page with a table of the changes.
class HTMLDetailsFormatter final : public BasicFormatter<DetailedReport> {
  public:
    using BasicFormatter::BasicFormatter;
    void write(const DetailedReport& report) override;
};

} // namespace specloom::openapi_diff
