#include "openapi_diff/formatters/visualstudio.h"

#include "openapi_diff/formatters/changelog_events.h"
#include "openapi_diff/formatters/utils.h"

#include <ostream> // std::ostream

namespace specloom::openapi_diff {
namespace {

/// By ChangelogEvent.
constexpr EventFormats visualStudioEvents{
    "{0}({1},{2}): {3}: Metadata changed.\n",
    "{0}({1},{2}): {3}: Added operation {4} {5}.\n",
    "{0}({1},{2}): {3}: Removed operation {4} {5}.\n",
    "{0}({1},{2}): {3}: Deprecated operation {4} {5}.\n",
    "{0}({1},{2}): {3}: Operation modified.\n",
    "{0}({1},{2}): {3}: Operation metadata changed.\n",
    "{0}({1},{2}): {3}: Added parameter {4} in {5}.\n",
    "{0}({1},{2}): {3}: Removed parameter {4} in {5}.\n",
    "{0}({1},{2}): {3}: Modified parameter {4} in {5}.\n",
    "{0}({1},{2}): {3}: Request body changed.\n",
    "{0}({1},{2}): {3}: Added response code {4}.\n",
    "{0}({1},{2}): {3}: Removed response code {4}.\n",
    "{0}({1},{2}): {3}: Modified response code {4}.\n",
    "{0}({1},{2}): {3}: Security requirements changed.\n",
};

} // namespace

void VisualStudioChangelogFormatter::write(const ChangelogReport& report) {
    forEachEvent(report, visualStudioEvents,
                 [&](const ChangelogEntry& /*entry*/, std::string_view text) { stream() << text; });
}

void VisualStudioDetailsFormatter::write(const DetailedReport& report) {
    // The empty place before the full stop is meant: the line has no text of its own.
    for (const Change& change : report.changes())
        stream() << changeLine(change, "{0}({1},{2}): {3}: .\n");
}

} // namespace specloom::openapi_diff
