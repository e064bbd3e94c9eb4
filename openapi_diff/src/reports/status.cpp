#include "openapi_diff/reports/status.h"

namespace specloom::openapi_diff {

void StatusReport::add(const Change& change) {
    record(change.level);
}

} // namespace specloom::openapi_diff
