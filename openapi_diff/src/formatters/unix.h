#pragma once

#include "openapi_diff/formatters/plain_status.h"

namespace specloom::openapi_diff {

class UnixStatusFormatter final : public PlainStatusFormatter {
  public:
    using PlainStatusFormatter::PlainStatusFormatter;
};

/// A line for each event as compilers write it, "FILE:LINE:COLUMN: TEXT. [level]".
class UnixChangelogFormatter final : public BasicFormatter {
  public:
    explicit UnixChangelogFormatter(std::ostream& stream) : BasicFormatter(stream) {}
    void format(const Report& report) override;
};

/// A line for each change, place and level only: "FILE:LINE:COLUMN: [level]".
class UnixDetailsFormatter final : public BasicFormatter {
  public:
    explicit UnixDetailsFormatter(std::ostream& stream) : BasicFormatter(stream) {}
    void format(const Report& report) override;
};

} // namespace specloom::openapi_diff
