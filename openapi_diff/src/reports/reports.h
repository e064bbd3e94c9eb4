#pragma once

#include "openapi_diff/reports/changelog.h"
#include "openapi_diff/reports/detailed.h"
#include "openapi_diff/reports/status.h"

#include <tuple> // std::tuple

namespace specloom::openapi_diff {

/// All reports, in the order in which their names are offered.
using Reports = std::tuple<StatusReport, ChangelogReport, DetailedReport>;

} // namespace specloom::openapi_diff
