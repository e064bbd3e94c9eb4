#include "openapi_diff/formatters/unix.h"

#include "openapi_diff/formatters/changelog_events.h"
#include "openapi_diff/formatters/utils.h"

#include <ostream> // std::ostream

namespace specloom::openapi_diff {
namespace {

/// By ChangelogEvent.
constexpr EventFormats unixEvents{
    "{0}:{1}:{2}: Metadata changed [{3}].\n", // the bracket before the full stop is meant; tools know it so
    "{0}:{1}:{2}: Operation added {4} {5}. [{3}]\n",
    "{0}:{1}:{2}: Operation removed {4} {5}. [{3}]\n",
    "{0}:{1}:{2}: Operation deprecated {4} {5}. [{3}]\n",
    "{0}:{1}:{2}: Operation modified {4} {5}. [{3}]\n",
    "{0}:{1}:{2}: Operation metadata changed. [{3}]\n",
    "{0}:{1}:{2}: Added parameter {4} in {5}. [{3}]\n",
    "{0}:{1}:{2}: Removed parameter {4} in {5}. [{3}]\n",
    "{0}:{1}:{2}: Modified parameter {4} in {5}. [{3}]\n",
    "{0}:{1}:{2}: Request body changed. [{3}]\n",
    "{0}:{1}:{2}: Added response code {4}. [{3}]\n",
    "{0}:{1}:{2}: Removed response code {4}. [{3}]\n",
    "{0}:{1}:{2}: Modified response code {4}. [{3}]\n",
    "{0}:{1}:{2}: Security requirements changed. [{3}]\n",
};

} // namespace

void UnixChangelogFormatter::write(const ChangelogReport& report) {
    forEachEvent(report, unixEvents,
                 [&](const ChangelogEntry& /*entry*/, std::string_view text) { stream() << text; });
}

void UnixDetailsFormatter::write(const DetailedReport& report) {
    // Nothing but the place and the level: that is all of a line here.
    for (const Change& change : report.changes())
        stream() << changeLine(change, "{0}:{1}:{2}: [{3}]\n");
}

} // namespace specloom::openapi_diff
