#include "openapi_diff/formatters/plain_status.h"

#include <ostream> // std::ostream

namespace specloom::openapi_diff {

void PlainStatusFormatter::write(const StatusReport& report) {
    stream() << changeLevelHeading(report.level()) << '\n';
}

} // namespace specloom::openapi_diff
