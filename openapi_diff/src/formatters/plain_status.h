#pragma once

#include "openapi_diff/formatter.h"
#include "openapi_diff/reports/status.h"

namespace specloom::openapi_diff {

/// One line with the heading of the report's level.
class PlainStatusFormatter : public BasicFormatter<StatusReport> {
  public:
    using BasicFormatter::BasicFormatter;
    void write(const StatusReport& report) override;
};

} // namespace specloom::openapi_diff
