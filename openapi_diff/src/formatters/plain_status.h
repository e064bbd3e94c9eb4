#pragma once

#include "openapi_diff/formatter.h"

namespace specloom::openapi_diff {

/// One line with the heading of the report's level.
class PlainStatusFormatter : public BasicFormatter {
  public:
    explicit PlainStatusFormatter(std::ostream& stream) : BasicFormatter(stream) {}
    void format(const Report& report) override;
};

} // namespace specloom::openapi_diff
