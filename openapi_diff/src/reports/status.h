#pragma once

#include "openapi_diff/report.h"

#include <string_view> // std::string_view

namespace specloom::openapi_diff {

/// How bad the worst change is, and how many there are of each level. What an added or removed thing consists
/// of counts, too.
class StatusReport final : public Report {
  public:
    static constexpr std::string_view name = "status";

    void add(const Change& change) override;
};

} // namespace specloom::openapi_diff
