#pragma once

#include "openapi_diff/formatters/plain_status.h"

namespace specloom::openapi_diff {

class StylishStatusFormatter final : public PlainStatusFormatter {
  public:
    using PlainStatusFormatter::PlainStatusFormatter;
};

/// For people at a terminal: a table of level, place, kind and text, one row for each event. No row for a
/// modified operation itself: its parts have theirs.
class StylishChangelogFormatter final : public BasicFormatter {
  public:
    explicit StylishChangelogFormatter(std::ostream& stream) : BasicFormatter(stream) {}
    void format(const Report& report) override;
};

/// The same table with a row for each change.
class StylishDetailsFormatter final : public BasicFormatter {
  public:
    explicit StylishDetailsFormatter(std::ostream& stream) : BasicFormatter(stream) {}
    void format(const Report& report) override;
};

} // namespace specloom::openapi_diff
