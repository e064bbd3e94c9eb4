#pragma once

#include "openapi_diff/report.h"

namespace specloom::openapi_diff {

/// How bad the worst change is, and how many there are of each level. What an added or removed thing consists
/// of counts, too.
class StatusReport final : public Report {
  public:
    void add(const Change& change) override;
};

} // namespace specloom::openapi_diff
