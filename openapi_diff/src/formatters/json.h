#pragma once

#include "openapi_diff/formatter.h"
#include "openapi_diff/reports/changelog.h"
#include "openapi_diff/reports/detailed.h"
#include "openapi_diff/reports/status.h"

namespace specloom::openapi_diff {

/// {"status": "breaking"} and a line end.
class JSONStatusFormatter final : public BasicFormatter<StatusReport> {
  public:
    using BasicFormatter::BasicFormatter;
    void write(const StatusReport& report) override;
};

/// An object of "metadata", "added", "removed", "deprecated" and "modified", and a line end.
class JSONChangelogFormatter final : public BasicFormatter<ChangelogReport> {
  public:
    using BasicFormatter::BasicFormatter;
    void write(const ChangelogReport& report) override;
};

/// An array with an object for each change, and a line end.
class JSONDetailsFormatter final : public BasicFormatter<DetailedReport> {
  public:
    using BasicFormatter::BasicFormatter;
    void write(const DetailedReport& report) override;
};

} // namespace specloom::openapi_diff
