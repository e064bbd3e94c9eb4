#pragma once

#include "openapi_diff/formatters/plain_status.h"
#include "openapi_diff/reports/changelog.h"
#include "openapi_diff/reports/detailed.h"

namespace specloom::openapi_diff {

class UnixStatusFormatter final : public PlainStatusFormatter {
  public:
    using PlainStatusFormatter::PlainStatusFormatter;
};

/// A line for each event as compilers write it, "FILE:LINE:COLUMN: TEXT. [level]".
class UnixChangelogFormatter final : public BasicFormatter<ChangelogReport> {
  public:
    using BasicFormatter::BasicFormatter;
    void write(const ChangelogReport& report) override;
};

/// A line for each change, place and level only: "FILE:LINE:COLUMN: [level]".
class UnixDetailsFormatter final : public BasicFormatter<DetailedReport> {
  public:
    using BasicFormatter::BasicFormatter;
    void write(const DetailedReport& report) override;
};

} // namespace specloom::openapi_diff
