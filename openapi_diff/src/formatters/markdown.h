#pragma once

#include "openapi_diff/formatter.h"

namespace specloom::openapi_diff {

/// The heading of the level, and how many changes there are of each.
class MarkdownStatusFormatter final : public BasicFormatter {
  public:
    explicit MarkdownStatusFormatter(std::ostream& stream) : BasicFormatter(stream) {}
    void format(const Report& report) override;
};

/// A list of operations for each thing that can happen to one; nothing where nothing happened. Of modified
/// operations it tells the level alone, which is meant.
class MarkdownChangelogFormatter final : public BasicFormatter {
  public:
    explicit MarkdownChangelogFormatter(std::ostream& stream) : BasicFormatter(stream) {}
    void format(const Report& report) override;
};

/// A list of the changes of each level, the worst first. Those that the configuration calls "none" are left
/// out.
class MarkdownDetailsFormatter final : public BasicFormatter {
  public:
    explicit MarkdownDetailsFormatter(std::ostream& stream) : BasicFormatter(stream) {}
    void format(const Report& report) override;
};

} // namespace specloom::openapi_diff
