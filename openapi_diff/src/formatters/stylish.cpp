#include "openapi_diff/formatters/stylish.h"

#include <algorithm> // std::max
#include <ostream>   // std::ostream
#include <string>    // std::string
#include <utility>   // std::move
#include <vector>    // std::vector

#include <fmt/format.h>

#include "openapi_diff/formatters/changelog_events.h"
#include "openapi_diff/formatters/utils.h"
#include "openapi_diff/reports/detailed.h"

namespace specloom::openapi_diff {
namespace {

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

/// Rows of level, place, kind and text. The first three are as wide as the widest value, aligned right.
class Table {
  public:
    void add(ChangeLevel level, jv::Pos pos, ChangeKind kind, std::string text) {
        Row row{.level = changeLevelText(level),
                .place = fmt::format("{}:{}", printedLine(pos), printedColumn(pos)),
                .kind = changeKindText(kind),
                .text = std::move(text)};
        levelWidth_ = std::max(levelWidth_, row.level.size());
        placeWidth_ = std::max(placeWidth_, row.place.size());
        kindWidth_ = std::max(kindWidth_, row.kind.size());
        rows_.push_back(std::move(row));
    }

    void write(std::ostream& stream) const {
        const std::string line =
            fmt::format("  {{:>{}}}  {{:>{}}}  {{:>{}}}  {{}}\n", levelWidth_, placeWidth_, kindWidth_);
        for (const Row& row : rows_)
            stream << fmt::format(fmt::runtime(line), row.level, row.place, row.kind, row.text);
    }

  private:
    struct Row {
        std::string_view level;
        std::string place;
        std::string_view kind;
        std::string text;
    };

    std::vector<Row> rows_;
    std::size_t levelWidth_ = 0;
    std::size_t placeWidth_ = 0;
    std::size_t kindWidth_ = 0;
};

} // namespace

void StylishChangelogFormatter::format(const Report& report) {
    Table table;
    forEachEvent(static_cast<const ChangelogReport&>(report), stylishEvents,
                 [&](const ChangelogEntry& entry, std::string_view text) {
                     table.add(entry.level, entry.pos, entry.kind, std::string(text));
                 });
    table.write(stream());
}

void StylishDetailsFormatter::format(const Report& report) {
    Table table;
    for (const Change& change : static_cast<const DetailedReport&>(report).changes())
        table.add(change.level, change.pos, change.kind, changeText(change));
    table.write(stream());
}

} // namespace specloom::openapi_diff
