#include "openapi_diff/reports/detailed.h"

namespace specloom::openapi_diff {

void DetailedReport::add(const Change& change) {
    record(change.level);
    changes_.push_back(change);
}

} // namespace specloom::openapi_diff
