#include "openapi_diff/formatters/stylish.h"

#include "openapi_diff/formatters/changelog_events.h"
#include "openapi_diff/formatters/utils.h"
#include "reporting/place.h"
#include "reporting/table.h"

namespace specloom::openapi_diff {
namespace {

using reporting::Align;

/// By ChangelogEvent.
constexpr EventFormats stylishEvents{
    "Metadata changed",
    "Added operation {4} {5}",
    "Removed operation {4} {5}",
    "Deprecated operation {4} {5}",
    "", // what was modified has rows of its own
    "Operation metadata changed",
    "Added parameter {4} in {5}",
    "Removed parameter {4} in {5}",
    "Modified parameter {4} in {5}",
    "Request body changed",
    "Added response code {4}",
    "Removed response code {4}",
    "Modified response code {4}",
    "Security requirements changed",
};

/// Of level, place, kind and text.
reporting::Table changeTable() {
    return reporting::Table({{.before = "  ", .align = Align::Right},
                             {.before = "  ", .align = Align::Right},
                             {.before = "  ", .align = Align::Right},
                             {.before = "  ", .widest = 0}});
}

} // namespace

void StylishChangelogFormatter::write(const ChangelogReport& report) {
    reporting::Table table = changeTable();
    forEachEvent(report, stylishEvents, [&](const ChangelogEntry& entry, std::string_view text) {
        table.addRow({changeLevelText(entry.level), reporting::printedPos(entry.pos),
                      changeKindText(entry.kind), text});
    });
    table.write(stream());
}

void StylishDetailsFormatter::write(const DetailedReport& report) {
    reporting::Table table = changeTable();
    for (const Change& change : report.changes())
        table.addRow({changeLevelText(change.level), reporting::printedPos(change.pos),
                      changeKindText(change.kind), changeText(change)});
    table.write(stream());
}

} // namespace specloom::openapi_diff
